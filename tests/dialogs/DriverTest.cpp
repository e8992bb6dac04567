// The tests' own tools: a driver that forgives, or a script that misses a message box, would let every other test pass.
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "platform/window/Application.h"
#include "tests/support/DialogTest.h"

#include <gtest/gtest-spi.h>

namespace {

class Driver : public DialogTest {};

TEST_F(Driver, MessageBoxesMustBeDeclared) {
    int answer = 0;
    EXPECT_NONFATAL_FAILURE(answer = AfxMessageBox("Prova"), "undeclared message box: Prova");
    EXPECT_EQ(answer, IDCANCEL);
    m_user.ExpectMessage("è così?", IDYES, MB_YESNO);
    EXPECT_EQ(AfxMessageBox("è così?"_t, MB_YESNO), IDYES);
    m_user.ExpectMessage("Prima");
    EXPECT_NONFATAL_FAILURE(AfxMessageBox("Seconda"), "declared: Prima");
    EXPECT_NONFATAL_FAILURE(m_user.Verify(), "this message box never came: Prima");
    m_user.ExpectMessage("Tipo", IDOK, MB_YESNO);
    EXPECT_NONFATAL_FAILURE(AfxMessageBox("Tipo", MB_OK), "of the message box: Tipo");
}

TEST_F(Driver, ControlsMustBeUsable) {
    CDialogGenNodiLineare dialog;
    m_host.Open(dialog);
    DialogDriver driver(dialog);
    const int disabled = CDialogGenNodiLineare::IDC_X1;
    EXPECT_NONFATAL_FAILURE(driver.Click(disabled), "control " + std::to_string(disabled) + " is hidden or disabled");
    EXPECT_NONFATAL_FAILURE(driver.Click(64000), "no control 64000");
    dialog.DestroyWindow();
    EXPECT_FALSE(driver.IsOpen());
    EXPECT_NONFATAL_FAILURE(driver.Text(CDialogGenNodiLineare::IDC_NODI), "of a closed dialog");
    EXPECT_NONFATAL_FAILURE(driver.Press(VK_RETURN), "to a closed dialog");
}

TEST_F(Driver, ModalDialogsAreAnswered) {
    class Modal : public CDialog {
      public:
        Modal() : CDialog(CDialogGenNodiLineare::IDD) {}
    };
    m_user.WhenDialogOpens([this](DialogDriver& outer) {
        outer.Type(CDialogGenNodiLineare::IDC_PASSO, "2");
        m_user.WhenDialogOpens([](DialogDriver& inner) { inner.Press(VK_ESCAPE); });
        EXPECT_EQ(Modal().DoModal(), IDCANCEL) << "a dialog over a dialog";
        outer.Press(VK_RETURN);
    });
    EXPECT_EQ(Modal().DoModal(), IDOK);
    EXPECT_NONFATAL_FAILURE(EXPECT_EQ(Modal().DoModal(), IDCANCEL), "undeclared modal dialog");
    m_user.WhenDialogOpens([](DialogDriver&) {});
    EXPECT_NONFATAL_FAILURE(m_user.Verify(), "1 modal dialogs never opened");
}

} // namespace
