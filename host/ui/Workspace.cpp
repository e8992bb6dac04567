#include "host/ui/Workspace.h"

#include "dialogs/frame/tool/DialogDocument.h"
#include "host/commands/Commands.h"
#include "host/document/HostDocument.h"
#include "host/document/NewModel.h"
#include "host/document/Properties.h"
#include "host/ui/DeferredDelete.h"
#include "host/ui/MainMenu.h"
#include "host/ui/MainWindow.h"
#include "host/ui/SharedKeys.h"
#include "host/view/HostView.h"
#include "host/view/ViewWidget.h"
#include "platform/core/Exception.h"
#include "platform/window/Application.h"

#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QScopedValueRollback>

#include <algorithm>

namespace host {

Workspace::Workspace() {
    m_window = std::make_unique<MainWindow>(*this); // asks this object, whole by now, what to show
    if (CWinApp* application = AfxGetApp()) {
        application->m_pMainWnd = &m_window->Frame();
        application->recover = [this] { Recover(); };
    }
    CQuovarHost::Install(this);
}

Workspace::~Workspace() {
    if (m_settings)
        RememberMainWindow(*m_window, *m_settings);
    m_tools.EndAll();
    while (!m_views.empty())
        ReleaseView(*m_views.back());
    // What waits for its deletion refers to the documents and to the window.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (CWinApp* application = AfxGetApp(); application && application->m_pMainWnd == &m_window->Frame()) {
        application->m_pMainWnd = nullptr;
        application->recover = nullptr;
    }
    CQuovarHost::Install(nullptr);
}

void Workspace::Remember(QSettings& settings) {
    m_settings = &settings;
    RestoreMainWindow(*m_window, settings);
    RestoreShortcuts(m_window->Menus().Keys(), settings);
    m_tools.Places().SetSettings(&settings);
}

void Workspace::EditShortcuts() {
    if (host::EditShortcuts(*m_window, m_window->Menus().Keys(), m_settings))
        Tell("Tasti di scelta rapida assegnati.");
}

Workspace::Project& Workspace::Adopt(std::unique_ptr<HostDocument> document, const QString& path, const QString& name) {
    m_projects.push_back(std::make_unique<Project>());
    Project& project = *m_projects.back();
    project.document = std::move(document);
    project.document->SetPathName(platform::FromQString(path.isEmpty() ? name + ".asg" : path));
    project.idle = std::make_unique<QObject>();
    project.path = path;
    project.name = name;
    project.document->SetIdleScheduler(
        [this, &project] { QTimer::singleShot(0, project.idle.get(), [this, &project] { RunIdle(project); }); });
    project.document->Selection().SetRangeAxis([this, &of = *project.document] { return m_tools.RangeAxis(of); });
    project.document->SetBreakAsker([this] { return m_window->Wait().IsBrokenOff(); });
    project.document->SetTeller([this](const CString& sentence) { Tell(sentence); });
    project.document->SetRefusalTeller([](const Refusal& refusal) { AfxMessageBox(refusal.message, MB_OK); });
    return project;
}

// During a long command the loop turns, but the command's step is still open.
void Workspace::RunIdle(Project& project) {
    if (IsWaiting())
        QTimer::singleShot(50, project.idle.get(), [this, &project] { RunIdle(project); });
    else
        project.document->Idle();
}

Workspace::Project* Workspace::ProjectOf(const HostDocument& document) const {
    const auto found = std::find_if(m_projects.begin(), m_projects.end(),
                                    [&document](const auto& each) { return each->document.get() == &document; });
    return found == m_projects.end() ? nullptr : found->get();
}

QString Workspace::PathOf(const HostDocument& document) const {
    const Project* project = ProjectOf(document);
    return project ? project->path : QString();
}

QString Workspace::TitleOf(const HostView& view) const {
    const Project* project = ProjectOf(view.Document());
    if (!project)
        return {};
    QString title = project->name;
    if (project->document->IsModified())
        title += "*";
    int number = 0, count = 0;
    for (const auto& each : m_views)
        if (&each->Document() == &view.Document()) {
            ++count;
            if (each.get() == &view)
                number = count;
        }
    return count > 1 ? QStringLiteral("%1:%2").arg(title).arg(number) : title;
}

