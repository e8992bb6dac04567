// The application at work: its documents, their views and tool dialogs, its main window, and the host that the dialogs
// reach through their static functions.
#pragma once

#include "dialogs/frame/host/QuovarHost.h"
#include "host/ui/ToolDialogs.h"
#include "host/view/ViewOwner.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

class QFileInfo;
class QSettings;
struct MSG;

namespace host {

class HostDocument;
class MainWindow;
struct Command;

// One at a time: it installs itself as the host and its window as the application's main window for as long as it
// lives. What a user is told or asked goes through message boxes, in Italian.
class Workspace final : public CQuovarHost, public ViewOwner {
  public:
    Workspace();
    ~Workspace() override; // closes everything without asking
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    MainWindow& Window() { return *m_window; }
    ToolDialogs& Tools() { return m_tools; }

    // What the user changed of places and shortcuts in former runs comes back, and is kept from now on. Outlives this
    // object. Without it, as in tests and batch modes, nothing is remembered.
    void Remember(QSettings& settings);
    void EditShortcuts();

    // ---- Documents. Views and documents stay this object's; a document lives as long as it has views.
    HostView& NewDocument();
    // A project, or a text model by its extension. Null, after a message, when the file cannot be read; what is open
    // stays as it is. A file that is open already is shown.
    HostView* Open(const QString& path);
    bool Save(HostDocument& document); // asks for a name when there is none; false when nothing was written
    bool SaveAs(HostDocument& document, const QString& path);
    void AskAndOpen();
    void AskAndImport();
    bool AskAndSaveAs(HostDocument& document);
    QString PathOf(const HostDocument& document) const; // empty before the first save
    QString TitleOf(const HostView& view) const;

    // ---- Views.
    HostView& NewView(HostDocument& document);
    // Asks about unsaved changes with a document's last view; false when the user keeps it.
    bool CloseView(HostView& view);
    bool CloseAll();
    HostView* ActiveView() const { return m_active; } // null when there is none
    void ViewActivated(HostView& view);
    const std::vector<std::unique_ptr<HostView>>& Views() const { return m_views; }

    // Runs what the user asks for, unless a command is at work still: one that shows a dialog goes on when the dialog
    // is gone, and a request that was already waiting behind the dialog's last key may come before that.
    void Execute(const std::function<void()>& command);

    // The same for a command of the menus. Where it has told nothing of what it did, the sentence is told, or what is
    // selected now when that is other than before.
    void RunCommand(const QString& sentence, const std::function<void()>& command);
    // A key for which a tool dialog had no use: one of those in SharedKeys.h runs its command on the dialog's view.
    // False for any other key, and while a modal dialog is open.
    bool TakeKey(const MSG& message);

    // ---- Commands on the active view; without one nothing happens.
    // Opens the command's dialog and returns it, or runs it until the user is done and returns null. Null also when
    // there can be no dialog, or nothing is selected for a command that needs it.
    CDialog* Run(const Command& command);
    void Undo();
    void Redo();
    void SelectLoadCase(HostView& view, int id);

    // ---- For the views.
    // Opened last, or picking since, beside the view; null when there is none.
    CDialogDocument* ToolOf(const HostView& view) const { return m_tools.Latest(view); }
    bool IsPicking(const HostView& view) const override { return m_tools.IsPicking(view); }
    void PickingStarted(const HostView& view, const CString& prompt) override { m_tools.PickingStarted(view, prompt); }
    bool PickingStops(const HostView& view) override { return m_tools.PickingStops(view); }
    bool PicksNodesOnly(const HostView& view) const override { return m_tools.PicksNodesOnly(view); }
    void PointPicked(const HostView& view, const CFPoint& point, bool second) override {
        m_tools.PointPicked(view, point, second);
    }
    void EndTool(HostView& view, const CDialogDocument* dialog) override;
    void DocumentChanged(HostView& view, CView* sender, long hint, CObject* pHint) override;
    void ViewChanged(HostView& view) override;
    void ResultShown(HostView& view, int kind, bool shown) override { m_tools.ResultShown(view, kind, shown); }
    void ShowProperties(CElemento& element) override;
    void ShowCoordinates(const QString& text) override;
    void Tell(const CString& sentence) override;
    bool IsWaiting() const override;

    // ---- For the dialogs.
    CQuovarDoc* GetActiveDoc() override;
    CMainFrame* GetMainFrame() override;
    void InizioAttesa(CString messaggio, unsigned int nPassi) override;
    void StepBar() override;
    void FineAttesa() override;
    // The change code is the hint's lower half, the additional value its upper one, left in place.
    ModificaDocumento GetInformazioniBase(long lHint) override;
    long GetInformazioniAggiuntive(long lHint) override;
    void SetInformazioniAggiuntive(unsigned long& lHint, unsigned short valore) override;
    // There is no external solver: no files.
    CString GetPathFilesVorm(CString) override { return {}; }
    CString GetFileInputVorm(int) override { return {}; }
    CCasoCarico* CreaCasoCarico(CQuovarDoc* pDoc) override;

  private:
    struct Project {
        std::unique_ptr<HostDocument> document;
        std::unique_ptr<QObject> idle; // context of the calls that wait for the loop
        QString path;                  // as the file system knows it; empty before the first save
        QString name;                  // without folder
    };

    // Without a path the captions of its dialogs begin with the name.
    Project& Adopt(std::unique_ptr<HostDocument> document, const QString& path, const QString& name);
    Project* ProjectOf(const HostDocument& document) const;
    HostView* LastViewOf(const HostDocument& document) const; // null when it has none or more than one
    HostView* ViewOf(const QFileInfo& file) const;            // null when no open document is saved there
    HostView* OtherViewOf(const HostView& view) const;        // of the same document; null when there is none
    void Activate(HostView& view);                            // its window too
    void RunIdle(Project& project);
    void Recover(); // closes what a command left open that ended in an exception: brackets of undo, the wait
    bool AskToSave(Project& project); // false when the user cancels
    void CloseUntouched(HostView* view);
    void ReleaseView(HostView& view);

    std::unique_ptr<MainWindow> m_window;
    std::vector<std::unique_ptr<Project>> m_projects;
    std::vector<std::unique_ptr<HostView>> m_views;
    HostView* m_active = nullptr;
    std::vector<HostView*> m_recent; // views in the order in which they were active last
    QSettings* m_settings = nullptr; // null remembers nothing
    ToolDialogs m_tools;
    int m_untitled = 0;
    bool m_executing = false;
    bool m_told = false; // something, since the last command began
};

} // namespace host
