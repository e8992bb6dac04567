// Undo and redo without limit. A step is a journal of changes, so it costs what it changed, and the objects that it
// created or removed come back as the same objects: pointers kept by the journal stay good.
#pragma once

#include "dialogs/frame/host/QuovarUndo.h"
#include "model/element/WriteWatch.h"
#include "platform/core/String.h"

#include <memory>
#include <unordered_set>
#include <utility>
#include <vector>

namespace host {

class UndoOwner;
enum class Kind;
struct StepSummary;

// What open windows must hear of besides the change itself; bits.
enum News : unsigned {
    newsNone = 0,
    newsLengths = 1, // of lines
    newsUnits = 2,
    newsBeamDesign = 4,
    newsWallDesign = 8
};

// What a change touches, each more than the one before: only how the model is looked at; the model, but nothing that
// results depend on; anything.
enum class Reach { Look, Model, Results };

// One reversible change of a document. It has happened when it is recorded.
class Change {
  public:
    virtual ~Change() = default;
    virtual void Undo() = 0;
    virtual void Redo() = 0;
    virtual Reach GetReach() const { return Reach::Results; }
    virtual unsigned GetNews() const { return newsNone; }
    // The object whose state it keeps, if it keeps one's: what else is written into that object until another kind of
    // change comes is kept with it.
    virtual CElemento* Keeps() const { return nullptr; }
    // The copy of what that object is not: while the change has happened, of what it was. Null for a change that has
    // none.
    virtual CElemento* Other() const { return nullptr; }
    virtual bool KeepsAll() const { return false; } // the states of all objects
    // Adds the objects that it made, removed or moved. Those whose state it keeps count as changed without it.
    virtual void CountIn(StepSummary&) const {}
    // False when it turned out, at the end of its step, that nothing is different.
    virtual bool HasEffect() const { return true; }
    // The step ends.
    virtual void Settle() {}
};

// A record of the document that dialogs write directly and that tells nobody: it is compared.
class WatchedRecord {
  public:
    virtual ~WatchedRecord() = default;
    virtual void Remember() = 0;
    virtual bool Differs() const = 0;
    // The change from what is remembered to what is; remembers that.
    virtual std::unique_ptr<Change> Take() = 0;
};

// The ways to open a step. They nest: inside another's bracket each only adds to the step that is open.
//
//   opened by                  for                              the step ends
//   BeginUndo ... EndUndo      a dialog's command               with the bracket
//   UndoStep                   a command of the application     with the guard
//   SharedStep                 a piece of a dialog's command    in the event loop, or before a step of another name
//   Record, Add ...            one change outside brackets      in the event loop
//   a direct write             what a dialog writes into the    with the next code that is sent, or before the next
//                              model outside brackets           step
//
// Inside a bracket direct writes belong to it. Where there is no event loop to come back to, the third and the fourth
// end at once. Whatever is open outside a bracket ends before a bracket begins, and before undo, redo and saving.
class HostUndo : public CQuovarUndo, private WriteWatch {
  public:
    explicit HostUndo(UndoOwner& owner);
    ~HostUndo() override;
    HostUndo(const HostUndo&) = delete;
    HostUndo& operator=(const HostUndo&) = delete;

    // Brackets nest: only the outermost makes a step. An end closes the brackets opened inside its own that were left
    // open; one without a beginning does nothing. Undo, Redo and Close end whatever is open.
    void BeginUndo(unsigned int tipo, double v1, double v2, double v3, double v4, double v5, double v6, double v7,
                   double v8, double v9, double v10) override;
    void EndUndo(unsigned int tipo) override;

    // The host's own brackets; see UndoStep. The name, UTF-8, is what the menu shows after "Annulla".
    void Begin(const char* name);
    void End();
    // A bracket for what a dialog asks for piece by piece, one call after the other: until control is back in the event
    // loop, further ones of the same name, and changes outside every bracket, go into the same step. Without a
    // scheduler (see HostCore::SetIdleScheduler) it is a bracket like any other. See SharedStep.
    void BeginShared(const char* name);
    void EndShared();
    bool IsInBracket() const { return !m_brackets.empty(); }
    // How many changes were ever recorded: equal numbers say that nothing was recorded in between.
    std::size_t RecordCount() const { return m_recorded; }
    // What the open step has changed so far, each object with a copy of what it was, in the order of the changes; an
    // object may come again.
    std::vector<std::pair<CElemento*, CElemento*>> FormerStates() const;
    // Objects of the kind from that number on were made in the open step; above all numbers when none is open.
    int FirstNew(Kind kind) const;
    // A better name for the open step: the kind 4 of a bracket does not tell a mirror from a copy.
    void Rename(const char* name);
    void Close();
    // Ends a step that was opened by a change outside every bracket. What was written directly goes on waiting for its
    // code.
    void CloseImplicit();

