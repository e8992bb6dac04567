// What the mesh dialogs do in a round of picks.
#include "dialogs/generation/DialogMesh2PuntiDir.h"
#include "dialogs/generation/DialogMesh3Punti.h"
#include "tests/dialogs/ToolTest.h"

namespace {

template <class T>
class MeshTest : public ToolTest<T> {
  protected:
    Lines Picked(double x, double y, double z) {
        this->m_host.Take();
        this->m_host.View().Pick(x, y, z);
        return this->m_host.Take();
    }
    static Lines Asked(const std::string& prompt, Lines meshed = {}) {
        meshed.insert(meshed.begin(), {"StopDefinisciVettore", "StartDefinisciVettore \"" + prompt + "\" \"\""});
        return meshed;
    }
    static Lines Meshed(const std::string& mesh) {
        return {"BeginUndo 4 0 0 0 0 0 0 0 0 0 0", "Mesh4Punti " + mesh, "EndUndo 4"};
    }
};

using Mesh2PuntiDir = MeshTest<CDialogMesh2PuntiDir>;
using Mesh3Punti = MeshTest<CDialogMesh3Punti>;

// Catches a mesh before the round is complete or twice after it, a prompt of another dialog, and a count that the
// automatic command does not read.
TEST_F(Mesh2PuntiDir, ARoundOfPicksIsOneMesh) {
    for (const char* parts : {"1", "4"}) {
        m_driver.Type(MeshDialog::IDC_SUDDIVISIONI2, parts);
        EXPECT_EQ(Picked(0, 0, 0), Asked("Definisci il secondo nodo."));
        EXPECT_EQ(Picked(5, 0, 0), Asked("Definisci il primo nodo del Vettore."));
        EXPECT_EQ(Picked(1, 1, 0), Asked("Definisci il secondo nodo del Vettore."));
        EXPECT_EQ(Picked(1, 1, 3),
                  Asked("Definisci il primo nodo.", Meshed(std::string("(0,0,0) (5,0,0) (5,0,3) (0,0,3) 1 ") + parts)));
    }
    m_driver.Type(MeshDialog::IDC_X2, "6");
    m_driver.Click(MeshDialog::IDC_APPLICA);
    EXPECT_EQ(m_host.Take(), Meshed("(0,0,0) (6,0,0) (6,0,3) (0,0,3) 1 4")) << "a typed correction";
    EXPECT_TRUE(m_driver.IsOpen());
}

TEST_F(Mesh3Punti, ThreePicksAreATriangle) {
    m_driver.Type(MeshDialog::IDC_SUDDIVISIONI1, "2");
    EXPECT_EQ(Picked(0, 0, 0), Asked("Definisci il secondo nodo."));
    EXPECT_EQ(Picked(4, 0, 0), Asked("Definisci il terzo nodo."));
    EXPECT_EQ(Picked(4, 3, 0), Asked("Definisci il primo nodo.", Meshed("(0,0,0) (4,0,0) (4,3,0) (0,0,0) 2 1")));
}

// Catches a round that goes on where it was left, and one that only a click begins anew.
TEST_F(Mesh3Punti, ComingBackBeginsTheRoundAnew) {
    m_driver.Activate();
    Picked(0, 0, 0);
    m_host.frame.SetActiveWindow();
    Picked(4, 0, 0);
    m_driver.Activate();
    EXPECT_EQ(m_host.Take(), Lines{"StartDefinisciVettore \"Definisci il primo nodo.\" \"\""});
    EXPECT_EQ(Picked(7, 8, 9), Asked("Definisci il secondo nodo."));
    EXPECT_EQ(m_driver.Text(MeshDialog::IDC_X1), "7");
}

// Catches a refused text that stops the button, and one that takes what follows it along.
TEST_F(Mesh3Punti, TheButtonGoesOnWithWhatWasAccepted) {
    m_driver.Type(MeshDialog::IDC_X2, "4");
    m_driver.Click(MeshDialog::IDC_APPLICA);
    m_host.Take();
    m_driver.Type(MeshDialog::IDC_X1, "1");
    m_driver.Type(MeshDialog::IDC_X2, "x");
    m_driver.Type(MeshDialog::IDC_X3, "9");
    m_user.ExpectMessage("Immettere un numero.");
    m_driver.Click(MeshDialog::IDC_APPLICA);
    Lines lines = m_host.Take();
    std::erase_if(lines, [](const std::string& line) { return line.starts_with("StartDefinisciVettore"); });
    EXPECT_EQ(lines, Meshed("(1,0,0) (4,0,0) (0,0,0) (1,0,0) 1 1"));
    EXPECT_EQ(m_driver.Text(MeshDialog::IDC_X2), "x");
}

} // namespace
