#include "dialogs/generation/DialogGenNodi2P.h"
#include "tests/dialogs/ToolTest.h"

namespace {

using Dialog = CDialogGenNodi2P;
constexpr int nodes = Dialog::IDC_NODI, spin = Dialog::IDC_SPIN_NODI;

using GenNodi2P = ToolTest<Dialog>;

TEST_F(GenNodi2P, SpinRestoresStoredCoordinates) {
    // The fields are written without being read: what was typed since the last pick is not kept.
    m_host.View().Pick(1, 2, 3);
    m_driver.Type(Dialog::IDC_X1, "50");
    m_driver.ClickSpinUp(spin);
    EXPECT_EQ(Texts({Dialog::IDC_X1, Dialog::IDC_X1 + 1, Dialog::IDC_X1 + 2, Dialog::IDC_X2, nodes}), "1 2 3 0 2");
    // The count itself is read from the edit before it steps.
    m_driver.Type(nodes, "41");
    m_driver.ClickSpinDown(spin);
    EXPECT_EQ(m_driver.Text(nodes), "40");
    EXPECT_EQ(m_dialog.m_nNodi, 40);
}

} // namespace
