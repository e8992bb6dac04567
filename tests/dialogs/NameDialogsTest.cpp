// The dialogs that ask for a name: what their rows of the contract do not say.
#include "dialogs/loads/DialogCreaCasoCarico.h"
#include "dialogs/loads/DialogCreaGruppo.h"
#include "dialogs/loads/DialogInsertNome.h"
#include "tests/dialogs/ModalTest.h"

namespace {

using NameDialogs = ModalTest;

// Catches a caption or a prompt of the caller's that stays the template's, a number that is not shown, and a proposal
// that the user must delete before typing.
TEST_F(NameDialogs, ShowWhatTheCallerSets) {
    CDialogCreaCasoCarico loadCase(&m_host.frame);
    loadCase.m_strTitolo = "Copia";
    loadCase.m_strNumero = "12";
    Run(loadCase, [](DialogDriver& driver) {
        EXPECT_EQ(driver.Caption(), "Copia");
        EXPECT_EQ(driver.Text(CDialogCreaCasoCarico::IDC_NUMERO), "12");
    });
    CDialogCreaGruppo group(&m_host.frame);
    group.m_strNome = "Gruppo 1";
    Run(group, [](DialogDriver& driver) {
        EXPECT_EQ(driver.Focus(), CDialogCreaGruppo::IDC_NOME);
        driver.TypeKeys("Solaio");
        EXPECT_EQ(driver.Text(CDialogCreaGruppo::IDC_NOME), "Solaio");
    });
    for (const char* prompt : {"", "Nome della città :"}) {
        CDialogInsertNome name(&m_host.frame);
        name.m_strEtichetta = CString::FromUtf8(prompt);
        Run(name, [prompt](DialogDriver& driver) {
            EXPECT_EQ(driver.Text(CDialogInsertNome::IDC_ETICHETTA), prompt);
            driver.Press(VK_RETURN);
        });
    }
}

} // namespace
