// The dialogs that ask for a name. None tests it: the rule is the caller's, which would then tell twice.
#include "dialogs/loads/DialogCreaCasoCarico.h"
#include "dialogs/loads/DialogCreaGruppo.h"
#include "dialogs/loads/DialogInsertNome.h"
#include "tests/dialogs/LoadModel.h"

namespace {

using NameDialogs = ModalTest;

// Catches fields that do not reach their controls, a caption that stays or vanishes, and a name that Cancel hands back.
TEST_F(NameDialogs, OfALoadCase) {
    CDialogCreaCasoCarico dialog(&m_host.frame);
    dialog.m_strNome = "Proposta";
    dialog.m_strNumero = "12";
    const int accepted = Run(dialog, [](DialogDriver& driver) {
        EXPECT_EQ(driver.Caption(), "Crea Caso di Carico");
        EXPECT_EQ(driver.Text(CDialogCreaCasoCarico::IDC_NOME), "Proposta");
        EXPECT_EQ(driver.Text(CDialogCreaCasoCarico::IDC_NUMERO), "12");
        driver.Type(CDialogCreaCasoCarico::IDC_NOME, " Perché no!");
        driver.Press(VK_RETURN);
    });
    EXPECT_EQ(accepted, IDOK);
    EXPECT_EQ(dialog.m_strNome.ToUtf8(), " Perché no!");
    EXPECT_EQ(dialog.m_strNumero, "12");
    dialog.m_strTitolo = "Copia";
    const int cancelled = Run(dialog, [](DialogDriver& driver) {
        EXPECT_EQ(driver.Caption(), "Copia");
        EXPECT_EQ(driver.Text(CDialogCreaCasoCarico::IDC_NOME), " Perché no!")
            << "the dialog is run again with what was typed";
        driver.SetText(CDialogCreaCasoCarico::IDC_NOME, "Altro");
    });
    EXPECT_EQ(cancelled, IDCANCEL);
    EXPECT_EQ(dialog.m_strNome.ToUtf8(), " Perché no!");
}

// Catches a name that is not handed back, or one that Cancel hands back, and a rule of the dialog's own.
TEST_F(NameDialogs, OfAGroup) {
    CDialogCreaGruppo dialog(&m_host.frame);
    dialog.m_strNome = "Gruppo 1";
    const int accepted = Run(dialog, [](DialogDriver& driver) {
        EXPECT_EQ(driver.Caption(), "Crea Gruppo");
        EXPECT_EQ(driver.Focus(), CDialogCreaGruppo::IDC_NOME);
        driver.TypeKeys("Solaio è giù"); // over the proposal, which is selected
        driver.Press(VK_RETURN);
    });
    EXPECT_EQ(accepted, IDOK);
    EXPECT_EQ(dialog.m_strNome.ToUtf8(), "Solaio è giù");
    EXPECT_EQ(Run(dialog, [](DialogDriver& driver) { driver.Type(CDialogCreaGruppo::IDC_NOME, ""); }), IDCANCEL);
    EXPECT_EQ(dialog.m_strNome.ToUtf8(), "Solaio è giù");
    Run(dialog, [](DialogDriver& driver) {
        driver.Type(CDialogCreaGruppo::IDC_NOME, "");
        driver.Click(IDOK);
    });
    EXPECT_TRUE(dialog.m_strNome.IsEmpty());
}

// Catches any way out but OK, and the placeholder left in place of the prompt, an empty one too.
TEST_F(NameDialogs, OfAnythingEndsThroughOkOnly) {
    CDialogInsertNome dialog(&m_host.frame);
    m_user.WhenDialogOpens([](DialogDriver& driver) {
        EXPECT_EQ(driver.Text(CDialogInsertNome::IDC_ETICHETTA), "");
        driver.Press(VK_RETURN);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_TRUE(dialog.m_strNome.IsEmpty());
    dialog.m_strEtichetta = "Nome della città :"_t;
    dialog.m_strNome = "Roma";
    m_user.WhenDialogOpens([](DialogDriver& driver) {
        EXPECT_EQ(driver.Caption(), "Nuovo Nome");
        EXPECT_EQ(driver.Text(CDialogInsertNome::IDC_ETICHETTA), "Nome della città :");
        EXPECT_EQ(driver.Text(CDialogInsertNome::IDC_NOME), "Roma");
        driver.Type(CDialogInsertNome::IDC_NOME, "Forlì");
        driver.Press(VK_ESCAPE);
        driver.Click(IDCANCEL);
        driver.CloseBox();
        ASSERT_TRUE(driver.IsOpen());
        driver.Click(IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.m_strNome.ToUtf8(), "Forlì");
}

} // namespace
