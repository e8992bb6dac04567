// The open tool dialogs: which view each works on, and when it ends.
#pragma once

#include <QTimer>

#include <memory>
#include <vector>

class CDialog;
class CDialogDocument;
class CObject;
class CView;
class CWnd;

namespace host {

class HostView;
struct Command;

// A view has at most one tool dialog. A dialog whose view was closed stays open without one until a view without a
// dialog becomes active and takes it over.
class ToolDialogs {
  public:
    ToolDialogs();
    ~ToolDialogs(); // ends all
    ToolDialogs(const ToolDialogs&) = delete;
    ToolDialogs& operator=(const ToolDialogs&) = delete;

    // Opens the command's dialog beside the view and ends the view's former one. Null, and nothing open, when there can
    // be none; otherwise the dialog, which stays this object's.
    CDialogDocument* Open(const Command& command, HostView& view, CWnd& frame);
    CDialogDocument* Of(const HostView& view) const; // null when it has none
    bool IsEmpty() const { return m_open.empty(); }

    // Destroys the dialog's window now and the object when its handlers have returned. Any other address is ignored.
    void End(const CDialog* dialog);
    void EndAll();

    // News for the dialogs; see CDialogDocument.
    void Update(const HostView& view, CView* sender, long hint, CObject* pHint);
    void ResultShown(const HostView& view, int kind, bool shown);
    void ViewClosing(HostView& view);
    void ViewActivated(HostView& view);

  private:
    struct Entry {
        const Command* command;
        std::unique_ptr<CDialogDocument> dialog;
        HostView* view; // not owned; null after its closing
    };

    void PlaceBeside(const Command& command, CDialog& dialog, HostView& view);
    void EndCancelledOrphans();

    std::vector<Entry> m_open;
    QTimer m_orphanWatch;
};

} // namespace host
