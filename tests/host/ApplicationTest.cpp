// The application as a whole: from a text model to a saved project.
#include "platform/window/Application.h"
#include "dialogs/frame/tool/DialogDocument.h"
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "host/app/Options.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "model/element/Nodo.h"
#include "tests/host/AskedDialog.h"
#include "tests/host/WorkspaceTest.h"
#include "tests/support/TestApp.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace host;

namespace {

const char* const textModel = "Mensola di prova (kN,m)\n"
                              "3\n1 0 0 0 0\n2 2 0 0 0\n3 4 0 0 0\n"
                              "1\n1 1 1 1 1 1 1\n"
                              "2\n1 1 2 0.1 0.08 0.08 0.001 0.002 0.003 3e7 1.2e7 0 2.5\n"
                              "2 2 3 0.1 0.08 0.08 0.001 0.002 0.003 3e7 1.2e7 0 2.5\n"
                              "0\n0\n10\n1\n-1\n"
                              "1\n0 0 0\n1\n3 0 0 -10 0 0 0\n0\n0\n0\n0\n0\n";

using Generation = CDialogGenNodiLineare;

void WriteFile(const QString& path, const QByteArray& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

Options Parse(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "quovar");
    std::vector<char*> pointers;
    for (std::string& each : arguments)
        pointers.push_back(each.data());
    return ParseOptions(static_cast<int>(pointers.size()), pointers.data());
}

} // namespace

class ApplicationTest : public WorkspaceTest {
  protected:
    void SaveAndDie(const QString& project);

    QTemporaryDir m_folder;
};

// A process that saves and dies on the spot. On a display the two would talk over one connection: there it only saves.
void ApplicationTest::SaveAndDie(const QString& project) {
    if (QGuiApplication::platformName() != QStringLiteral("offscreen")) {
        ASSERT_TRUE(m_workspace->SaveAs(Document(), project));
        return;
    }
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const bool saved = m_workspace->SaveAs(Document(), project);
        raise(saved ? SIGKILL : SIGABRT);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
}

// The road of a whole command. Catches a break anywhere between the menu and the file, nodes that are no undo step of
// their own, and a project that a killed process takes with it.
TEST_F(ApplicationTest, ImportGenerateUndoRedoSaveKilledReopen) {
    const QString model = m_folder.filePath("mensola.3dd");
    const QString project = m_folder.filePath("mensola.asg");
    WriteFile(model, textModel);
    ASSERT_TRUE(m_workspace->Open(model));
    CWinApp::PumpMessages();
    EXPECT_EQ(m_workspace->Views().size(), 1u) << "the untouched first document makes room";
    EXPECT_EQ(Document().GetSizeNodi(), 3);
    EXPECT_EQ(Document().GetSizeTravi(), 2);
    EXPECT_TRUE(m_workspace->PathOf(Document()).isEmpty()) << "saving must not write over the text model";

    DialogDriver driver(*OpenLinear());
    driver.Type(Generation::IDC_NODI, "5");
    driver.Type(Generation::IDC_PASSO, "1.5");
    driver.Type(Generation::IDC_X_INIZIALE + 2, "3");
    driver.Click(Generation::IDC_DIREZIONE_Y);
    driver.Press(VK_RETURN);
    CWinApp::PumpMessages();
    EXPECT_FALSE(driver.IsOpen());
    ASSERT_EQ(Document().GetSizeNodi(), 8);
    EXPECT_EQ(*Document().GetIndexNodo(7)->GetPunto(), CFPoint(0, 6, 3));
    EXPECT_EQ(Document().Undo().UndoCount(), 1u);
    Trigger("modifica.annulla");
    EXPECT_EQ(Document().GetSizeNodi(), 3);
    Trigger("modifica.ripristina");
    EXPECT_EQ(Document().GetSizeNodi(), 8);

    SaveAndDie(project);
    m_workspace.reset(); // without a question: nothing of this process was saved
    m_workspace = std::make_unique<Workspace>();
    m_workspace->Window().show();
    ASSERT_TRUE(m_workspace->Open(project));
    EXPECT_EQ(Document().GetSizeNodi(), 8);
    EXPECT_EQ(Document().GetSizeTravi(), 2);
    EXPECT_EQ(*Document().GetIndexNodo(7)->GetPunto(), CFPoint(0, 6, 3));
    EXPECT_EQ(m_workspace->TitleOf(View()), "mensola.asg");
    EXPECT_FALSE(Document().IsModified());
    ASSERT_EQ(m_workspace->Open(project), &View()) << "an open project is shown, not opened twice";
    EXPECT_EQ(m_workspace->Views().size(), 1u);
}

