// The part of the workspace that reads and writes files.
#include "dialogs/frame/tool/DialogDocument.h"
#include "host/document/HostDocument.h"
#include "host/document/StepSummary.h"
#include "host/files/FileError.h"
#include "host/files/Frame3ddImport.h"
#include "host/files/ProjectFile.h"
#include "host/files/Version.h"
#include "host/ui/MainWindow.h"
#include "host/ui/Workspace.h"
#include "host/view/HostView.h"
#include "host/view/SaveDialog.h"
#include "platform/window/Application.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>
#include <new>

namespace host {

namespace {

const QString allModels = QStringLiteral("Modelli (*.asg *.3dd)");
const QString projects = QStringLiteral("Progetti (*.asg)");
const QString textModels = QStringLiteral("Modelli di testo (*.3dd)");
const QString allFiles = QStringLiteral("Tutti i file (*)");

std::string SystemPath(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

bool IsTextModel(const QString& path) {
    return QFileInfo(path).suffix().compare(QStringLiteral("3dd"), Qt::CaseInsensitive) == 0;
}

void ShowMessage(const QString& text) {
    AfxMessageBox(platform::FromQString(text), MB_OK);
}

// What a text model asks for and the import leaves out.
void TellNotes(const std::vector<CString>& notes) {
    CString text("Modello importato con queste limitazioni:");
    for (const CString& note : notes)
        text += "\n" + note;
    AfxMessageBox(text, MB_OK | MB_ICONINFORMATION);
}

// Runs what reads or writes a file; false, after a message that begins with `what`, when it fails.
template <class Action>
bool Guarded(const QString& what, const Action& action) {
    QString reason;
    try {
        const CWaitCursor wait;
        action();
        return true;
    } catch (const FileError& error) {
        reason = QString::fromUtf8(error.what());
    } catch (const std::bad_alloc&) {
        reason = QStringLiteral("Memoria insufficiente.");
    }
    ShowMessage(what + "\n" + reason);
    return false;
}

} // namespace

// Whose document is saved in the file; links lead to the file itself.
HostView* Workspace::ViewOf(const QFileInfo& file) const {
    const auto found = std::find_if(m_views.begin(), m_views.end(), [&](const auto& each) {
        const QString path = PathOf(each->Document());
        return !path.isEmpty() && QFileInfo(path) == file;
    });
    return found == m_views.end() ? nullptr : found->get();
}

HostView* Workspace::Open(const QString& path) {
    const QFileInfo file(path);
    const QString whole = file.absoluteFilePath();
    if (HostView* there = ViewOf(file)) {
        Activate(*there);
        return there;
    }
    const bool text = IsTextModel(whole);
    std::vector<CString> notes;
    auto document = std::make_unique<HostDocument>();
    const bool read = Guarded(QStringLiteral("Impossibile aprire \"%1\".").arg(QDir::toNativeSeparators(path)), [&] {
        document->Replace(text ? ImportFrame3dd(SystemPath(whole), &notes) : LoadProject(SystemPath(whole)));
    });
    if (!read)
        return nullptr;
    HostView* former = m_active;
    // A text model becomes a project of its own: saving never writes over it.
    Project& project =
        Adopt(std::move(document), text ? QString() : whole, text ? file.completeBaseName() : file.fileName());
    HostView& view = NewView(*project.document);
    CloseUntouched(former);
    KindCounts counts = {};
    for (const Kind kind : {Kind::Node, Kind::Beam, Kind::Truss, Kind::Wall, Kind::Slab})
        counts[static_cast<std::size_t>(kind)] = project.document->Data().Size(kind);
    Tell(platform::FromQString(QStringLiteral("Aperto \"%1\": ").arg(file.fileName())) +
         (CountText(counts).IsEmpty() ? CString("vuoto") : CountText(counts)) + ".");
    if (!notes.empty())
        TellNotes(notes);
    return &view;
}

// The empty document that the application starts with makes room for the first one opened.
void Workspace::CloseUntouched(HostView* view) {
    if (!view || LastViewOf(view->Document()) != view || m_tools.Latest(*view))
        return;
    HostDocument& document = view->Document();
    if (PathOf(document).isEmpty() && document.GetSizeNodi() == 0 && !document.IsModified() &&
        document.Undo().UndoCount() == 0 && document.Undo().RedoCount() == 0)
        ReleaseView(*view);
}

bool Workspace::Save(HostDocument& document) {
    const QString path = PathOf(document);
    return path.isEmpty() ? AskAndSaveAs(document) : SaveAs(document, path);
}

bool Workspace::SaveAs(HostDocument& document, const QString& path) {
    Project* project = ProjectOf(document);
    if (!project)
        return false;
    const QFileInfo file(path);
    const QString whole = file.absoluteFilePath();
    if (const HostView* other = ViewOf(file); other && &other->Document() != &document) {
        ShowMessage(QStringLiteral("Impossibile salvare \"%1\".\nIl file appartiene a un altro documento aperto.")
                        .arg(QDir::toNativeSeparators(path)));
        return false;
    }
    document.Idle(); // what was just done belongs to the file
    const bool written = Guarded(QStringLiteral("Impossibile salvare \"%1\".").arg(QDir::toNativeSeparators(path)),
                                 [&] { SaveProject(document.Data(), SystemPath(whole), applicationVersion); });
    if (!written)
        return false;
    project->path = whole;
    project->name = file.fileName();
    const CString formerPath = document.GetPathName();
    document.SetPathName(platform::FromQString(whole));
    m_tools.Renamed(document, formerPath);
    document.MarkSaved();
    m_window->ScheduleRefresh();
    Tell(platform::FromQString(QStringLiteral("Salvato in \"%1\".").arg(QDir::toNativeSeparators(whole))));
    return true;
}

void Workspace::AskAndOpen() {
    const QString path = QFileDialog::getOpenFileName(
        m_window.get(), QStringLiteral("Apri"), {}, QStringList{allModels, projects, textModels, allFiles}.join(";;"));
    if (!path.isEmpty())
        Open(path);
}

void Workspace::AskAndImport() {
    const QString path = QFileDialog::getOpenFileName(m_window.get(), QStringLiteral("Importa"), {}, textModels);
    if (!path.isEmpty())
        Open(path);
}

bool Workspace::AskAndSaveAs(HostDocument& document) {
    const Project* project = ProjectOf(document);
    const QString proposed = project ? (project->path.isEmpty() ? project->name + ".asg" : project->path) : QString();
    const QString path = AskSaveName(m_window.get(), QStringLiteral("Salva con nome"), proposed, {projects});
    return !path.isEmpty() && SaveAs(document, path);
}

bool Workspace::AskToSave(Project& project) {
    HostDocument& document = *project.document;
    document.Idle();
    if (!document.IsModified())
        return true;
    const QString question = QStringLiteral("Salvare le modifiche a \"%1\"?").arg(project.name);
    switch (AfxMessageBox(platform::FromQString(question), MB_YESNOCANCEL | MB_ICONQUESTION)) {
    case IDYES:
        return Save(document);
    case IDNO:
        return true;
    default:
        return false;
    }
}

} // namespace host
