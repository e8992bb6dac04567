#include "host/app/SmokeRun.h"

#include "dialogs/frame/tool/DialogDocument.h"
#include "host/app/Example.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "host/ui/Workspace.h"
#include "host/view/HostView.h"
#include "platform/toolkit/Bridge.h"
#include "platform/window/Application.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QThread>
#include <QWindow>

#include <cstdio>

namespace host {

namespace {

constexpr int patienceMilliseconds = 10000; // a window manager on a busy machine takes its time

enum : int { EditCount = 1221, EditSpacing = 1093, EditStartX = 1200 }; // of the linear generation

class Trial {
  public:
    explicit Trial(Workspace& workspace) : m_workspace(workspace) {}

    bool Run() {
        return OpenExample() && OpenDialog() && FillDialog() && Confirm() && UndoAndRedo() && SaveAndReopen();
    }

  private:
    template <class Condition>
    bool Wait(const char* what, const Condition& condition) {
        QElapsedTimer clock;
        clock.start();
        while (!condition()) {
            if (clock.elapsed() > patienceMilliseconds)
                return Check(false, what);
            CWinApp::PumpMessages();
            QThread::msleep(5);
        }
        return true;
    }

    static bool Check(bool good, const char* what) {
        if (!good)
            std::fprintf(stderr, "quovar: prova fallita: %s\n", what);
        return good;
    }

    HostView& View() { return *m_workspace.ActiveView(); }
    HostDocument& Document() { return View().Document(); }

    bool OpenExample() {
        if (!Check(m_folder.isValid(), "nessuna cartella temporanea"))
            return false;
        const QString file = m_folder.filePath("esempio.asg");
        MainWindow& window = m_workspace.Window();
        window.show();
        if (WriteExample(QFile::encodeName(file).toStdString()) != 0 ||
            !Check(m_workspace.Open(file), "l'esempio non si apre"))
            return false;
        m_nodes = Document().GetSizeNodi();
        return Check(m_nodes > 0, "l'esempio non ha nodi") &&
               Wait("la finestra principale non compare", [&] { return window.windowHandle()->isExposed(); });
    }

    bool OpenDialog() {
        QAction* command = m_workspace.Window().Command("genera.Generazione Nodi Lineare");
        if (!Check(command && command->isEnabled(), "il comando manca nel menu"))
            return false;
        command->trigger();
        m_dialog = m_workspace.ToolOf(View());
        return Check(m_dialog, "la finestra di dialogo non si apre") &&
               Wait("la finestra di dialogo non riceve il fuoco",
                    [&] { return QApplication::focusWindow() == platform::WidgetOf(*m_dialog)->windowHandle(); });
    }

    static void Key(int key, const QString& text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QWindow* window = QApplication::focusWindow();
            if (!window)
                return;
            QKeyEvent event(type, key, modifiers, text);
            QCoreApplication::sendEvent(window, &event);
        }
        CWinApp::PumpMessages();
    }

    bool Type(int control, const char* text) {
        m_dialog->GetDlgItem(control)->SetFocus();
        Key(Qt::Key_Home, {});
        Key(Qt::Key_End, {}, Qt::ShiftModifier);
        for (const char* c = text; *c; ++c)
            Key(*c, QString(QLatin1Char(*c)));
        return Check(m_dialog->GetDlgItem(control)->GetWindowText() == text, "il testo digitato non arriva nel campo");
    }

    bool FillDialog() { return Type(EditCount, "4") && Type(EditSpacing, "2.5") && Type(EditStartX, "100"); }

    bool Confirm() {
        Key(Qt::Key_Return, "\r");
        return Wait("la finestra di dialogo non si chiude con Invio", [&] { return !m_workspace.ToolOf(View()); }) &&
               Check(Document().GetSizeNodi() == m_nodes + 4, "i nodi non sono stati generati");
    }

    bool UndoAndRedo() {
        MainWindow& window = m_workspace.Window();
        window.Refresh();
        window.Command("modifica.annulla")->trigger();
        if (!Check(Document().GetSizeNodi() == m_nodes, "Annulla non toglie i nodi"))
            return false;
        window.Refresh();
        window.Command("modifica.ripristina")->trigger();
        return Check(Document().GetSizeNodi() == m_nodes + 4, "Ripristina non riporta i nodi");
    }

    bool SaveAndReopen() {
        const QString saved = m_folder.filePath("salvato.asg");
        const QString copy = m_folder.filePath("copia.asg");
        return Check(m_workspace.SaveAs(Document(), saved), "il progetto non si salva") &&
               Check(QFile::copy(saved, copy) && m_workspace.Open(copy), "il progetto salvato non si riapre") &&
               Check(Document().GetSizeNodi() == m_nodes + 4, "il progetto riaperto ha altri nodi");
    }

    Workspace& m_workspace;
    QTemporaryDir m_folder;
    CDialogDocument* m_dialog = nullptr;
    int m_nodes = 0;
};

} // namespace

int RunSmoke(Workspace& workspace) {
    return Trial(workspace).Run() ? 0 : 1;
}

} // namespace host
