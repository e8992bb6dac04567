// The division of a line: the points, the two edits that follow each other, and what the host is told.
#include "dialogs/generation/DialogDividiLinea.h"
#include "model/load/Carico.h"
#include "tests/dialogs/ModalTest.h"

namespace {

using D = CDialogDividiLinea;

class DividiLinea : public ModalTest {
  protected:
    DividiLinea() {
        m_host.doc.NewNodo(1, 2, 3);
        m_host.doc.NewNodo(1, 2, 9);
        m_host.doc.length = Lunghezza::Metres;
        Use(m_host.doc.NewTrave(1, 2));
    }
    void Use(CLinea* line) {
        m_dialog.SetDoc(&m_host.doc);
        m_dialog.SetLinea(line);
    }
    static std::string Rows(const DialogDriver& driver) {
        std::string all;
        for (const std::string& row : driver.Rows(D::IDC_LIST_NODI))
            all += row + " ";
        return all;
    }
    static void Insert(DialogDriver& driver, const std::string& count) {
        driver.Type(D::IDC_N_NODI, count);
        driver.Click(D::IDC_INSERISCI_NODI);
    }

    D m_dialog;
};

// Catches points out of order, doubled or outside, a deletion of others than the selected ones, and buttons that offer
// what cannot be done.
TEST_F(DividiLinea, PointsAreKeptInOrder) {
    const std::vector<int> buttons = {D::IDC_ELIMINA, D::IDC_INSERISCI_NODI, D::IDC_INSERISCI_NODO};
    Run(m_dialog, [&](DialogDriver& driver) {
        EXPECT_EQ(driver.Text(D::IDC_LUNGHEZZA), "Lunghezza : 6.000 m");
        EXPECT_EQ(EnabledLine(driver, buttons), "000");
        Insert(driver, "2");
        driver.Click(D::IDC_MEZZO);
        driver.Type(D::IDC_DISTANZA, "3.000001");
        EXPECT_EQ(EnabledLine(driver, buttons), "011");
        driver.Click(D::IDC_INSERISCI_NODO); // there is a point already
        driver.Type(D::IDC_DISTANZA, "0.5");
        driver.Click(D::IDC_INSERISCI_NODO);
        EXPECT_EQ(Rows(driver), "0.500 2.000 3.000 4.000 ");
        for (const char* wrong : {"6", "7", "0", "-1", "1,5", "nan", ""}) {
            driver.Type(D::IDC_DISTANZA, wrong);
            EXPECT_EQ(EnabledLine(driver, buttons), "010") << wrong;
        }
        driver.ClickRow(D::IDC_LIST_NODI, 0);
        driver.ClickRow(D::IDC_LIST_NODI, 2);
        EXPECT_TRUE(driver.Enabled(D::IDC_ELIMINA));
        driver.Click(D::IDC_ELIMINA);
        EXPECT_EQ(Rows(driver), "2.000 4.000 ");
        Insert(driver, "1"); // where one was deleted
        EXPECT_EQ(Rows(driver), "2.000 3.000 4.000 ");
        driver.DoubleClickRow(D::IDC_LIST_NODI, 1);
        EXPECT_EQ(Rows(driver), "2.000 4.000 ");
        m_user.ExpectMessage("Il numero dei nodi è troppo grande.");
        Insert(driver, "2000000000");
        EXPECT_EQ(driver.Text(D::IDC_N_NODI), "2000000000");
    });
    EXPECT_EQ(m_host.Take(), Lines{});
}

// Catches an edit that rewrites the one in which the user types.
TEST_F(DividiLinea, DistanceAndProportionFollowEachOther) {
    Run(m_dialog, [&](DialogDriver& driver) {
        driver.Type(D::IDC_PROPORZIONE, "0.25");
        EXPECT_EQ(driver.Text(D::IDC_DISTANZA), "1.500000");
        EXPECT_EQ(driver.Text(D::IDC_PROPORZIONE), "0.25");
        EXPECT_TRUE(driver.Enabled(D::IDC_INSERISCI_NODO));
        driver.Type(D::IDC_DISTANZA, "2");
        EXPECT_EQ(driver.Text(D::IDC_PROPORZIONE), "0.333333");
        driver.Type(D::IDC_DISTANZA, "");
        EXPECT_EQ(driver.Text(D::IDC_PROPORZIONE), "0.000000");
    });
}

// Catches a part between wrong nodes, one that lacks a load, and an undo step that does not hold all of it.
TEST_F(DividiLinea, TellsTheHostPartByPart) {
    CCasoCarico loadCase;
    auto* load = new CCaricoUniforme(CFPoint(0, 0, -1), CCarico::Global);
    loadCase.AddCarico(load);
    CLinea* lines[] = {m_dialog.GetLinea(), m_host.doc.NewAsta(1, 2)};
    const std::string made[] = {"AddTrave", "AddAsta"};
    for (int kind = 0; kind < 2; ++kind) {
        Use(lines[kind]);
        lines[kind]->AddCarico(load, 1);
        const std::string from = std::to_string(m_host.doc.GetSizeNodi() + 1);
        const std::string to = std::to_string(m_host.doc.GetSizeNodi() + 2);
        Run(m_dialog, [&](DialogDriver& driver) {
            if (kind == 0)
                Insert(driver, "2");
            driver.Click(IDOK);
        });
        EXPECT_EQ(m_host.Take(),
                  (Lines{"BeginUndo 5 0 0 0 0 0 0 0 0 0 0", "UpdateAllViews null 17 null", "AddNodo (1,2,5) null 1",
                         "AddNodo (1,2,7) null 1", made[kind] + " " + from + " " + to + " null",
                         made[kind] + " " + to + " 2 null", "UpdateAllViews null 7340050 null",
                         "UpdateAllViews null 42 null", "UpdateAllViews null 42 null", "EndUndo 5"}));
        EXPECT_EQ(lines[kind]->GetLunghezzaLinea(), 2);
    }
    ASSERT_EQ(m_host.doc.GetSizeAste(), 3);
    EXPECT_EQ(m_host.doc.GetIndexAsta(2)->GetIndexCarico(0), load);
    // What the host does not make: without the first node there is nothing to go on from.
    m_host.doc.generated = 0;
    Use(m_host.doc.NewTrave(1, 2));
    Run(m_dialog, [](DialogDriver& driver) { driver.Click(IDOK); });
    EXPECT_EQ(m_host.Take()[2], "AddNodo (1,2,5) null 1");
    EXPECT_EQ(m_dialog.GetLinea()->GetLunghezzaLinea(), 6);
}

} // namespace
