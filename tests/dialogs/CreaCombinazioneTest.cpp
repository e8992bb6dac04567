#include "dialogs/loads/DialogCreaCombinazione.h"
#include "platform/core/Exception.h"
#include "platform/window/Application.h"
#include "tests/dialogs/LoadModel.h"

namespace {

using Dialog = CDialogCreaCombinazione;
constexpr int availableId = Dialog::IDC_LIST_CDCA;
constexpr int combinedId = Dialog::IDC_LIST_CDCB;
constexpr int fattoreId = Dialog::IDC_FATTORE;
constexpr int fattoreCombinazioneId = Dialog::IDC_FATTORE_COMBINAZIONE;
constexpr int nomeId = Dialog::IDC_NOME;

class CreaCombinazione : public ModalTest {
  protected:
    CreaCombinazione() {
        AddNamed(m_host.doc.casi, 1, "Permanenti");
        AddNamed(m_host.doc.casi, 2, "Neve").SetTipo("Variabile");
        AddNamed(m_host.doc.casi, 7, "Città");
    }
    int Create(const std::function<void(DialogDriver&)>& action) {
        Dialog dialog(Dialog::Crea, &m_host.frame);
        return Run(dialog, action);
    }
    int Change(CCombinazione& combination, const std::function<void(DialogDriver&)>& action) {
        m_host.doc.currentCombination = &combination;
        Dialog dialog(Dialog::Modifica, &m_host.frame);
        return Run(dialog, action);
    }
    // Buttons ">", ">>", "<", "<<", OK.
    static std::string Enabled(const DialogDriver& driver) {
        return EnabledLine(driver,
                           {Dialog::IDC_VA, Dialog::IDC_VATUTTO, Dialog::IDC_VIENI, Dialog::IDC_VIENITUTTO, IDOK});
    }
    static void Fill(DialogDriver& driver, const std::string& name) {
        driver.Click(Dialog::IDC_VATUTTO);
        driver.SetText(nomeId, name);
    }
};

TEST_F(CreaCombinazione, OpensEmptyForANewOne) {
    Create([](DialogDriver& driver) {
        EXPECT_EQ(driver.Text(IDOK), "Crea");
        EXPECT_EQ(driver.Rows(availableId), (Lines{"1 : Permanenti", "2 : Neve (Variabile)", "7 : Città"}));
        EXPECT_TRUE(driver.Rows(combinedId).empty());
        EXPECT_TRUE(driver.SelectedRows(availableId).empty());
        EXPECT_EQ(Enabled(driver), "01000");
        EXPECT_EQ(EnabledLine(driver, {Dialog::IDC_ALGEBRICA, Dialog::IDC_VALORI_EFFICACI}), "00");
    });
    m_host.doc.casi.clear();
    Create([](DialogDriver& driver) { EXPECT_EQ(Enabled(driver), "00000"); });
    EXPECT_EQ(m_host.Take(), Lines{});
}

// Catches each row of the enabling table: a current entry, a factor, a name, a case.
TEST_F(CreaCombinazione, ButtonsFollowListsFactorAndName) {
    Create([](DialogDriver& driver) {
        driver.ClickRow(availableId, 1);
        EXPECT_EQ(Enabled(driver), "11000");
        for (const char* none : {"0", "", "abc", "0.0", "1e999", "nan"}) {
            driver.SetText(fattoreId, none);
            EXPECT_EQ(Enabled(driver), "00000") << none;
        }
        driver.Type(fattoreId, "-1.5");
        EXPECT_EQ(Enabled(driver), "11000");
        driver.Type(nomeId, "S");
        EXPECT_EQ(Enabled(driver), "11000") << "no case yet";
        driver.Click(Dialog::IDC_VA);
        EXPECT_EQ(Enabled(driver), "01011") << "no entry is current in either list";
        driver.ClickRow(combinedId, 0);
        EXPECT_EQ(Enabled(driver), "01111");
        driver.Type(nomeId, "");
        EXPECT_EQ(Enabled(driver), "01110");
        driver.Click(Dialog::IDC_VATUTTO);
        EXPECT_EQ(Enabled(driver), "00110");
    });
}

// Catches items that keep a case's position instead of its number once the list has shrunk.
TEST_F(CreaCombinazione, MovesCasesBetweenTheLists) {
    Create([](DialogDriver& driver) {
        driver.Type(fattoreId, "1.35");
        driver.ClickRow(availableId, 0);
        driver.Click(Dialog::IDC_VA);
        driver.ClickRow(availableId, 1);
        driver.Click(Dialog::IDC_VA);
        EXPECT_EQ(driver.Rows(availableId), Lines{"2 : Neve (Variabile)"});
        EXPECT_EQ(driver.Rows(combinedId), (Lines{"(1.35) 1 : Permanenti", "(1.35) 7 : Città"}));
        driver.SetText(fattoreId, "2");
        driver.Click(Dialog::IDC_VATUTTO);
        EXPECT_TRUE(driver.Rows(availableId).empty());
        EXPECT_EQ(driver.Rows(combinedId).back(), "(2) 2 : Neve (Variabile)");
        // The entry that moves up is current, and its factor shown; behind the last there is none.
        driver.ClickRow(combinedId, 1);
        EXPECT_EQ(driver.Text(fattoreCombinazioneId), "1.35");
        driver.Click(Dialog::IDC_VIENI);
        EXPECT_EQ(driver.SelectedRows(combinedId), std::vector<int>{1});
        EXPECT_EQ(driver.Text(fattoreCombinazioneId), "2");
        driver.Click(Dialog::IDC_VIENI);
        EXPECT_TRUE(driver.SelectedRows(combinedId).empty());
        EXPECT_EQ(driver.Text(fattoreCombinazioneId), "");
        EXPECT_FALSE(driver.Enabled(Dialog::IDC_VIENI));
        EXPECT_EQ(driver.Rows(availableId), (Lines{"2 : Neve (Variabile)", "7 : Città"})) << "document order";
        driver.Click(Dialog::IDC_VIENITUTTO);
        EXPECT_TRUE(driver.Rows(combinedId).empty());
        EXPECT_EQ(driver.Rows(availableId).size(), 3u);
    });
    EXPECT_EQ(m_host.Take(), Lines{});
}

TEST_F(CreaCombinazione, AFactorThatDoesNotParseStopsTheButtons) {
    Create([this](DialogDriver& driver) {
        driver.ClickRow(availableId, 0);
        driver.SetText(fattoreId, "1.5x"); // counts as 1.5 for the buttons
        EXPECT_EQ(Enabled(driver), "11000");
        m_user.ExpectMessage("Immettere un numero.");
        driver.Click(Dialog::IDC_VA);
        m_user.ExpectMessage("Immettere un numero.");
        driver.Click(Dialog::IDC_VATUTTO);
        EXPECT_TRUE(driver.Rows(combinedId).empty());
    });
}

// Catches an edit that is rewritten under the user's fingers, and a text that is no number keeping the old factor.
TEST_F(CreaCombinazione, TheFactorFollowsEachKey) {
    Create([](DialogDriver& driver) {
        Fill(driver, "SLU");
        driver.ClickRow(combinedId, 1);
        EXPECT_EQ(driver.Text(fattoreCombinazioneId), "1");
        driver.Click(fattoreCombinazioneId);
        driver.Press(VK_HOME);
        driver.Press(VK_END, ShiftKey);
        driver.TypeKeys("-");
        EXPECT_EQ(driver.Rows(combinedId)[1], "(0) 2 : Neve (Variabile)");
        EXPECT_FALSE(driver.Enabled(IDOK));
        driver.TypeKeys("2.");
        EXPECT_EQ(driver.Text(fattoreCombinazioneId), "-2.");
        EXPECT_EQ(driver.Rows(combinedId)[1], "(-2) 2 : Neve (Variabile)");
        driver.TypeKeys("50");
        EXPECT_EQ(driver.Rows(combinedId)[1], "(-2.5) 2 : Neve (Variabile)");
        EXPECT_EQ(driver.Text(fattoreCombinazioneId), "-2.50");
        EXPECT_EQ(driver.SelectedRows(combinedId), std::vector<int>{1});
        EXPECT_TRUE(driver.Enabled(IDOK));
        driver.SetText(fattoreCombinazioneId, "abc");
        EXPECT_EQ(driver.Rows(combinedId)[1], "(0) 2 : Neve (Variabile)");
        EXPECT_FALSE(driver.Enabled(IDOK));
        driver.ClickRow(combinedId, 0);
        EXPECT_EQ(driver.Text(fattoreCombinazioneId), "1");
        EXPECT_EQ(driver.Rows(combinedId)[1], "(0) 2 : Neve (Variabile)");
        driver.Click(Dialog::IDC_VIENITUTTO);
        driver.SetText(fattoreCombinazioneId, "5"); // of no case
        EXPECT_TRUE(driver.Rows(combinedId).empty());
    });
}

// Catches a dialog that closes, or forgets what was built, after a name that cannot be.
TEST_F(CreaCombinazione, NamesThatCannotBeLeaveItOpen) {
    AddCombination(m_host.doc, 9, "SLE");
    Create([this](DialogDriver& driver) {
        Fill(driver, "");
        for (const char* taken : {"Città", "SLE"}) {
            driver.SetText(nomeId, taken);
            m_user.ExpectMessage("Esiste già un caso di carico (o combinazione) con lo stesso nome.", IDOK, MB_OK);
            driver.Click(IDOK);
        }
        driver.SetText(nomeId, invalidName);
        m_user.ExpectMessage("Il nome non è valido.\n(Non può contenere i caratteri '.`![]', ne avere spazi "
                             "iniziali, ed avere una lunghezza massima di 64 caratteri)",
                             IDOK, MB_OK);
        driver.Press(VK_RETURN);
        EXPECT_EQ(driver.Text(nomeId), invalidName);
        EXPECT_EQ(driver.Rows(combinedId).size(), 3u);
        EXPECT_EQ(m_host.Take(), Lines{});
        driver.SetText(nomeId, "Forlì");
        driver.Click(IDOK);
        EXPECT_FALSE(IsShown(driver));
    });
    EXPECT_EQ(m_host.doc.combinazioni.back()->GetNome().ToUtf8(), "Forlì");
}

// Catches a combination that leaks, or is deleted twice, when the document does not take it; the sanitizer sees both.
TEST_F(CreaCombinazione, ARefusalLeavesItOpenAndConfirmingGivesTheDocumentANewOne) {
    const int result = Create([this](DialogDriver& driver) {
        driver.Type(fattoreId, "1.1");
        driver.ClickRow(availableId, 2);
        driver.Click(Dialog::IDC_VA);
        Fill(driver, "Perché");
        m_host.doc.generated = 0;
        m_user.ExpectMessage("La combinazione non è stata aggiunta.", IDOK, MB_OK);
        driver.Click(IDOK);
        EXPECT_EQ(m_host.Take(), Lines{"AddCombinazione \"Perché\""});
        m_host.doc.addingThrows = new CSimpleException("Memoria insufficiente.");
        m_user.ExpectMessage("Memoria insufficiente.", IDOK, MB_OK);
        driver.Click(IDOK);
        EXPECT_EQ(m_host.Take(), Lines{"AddCombinazione \"Perché\""});
        EXPECT_TRUE(IsShown(driver));
        m_host.doc.generated = 1;
        driver.Click(IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(m_host.Take(), (Lines{"AddCombinazione \"Perché\"", "SelectCasoCarico 100"}));
    EXPECT_EQ(FactorsOf(*m_host.doc.combinazioni.at(0)),
              (std::vector<std::pair<int, double>>{{7, 1.1}, {1, 1.1}, {2, 1.1}}));
}

// Catches factors rounded to what the edit shows, and a case that is lost because the document no longer has it.
TEST_F(CreaCombinazione, ChangingKeepsWhatIsNotTouched) {
    const std::vector<std::pair<int, double>> factors = {{7, 1.23456789012}, {99, 0.3}, {1, 1.0 / 3}};
    CCombinazione& combination = AddCombination(m_host.doc, 5, "SLU.1", factors);
    EXPECT_EQ(
        Change(combination,
               [](DialogDriver& driver) {
                   EXPECT_EQ(driver.Text(IDOK), "&Modifica");
                   EXPECT_EQ(driver.Rows(availableId), Lines{"2 : Neve (Variabile)"});
                   EXPECT_EQ(driver.Rows(combinedId), (Lines{"(1.23457) 7 : Città", "(0.333333) 1 : Permanenti"}));
                   EXPECT_EQ(Enabled(driver), "01011");
                   driver.ClickRow(combinedId, 1);
                   driver.ClickRow(combinedId, 0);
                   driver.Click(IDOK);
               }),
        IDOK);
    EXPECT_EQ(m_host.Take(), Lines{"ModificaCombinazione 5 \"SLU.1\""}) << "a name is not tested in this mode";
    EXPECT_EQ(FactorsOf(combination), factors);
    Change(combination, [](DialogDriver& driver) {
        driver.ClickRow(combinedId, 1);
        driver.Type(fattoreCombinazioneId, "4");
        driver.Type(nomeId, "Permanenti");
        driver.Click(IDOK);
    });
    EXPECT_EQ(m_host.Take(), Lines{"ModificaCombinazione 5 \"Permanenti\""});
    EXPECT_EQ(FactorsOf(combination).back(), (std::pair<int, double>{1, 4}));
    // A case out of sight with factor 0 still keeps OK off.
    combination.SetFattoreCDC(1, 0);
    Change(combination, [](DialogDriver& driver) { EXPECT_FALSE(driver.Enabled(IDOK)); });
}

TEST_F(CreaCombinazione, ThereMustBeOneToChange) {
    Dialog dialog(Dialog::Modifica, &m_host.frame);
    m_user.ExpectMessage("Nessuna combinazione selezionata.", IDOK, MB_OK);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    m_host.hasDoc = false;
    EXPECT_EQ(dialog.DoModal(), IDCANCEL) << "and no message";
    Create([](DialogDriver& driver) { EXPECT_EQ(Enabled(driver), "00000"); });
}

TEST_F(CreaCombinazione, CancelLeavesTheDocument) {
    CCombinazione& combination = AddCombination(m_host.doc, 5, "SLU", {{1, 1.3}, {2, 1.5}});
    EXPECT_EQ(Change(combination,
                     [](DialogDriver& driver) {
                         driver.ClickRow(combinedId, 0);
                         driver.Type(fattoreCombinazioneId, "9");
                         driver.Click(Dialog::IDC_VIENI);
                         driver.Click(Dialog::IDC_VATUTTO);
                         driver.Type(nomeId, "Altro");
                         driver.Press(VK_ESCAPE);
                     }),
              IDCANCEL);
    EXPECT_EQ(m_host.Take(), Lines{});
    EXPECT_EQ(FactorsOf(combination), (std::vector<std::pair<int, double>>{{1, 1.3}, {2, 1.5}}));
    EXPECT_EQ(combination.GetNome(), "SLU");
}

} // namespace
