#include "dialogs/selection/DialogSpecchia.h"
#include "platform/Application.h"
#include "tests/support/DialogTest.h"

namespace {

constexpr int planes[] = {1206, 1207, 1208, 1193};

class Specchia : public DialogTest {
  protected:
    Specchia() {
        host.Open(dialog);
        host.Take();
        host.View().endsDialogs = false;
    }
    ~Specchia() override { dialog.DestroyWindow(); }

    static Lines Command(const std::string& arguments) {
        return {"BeginUndo 4 0 0 0 0 0 0 0 0 0 0", "SpecchiaSelezione " + arguments, "EndUndo 4", "WM_FINEDIALOGO 1"};
    }
    int EnabledPointControls(const DialogDriver& driver) {
        int enabled = 0;
        for (const int id : {1127, 1128, 1129, 1130, 1204, 1205, 1209})
            enabled += driver.Enabled(id);
        return enabled;
    }

    CDialogSpecchia dialog;
};

TEST_F(Specchia, OpensWithItsDefaultsEachTime) {
    dialog.DestroyWindow();
    dialog.m_nPiano = 3;
    dialog.m_dX = dialog.m_dZ = 2;
    host.Take();
    host.Open(dialog);
    const DialogDriver driver(dialog);
    EXPECT_EQ(driver.Caption(), "Ponte : Specchia");
    EXPECT_EQ(host.Take(), Lines{"StartDefinisciVettore \"Definisci il punto del piano.\" \"\""});
    EXPECT_TRUE(driver.Checked(1206));
    EXPECT_EQ(EnabledPointControls(driver), 7);
    EXPECT_EQ(driver.Text(1204) + driver.Text(1205) + driver.Text(1209), "000");
}

TEST_F(Specchia, EachPlaneAndTheOrigin) {
    // The numbers of the three edits are not in a row: each must reach its own coordinate.
    DialogDriver driver(dialog);
    driver.Type(1204, "1");
    driver.Type(1205, "2");
    driver.Type(1209, "3");
    for (int plane = 0; plane < 4; ++plane) {
        driver.Click(planes[plane]);
        EXPECT_EQ(EnabledPointControls(driver), plane == 3 ? 0 : 7);
        driver.Press(VK_RETURN);
        EXPECT_EQ(host.Take(), Command("1 2 3 " + std::to_string(plane))) << "the origin passes the point as well";
    }
    driver.Click(planes[2]);
    EXPECT_EQ(EnabledPointControls(driver), 7);
}

TEST_F(Specchia, BothPicksAreThePoint) {
    DialogDriver driver(dialog);
    driver.Click(planes[1]);
    host.View().Pick(1, 2, 3);
    EXPECT_EQ(driver.Text(1204) + driver.Text(1205) + driver.Text(1209), "123");
    host.View().Pick(7, 8, 9);
    EXPECT_EQ(host.Take(), Lines{}) << "a pick applies nothing";
    driver.Click(IDOK);
    EXPECT_EQ(host.Take(), Command("7 8 9 1"));
    driver.Type(1209, "");
    user.ExpectMessage("Immettere un numero.");
    driver.Click(IDOK);
    EXPECT_EQ(host.Take(), Lines{});
}

} // namespace
