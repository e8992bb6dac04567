#include "dialogs/loads/DialogCreaGruppo.h"
#include "tests/support/DialogTest.h"

namespace {

// Catches a name that is not handed back, or one that Cancel hands back, and a rule of the dialog's own.
TEST_F(DialogTest, CreaGruppoAsksForAName) {
    CDialogCreaGruppo dialog(&host.frame);
    EXPECT_TRUE(dialog.m_strNome.IsEmpty());
    dialog.m_strNome = "Gruppo 1";
    user.WhenDialogOpens([](DialogDriver& driver) {
        EXPECT_EQ(driver.Caption(), "Crea Gruppo");
        EXPECT_EQ(driver.Focus(), CDialogCreaGruppo::IDC_NOME);
        driver.TypeKeys("Solaio è giù"); // over the proposal, which is selected
        driver.Press(VK_RETURN);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_strNome.ToUtf8(), "Solaio è giù");
    user.WhenDialogOpens([](DialogDriver& driver) {
        driver.Type(CDialogCreaGruppo::IDC_NOME, "");
        driver.Press(VK_ESCAPE);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.m_strNome.ToUtf8(), "Solaio è giù");
    user.WhenDialogOpens([](DialogDriver& driver) {
        driver.Type(CDialogCreaGruppo::IDC_NOME, "");
        driver.Click(IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_TRUE(dialog.m_strNome.IsEmpty());
    EXPECT_EQ(host.Take(), Lines{});
}

} // namespace
