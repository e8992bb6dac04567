#include "dialogs/frame/host/QuovarGlobal.h"
#include "dialogs/loads/DialogListaGruppi.h"
#include "tests/dialogs/LoadModel.h"
#include "tests/dialogs/ToolTest.h"

namespace {

constexpr int listId = CDialogListaGruppi::IDC_LIST;
constexpr int eliminaId = CDialogListaGruppi::IDC_ELIMINA;

class ListaGruppi : public ToolTest<CDialogListaGruppi> {
  protected:
    // Groups numbered from 11 on.
    void Open(const std::vector<std::string>& names) {
        int id = 11;
        for (const std::string& name : names)
            AddNamed(m_host.doc.gruppi, id++, name);
        m_driver = Reopen();
        EXPECT_EQ(m_driver.Rows(listId), names) << "document order: sorting would break the indexes";
        EXPECT_FALSE(m_driver.Enabled(eliminaId));
    }
};

// Catches a selection that adds to what was selected before, and numbers mistaken for positions.
TEST_F(ListaGruppi, SelectsTheElementsOfTheSelectedGroups) {
    Open({"C", "A", "B"});
    m_driver.ClickRow(listId, 2);
    EXPECT_EQ(m_host.Take(), (Lines{"Deseleziona null", "SelezionaGruppo 13"}));
    EXPECT_TRUE(m_driver.Enabled(eliminaId));
    m_driver.ClickRow(listId, 0, CtrlKey);
    EXPECT_EQ(m_host.Take(), (Lines{"Deseleziona null", "SelezionaGruppo 11", "SelezionaGruppo 13"}));
    m_driver.ClickRow(listId, 0, CtrlKey);
    m_host.Take();
    m_driver.ClickRow(listId, 2, CtrlKey);
    EXPECT_EQ(m_host.Take(), Lines{"Deseleziona null"}) << "nothing is left selected";
    EXPECT_FALSE(m_driver.Enabled(eliminaId));
    m_host.doc.gruppi[1]->SetID(0);
    m_driver.ClickRow(listId, 1);
    EXPECT_EQ(m_host.Take(), Lines{"Deseleziona null"}) << "a group without a number selects nothing";
}

// Catches positions that slip when the rows before them go.
TEST_F(ListaGruppi, DeletesFromTheMiddle) {
    Open({"A", "B", "C", "D", "E"});
    m_driver.ClickRow(listId, 0);
    m_driver.ClickRow(listId, 2, CtrlKey);
    m_host.Take();
    m_driver.Click(eliminaId);
    EXPECT_EQ(m_host.Take(), (Lines{"EliminaGruppo 0", "EliminaGruppo 1", "Deseleziona null"}));
    EXPECT_EQ(m_driver.Rows(listId), (Lines{"B", "D", "E"}));
    EXPECT_EQ(m_host.doc.gruppi[1]->GetNome(), "D");
    EXPECT_FALSE(m_driver.Enabled(eliminaId));
    m_driver.ClickRow(listId, 1);
    m_driver.ClickRow(listId, 2, ShiftKey);
    m_host.Take();
    m_driver.Click(eliminaId);
    EXPECT_EQ(m_host.Take(), (Lines{"EliminaGruppo 1", "EliminaGruppo 1", "Deseleziona null"}));
    EXPECT_EQ(m_driver.Rows(listId), Lines{"B"});
}

// A host may tell of each group at once: the list is then refilled, without selection, in the middle of the deletion.
TEST_F(ListaGruppi, DeletesAllThatWereSelectedThoughTheListIsRefilled) {
    Open({"A", "B", "C", "D"});
    m_host.doc.onGroupGone = [this] { m_host.doc.UpdateAllViews(nullptr, MODIFICA_GRUPPI, nullptr); };
    m_driver.ClickRow(listId, 1);
    m_driver.ClickRow(listId, 3, CtrlKey);
    m_driver.Click(eliminaId);
    EXPECT_EQ(m_driver.Rows(listId), (Lines{"A", "C"}));
    EXPECT_EQ(m_host.doc.gruppi.size(), 2u);
}

TEST_F(ListaGruppi, FollowsTheChangesOfGroupsOnly) {
    Open({"A", "B"});
    m_driver.ClickRow(listId, 0);
    m_host.Take();
    AddNamed(m_host.doc.gruppi, 20, "C");
    m_host.doc.UpdateAllViews(nullptr, MODIFICA_CASI_CARICO, nullptr);
    m_host.doc.UpdateAllViews(nullptr, MODIFICA_STRUTTURA, nullptr);
    EXPECT_EQ(m_driver.Rows(listId).size(), 2u);
    EXPECT_EQ(m_driver.SelectedRows(listId), std::vector<int>{0});
    m_host.Take();
    m_host.doc.UpdateAllViews(nullptr, MODIFICA_GRUPPI, nullptr);
    EXPECT_EQ(m_driver.Rows(listId), (Lines{"A", "B", "C"}));
    EXPECT_TRUE(m_driver.SelectedRows(listId).empty());
    EXPECT_FALSE(m_driver.Enabled(eliminaId));
    EXPECT_EQ(m_host.Take(), Lines{"UpdateAllViews null 53 null"}) << "the model's selection stays";
    unsigned long packed = MODIFICA_GRUPPI;
    CQuovarGlobal::_SetInformazioniAggiuntive(packed, 7);
    AddNamed(m_host.doc.gruppi, 21, "D");
    m_host.doc.UpdateAllViews(nullptr, static_cast<long>(packed), nullptr);
    EXPECT_EQ(m_driver.Rows(listId).size(), 4u) << "the code is taken out of the hint";
}

TEST_F(ListaGruppi, WithoutItsViewItDoesNothing) {
    Open({"A", "B"});
    m_driver.ClickRow(listId, 0);
    m_host.CloseView(m_host.View());
    m_host.Take();
    m_driver.ClickRow(listId, 1);
    m_driver.Click(eliminaId);
    m_dialog.Update(nullptr, MODIFICA_GRUPPI, nullptr);
    EXPECT_EQ(m_host.Take(), Lines{});
    EXPECT_EQ(m_host.doc.gruppi.size(), 2u);
    EXPECT_EQ(m_driver.Rows(listId).size(), 2u);
}

} // namespace