    // A record that dialogs write directly: a value of the document, or of an object that lives as long, that can be
    // copied and compared. That its type enters here is all that it takes.
    template <class T>
    void Watch(T& record);
    // They are what they are: nobody changed them.
    void RememberRecords();
    // The code of a change was sent by somebody: undo and redo of the open step send it again. A step of direct writes
    // ends with it and has that name; null leaves it.
    void CodeSent(long hint);
    void EndDirect(const char* name);
    bool IsOpen() const { return !m_brackets.empty() || m_open; }
    // Objects that the open step was to make were there already: its summary says so.
    void NotePresent(Kind kind, int count);

    // Takes a change that has just been made. Outside every bracket it opens a step of that name by itself, closed at
    // once, or when control is back in the event loop (see HostCore::SetIdleScheduler).
    void Record(std::unique_ptr<Change> change, const char* name);
    // Undoes the change recorded last in the open step, as if it had never been.
    void TakeBack();
    // The change recorded last in the open step, for those that can take one more; null at the start of a step.
    Change* Last();

    bool CanUndo() const { return m_position > 0 || HasOpenChanges(); }
    bool CanRedo() const { return m_position < m_steps.size() && !HasOpenChanges(); }
    // Go one step back or forth with the selection that belongs to it; false when there is none.
    bool Undo();
    bool Redo();
    // Names of the next steps, for the menu; empty when there are none.
    CString UndoName() const;
    CString RedoName() const;
    std::size_t UndoCount() const { return m_position; }
    std::size_t RedoCount() const { return m_steps.size() - m_position; }

    // Forgets all steps.
    void Clear();
    // A number that tells the states of the document apart, equal again when undo or redo comes back to one.
    std::size_t State() const;

  private:
    struct Step;

    void BeforeWrite(CElemento& elemento) override;
    bool IsKept(const CElemento& object) const;
    void CountNew();
    bool IsNew(Kind kind, CElemento& object) const; // made in the open step
    void TakeRecords(const char* name);
    bool HasOpenChanges() const;
    bool RecordsDiffer() const;
    std::size_t ClosedState() const; // the one that the last whole step led to
    void Open(const char* name);
    void EndBracket(unsigned int tipo);
    void Settle(); // closes the step, now or when control is back in the event loop
    void CloseStep();
    StepSummary Summarize(const Step& step) const;
    void Run(Step& step, bool forward);

    UndoOwner& m_owner;
    std::vector<std::unique_ptr<Step>> m_steps;
    std::size_t m_position = 0;                  // steps before it are done, those from it on undone
    std::unique_ptr<Step> m_open;                // being recorded
    std::vector<unsigned int> m_brackets;        // kinds; 0 for the host's own
    std::unordered_set<const CElemento*> m_kept; // whose state the open step has kept since its last other change
    std::vector<std::unique_ptr<WatchedRecord>> m_records;
    std::size_t m_lastState = 0;
    std::size_t m_recorded = 0;
    bool m_running = false; // what undo and redo change is not recorded
};

// A change of a watched record.
template <class T>
class RecordChange : public Change {
  public:
    RecordChange(T& where, T former) : m_where(where), m_other(std::move(former)) {}

    void Undo() override { std::swap(m_where, m_other); }
    void Redo() override { std::swap(m_where, m_other); }
    Reach GetReach() const override { return Reach::Look; }

  private:
    T& m_where;
    T m_other;
};

template <class T>
void HostUndo::Watch(T& record) {
    class Watched final : public WatchedRecord {
      public:
        explicit Watched(T& where) : m_where(where), m_known(where) {}
        void Remember() override { m_known = m_where; }
        bool Differs() const override { return !(m_where == m_known); }
        std::unique_ptr<Change> Take() override {
            return std::make_unique<RecordChange<T>>(m_where, std::exchange(m_known, m_where));
        }

      private:
        T& m_where;
        T m_known;
    };
    m_records.push_back(std::make_unique<Watched>(record));
}

// Brackets a command of the host.
class UndoStep {
  public:
    UndoStep(HostUndo& undo, const char* name) : m_undo(undo) { m_undo.Begin(name); }
    ~UndoStep() { m_undo.End(); }
    UndoStep(const UndoStep&) = delete;
    UndoStep& operator=(const UndoStep&) = delete;

  private:
    HostUndo& m_undo;
};

// The same for a piece of a dialog's command.
class SharedStep {
  public:
    SharedStep(HostUndo& undo, const char* name) : m_undo(undo) { m_undo.BeginShared(name); }
    ~SharedStep() { m_undo.EndShared(); }
    SharedStep(const SharedStep&) = delete;
    SharedStep& operator=(const SharedStep&) = delete;

  private:
    HostUndo& m_undo;
};

} // namespace host
