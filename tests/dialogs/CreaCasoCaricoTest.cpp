#include "dialogs/loads/DialogCreaCasoCarico.h"
#include "tests/support/DialogTest.h"

namespace {

constexpr int nomeId = CDialogCreaCasoCarico::IDC_NOME;
constexpr int numeroId = CDialogCreaCasoCarico::IDC_NUMERO;

class CreaCasoCarico : public DialogTest {
  protected:
    CDialogCreaCasoCarico dialog{&host.frame};
};

// Catches fields that do not reach their controls, and a caption that stays or vanishes.
TEST_F(CreaCasoCarico, ShowsWhatTheCallerSet) {
    EXPECT_TRUE(dialog.m_strTitolo.IsEmpty() && dialog.m_strNome.IsEmpty() && dialog.m_strNumero.IsEmpty());
    dialog.m_strNome = "Proposta";
    dialog.m_strNumero = "12";
    user.WhenDialogOpens([](DialogDriver& driver) {
        EXPECT_EQ(driver.Caption(), "Crea Caso di Carico");
        EXPECT_EQ(driver.Text(nomeId), "Proposta");
        EXPECT_EQ(driver.Text(numeroId), "12");
        driver.Type(nomeId, "Perché no");
        driver.Press(VK_RETURN);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_strNome.ToUtf8(), "Perché no");
    EXPECT_EQ(dialog.m_strNumero, "12");
    dialog.m_strTitolo = "Copia";
    user.WhenDialogOpens([](DialogDriver& driver) {
        EXPECT_EQ(driver.Caption(), "Copia");
        EXPECT_EQ(driver.Text(nomeId), "Perché no") << "the dialog is run again with what was typed";
        driver.SetText(nomeId, "Altro");
        driver.Click(IDCANCEL);
    });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.m_strNome.ToUtf8(), "Perché no") << "Cancel reads nothing";
}

// The rule is the caller's: a dialog that tests names itself would test them twice, with two messages.
TEST_F(CreaCasoCarico, TakesAnyName) {
    user.WhenDialogOpens([](DialogDriver& driver) {
        driver.SetText(nomeId, " a.b!");
        driver.Click(IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_strNome, " a.b!");
}

} // namespace
