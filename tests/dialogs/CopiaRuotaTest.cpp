#include "dialogs/selection/DialogCopiaRuota.h"
#include "platform/Application.h"
#include "tests/support/DialogTest.h"

namespace {

constexpr int copies = 1192, angle = 1193, spin = 1171;

class CopiaRuota : public DialogTest {
  protected:
    CopiaRuota() {
        host.Open(dialog);
        host.Take();
    }
    ~CopiaRuota() override { dialog.DestroyWindow(); }

    static Lines Command(const std::string& arguments) {
        return {"BeginUndo 4 0 0 0 0 0 0 0 0 0 0", "RuotaSelezione " + arguments, "EndUndo 4", "WM_FINEDIALOGO 1"};
    }

    CDialogCopiaRuota dialog;
};

TEST_F(CopiaRuota, DefaultsAtConstructionAndAtOpening) {
    const CDialogCopiaRuota fresh;
    EXPECT_EQ(fresh.m_nCopie, 0);
    EXPECT_EQ(fresh.m_nUnione, -1);
    dialog.DestroyWindow();
    dialog.m_nCopie = 9;
    dialog.m_dAngolo = dialog.m_dY1 = 5;
    dialog.m_nUnione = 0;
    host.Take();
    host.Open(dialog);
    const DialogDriver driver(dialog);
    EXPECT_EQ(driver.Caption(), "Ponte : Copia Ruota");
    EXPECT_EQ(host.Take(), Lines{"StartDefinisciVettore \"\" \"\""});
    EXPECT_EQ(driver.Text(copies) + driver.Text(angle) + driver.Text(1184), "100");
    EXPECT_TRUE(driver.Checked(1191));
}

TEST_F(CopiaRuota, ThreeQuarterTurnsAboutZ) {
    DialogDriver driver(dialog);
    host.View().Pick(0, 0, 0);
    host.View().Pick(0, 0, 1);
    driver.Type(copies, "3");
    driver.Type(angle, "90");
    driver.Press(VK_RETURN);
    Lines expected = Command("0 0 0 0 0 1 90 3 0");
    expected.push_back("StopDefinisciVettore");
    EXPECT_EQ(host.Take(), expected);
}

TEST_F(CopiaRuota, EveryFieldReachesItsPlace) {
    host.View().endsDialogs = false;
    DialogDriver driver(dialog);
    for (int i = 0; i < 6; ++i)
        driver.Type(1183 + i, std::to_string(i + 1));
    driver.Type(angle, "-7.5");
    driver.Click(1189);
    driver.Click(IDOK);
    EXPECT_EQ(host.Take(), Command("1 2 3 4 5 6 -7.5 1 1"));
    driver.Click(1190);
    driver.Click(IDOK);
    EXPECT_EQ(host.Take(), Command("1 2 3 4 5 6 -7.5 1 2"));
    // No button at all joins nothing.
    dialog.CheckDlgButton(1190, 0);
    driver.Click(IDOK);
    EXPECT_EQ(host.Take(), Command("1 2 3 4 5 6 -7.5 1 0"));
}

TEST_F(CopiaRuota, NumbersOfCopies) {
    host.View().endsDialogs = false;
    DialogDriver driver(dialog);
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
    driver.Type(copies, "2.5");
    user.ExpectMessage("Immettere un numero intero.");
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Lines{});
}

} // namespace
