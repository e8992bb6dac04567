#include "dialogs/loads/DialogCreaCasoCarico.h"
#include "dialogs/loads/DialogListaCasiCarico.h"
#include "model/element/Asta.h"
#include "model/element/Nodo.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "platform/window/Application.h"
#include "tests/dialogs/LoadModel.h"

namespace {

constexpr int listId = CDialogListaCasiCarico::IDC_LIST_CASICARICO;
constexpr int eliminaId = CDialogListaCasiCarico::IDC_ELIMINA;
constexpr int copiaId = CDialogListaCasiCarico::IDC_COPIA;
constexpr int rinominaId = CDialogListaCasiCarico::IDC_RINOMINA;
constexpr int nomeId = CDialogCreaCasoCarico::IDC_NOME;

class ListaCasiCarico : public ModalTest {
  protected:
    ListaCasiCarico() {
        AddNamed(m_host.doc.casi, 1, "Permanenti");
        AddNamed(m_host.doc.casi, 2, "Neve");
        AddNamed(m_host.doc.casi, 7, "Vento");
    }
    int Run(const std::function<void(DialogDriver&)>& action) { return ModalTest::Run(m_dialog, action); }
    // Buttons "Seleziona", "Elimina", "Copia", "Rinomina".
    static std::string Enabled(const DialogDriver& driver) {
        return EnabledLine(driver, {IDOK, eliminaId, copiaId, rinominaId});
    }
    // Answers the name dialog, which must show `shown`, with a name.
    void Rename(const std::string& shown, const std::string& name) {
        m_user.WhenDialogOpens([shown, name](DialogDriver& driver) {
            EXPECT_EQ(driver.Text(nomeId), shown);
            driver.SetText(nomeId, name);
            driver.Click(IDOK);
        });
    }

