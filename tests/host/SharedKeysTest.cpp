// The keys that the application takes from tool dialogs.
#include "host/ui/SharedKeys.h"
#include "dialogs/frame/tool/DialogDocument.h"
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "host/document/HostDocument.h"
#include "host/ui/MainWindow.h"
#include "host/view/ViewWidget.h"
#include "platform/window/Application.h"
#include "tests/host/WorkspaceTest.h"
#include "tests/support/TestApp.h"

#include <QAction>
#include <QGuiApplication>
#include <QTemporaryDir>

using namespace host;

namespace {

using Generation = CDialogGenNodiLineare;

class SharedKeysTest : public WorkspaceTest {
  protected:
    SharedKeysTest() {
        TestApp::Instance().keyHandler = [this](const MSG& message) { return m_workspace->TakeKey(message); };
        for (const QAction* each : m_workspace->Window().findChildren<QAction*>(Qt::FindDirectChildrenOnly))
            QObject::connect(each, &QAction::triggered, each,
                             [this, each] { m_run += each->objectName().toStdString() + " "; });
    }
    ~SharedKeysTest() override { TestApp::Instance().keyHandler = nullptr; }

    std::string m_run; // commands, in order
};

} // namespace

// Faults: a key of the dialog that deletes or selects in the model, one that a field used and the application takes
// too, one that it is to take and does not.
TEST_F(SharedKeysTest, TakesThoseOfTheRuleAndNoneElse) {
    const QTemporaryDir folder;
    BuildSmallModel();
    ASSERT_TRUE(m_workspace->SaveAs(Document(), folder.filePath("prova.asg")));
    CFPoint place(9, 9, 9);
    Document().AddNodo(place, nullptr, 1);
    Document().SelectAll();
    CWinApp::PumpMessages();
    constexpr int field = Generation::IDC_X_INIZIALE, button = Generation::IDC_DIREZIONE_X;
    const struct {
        int focus;
        UINT key;
        unsigned held;
        const char* run;
    } rows[] = {
        {field, VK_F1 + 3, NoModifier, "vista.adatta "},
        {field, VK_F1 + 3, ShiftKey, ""},
        {field, VK_F1 + 10, NoModifier, ""}, // of no command
        {field, '2', CtrlKey, "vista.xy "},
        {field, '5', CtrlKey, ""},
        {button, 'Z', CtrlKey, "modifica.annulla "},
        {button, 'Y', CtrlKey, "modifica.ripristina "},
        {field, 'Z', CtrlKey, ""}, // the field undoes its own
        {button, 'S', CtrlKey, "file.salva "},
        {button, 'S', CtrlKey | ShiftKey, ""},
        {button, 'A', CtrlKey, ""},
        {button, 'C', CtrlKey, ""},
        {button, 'V', CtrlKey, ""},
        {button, 'X', CtrlKey, ""},
        {button, 'D', CtrlKey, ""},
        {button, 'W', CtrlKey, ""},
        {button, 'Q', CtrlKey, ""},
        {button, VK_DELETE, NoModifier, ""},
        {field, VK_DELETE, NoModifier, ""},
        {button, 'K', NoModifier, ""},
        {button, VK_SPACE, NoModifier, ""},
        {button, VK_UP, NoModifier, ""},
        {field, VK_LEFT, NoModifier, ""},
        {button, VK_RETURN, NoModifier, ""},
        {button, VK_ESCAPE, NoModifier, ""},
    };
    for (const auto& row : rows) {
        DialogDriver driver(*OpenTool(Generation::IDD));
        driver.SetText(Generation::IDC_PASSO, "0"); // Enter is refused
        driver.SetText(field, "0");
        driver.SetFocus(row.focus);
        m_run.clear();
        if (row.key == VK_RETURN)
            m_user.ExpectMessage("Parametri Errati!");
        driver.Press(row.key, row.held);
        CWinApp::PumpMessages();
        EXPECT_EQ(m_run, row.run) << row.key << " with " << row.held;
    }
}

// Fault: a dialog over one document whose Ctrl+Z takes back a step of another.
TEST_F(SharedKeysTest, MeanTheDialogsOwnView) {
    DialogDriver driver(*OpenTool(Generation::IDD));
    HostView& first = View();
    m_workspace->NewDocument();
    HostView& second = View();
    ASSERT_NE(&first, &second);
    driver.Activate();
    driver.SetFocus(Generation::IDC_DIREZIONE_X);
    driver.Press('2', CtrlKey);
    CWinApp::PumpMessages();
    EXPECT_EQ(first.Vista().GetAxis(2), CFPoint(0, 0, 1));
    EXPECT_FALSE(second.Vista().GetAxis(2) == CFPoint(0, 0, 1));
    driver.Press(VK_F1 + 5); // a drawing takes the keyboard along
    EXPECT_EQ(m_workspace->Window().focusWidget(), &first.Widget());
    // A window manager asks when the user's last key was, and a test's keys have no time: it may stay with the dialog.
    EXPECT_TRUE(first.Widget().hasFocus() || QGuiApplication::platformName() != "offscreen");
}