// Catches a broken file that disturbs what is open, or a message that does not say what and where.
TEST_F(ApplicationTest, BrokenFilesLeaveTheOpenDocumentAlone) {
    BuildSmallModel();
    HostView* view = &View();
    const int nodes = Document().GetSizeNodi();
    const QString text = m_folder.filePath("rotto.3dd");
    WriteFile(text, "Titolo\n3\n1 0 0 0 0\n2 x 0 0 0\n3 1 0 0 0\n0\n0\n");
    std::vector<std::string> shown;
    TestApp::Instance().messageHandler = [&shown](const CString& message, UINT) {
        shown.push_back(message.ToUtf8());
        return IDOK;
    };
    EXPECT_FALSE(m_workspace->Open(text));
    const QString project = m_folder.filePath("rotto.asg");
    WriteFile(project, "niente di buono");
    EXPECT_FALSE(m_workspace->Open(project));
    EXPECT_FALSE(m_workspace->Open(m_folder.filePath("manca.asg")));
    EXPECT_FALSE(m_workspace->SaveAs(Document(), m_folder.filePath("manca/qui.asg")));
    ASSERT_EQ(shown.size(), 4u);
    EXPECT_NE(shown[0].find("Riga 4"), std::string::npos) << shown[0];
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(shown[static_cast<std::size_t>(i)].rfind("Impossibile aprire \"", 0), 0u);
    EXPECT_EQ(shown[3].rfind("Impossibile salvare \"", 0), 0u);
    EXPECT_EQ(m_workspace->ActiveView(), view);
    EXPECT_EQ(Document().GetSizeNodi(), nodes);
    EXPECT_TRUE(m_workspace->PathOf(Document()).isEmpty());
}

// Faults: a file that is overwritten without a question because its extension was not typed, two open documents that
// save each over the other.
TEST_F(ApplicationTest, SavingUnderANameTouchesNoOtherFile) {
    const QString project = m_folder.filePath("progetto.asg"), link = m_folder.filePath("collegato.asg");
    WriteFile(project, "di un altro");
    for (const char* name : {"progetto", "nuovo"}) {
        WhenAsked([this, name](QDialog& dialog) {
            Find<QLineEdit>(dialog, "fileNameEdit").setText(m_folder.filePath(name));
            if (QString(name) == "progetto")
                WhenAsked([](QDialog& question) { EXPECT_TRUE(qobject_cast<QMessageBox*>(&question)); }); // no
            dialog.accept();
        });
        Trigger("file.salva");
    }
    EXPECT_EQ(m_workspace->PathOf(Document()), m_folder.filePath("nuovo.asg"));
    EXPECT_EQ(QFileInfo(project).size(), 11);
    ASSERT_TRUE(QFile::link(m_folder.filePath("nuovo.asg"), link));
    m_workspace->NewDocument();
    for (const QString& path : {m_folder.filePath("nuovo.asg"), link}) {
        m_user.ExpectMessage("Impossibile salvare \"" + path.toStdString() +
                             "\".\nIl file appartiene a un altro documento aperto.");
        EXPECT_FALSE(m_workspace->SaveAs(Document(), path));
    }
}

// Catches a close that loses changes: Yes must save before the window goes.
TEST_F(ApplicationTest, ClosingTheWindowAsksAndSaves) {
    BuildSmallModel();
    const QString project = m_folder.filePath("progetto.asg");
    ASSERT_TRUE(m_workspace->SaveAs(Document(), project));
    Document().GenNodi2Punti(CFPoint(0, 0, 9), CFPoint(1, 0, 9), 2);
    const int nodes = Document().GetSizeNodi();
    m_user.ExpectMessage("Salvare le modifiche a \"progetto.asg\"?", IDCANCEL);
    m_workspace->Window().close();
    EXPECT_TRUE(m_workspace->Window().isVisible());
    ASSERT_EQ(m_workspace->Views().size(), 1u);
    m_user.ExpectMessage("Salvare le modifiche a \"progetto.asg\"?", IDYES);
    EXPECT_TRUE(m_workspace->CloseAll());
    ASSERT_TRUE(m_workspace->Open(project));
    EXPECT_EQ(Document().GetSizeNodi(), nodes);
    // Nothing is unsaved now: the close box ends the loop, which would otherwise run for good.
    QTimer::singleShot(0, [this] { m_workspace->Window().close(); });
    QTimer::singleShot(5000, &m_workspace->Window(), [] { QCoreApplication::exit(99); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_TRUE(m_workspace->Views().empty());
}

// Catches options that are taken for files, or an error that is not reported.
TEST(OptionsTest, SayWhatToDo) {
    EXPECT_EQ(Parse({}).action, Options::Action::Open);
    EXPECT_EQ(Parse({"modello.asg"}).argument, "modello.asg");
    EXPECT_EQ(Parse({"--gallery", "qui"}).action, Options::Action::Gallery);
    EXPECT_EQ(Parse({"--gallery", "qui"}).argument, "qui");
    EXPECT_EQ(Parse({"--help"}).action, Options::Action::Help);
    for (const auto& wrong : std::vector<std::vector<std::string>>{
             {"--boh"}, {"--gallery"}, {"--gallery", "--results"}, {"a", "b"}, {"--help", "--version"}}) {
        const Options options = Parse(wrong);
        EXPECT_EQ(options.action, Options::Action::Invalid) << wrong.front();
        EXPECT_FALSE(options.error.empty());
    }
}