    CDialogListaCasiCarico m_dialog{&m_host.doc, &m_host.frame};
};

TEST_F(ListaCasiCarico, EmptyDocumentLeavesOnlyClosing) {
    m_host.doc.casi.clear();
    Run([](DialogDriver& driver) {
        EXPECT_EQ(driver.Caption(), "Casi di Carico");
        EXPECT_TRUE(driver.Rows(listId).empty());
        EXPECT_EQ(Enabled(driver), "0000");
        driver.Press(VK_DELETE);
    });
    EXPECT_EQ(m_host.Take(), Lines{});
    CDialogListaCasiCarico without(nullptr, &m_host.frame);
    ModalTest::Run(without, [](DialogDriver& driver) {
        EXPECT_TRUE(driver.Rows(listId).empty());
        driver.Press(VK_RETURN);
    });
}

// Catches buttons that act on several cases at once though they can only take one, or on none.
TEST_F(ListaCasiCarico, ButtonsFollowTheSelection) {
    const auto result = Run([](DialogDriver& driver) {
        EXPECT_EQ(driver.Rows(listId), (Lines{"1 : Permanenti", "2 : Neve", "7 : Vento"}));
        EXPECT_EQ(Enabled(driver), "0000");
        driver.ClickRow(listId, 1);
        EXPECT_EQ(Enabled(driver), "1111");
        driver.ClickRow(listId, 2, CtrlKey);
        EXPECT_EQ(Enabled(driver), "0100");
        driver.ClickRow(listId, 1, CtrlKey);
        EXPECT_EQ(Enabled(driver), "1111");
        driver.ClickRow(listId, 2, CtrlKey);
        EXPECT_EQ(Enabled(driver), "0000");
    });
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(m_host.Take(), Lines{});
}

TEST_F(ListaCasiCarico, SelectsByButtonAndByEnter) {
    const auto result = Run([](DialogDriver& driver) {
        driver.ClickRow(listId, 1);
        driver.Click(IDOK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(m_host.Take(), Lines{"SelectIndexCasoCarico 1"});
    Run([](DialogDriver& driver) {
        driver.ClickRow(listId, 0);
        driver.ClickRow(listId, 2, CtrlKey);
        driver.Press(VK_RETURN);
        EXPECT_FALSE(IsShown(driver)) << "the default button is another one, yet Enter selects";
    });
    EXPECT_EQ(m_host.Take(), Lines{"SelectIndexCasoCarico 2"}) << "the entry with the focus counts";
}

// Catches cases that are found by their position after others have gone.
TEST_F(ListaCasiCarico, DeletesAllThatAreSelected) {
    Run([this](DialogDriver& driver) {
        driver.ClickRow(listId, 0);
        driver.ClickRow(listId, 2, CtrlKey);
        driver.Press(VK_DELETE);
        EXPECT_EQ(m_host.Take(), (Lines{"EliminaCasoCarico 1", "EliminaCasoCarico 7"}));
        EXPECT_EQ(driver.Rows(listId), Lines{"2 : Neve"});
        EXPECT_EQ(Enabled(driver), "0000");
        driver.Press(VK_DELETE);
        EXPECT_EQ(m_host.Take(), Lines{});
        EXPECT_EQ(driver.Rows(listId), Lines{"2 : Neve"});
        driver.ClickRow(listId, 0);
        driver.Click(eliminaId);
        EXPECT_EQ(m_host.Take(), Lines{"EliminaCasoCarico 2"});
        EXPECT_TRUE(driver.Rows(listId).empty());
    });
}

// Catches loads left on the source only, attached twice, taken from another case, or with the source's number.
TEST_F(ListaCasiCarico, CopiesACaseWithEverythingThatCarriesIt) {
    CCasoCarico& source = *m_host.doc.casi[0];
    source.SetTipo("Fisso");
    source.AddCarico(new CCaricoUniforme({0, 0, -5}, CCarico::Global));
    source.AddCarico(new CCaricoNodale({1, 2, 3}, {0, 0, 0}));
    CCasoCarico& other = *m_host.doc.casi[1];
    other.AddCarico(new CCaricoUniforme({0, 0, -1}, CCarico::Global));
    m_host.doc.NewNodo(0, 0, 0);
    CNodo* const node = m_host.doc.NewNodo(1, 0, 0);
    CTrave* const beam = m_host.doc.NewTrave(1, 2);
    CAsta* const truss = m_host.doc.NewAsta(1, 2);
    CSolaio* const slab = m_host.doc.solai.emplace_back(std::make_unique<CSolaio>()).get();
    for (CElementoCarico* carrier : std::initializer_list<CElementoCarico*>{beam, truss, slab})
        carrier->AddCarico(source.GetCarico(1, nullptr), 0);
    beam->AddCarico(other.GetCarico(1, nullptr), 0);
    node->AddCarico(source.GetCarico(2, nullptr), 0);

    Run([this](DialogDriver& driver) {
        driver.ClickRow(listId, 0);
        driver.Click(copiaId);
        EXPECT_EQ(driver.Rows(listId), (Lines{"1 : Permanenti", "2 : Neve", "7 : Vento", "4 : Caso 4"}));
        EXPECT_EQ(Enabled(driver), "0000");
    });
    const Lines calls = m_host.Take();
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_TRUE(calls[0].starts_with("CreaCasoCarico"));
    EXPECT_EQ(calls[1], "UpdateAllViews null 52 null");

    CCasoCarico& copy = *m_host.doc.casi[3];
    EXPECT_EQ(copy.GetTipo(), "Fisso");
    ASSERT_EQ(copy.GetSizeCarichi(), 2);
    EXPECT_EQ(copy.GetIndexCarico(0)->GetIDCasoCarico(), 4);
    ASSERT_EQ(beam->GetSizeCarichi(), 3);
    EXPECT_EQ(beam->GetIndexCarico(2), copy.GetCarico(1, nullptr));
    EXPECT_EQ(truss->GetSizeCarichi(), 2);
    EXPECT_EQ(slab->GetSizeCarichi(), 2);
    ASSERT_EQ(node->GetSizeCarichi(), 2);
    EXPECT_EQ(node->GetIndexCarico(1), copy.GetCarico(2, nullptr));
}

TEST_F(ListaCasiCarico, CopyNeedsTheHost) {
    m_host.createsCases = false;
    Run([this](DialogDriver& driver) {
        driver.ClickRow(listId, 0);
        driver.Click(copiaId);
        EXPECT_EQ(m_host.Take().size(), 1u) << "no notification follows a case that was not made";
        EXPECT_EQ(Enabled(driver), "1111") << "nothing is refilled";
        m_host.hasDoc = false;
        driver.Click(copiaId);
        driver.Click(rinominaId);
    });
    EXPECT_EQ(m_host.Take(), Lines{});
    EXPECT_EQ(m_host.doc.casi.size(), 3u);
}

// Catches a loop that forgets what was typed, accepts a name of the other kind, or tests the rule before the duplicate.
TEST_F(ListaCasiCarico, RenamesInALoop) {
    AddCombination(m_host.doc, 9, "SLU.1");
    Run([this](DialogDriver& list) {
        list.ClickRow(listId, 1);
        m_user.WhenDialogOpens([](DialogDriver& driver) {
            EXPECT_EQ(driver.Caption(), "Crea Caso di Carico");
            EXPECT_EQ(driver.Text(nomeId), "Inserisci un nuovo nome");
            EXPECT_EQ(driver.Text(CDialogCreaCasoCarico::IDC_NUMERO), "2");
            driver.Type(nomeId, "Permanenti");
            driver.Press(VK_RETURN);
        });
        m_user.ExpectMessage("Il Caso Carico c'è già!", IDOK, MB_OK);
        Rename("Permanenti", "Neve"); // its own name is taken as well
        m_user.ExpectMessage("Il Caso Carico c'è già!");
        Rename("Neve", "SLU.1"); // neither free nor valid
        m_user.ExpectMessage("Il Caso Carico c'è già!");
        Rename("SLU.1", invalidName);
        m_user.ExpectMessage("Il nome non è valido!", IDOK, MB_OK);
        Rename(invalidName, "Città");
        list.Click(rinominaId);
        EXPECT_EQ(list.Rows(listId), (Lines{"1 : Permanenti", "2 : Città", "7 : Vento"}));
        EXPECT_EQ(Enabled(list), "0000");
    });
    EXPECT_EQ(m_host.Take(), Lines{"UpdateAllViews null 52 null"});
    EXPECT_EQ(m_host.doc.casi[1]->GetNome().ToUtf8(), "Città");
}

TEST_F(ListaCasiCarico, CancelledRenameChangesNothing) {
    Run([this](DialogDriver& driver) {
        driver.ClickRow(listId, 2);
        Rename("Inserisci un nuovo nome", invalidName);
        m_user.ExpectMessage("Il nome non è valido!");
        m_user.WhenDialogOpens([](DialogDriver& name) { name.Press(VK_ESCAPE); });
        driver.Click(rinominaId);
        EXPECT_EQ(driver.Rows(listId).back(), "7 : Vento");
        EXPECT_EQ(driver.SelectedRows(listId), std::vector<int>{2}) << "the list is not refilled";
    });
    EXPECT_EQ(m_host.Take(), Lines{});
}

TEST_F(ListaCasiCarico, RenamesTheCombinationWhereThereIsNoCase) {
    AddCombination(m_host.doc, 9, "SLE");
    Run([this](DialogDriver& driver) {
        driver.ClickRow(listId, 0);
        m_host.doc.casi.clear();
        m_user.WhenDialogOpens([](DialogDriver& name) {
            EXPECT_EQ(name.Text(CDialogCreaCasoCarico::IDC_NUMERO), "9");
            name.SetText(nomeId, "SLU");
            name.Click(IDOK);
        });
        driver.Click(rinominaId);
        EXPECT_TRUE(driver.Rows(listId).empty());
    });
    EXPECT_EQ(m_host.doc.combinazioni[0]->GetNome(), "SLU");
}

class Permuta : public ListaCasiCarico {
  protected:
    void SetUp() override {
        m_host.doc.casi[1]->SetTipo("Sismico dinamico");
        m_host.doc.NewNodo(0, 0, 0);
        m_host.doc.NewNodo(1, 0, 0);
        for (int i = 0; i < 3; ++i)
            m_host.doc.NewTrave(1, 2); // the third has no results
        m_host.doc.analisi.Store(2, 1, {10, -20});
        m_host.doc.analisi.Store(2, 2, {5, 7, 9});
    }
    // The command by its number on a row, and what the host received.
    Lines Swap(int row) {
        Run([this, row](DialogDriver& driver) {
            driver.ClickRow(listId, row);
            m_dialog.SendMessage(WM_COMMAND, MAKEWPARAM(CDialogListaCasiCarico::IDC_PERMUTA, BN_CLICKED), 0);
        });
        return m_host.Take();
    }
};

// Catches the sign of the wrong section, results of the elements' own that are overwritten, and a wait bar left behind.
TEST_F(Permuta, ChangesTheSignAtTheFarNode) {
    CElementoRisultati own;
    m_host.doc.travi[0]->SetRisultati(&own);
    const Lines calls = {"InizioAttesa \"\" 0", "LeggiRisultati 2 0", "AggiornaRiferimentiRisultati 2",
                         "CreaRisultati 2 2 0", "RipristinaRisultati"};
    Lines expected = calls;
    expected.push_back("FineAttesa");
    EXPECT_EQ(Swap(1), expected);
    EXPECT_EQ(m_host.doc.analisi.Stored(2, 1), (std::vector<double>{10, 20}));
    EXPECT_EQ(m_host.doc.analisi.Stored(2, 2), (std::vector<double>{5, -7, 9}));
    EXPECT_EQ(m_host.doc.travi[0]->GetRisultati(), &own);
    EXPECT_EQ(m_host.doc.travi[1]->GetRisultati(), nullptr);
    m_host.doc.currentCase = m_host.doc.casi[1].get(); // shown: read again
    expected = calls;
    expected.insert(expected.end(), {"SelectCasoCarico 2", "FineAttesa"});
    EXPECT_EQ(Swap(1), expected);
    EXPECT_EQ(m_host.doc.analisi.Stored(2, 1), (std::vector<double>{10, -20}));
    EXPECT_EQ(Swap(0), Lines{}) << "no dynamic seismic case";
}

TEST_F(Permuta, FailuresLeaveTheResults) {
    m_host.doc.currentCase = m_host.doc.casi[1].get();
    m_host.doc.analisi.linked = 0;
    EXPECT_EQ(Swap(1),
              (Lines{"InizioAttesa \"\" 0", "LeggiRisultati 2 0", "AggiornaRiferimentiRisultati 2", "FineAttesa"}));
    m_host.doc.analisi.result = 0;
    EXPECT_EQ(Swap(1), (Lines{"InizioAttesa \"\" 0", "LeggiRisultati 2 0", "FineAttesa"}));
    EXPECT_EQ(m_host.doc.analisi.Stored(2, 1), (std::vector<double>{10, -20}));
}

} // namespace
