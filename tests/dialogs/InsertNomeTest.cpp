#include "dialogs/loads/DialogInsertNome.h"
#include "tests/support/DialogTest.h"

namespace {

class InsertNome : public DialogTest {
  protected:
    CDialogInsertNome dialog{&host.frame};
};

// Catches any way out but OK, and the placeholder left in place of the prompt.
TEST_F(InsertNome, EndsThroughOkOnly) {
    dialog.m_strEtichetta = "Nome della città :"_t;
    dialog.m_strNome = "Roma";
    user.WhenDialogOpens([](DialogDriver& driver) {
        EXPECT_EQ(driver.Caption(), "Nuovo Nome");
        EXPECT_EQ(driver.Text(CDialogInsertNome::IDC_ETICHETTA), "Nome della città :");
        EXPECT_EQ(driver.Text(CDialogInsertNome::IDC_NOME), "Roma");
        driver.Type(CDialogInsertNome::IDC_NOME, "Forlì");
        driver.Press(VK_ESCAPE);
        driver.Click(IDCANCEL);
        driver.CloseBox();
        ASSERT_TRUE(driver.IsOpen());
        EXPECT_EQ(driver.Text(CDialogInsertNome::IDC_NOME), "Forlì");
        driver.Click(IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_strNome.ToUtf8(), "Forlì");
    EXPECT_EQ(host.Take(), Lines{});
}

TEST_F(InsertNome, FieldsAreEmptyAtFirst) {
    EXPECT_TRUE(dialog.m_strNome.IsEmpty());
    EXPECT_TRUE(dialog.m_strEtichetta.IsEmpty());
    user.WhenDialogOpens([](DialogDriver& driver) {
        EXPECT_EQ(driver.Text(CDialogInsertNome::IDC_ETICHETTA), "") << "an empty prompt replaces the placeholder too";
        driver.Press(VK_RETURN);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

} // namespace