HostView& Workspace::NewDocument() {
    const QString name = QStringLiteral("Senza nome %1").arg(++m_untitled);
    auto document = std::make_unique<HostDocument>();
    document->Replace(NewModel(document->Data().Units()));
    Project& project = Adopt(std::move(document), {}, name);
    return NewView(*project.document);
}

HostView& Workspace::NewView(HostDocument& document) {
    m_views.push_back(std::make_unique<HostView>(document, *this, m_window->Handle(), nullptr));
    HostView& view = *m_views.back();
    m_window->AddView(view);
    m_window->ShowView(view);
    ViewActivated(view);
    return view;
}

HostView* Workspace::LastViewOf(const HostDocument& document) const {
    HostView* last = nullptr;
    for (const auto& each : m_views)
        if (&each->Document() == &document) {
            if (last)
                return nullptr;
            last = each.get();
        }
    return last;
}

bool Workspace::CloseView(HostView& view) {
    Project* project = ProjectOf(view.Document());
    if (project && LastViewOf(view.Document()) == &view && !AskToSave(*project))
        return false;
    ReleaseView(view);
    return true;
}

bool Workspace::CloseAll() {
    for (const auto& project : m_projects)
        if (!AskToSave(*project))
            return false;
    m_tools.EndAll();
    while (!m_views.empty())
        ReleaseView(*m_views.back());
    return true;
}

HostView* Workspace::OtherViewOf(const HostView& view) const {
    const auto other = std::find_if(m_views.rbegin(), m_views.rend(), [&view](const auto& each) {
        return each.get() != &view && &each->Document() == &view.Document();
    });
    return other == m_views.rend() ? nullptr : other->get();
}

void Workspace::Activate(HostView& view) {
    m_window->ShowView(view);
    if (m_active != &view) // the window is the active one already, or not yet
        ViewActivated(view);
}

// The dialogs let go of the view first, those of a document that goes with it end; then its window ends, then the
// object. Another view of the document takes its place, and its dialogs.
void Workspace::ReleaseView(HostView& view) {
    HostDocument& document = view.Document();
    HostView* other = OtherViewOf(view);
    m_tools.ViewClosing(view);
    if (!other)
        m_tools.EndAllOf(document);
    const auto held =
        std::find_if(m_views.begin(), m_views.end(), [&view](const auto& each) { return each.get() == &view; });
    std::unique_ptr<HostView> closing = std::move(*held);
    m_views.erase(held);
    std::erase(m_recent, &view);
    if (document.GetViewStructure() == &view)
        document.SetActiveView(other);
    if (m_active == &view) {
        m_active = nullptr;
        if (other)
            Activate(*other);
    } else if (m_active) {
        m_tools.ViewActivated(*m_active); // it may be the other one
    }
    if (!m_active && !m_recent.empty())
        Activate(*m_recent.back()); // not the next in the row of tabs
    closing->Close();
    m_window->RemoveView(*closing);
    DeleteLater(std::move(closing));
    if (!other)
        std::erase_if(m_projects, [&document](const auto& each) { return each->document.get() == &document; });
    m_window->ScheduleRefresh();
}

void Workspace::ViewActivated(HostView& view) {
    if (view.IsClosed())
        return;
    m_active = &view;
    std::erase(m_recent, &view);
    m_recent.push_back(&view);
    view.Document().SetActiveView(&view);
    m_tools.ViewActivated(view);
    m_window->ScheduleRefresh();
}

void Workspace::Execute(const std::function<void()>& command) {
    if (m_executing || IsWaiting())
        return;
    const QScopedValueRollback<bool> executing(m_executing, true);
    platform::RunGuarded(command);
}

void Workspace::RunCommand(const QString& sentence, const std::function<void()>& command) {
    Execute([&] {
        const HostView* view = m_active;
        const auto before = view ? view->Document().Selection().TakeSnapshot() : HostSelection::Snapshot();
        m_told = false;
        command();
        if (m_told)
            return;
        const bool sameView = view && view == m_active;
        if (sameView && view->Document().Selection().TakeSnapshot() != before)
            Tell(view->Document().Selection().Text() + ".");
        else
            Tell(platform::FromQString(sentence + "."));
    });
}

bool Workspace::TakeKey(const MSG& message) {
    const QKeySequence key = SharedKey(message);
    if (key.isEmpty() || m_executing || IsWaiting() || QApplication::activeModalWidget())
        return false;
    if (HostView* view = m_tools.ViewOf(message.hwnd); view && view != m_active)
        Activate(*view);
    m_window->Refresh(); // what can be done now
    QAction* command = m_window->CommandOf(key);
    if (!command || !command->isEnabled())
        return false;
    command->trigger();
    return true;
}

