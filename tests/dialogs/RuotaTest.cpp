#include "dialogs/selection/DialogRuota.h"
#include "platform/Application.h"
#include "tests/support/DialogTest.h"

#include <cmath>

namespace {

constexpr int angle = 1218;
constexpr int axes[] = {1213, 1214, 1170};
constexpr int general = 1239;

class Ruota : public DialogTest {
  protected:
    Ruota() {
        host.Open(dialog);
        host.Take();
        host.View().endsDialogs = false;
    }
    ~Ruota() override { dialog.DestroyWindow(); }

    bool AxisEnabled(const DialogDriver& driver) {
        int enabled = 0;
        for (int id = 1112; id <= 1118; ++id)
            enabled += driver.Enabled(id);
        for (const int id : {1143, 1144, 1145, 1215, 1216, 1217})
            enabled += driver.Enabled(id);
        EXPECT_TRUE(enabled == 0 || enabled == 13) << "box, labels and edits go together: " << enabled << " of 13";
        return enabled == 13;
    }

    CDialogRuota dialog;
};

TEST_F(Ruota, OpensWithItsDefaultsEachTime) {
    dialog.DestroyWindow();
    dialog.m_nAsse = 0;
    dialog.m_dAngolo = dialog.m_dX1 = 3;
    host.Take();
    host.Open(dialog);
    const DialogDriver driver(dialog);
    EXPECT_EQ(driver.Caption(), "Ponte : Ruota");
    EXPECT_EQ(host.Take(), Lines{"StartDefinisciVettore \"\" \"\""});
    EXPECT_TRUE(driver.Checked(general));
    EXPECT_TRUE(AxisEnabled(driver));
    EXPECT_EQ(driver.Text(angle) + driver.Text(1215), "00");
}

TEST_F(Ruota, GlobalAxes) {
    // The record holds radians from the short pi, and the sine and cosine are those of the very same angle.
    const double radians = 90 * 0.017453292522222223;
    EXPECT_NEAR(radians, 1.570796327, 1e-15);
    const std::string matrix = Journal::Text(std::sin(radians)) + " " + Journal::Text(std::cos(radians));
    DialogDriver driver(dialog);
    driver.Type(angle, "90");
    for (int axis = 0; axis < 3; ++axis) {
        driver.Click(axes[axis]);
        EXPECT_FALSE(AxisEnabled(driver));
        driver.Press(VK_RETURN);
        const std::string number = std::to_string(axis);
        EXPECT_EQ(host.Take(),
                  (Lines{"BeginUndo 3 0 " + Journal::Text(radians) + " " + number + " 0 0 0 0 0 0 0",
                         "RuotaSelezione " + matrix + " " + number + " 0 0", "EndUndo 3", "WM_FINEDIALOGO 1"}));
    }
}

TEST_F(Ruota, GeneralAxisKeepsDegrees) {
    DialogDriver driver(dialog);
    for (int i = 0; i < 3; ++i) {
        driver.Type(1215 + i, std::to_string(i + 1));
        driver.Type(1143 + i, std::to_string(i + 4));
    }
    driver.Type(angle, "90");
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), (Lines{"BeginUndo 3 1 1 2 3 4 5 6 90 0 0", "RuotaSelezione 1 2 3 4 5 6 90 0 0", "EndUndo 3",
                                  "WM_FINEDIALOGO 1"}));
}

TEST_F(Ruota, PicksFillTheAxisWhateverIsChosen) {
    DialogDriver driver(dialog);
    driver.Type(angle, "30");
    driver.Click(axes[1]);
    host.View().Pick(1, 2, 3);
    host.View().Pick(4, 5, 6);
    EXPECT_EQ(driver.Text(1216) + driver.Text(1145) + driver.Text(angle), "2630");
    EXPECT_TRUE(driver.Checked(axes[1]));
    EXPECT_FALSE(AxisEnabled(driver));
    driver.Click(general);
    EXPECT_TRUE(AxisEnabled(driver));
}

TEST_F(Ruota, TextStopsOk) {
    DialogDriver driver(dialog);
    driver.Type(angle, "novanta");
    user.ExpectMessage("Immettere un numero.");
    driver.Press(VK_RETURN);
    EXPECT_EQ(driver.Focus(), angle);
    EXPECT_EQ(host.Take(), Lines{});
}

} // namespace
