#include "host/document/HostUndo.h"

#include "host/document/Changes.h"
#include "host/document/HostSelection.h"
#include "host/document/StepSummary.h"
#include "host/document/UndoOwner.h"

#include <algorithm>
#include <array>
#include <limits>

namespace host {

struct HostUndo::Step {
    std::string name;
    std::vector<std::unique_ptr<Change>> changes;
    HostSelection::Snapshot before, after;
    std::size_t stateBefore = 0, stateAfter = 0;
    bool direct = false;                          // opened by a direct write outside every bracket
    std::vector<long> announced, told;            // codes sent before its first change and after it
    std::array<int, kindCount> firstNew{};        // objects from that number on were made in this step
    std::unordered_set<const CElemento*> keptNew; // those of them whose state it keeps
    std::array<int, kindCount> present{};         // that it was to make and found

    Reach GetReach() const {
        Reach farthest = Reach::Look;
        for (const auto& change : changes)
            farthest = std::max(farthest, change->GetReach());
        return farthest;
    }
    unsigned GetNews() const {
        unsigned news = newsNone;
        for (const auto& change : changes)
            news |= change->GetNews();
        return news;
    }
    void DropIdle();
    bool HasEffect() const {
        return std::any_of(changes.begin(), changes.end(), [](const auto& change) { return change->HasEffect(); });
    }
};

// A state that is as before counts all the same when a later one of its object, kept in between, leads back to it.
void HostUndo::Step::DropIdle() {
    if (std::all_of(changes.begin(), changes.end(), [](const auto& change) { return change->HasEffect(); }))
        return;
    std::unordered_set<const CElemento*> later;
    bool allLater = false;
    for (std::size_t i = changes.size(); i-- > 0;) {
        const CElemento* object = changes[i]->Keeps();
        if (!changes[i]->HasEffect() && !allLater && !later.contains(object)) {
            changes[i].reset();
            continue;
        }
        if (object)
            later.insert(object);
        allLater = allLater || changes[i]->KeepsAll();
    }
    std::erase(changes, nullptr);
}

namespace {

// What happens meanwhile is not recorded.
class Unrecorded {
  public:
    explicit Unrecorded(bool& running) : m_running(running) { m_running = true; }
    ~Unrecorded() { m_running = false; }
    Unrecorded(const Unrecorded&) = delete;
    Unrecorded& operator=(const Unrecorded&) = delete;

