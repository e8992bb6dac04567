#include "dialogs/selection/DialogCopiaRuota.h"
#include "tests/dialogs/ToolTest.h"

namespace {

constexpr int copies = 1192, angle = 1193, spin = 1171;

class CopiaRuota : public ToolTest<CDialogCopiaRuota> {
  protected:
    CopiaRuota() { host.View().endsDialogs = false; }

    static Lines Command(const std::string& arguments) {
        return {"BeginUndo 4 0 0 0 0 0 0 0 0 0 0", "RuotaSelezione " + arguments, "EndUndo 4", "WM_FINEDIALOGO 1"};
    }
};

TEST_F(CopiaRuota, ThreeQuarterTurnsAboutZ) {
    host.View().Pick(0, 0, 0);
    host.View().Pick(0, 0, 1);
    driver.Type(copies, "3");
    driver.Type(angle, "90");
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Command("0 0 0 0 0 1 90 3 0"));
}

TEST_F(CopiaRuota, EveryFieldReachesItsPlace) {
    TypeFrom(1183, {"1", "2", "3", "4", "5", "6"});
    driver.Type(angle, "-7.5");
    for (const auto& [button, join] : {std::pair(1189, "1"), std::pair(1190, "2"), std::pair(1191, "0")}) {
        driver.Click(button);
        driver.Click(IDOK);
        EXPECT_EQ(host.Take(), Command(std::string("1 2 3 4 5 6 -7.5 1 ") + join));
    }
    // No button at all joins nothing.
    dialog.CheckDlgButton(1191, 0);
    driver.Click(IDOK);
    EXPECT_EQ(host.Take(), Command("1 2 3 4 5 6 -7.5 1 0"));
    EXPECT_EQ(CDialogCopiaRuota().m_nUnione, -1);
}

TEST_F(CopiaRuota, NumbersOfCopies) {
    driver.ClickSpinDown(spin);
    driver.ClickSpinDown(spin); // stops at 0
    EXPECT_EQ(driver.Text(copies), "0");
    user.ExpectMessage("Numero copie non valido.", IDOK, MB_OK);
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Lines{});
    for (const char* number : {"-1", "250"}) {
        driver.Type(copies, number);
        driver.Press(VK_RETURN);
        EXPECT_EQ(host.Take(), Command(std::string("0 0 0 0 0 0 0 ") + number + " 0"));
    }
}

} // namespace
