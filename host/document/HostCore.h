// The state of an open project, on which the subjects of the document (lists, editing, generation, cases) stand, and
// the one place where all of it changes together: model, selection, undo, results and what observers hear of them.
#pragma once

#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/frame/host/QuovarProgetto.h"
#include "host/document/ChangeNotices.h"
#include "host/document/DirectChanges.h"
#include "host/document/DocumentData.h"
#include "host/document/HostAnalysis.h"
#include "host/document/HostSelection.h"
#include "host/document/HostUndo.h"
#include "host/document/Refusal.h"
#include "host/document/UndoOwner.h"

#include <functional>

namespace host {

// Each subject is a class of its own, derived from the one that it stands on, in a line that ends with HostDocument.
// All their state is here, but for the selection, which works on the whole document and is its last member.
class HostCore : public CQuovarDoc, private UndoOwner {
  public:
    void UpdateAllViews(CView* pSender, long lHint = 0, CObject* pHint = nullptr) override;
    Lunghezza GetLunghezza() override { return m_data.Units().length; }
    Forza GetForza() const { return m_data.Units().force; }

    // For drawing, filing and analysis.
    DocumentData& Data() override { return m_data; }
    const DocumentData& Data() const { return m_data; }
    HostSelection& Selection() override { return m_selection; }
    HostUndo& Undo() { return m_undo; }
    // The element or entity with that number, or null.
    CElemento* Find(Kind kind, int id) { return m_data.Find(kind, id); }
    // How near two nodes may lie before they count as one; in the document's length unit.
    double GetTolerance() const { return m_data.Tolerance(); }

    // ---- News
    void AddObserver(DocumentObserver* observer) { m_notices.AddObserver(observer); }
    void RemoveObserver(DocumentObserver* observer) { m_notices.RemoveObserver(observer); }
    // Called when there is something to do as soon as control is back in the event loop: the application then calls
    // Idle once. Notifications are collected until then, and additions outside a bracket are one step. Without a
    // scheduler each call notifies, and is a step, by itself.
    void SetIdleScheduler(std::function<void()> scheduler) { m_notices.SetScheduler(std::move(scheduler)); }
    void Idle();
    void NotifySelection(unsigned kinds); // bits 1 << Kind

    // Who tells the user why an operation that a dialog asked for was refused; called before the operation returns. One
    // at a time; without one nobody is told.
    using RefusalTeller = std::function<void(const Refusal& refusal)>;
    void SetRefusalTeller(RefusalTeller teller) { m_refusalTeller = std::move(teller); }
    // The operation is over: what it did is complete, the rest is left undone.
    void Refuse(const Refusal& refusal) const;
    // Who shows the user in one sentence what a command did; each step tells by itself. One at a time.
    using Teller = std::function<void(const CString& sentence)>;
    void SetTeller(Teller teller) { m_teller = std::move(teller); }
    void Tell(const CString& sentence) const;

    // Who asks the user, while a wait is shown, whether to break the operation off: asked often, until it answers true.
    // Without one nothing is broken off.
    void SetBreakAsker(std::function<bool()> asker) { m_breakAsker = std::move(asker); }
    bool IsBrokenOff() const { return m_breakAsker && m_breakAsker(); }

    // ---- The file
    // Takes over a whole model that was read from a file. Undo and selection start anew, the document is unmodified.
    void Replace(DocumentData data);
    // The path names the document: the title is the file's name.
    void SetPathName(LPCTSTR path) override;
    // By a dialog: the document stays modified, whatever is undone, until it is saved.
    void SetModifiedFlag(BOOL modified = TRUE) override;
    // After a successful save.
    void MarkSaved();

    // ---- The analysis
    // Analyses the model. Then the results are valid, until the next change, and the elements show the current case; or
    // the outcome tells why not. Throws std::bad_alloc.
    AnalysisOutcome RunAnalysis();
    const HostAnalysis& Analysis() const { return m_analysis; }

  protected:
    // The selection is only kept until the document is whole.
    explicit HostCore(HostSelection& selection);
    ~HostCore() override;

    ChangeNotices& Notices() { return m_notices; }
    DirectChanges& Direct() { return m_direct; }

  private:
    void NotifyChange(Reach reach, unsigned news, const std::vector<long>& codes) override;
    void StepMade(const StepSummary& summary) override;
    void Announce(long hint) override { m_notices.Tell(nullptr, hint); }
    void FollowResults(Reach reach);
    bool ScheduleIdle() override { return m_notices.ScheduleIdle(); }
    void KeepCurrentCase();
    void RefreshModified();

    DocumentData m_data;
    HostSelection& m_selection;
    HostUndo m_undo{*this};
    HostAnalysis m_analysis{m_data};
    CQuovarProgetto m_design;
    ChangeNotices m_notices{m_data, m_selection, m_analysis};
    DirectChanges m_direct{m_data, m_undo};
    RefusalTeller m_refusalTeller;
    std::function<bool()> m_breakAsker;
    Teller m_teller;
    std::size_t m_savedState = 0;
    bool m_flagged = false; // modified, says a dialog
};

} // namespace host
