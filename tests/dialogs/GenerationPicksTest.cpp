// What picks do in the generation dialogs beyond filling fields: prompts, chains of nodes, corrections.
#include "dialogs/generation/DialogDistanza.h"
#include "dialogs/generation/DialogGenNodiArco3Punti.h"
#include "dialogs/generation/DialogGenNodiCerchio.h"
#include "dialogs/generation/DialogNodoRelativo.h"
#include "model/values/Units.h"
#include "tests/dialogs/ToolTest.h"

namespace {

using GenNodiArco3Punti = ToolTest<CDialogGenNodiArco3Punti>;
using GenNodiCerchio = ToolTest<CDialogGenNodiCerchio>;
using NodoRelativo = ToolTest<CDialogNodoRelativo>;
using Distanza = ToolTest<CDialogDistanza>;

Lines Asked(const std::string& prompt) {
    return {"StopDefinisciVettore", "StartDefinisciVettore \"" + prompt + "\" \"\""};
}

TEST_F(GenNodiArco3Punti, AsksForThePointsInTurn) {
    for (const char* next : {"secondo", "terzo", "primo", "secondo"}) {
        m_host.View().Pick(1, 2, 3);
        EXPECT_EQ(m_host.Take(), Asked(std::string("Definisci il ") + next + " nodo dell'arco."));
    }
    m_dialog.GetTool() = 3;
    m_host.View().Pick(4, 5, 6);
    EXPECT_EQ(m_dialog.GetTool(), 0);
    EXPECT_EQ(m_host.Take(), Lines{});
}

// Catches a radius of the former pair in place of the typed one, and a counter that the opening resets.
TEST_F(GenNodiCerchio, TheTypedRadiusIsSent) {
    m_host.View().Pick(0, 0, 0);
    EXPECT_EQ(m_host.Take(), Asked("Definisci il raggio."));
    m_host.View().Pick(3, 4, 0);
    EXPECT_EQ(m_host.Take(), Asked("Definisci il centro del cerchio."));
    m_driver.Type(CDialogGenNodiCerchio::IDC_RAGGIO, "6");
    m_dialog.GetTool() = 7;
    m_host.View().Pick(9, 9, 9);
    EXPECT_EQ(m_dialog.GetTool(), 7) << "nothing happens";
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Ended({"GenNodiCerchio 1 0 1 (0,0,0) 6"}));
    m_dialog.GetTool() = 1;
    Reopen();
    EXPECT_EQ(m_dialog.GetTool(), 1);
}

// Catches a chain that does not move on or moves although it should not, and a pick that does not restart.
TEST_F(NodoRelativo, LaysAChainOfNodes) {
    using D = CDialogNodoRelativo;
    m_driver.Type(D::IDC_DX + 2, "3");
    m_driver.Press(VK_TAB); // as the click in the view does, the focus leaves the edit
    m_host.View().Pick(1, 2, 0);
    EXPECT_EQ(m_host.Take(), Asked(""));
    for (const char* node : {"AddNodo (1,2,3) null 1", "AddNodo (1,2,6) null 1", "AddNodo (1,2,9) null 1"}) {
        m_driver.Click(D::IDC_APPLICA);
        EXPECT_EQ(m_host.Take(), Lines{node});
    }
    m_driver.Click(D::IDC_AGGIORNAMENTO_SI + 1);
    for (int times = 0; times < 2; ++times) {
        m_driver.Click(D::IDC_APPLICA);
        EXPECT_EQ(m_host.Take(), Lines{"AddNodo (1,2,12) null 1"});
    }
    m_driver.Click(D::IDC_AGGIORNAMENTO_SI);
    m_host.doc.generated = 0;
    m_driver.Click(D::IDC_APPLICA);
    m_host.Take();
    EXPECT_EQ(m_driver.Text(D::IDC_X_RIFERIMENTO + 2), "9") << "no node was made";
    m_driver.Click(IDOK);
    EXPECT_EQ(m_host.Take(), (Lines{"StopDefinisciVettore", "AddNodo (1,2,12) null 1", "WM_FINEDIALOGO 1"}));
}

// Catches a message more while the window goes, and one that holds Escape up.
TEST_F(NodoRelativo, TellsOnceOfATextThatIsNoNumber) {
    m_driver.Type(CDialogNodoRelativo::IDC_DX, "x");
    m_user.ExpectMessage("Immettere un numero.");
    m_driver.Press(VK_TAB); // leaving reads
    EXPECT_EQ(m_driver.Focus(), CDialogNodoRelativo::IDC_DX);
    m_driver.Press(VK_ESCAPE);
    EXPECT_FALSE(m_driver.IsOpen());
    DialogDriver again = Reopen();
    again.SetText(CDialogNodoRelativo::IDC_DX, "x");
    m_user.ExpectMessage("Immettere un numero.");
    again.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), (Lines{"StopDefinisciVettore", "WM_FINEDIALOGO 1"}));
}

TEST_F(Distanza, MeasuresInTheUnitOfTheDocument) {
    EXPECT_EQ(m_driver.Text(CDialogDistanza::IDC_UNITA), "mm");
    m_host.doc.length = Lunghezza::Inches;
    m_host.View().Pick(1, 2, 3);
    EXPECT_EQ(m_driver.Text(CDialogDistanza::IDC_UNITA), "in") << "changed while the dialog stood open";
}

} // namespace
