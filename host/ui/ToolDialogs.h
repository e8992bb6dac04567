// The dialogs that stay open beside the views: which view each works on, which one picks there, and when it ends.
#pragma once

#include "host/ui/WindowPlaces.h"
#include "platform/core/String.h"

#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

class CDialog;
class CDialogDocument;
class CFPoint;
class CObject;
class CView;
class CWnd;
class QWidget;

namespace host {

class HostDocument;
class HostView;
struct Command;

// Any number lives beside a view, one of each command; at most one of them picks. A tool dialog whose view was closed
// waits without one until another view of its document is active, and ends with the document. A window that is no tool
// dialog, or lies inside its view, ends with the view.
class ToolDialogs {
  public:
    ToolDialogs();
    ~ToolDialogs(); // ends all
    ToolDialogs(const ToolDialogs&) = delete;
    ToolDialogs& operator=(const ToolDialogs&) = delete;

    // Opens the command's dialog beside the view. One that is open there comes to the front instead, and picks again
    // when it did; where a class serves several commands, another one's is replaced. Null, and nothing open, when there
    // can be none; otherwise the dialog, which stays this object's.
    CDialog* Open(const Command& command, HostView& view, CWnd& frame);
    CDialogDocument* Latest(const HostView& view) const; // opened last or picking since; null when there is none
    bool IsOpen(const CDialog* dialog, const HostView& view) const; // for any address

    HostView* ViewOf(HWND control) const; // of the dialog that the control is in; null for another window

    // The axis of the active dialog that selects by range in the document, otherwise of the one opened last; -1 for
    // none.
    int RangeAxis(const HostDocument& document) const;

    DialogPlaces& Places() { return m_places; }

    // Destroys the dialog's window now and the object when its handlers have returned. Any other address is ignored.
    void End(const CDialog* dialog);
    void EndAll();
    void EndAllOf(const HostDocument& document);

    // ---- News for the dialogs; see CDialogDocument.
    void Update(const HostView& view, CView* sender, long hint, CObject* pHint);
    void ResultShown(const HostView& view, int kind, bool shown);
    void Renamed(const HostDocument& document, const CString& formerPath); // empty when it had none
    void ViewClosing(HostView& view);
    void ViewActivated(HostView& view);

    // ---- Picking in a view. Who asks for it or stops it is the dialog that is being called or, otherwise, the active
    // one.
    bool IsPicking(const HostView& view) const;
    bool PicksNodesOnly(const HostView& view) const;
    void PickingStarted(const HostView& view, const CString& prompt);
    bool PickingStops(const HostView& view); // false for a dialog that is not the one that picks: the mode goes on
    void PointPicked(const HostView& view, const CFPoint& point, bool second);

  private:
    struct Tool {
        const Command* command;
        HostDocument* document;
        HostView* view;                     // not owned; null after its closing
        std::unique_ptr<CDialog> dialog;    // null while it is being opened and after its end
        CDialogDocument* tool = nullptr;    // the same; null for one of another kind
        bool picks = false;                 // in its view, or in the one that it had
        std::optional<CString> prompt = {}; // of its last picking, unless it stopped that by itself
        QPoint place = {};                  // its corner when it opened
        std::vector<long> missed = {};      // codes that came while it had no view, each once
    };
    using Tools = std::vector<std::shared_ptr<Tool>>;

    template <class Condition>
    std::shared_ptr<Tool> FindLast(const Condition& condition) const;
    std::shared_ptr<Tool> OpenAt(const HostView& view, UINT dialog) const;
    std::shared_ptr<Tool> PickerOf(const HostView& view) const;
    Tool* CallerOn(const HostView& view) const;
    bool IsHeld(const Tool* tool) const;
    CDialog* Make(Tool& tool, CWnd& frame);
    CDialog* BringToFront(Tool& tool);
    void ResumePicking(Tool& tool);
    void Adopt(Tool& tool, HostView& view);
    void PutInPlace(const Command& command, QWidget& window, QPoint free) const;
    void RememberPlace(const Tool& tool);
    void End(std::shared_ptr<Tool> tool); // by value: the list holds it no longer
    void EndClosed();
    void EndCancelledOrphans();

    Tools m_tools; // the one that was opened or began to pick last is at the end
    Tool* m_caller = nullptr;
    QTimer m_orphanWatch;
    DialogPlaces m_places;
};

} // namespace host
