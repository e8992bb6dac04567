#include "dialogs/selection/DialogSpecchia.h"
#include "tests/dialogs/ToolTest.h"

namespace {

constexpr int planes[] = {1206, 1207, 1208, 1193};

class Specchia : public ToolTest<CDialogSpecchia> {
  protected:
    Specchia() { m_host.View().endsDialogs = false; }

    static Lines Command(const std::string& arguments) {
        return {"BeginUndo 4 0 0 0 0 0 0 0 0 0 0", "SpecchiaSelezione " + arguments, "EndUndo 4", "WM_FINEDIALOGO 1"};
    }
    bool PointEnabled() const { return EnabledTogether({{1127, 1130}, {1204, 1205}, {1209, 1209}}); }
};

TEST_F(Specchia, EachPlaneAndTheOrigin) {
    // The numbers of the three edits are not in a row: each must reach its own coordinate.
    EXPECT_TRUE(PointEnabled());
    TypeFrom(1204, {"1", "2"});
    m_driver.Type(1209, "3");
    for (int plane = 0; plane < 4; ++plane) {
        m_driver.Click(planes[plane]);
        EXPECT_EQ(PointEnabled(), plane != 3);
        m_driver.Press(VK_RETURN);
        EXPECT_EQ(m_host.Take(), Command("1 2 3 " + std::to_string(plane))) << "the origin passes the point as well";
    }
    m_driver.Click(planes[2]);
    EXPECT_TRUE(PointEnabled());
}

TEST_F(Specchia, BothPicksAreThePoint) {
    m_driver.Click(planes[1]);
    m_host.View().Pick(1, 2, 3);
    EXPECT_EQ(Texts({1204, 1205, 1209}), "1 2 3");
    m_host.View().Pick(7, 8, 9);
    EXPECT_EQ(m_host.Take(), Lines{}) << "a pick applies nothing";
    m_driver.Click(IDOK);
    EXPECT_EQ(m_host.Take(), Command("7 8 9 1"));
}

} // namespace