// What was changed until then is a step that can be undone.
void Workspace::Recover() {
    for (const auto& project : m_projects)
        project->document->Undo().Close();
    while (m_window->Wait().IsActive())
        m_window->Wait().End();
    m_window->ScheduleRefresh();
}

CDialog* Workspace::Run(const Command& command) {
    if (!m_active)
        return nullptr;
    HostView& view = *m_active;
    if (command.needs == Needs::Selection && view.Document().Selection().IsEmpty())
        return nullptr;
    CDialog* dialog = nullptr;
    if (command.run) {
        command.run(view.Document(), m_window->Frame());
        if (!m_told)
            Tell(platform::FromQString(CaptionOf(command)) + ": nessuna modifica.");
    } else {
        dialog = m_tools.Open(command, view, m_window->Frame());
    }
    if (dialog && command.opened)
        command.opened(view.Document());
    m_window->ScheduleRefresh();
    return dialog;
}

void Workspace::Undo() {
    if (m_active) {
        HostUndo& undo = m_active->Document().Undo();
        undo.Close();
        const CString name = undo.UndoName();
        if (undo.Undo())
            Tell("Annullato: " + name + ".");
    }
    m_window->ScheduleRefresh();
}

void Workspace::Redo() {
    if (m_active) {
        HostUndo& undo = m_active->Document().Undo();
        const CString name = undo.RedoName();
        if (undo.Redo())
            Tell("Ripristinato: " + name + ".");
    }
    m_window->ScheduleRefresh();
}

void Workspace::SelectLoadCase(HostView& view, int id) {
    view.Document().SelectCasoCarico(id);
}

void Workspace::EndTool(HostView& view, const CDialogDocument* dialog) {
    if (!m_tools.IsOpen(dialog, view))
        return;
    m_tools.End(dialog);
    m_tools.ViewActivated(view); // one of the kind that waits for a view may come into its place
    view.Widget().activateWindow();
    view.Widget().setFocus();
    m_window->ScheduleRefresh();
}

void Workspace::DocumentChanged(HostView& view, CView* sender, long hint, CObject* pHint) {
    m_tools.Update(view, sender, hint, pHint);
    m_window->ScheduleRefresh();
}

void Workspace::ViewChanged(HostView& view) {
    if (&view == m_active)
        m_window->ScheduleRefresh();
}

void Workspace::ShowProperties(CElemento& element) {
    AfxMessageBox(PropertiesOf(element), MB_OK | MB_ICONINFORMATION);
}

void Workspace::ShowCoordinates(const QString& text) {
    m_window->ShowCoordinates(text);
}

void Workspace::Tell(const CString& sentence) {
    m_told = m_told || !sentence.IsEmpty();
    m_window->ShowSentence(platform::ToQString(sentence));
}

bool Workspace::IsWaiting() const {
    return m_window && m_window->Wait().IsActive();
}

CQuovarDoc* Workspace::GetActiveDoc() {
    return m_active ? &m_active->Document() : nullptr;
}

CMainFrame* Workspace::GetMainFrame() {
    return &m_window->Frame();
}

void Workspace::InizioAttesa(CString messaggio, unsigned int nPassi) {
    m_window->Wait().Begin(platform::ToQString(messaggio), nPassi);
}

void Workspace::StepBar() {
    m_window->Wait().Step();
}

void Workspace::FineAttesa() {
    m_window->Wait().End();
}

ModificaDocumento Workspace::GetInformazioniBase(long lHint) {
    return static_cast<ModificaDocumento>(lHint & 0xffff);
}

long Workspace::GetInformazioniAggiuntive(long lHint) {
    return lHint & 0xffff0000L;
}

void Workspace::SetInformazioniAggiuntive(unsigned long& lHint, unsigned short valore) {
    lHint = (lHint & 0xffffUL) | static_cast<unsigned long>(valore) << 16;
}

CCasoCarico* Workspace::CreaCasoCarico(CQuovarDoc* pDoc) {
    auto* document = dynamic_cast<HostDocument*>(pDoc);
    return document ? document->CreaCasoCarico() : nullptr;
}

} // namespace host
