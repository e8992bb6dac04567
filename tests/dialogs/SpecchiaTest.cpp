#include "dialogs/selection/DialogSpecchia.h"
#include "tests/dialogs/ToolTest.h"

namespace {

using Dialog = CDialogSpecchia;
constexpr int planes[] = {Dialog::IDC_PIANO_XY, Dialog::IDC_PIANO_YZ, Dialog::IDC_PIANO_XZ, Dialog::IDC_ORIGINE};

class Specchia : public ToolTest<CDialogSpecchia> {
  protected:
    bool PointEnabled() const {
        return EnabledTogether({{Dialog::IDC_LABEL_X, Dialog::IDC_GROUP_PUNTO},
                                {Dialog::IDC_X, Dialog::IDC_Y},
                                {Dialog::IDC_Z, Dialog::IDC_Z}});
    }
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
