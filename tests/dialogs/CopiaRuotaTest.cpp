#include "dialogs/selection/DialogCopiaRuota.h"
#include "tests/dialogs/ToolTest.h"

namespace {

constexpr int copies = 1192, angle = 1193, spin = 1171;

class CopiaRuota : public ToolTest<CDialogCopiaRuota> {
  protected:
    CopiaRuota() { m_host.View().endsDialogs = false; }

    static Lines Command(const std::string& arguments) {
        return {"BeginUndo 4 0 0 0 0 0 0 0 0 0 0", "RuotaSelezione " + arguments, "EndUndo 4", "WM_FINEDIALOGO 1"};
    }
};

TEST_F(CopiaRuota, ThreeQuarterTurnsAboutZ) {
    m_host.View().Pick(0, 0, 0);
    m_host.View().Pick(0, 0, 1);
    m_driver.Type(copies, "3");
    m_driver.Type(angle, "90");
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Command("0 0 0 0 0 1 90 3 0"));
}

TEST_F(CopiaRuota, EveryFieldReachesItsPlace) {
    TypeFrom(1183, {"1", "2", "3", "4", "5", "6"});
    m_driver.Type(angle, "-7.5");
    for (const auto& [button, join] : {std::pair(1189, "1"), std::pair(1190, "2"), std::pair(1191, "0")}) {
        m_driver.Click(button);
        m_driver.Click(IDOK);
        EXPECT_EQ(m_host.Take(), Command(std::string("1 2 3 4 5 6 -7.5 1 ") + join));
    }
    // No button at all joins nothing.
    m_dialog.CheckDlgButton(1191, 0);
    m_driver.Click(IDOK);
    EXPECT_EQ(m_host.Take(), Command("1 2 3 4 5 6 -7.5 1 0"));
    EXPECT_EQ(CDialogCopiaRuota().m_nUnione, -1);
}

TEST_F(CopiaRuota, NumbersOfCopies) {
    m_driver.ClickSpinDown(spin);
    m_driver.ClickSpinDown(spin); // stops at 0
    EXPECT_EQ(m_driver.Text(copies), "0");
    m_user.ExpectMessage("Numero copie non valido.", IDOK, MB_OK);
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Lines{});
    for (const char* number : {"-1", "250"}) {
        m_driver.Type(copies, number);
        m_driver.Press(VK_RETURN);
        EXPECT_EQ(m_host.Take(), Command(std::string("0 0 0 0 0 0 0 ") + number + " 0"));
    }
}

} // namespace
