#include "dialogs/generation/DialogGenNodi2P.h"
#include "tests/dialogs/ToolTest.h"

namespace {

using GenNodi2P = ToolTest<CDialogGenNodi2P>;

TEST_F(GenNodi2P, SpinRestoresStoredCoordinates) {
    // The fields are written without being read: what was typed since the last pick is not kept.
    m_host.View().Pick(1, 2, 3);
    m_driver.Type(1119, "50");
    m_driver.ClickSpinUp(1224);
    EXPECT_EQ(Texts({1119, 1120, 1121, 1122, 1221}), "1 2 3 0 2");
    // The count itself is read from the edit before it steps.
    m_driver.Type(1221, "41");
    m_driver.ClickSpinDown(1224);
    EXPECT_EQ(m_driver.Text(1221), "40");
    EXPECT_EQ(m_dialog.m_nNodi, 40);
}

TEST_F(GenNodi2P, SpinStopsAtItsEnds) {
    m_driver.ClickSpinDown(1224);
    EXPECT_EQ(m_driver.Text(1221), "1");
    m_driver.Type(1221, "100");
    m_driver.ClickSpinUp(1224);
    EXPECT_EQ(m_driver.Text(1221), "100");
}

} // namespace
