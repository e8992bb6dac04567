#include "dialogs/selection/DialogRuota.h"
#include "tests/dialogs/ToolTest.h"

#include <cmath>

namespace {

using Dialog = CDialogRuota;
constexpr int angle = Dialog::IDC_ANGOLO;
constexpr int axes[] = {Dialog::IDC_RUOTA_X, Dialog::IDC_RUOTA_Y, Dialog::IDC_RUOTA_Z};
constexpr int general = Dialog::IDC_ASSE_GENERICO;

class Ruota : public ToolTest<CDialogRuota> {
  protected:
    Ruota() { m_host.View().endsDialogs = false; }

    bool AxisEnabled() const {
        return EnabledTogether({{Dialog::IDC_GROUP_ASSE, Dialog::IDC_LABEL_ASSE_LAST},
                                {Dialog::IDC_X1, Dialog::IDC_Z1},
                                {Dialog::IDC_X2, Dialog::IDC_Z2}});
    }
};

TEST_F(Ruota, GlobalAxes) {
    // The record holds radians from the short pi, and the sine and cosine are those of the very same angle.
    const double radians = 90 * 0.017453292522222223;
    EXPECT_NEAR(radians, 1.570796327, 1e-15);
    const std::string matrix = Journal::Text(std::sin(radians)) + " " + Journal::Text(std::cos(radians));
    m_driver.Type(angle, "90");
    EXPECT_TRUE(AxisEnabled());
    for (int axis = 0; axis < 3; ++axis) {
        m_driver.Click(axes[axis]);
        EXPECT_FALSE(AxisEnabled());
        m_driver.Press(VK_RETURN);
        const std::string number = std::to_string(axis);
        EXPECT_EQ(m_host.Take(),
                  (Lines{"BeginUndo 3 0 " + Journal::Text(radians) + " " + number + " 0 0 0 0 0 0 0",
                         "RuotaSelezione " + matrix + " " + number + " 0 0", "EndUndo 3", "WM_FINEDIALOGO 1"}));
    }
}

TEST_F(Ruota, PicksFillTheAxisWhateverIsChosen) {
    m_driver.Type(angle, "30");
    m_driver.Click(axes[1]);
    m_host.View().Pick(1, 2, 3);
    m_host.View().Pick(4, 5, 6);
    EXPECT_EQ(Texts({Dialog::IDC_X1 + 1, Dialog::IDC_Z2, angle}), "2 6 30");
    EXPECT_TRUE(m_driver.Checked(axes[1]));
    EXPECT_FALSE(AxisEnabled());
    m_driver.Click(general);
    EXPECT_TRUE(AxisEnabled());
}

} // namespace
