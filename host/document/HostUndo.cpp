#include "host/document/HostUndo.h"

#include "host/document/HostSelection.h"
#include "host/document/UndoOwner.h"

#include <algorithm>

namespace host {

struct HostUndo::Step {
    std::string name;
    std::vector<std::unique_ptr<Change>> changes;
    HostSelection::Snapshot before, after;
    std::size_t stateBefore = 0, stateAfter = 0;

    bool ChangesModel() const {
        return std::any_of(changes.begin(), changes.end(), [](const auto& change) { return change->ChangesModel(); });
    }
};

namespace {

constexpr unsigned int ownBracket = 0;

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
        return "Modifica";
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
    if (!IsInBracket() && m_open && m_open->name != name)
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
}

void HostUndo::Open(const char* name) {
    m_open = std::make_unique<Step>();
    m_open->name = name;
    m_open->before = m_owner.Selection().TakeSnapshot();
    m_open->stateBefore = State();
}

void HostUndo::CloseStep() {
    if (!m_open)
        return;
    std::unique_ptr<Step> step = std::move(m_open);
    if (step->changes.empty())
        return;
    step->after = m_owner.Selection().TakeSnapshot();
    step->stateAfter = ++m_lastState;
    while (m_steps.size() > m_position) // what had been undone cannot come back after a new command
        m_steps.pop_back();
    const bool model = step->ChangesModel();
    m_steps.push_back(std::move(step));
    ++m_position;
    m_owner.NotifyChange(model);
}

void HostUndo::Record(std::unique_ptr<Change> change, const char* name) {
    if (m_running)
        return;
    if (!m_open)
        Open(name);
    m_open->changes.push_back(std::move(change));
    ++m_recorded;
    if (!IsInBracket())
        Settle();
}

Change* HostUndo::Last() {
    return m_open && !m_open->changes.empty() ? m_open->changes.back().get() : nullptr;
}

bool HostUndo::HasOpenChanges() const {
    return m_open && !m_open->changes.empty();
}

void HostUndo::Run(Step& step, bool forward) {
    m_running = true;
    m_owner.Selection().Clear(); // before its objects leave
    if (forward) {
        for (auto& change : step.changes)
            change->Redo();
    } else {
        for (std::size_t i = step.changes.size(); i-- > 0;)
            step.changes[i]->Undo();
    }
    m_owner.Selection().Restore(forward ? step.after : step.before);
    m_running = false;
    m_owner.NotifyChange(step.ChangesModel());
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
        return CString::FromUtf8(m_open->name);
    return m_position > 0 ? CString::FromUtf8(m_steps[m_position - 1]->name) : CString();
}

CString HostUndo::RedoName() const {
    return CanRedo() ? CString::FromUtf8(m_steps[m_position]->name) : CString();
}

void HostUndo::Clear() {
    m_brackets.clear();
    m_open.reset();
    m_steps.clear();
    m_position = 0;
    ++m_lastState;
}

std::size_t HostUndo::State() const {
    if (HasOpenChanges())
        return m_lastState + 1;
    if (m_position > 0)
        return m_steps[m_position - 1]->stateAfter;
    return m_steps.empty() ? m_lastState : m_steps.front()->stateBefore;
}

} // namespace host