  private:
    bool& m_running;
};

constexpr unsigned int ownBracket = 0;
constexpr char defaultName[] = "Modifica";

const char* NameOfKind(unsigned int kind) {
    switch (kind) {
    case UNDO_SPOSTA:
        return "Muovi";
    case UNDO_RUOTA:
        return "Ruota";
    case UNDO_COPIA:
        return "Copia";
    case UNDO_DIVIDI:
        return "Suddivisione linea";
    default:
        return defaultName;
    }
}

} // namespace

HostUndo::HostUndo(UndoOwner& owner) : m_owner(owner) {
}

HostUndo::~HostUndo() = default;

void HostUndo::BeginUndo(unsigned int tipo, double, double, double, double, double, double, double, double, double,
                         double) {
    // The ten values would let a recorder replay the command; a journal of what changed needs none of them, and
    // undoes a rotation without rounding.
    if (m_brackets.empty())
        Close();
    m_brackets.push_back(tipo);
    if (!m_open)
        Open(NameOfKind(tipo));
}

void HostUndo::EndUndo(unsigned int tipo) {
    const bool inside = IsInBracket();
    if (tipo == UNDO_DIVIDI && std::find(m_brackets.begin(), m_brackets.end(), tipo) != m_brackets.end())
        m_owner.FinishDivision();
    EndBracket(tipo);
    if (inside && !IsInBracket())
        CloseStep();
}

void HostUndo::EndBracket(unsigned int tipo) {
    for (std::size_t i = m_brackets.size(); i-- > 0;) {
        if (m_brackets[i] == tipo) {
            m_brackets.resize(i);
            return;
        }
    }
}

void HostUndo::Begin(const char* name) {
    if (m_brackets.empty())
        Close();
    m_brackets.push_back(ownBracket);
    if (!m_open)
        Open(name);
}

void HostUndo::End() {
    EndUndo(ownBracket);
}

void HostUndo::BeginShared(const char* name) {
    if (!IsInBracket() && (!m_open || m_open->name != name))
        Close();
    m_brackets.push_back(ownBracket);
    if (!m_open)
        Open(name);
}

void HostUndo::EndShared() {
    const bool inside = IsInBracket();
    EndBracket(ownBracket);
    if (inside && !IsInBracket())
        Settle();
}

void HostUndo::Settle() {
    if (!m_owner.ScheduleIdle())
        CloseStep();
}

void HostUndo::Rename(const char* name) {
    if (m_open)
        m_open->name = name;
}

void HostUndo::Close() {
    m_brackets.clear();
    CloseStep();
    TakeRecords(defaultName);
}

void HostUndo::CloseImplicit() {
    if (IsInBracket() || !m_open)
        return;
    if (!m_open->direct)
        CloseStep();
    else if (!m_open->HasEffect())
        m_open.reset(); // what was handed out for writing was only read
}

void HostUndo::Open(const char* name) {
    m_open = std::make_unique<Step>();
    m_open->name = name;
    m_open->before = m_owner.Selection().TakeSnapshot();
    m_open->stateBefore = ClosedState(); // not that of the records which this step is about to take
    m_kept.clear();
    CountNew();
}

// What the document gets from now on is new.
void HostUndo::CountNew() {
    for (const Kind kind : allKinds) {
        const int next = m_owner.Data().NextId(kind);
        m_open->firstNew[static_cast<std::size_t>(kind)] = next > 0 ? next : std::numeric_limits<int>::max();
    }
}

// What the document keeps of itself beside its objects. Outside brackets it is a step of its own.
void HostUndo::TakeRecords(const char* name) {
    for (const auto& record : m_records) {
        if (!record->Differs())
            continue;
        if (!m_open)
            Open(name);
        m_open->changes.push_back(record->Take());
        ++m_recorded;
    }
    if (m_open && !IsInBracket())
        CloseStep();
}

std::vector<std::pair<CElemento*, CElemento*>> HostUndo::FormerStates() const {
    std::vector<std::pair<CElemento*, CElemento*>> states;
    for (std::size_t i = 0; m_open && i < m_open->changes.size(); ++i)
        if (CElemento* former = m_open->changes[i]->Other())
            states.emplace_back(m_open->changes[i]->Keeps(), former);
    return states;
}

int HostUndo::FirstNew(Kind kind) const {
    return m_open ? m_open->firstNew[static_cast<std::size_t>(kind)] : std::numeric_limits<int>::max();
}

bool HostUndo::IsNew(Kind kind, CElemento& object) const {
    return m_open && object.GetID() >= FirstNew(kind);
}

bool HostUndo::IsKept(const CElemento& object) const {
    return m_open && m_kept.contains(&object);
}

void HostUndo::BeforeWrite(CElemento& elemento) {
    Kind kind;
    if (m_running || elemento.GetID() == 0 || IsKept(elemento) || !KindOf(elemento, kind))
        return;
    // What was made in this step comes and goes with it as it is, unless a former state brings it back half way. Not a
    // named entity: it may be given another number, under which the document is to find it.
    if (IsSelectableKind(kind) && IsNew(kind, elemento) && !m_open->keptNew.contains(&elemento))
        return;
    DocumentData& data = m_owner.Data();
    if (data.Find(kind, elemento.GetID()) != &elemento)
        return;
    if (!m_open) {
        Open(defaultName);
        m_open->direct = !IsInBracket();
    }
    const Unrecorded copying(m_running);
    m_open->changes.push_back(KeepState(data, elemento));
    m_kept.insert(&elemento);
    ++m_recorded;
    if (m_open->direct)
        m_owner.ScheduleIdle();
}

void HostUndo::CodeSent(long hint) {
    if (!m_running && m_open)
        (HasOpenChanges() ? m_open->told : m_open->announced).push_back(hint);
}

void HostUndo::EndDirect(const char* name) {
    if (m_running || IsInBracket())
        return;
    if (m_open && m_open->direct) {
        if (name)
            m_open->name = name;
        CloseStep();
    }
    TakeRecords(name ? name : defaultName);
}

void HostUndo::NotePresent(Kind kind, int count) {
    if (m_open)
        m_open->present[static_cast<std::size_t>(kind)] += count;
}

StepSummary HostUndo::Summarize(const Step& step) const {
    StepSummary summary;
    summary.name = CString::FromUtf8(step.name);
    summary.present = step.present;
    std::unordered_set<const CElemento*> changed;
    for (const auto& change : step.changes) {
        change->CountIn(summary);
        CElemento* object = change->Keeps();
        Kind kind;
        if (object && KindOf(*object, kind) && changed.insert(object).second)
            ++summary.changed[static_cast<std::size_t>(kind)];
    }
    return summary;
}

void HostUndo::CloseStep() {
    if (!m_open)
        return;
    for (const auto& record : m_records)
        if (record->Differs())
            m_open->changes.push_back(record->Take());
    std::unique_ptr<Step> step = std::move(m_open);
    for (const auto& change : step->changes)
        change->Settle();
    step->DropIdle();
    const StepSummary summary = Summarize(*step);
    if (step->changes.empty()) {
        if (summary.present != KindCounts{})
            m_owner.StepMade(summary);
        return;
    }
    step->after = m_owner.Selection().TakeSnapshot();
    step->stateAfter = ++m_lastState;
    while (m_steps.size() > m_position) // what had been undone cannot come back after a new command
        m_steps.pop_back();
    const Reach reach = step->GetReach();
    const unsigned news = step->GetNews();
    m_steps.push_back(std::move(step));
    ++m_position;
    m_owner.NotifyChange(reach, news, {}); // the codes have been sent
    m_owner.StepMade(summary);
}

void HostUndo::Record(std::unique_ptr<Change> change, const char* name) {
    if (m_running)
        return;
    if (!IsInBracket() && m_open && m_open->direct)
        CloseStep();
    if (!m_open) {
        TakeRecords(defaultName);
        Open(name);
    }
    Kind kind;
    if (CElemento* object = change->Keeps()) {
        m_kept.insert(object);
        if (KindOf(*object, kind) && IsNew(kind, *object))
            m_open->keptNew.insert(object);
    } else {
        // What was kept before this change may not fit after it. Not by clear(), which takes as long as the set was
        // ever large.
        std::unordered_set<const CElemento*>().swap(m_kept);
        if (change->KeepsAll())
            CountNew();
    }
    m_open->changes.push_back(std::move(change));
    ++m_recorded;
    if (!IsInBracket())
        Settle();
}

void HostUndo::TakeBack() {
    if (!Last())
        return;
    const std::unique_ptr<Change> change = std::move(m_open->changes.back());
    m_open->changes.pop_back();
    const Unrecorded running(m_running);
    change->Undo();
}

Change* HostUndo::Last() {
    return m_open && !m_open->changes.empty() ? m_open->changes.back().get() : nullptr;
}

bool HostUndo::HasOpenChanges() const {
    return (m_open && m_open->HasEffect()) || RecordsDiffer();
}

bool HostUndo::RecordsDiffer() const {
    return std::any_of(m_records.begin(), m_records.end(), [](const auto& record) { return record->Differs(); });
}

void HostUndo::Run(Step& step, bool forward) {
    for (const long hint : step.announced)
        m_owner.Announce(hint);
    {
        const Unrecorded running(m_running);
        const HostSelection::Snapshot& selection = forward ? step.after : step.before;
        m_owner.Selection().PrepareRestore(selection);
        if (forward) {
            for (auto& change : step.changes)
                change->Redo();
        } else {
            for (std::size_t i = step.changes.size(); i-- > 0;)
                step.changes[i]->Undo();
        }
        m_owner.Selection().Restore(selection);
        RememberRecords();
    }
    m_owner.NotifyChange(step.GetReach(), step.GetNews(), step.told);
}

bool HostUndo::Undo() {
    Close();
    if (m_position == 0)
        return false;
    --m_position;
    Run(*m_steps[m_position], false);
    return true;
}

bool HostUndo::Redo() {
    Close();
    if (m_position == m_steps.size())
        return false;
    ++m_position;
    Run(*m_steps[m_position - 1], true);
    return true;
}

CString HostUndo::UndoName() const {
    if (HasOpenChanges())
        return CString::FromUtf8(m_open ? m_open->name : defaultName);
    return m_position > 0 ? CString::FromUtf8(m_steps[m_position - 1]->name) : CString();
}

CString HostUndo::RedoName() const {
    return CanRedo() ? CString::FromUtf8(m_steps[m_position]->name) : CString();
}

void HostUndo::RememberRecords() {
    for (const auto& record : m_records)
        record->Remember();
}

void HostUndo::Clear() {
    m_brackets.clear();
    m_open.reset();
    m_steps.clear();
    m_position = 0;
    ++m_lastState;
}

std::size_t HostUndo::State() const {
    return HasOpenChanges() ? m_lastState + 1 : ClosedState();
}

std::size_t HostUndo::ClosedState() const {
    if (m_position > 0)
        return m_steps[m_position - 1]->stateAfter;
    return m_steps.empty() ? m_lastState : m_steps.front()->stateBefore;
}

} // namespace host
