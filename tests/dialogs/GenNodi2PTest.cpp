#include "dialogs/generation/DialogGenNodi2P.h"
#include "tests/dialogs/ToolTest.h"

namespace {

class GenNodi2P : public ToolTest<CDialogGenNodi2P> {
  protected:
    std::string All() const { return Texts({1119, 1120, 1121, 1122, 1123, 1124, 1221}); }
};

TEST_F(GenNodi2P, TypedSegment) {
    TypeFrom(1119, {"1", "2.5", "-3", "4", "5", "6e2"});
    m_driver.Type(1221, "7");
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Ended({"GenNodi2Punti (1,2.5,-3) (4,5,600) 7"}));
}

TEST_F(GenNodi2P, PickedPairsOverwriteEachOther) {
    m_driver.Type(1221, "3");
    m_host.View().Pick(1, 2, 3);
    m_host.View().Pick(4, 5, 6);
    EXPECT_EQ(All(), "1 2 3 4 5 6 3");
    m_host.View().Pick(9, 8, 7);
    EXPECT_EQ(All(), "9 8 7 4 5 6 3");
    EXPECT_EQ(m_dialog.GetVettoreFrom().x, 9);
    EXPECT_EQ(m_dialog.GetVettoreTo().z, 6);
    m_driver.Click(IDOK);
    EXPECT_EQ(m_host.Take(), Ended({"GenNodi2Punti (9,8,7) (4,5,6) 3"}));
}

TEST_F(GenNodi2P, SpinRestoresStoredCoordinates) {
    // The fields are written without being read: what was typed since the last pick is not kept.
    m_host.View().Pick(1, 2, 3);
    m_driver.Type(1119, "50");
    m_driver.ClickSpinUp(1224);
    EXPECT_EQ(All(), "1 2 3 0 0 0 2");
    // The count itself is read from the edit before it steps.
    m_driver.Type(1221, "41");
    m_driver.ClickSpinDown(1224);
    EXPECT_EQ(m_driver.Text(1221), "40");
    EXPECT_EQ(m_dialog.m_nNodi, 40);
}

TEST_F(GenNodi2P, SpinEndsAndTypedCounts) {
    m_driver.ClickSpinDown(1224);
    EXPECT_EQ(m_driver.Text(1221), "1");
    m_driver.Type(1221, "100");
    m_driver.ClickSpinUp(1224);
    EXPECT_EQ(m_driver.Text(1221), "100");
    m_driver.Type(1221, "-4"); // the host judges
    m_host.doc.generated = 0;
    m_user.ExpectMessage("Parametri Errati!", IDOK, MB_OK);
    m_driver.Click(IDOK);
    EXPECT_EQ(m_host.Take(), Ended({"GenNodi2Punti (0,0,0) (0,0,0) -4"})) << "rejected, the dialog still closes";
}

} // namespace
