#include "dialogs/selection/DialogSpecchia.h"
#include "tests/dialogs/ToolTest.h"

namespace {

constexpr int planes[] = {1206, 1207, 1208, 1193};

class Specchia : public ToolTest<CDialogSpecchia> {
  protected:
    bool PointEnabled() const { return EnabledTogether({{1127, 1130}, {1204, 1205}, {1209, 1209}}); }
};

// Catches a point that can be typed where it has no meaning, and one that stays disabled afterwards.
TEST_F(Specchia, TheOriginDisablesThePoint) {
    EXPECT_TRUE(PointEnabled());
    for (const int plane : {0, 1, 2, 3, 2}) {
        m_driver.Click(planes[plane]);
        EXPECT_EQ(PointEnabled(), plane != 3);
    }
}

} // namespace
