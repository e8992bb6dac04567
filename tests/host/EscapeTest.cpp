// Exceptions out of commands and tool dialogs, with the command half done.
#include "dialogs/frame/tool/DialogDocument.h"
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "host/commands/Subjects.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "platform/core/Exception.h"
#include "platform/window/Application.h"
#include "tests/host/WorkspaceTest.h"

#include <QTest>
#include <QTimer>

using namespace host;

namespace {

// A tool dialog that does the test's work wherever the host calls it.
class Calling final : public CDialogDocument {
  public:
    explicit Calling(CWnd* parent) : CDialogDocument(CDialogGenNodiLineare::IDD, parent) {}
    bool follows = false;
    std::function<void()> work = [] {};

    void Update(CView*, long, CObject*) override {
        if (follows)
            work();
    }
    void SetVettoreFrom(CFPoint) override { work(); }
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        if (message == WM_USER + 1)
            work();
        return CDialogDocument::OnWndMsg(message, wParam, lParam, result);
    }
};

const Command calling{.menu = CommandMenu::Tools, .dialog = CDialogGenNodiLineare::IDD, .open = OpenTool<Calling>};

class EscapeTest : public WorkspaceTest {
  protected:
    Calling* OpenCalling() {
        return static_cast<Calling*>(m_workspace->Tools().Open(calling, View(), m_workspace->Window().Frame()));
    }
};

} // namespace

// Faults: a program that ends and takes the model along, a step of undo that takes in all that comes after it, a wait
// that refuses every command from then on, a command that another window's failure breaks off.
TEST_F(EscapeTest, ACommandThatFailsLeavesAStepAndAWorkingApplication) {
    BuildSmallModel();
    const std::string before = State();
    int done = 0;
    const auto half = [&] {
        m_workspace->InizioAttesa("Prova", 2);
        Document().Undo().BeginUndo(1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
        CFPoint point(1, 2, 3);
        Document().AddNodo(point, nullptr, 1);
        throw new CSimpleException("Memoria piena");
    };
    const auto fail = [] { throw new CSimpleException("Memoria piena"); };
    const auto command = [&] {
        CFPoint point(1, 2, 3);
        Document().AddNodo(point, nullptr, 1);
        Document().UpdateAllViews(nullptr, MODIFICA_ELEMENTI_FINE);
        ++done;
    };
    const struct {
        const char* name;
        std::function<void()> work; // of the tool dialog
        std::function<void(Calling&)> reach;
    } ways[] = {
        {"menu", {}, [&](Calling&) { m_workspace->Execute(half); }},
        {"message", half, [&](Calling& tool) { tool.PostMessage(WM_USER + 1), CWinApp::PumpMessages(); }},
        {"point", half,
         [&](Calling&) {
             View().StartDefinisciVettore("Punto", "");
             Click(PixelOf(CFPoint(0, 0, 0)));
         }},
        {"slot",
         {},
         [&](Calling&) {
             QTimer::singleShot(0, &m_workspace->Window(), half);
             CWinApp::PumpMessages();
         }},
        {"following", fail,
         [&](Calling& tool) {
             tool.follows = true;
             m_workspace->Execute(command);
             tool.follows = false;
             EXPECT_EQ(done, 1) << "the command goes on";
         }},
    };
    for (const auto& way : ways) {
        SCOPED_TRACE(way.name);
        Calling* tool = OpenCalling();
        ASSERT_TRUE(tool);
        tool->work = way.work;
        m_user.ExpectMessage("Memoria piena");
        way.reach(*tool);
        m_user.Verify();
        EXPECT_FALSE(m_workspace->IsWaiting() || Document().Undo().IsInBracket());
        // What comes at rest waits for the end of a wait.
        EXPECT_TRUE(QTest::qWaitFor([&] { return Document().Undo().UndoCount() == 1; }));
        EXPECT_TRUE(Document().Undo().Undo());
        EXPECT_EQ(State(), before);
        m_workspace->Tools().End(tool);
    }
}

// The standard new-file command of a dialog's menu is the application's.
TEST_F(EscapeTest, ANewFileIsMadeFromADialog) {
    OpenCalling()->SendMessage(WM_COMMAND, ID_FILE_NEW);
    EXPECT_EQ(m_workspace->Views().size(), 2u);
}
