#include "dialogs/generation/DialogGenNodi2P.h"
#include "platform/Application.h"
#include "tests/support/DialogTest.h"

namespace {

class GenNodi2P : public DialogTest {
  protected:
    GenNodi2P() {
        host.Open(dialog);
        host.Take();
    }
    ~GenNodi2P() override { dialog.DestroyWindow(); }

    std::string Texts(const DialogDriver& driver) {
        std::string all;
        for (int id = 1119; id <= 1124; ++id)
            all += driver.Text(id) + " ";
        return all + driver.Text(1221);
    }

    CDialogGenNodi2P dialog;
};

TEST_F(GenNodi2P, OpensWithItsDefaultsEachTime) {
    dialog.DestroyWindow();
    dialog.m_nNodi = 9;
    dialog.m_dX1 = dialog.m_dZ2 = 5;
    host.Take();
    ASSERT_NE(host.Open(dialog), 0);
    const DialogDriver driver(dialog);
    EXPECT_EQ(driver.Caption(), "Ponte : Generazione Nodi 2 Punti");
    EXPECT_EQ(host.Take(), Lines{"StartDefinisciVettore \"\" \"\""});
    EXPECT_EQ(Texts(driver), "0 0 0 0 0 0 1");
}

TEST_F(GenNodi2P, TypedSegment) {
    // One edit bound to another's field would swap coordinates: all six differ.
    DialogDriver driver(dialog);
    const char* const texts[] = {"1", "2.5", "-3", "4", "5", "6e2"};
    for (int i = 0; i < 6; ++i)
        driver.Type(1119 + i, texts[i]);
    driver.Type(1221, "7");
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), (Lines{"GenNodi2Punti (1,2.5,-3) (4,5,600) 7", "WM_FINEDIALOGO 1", "StopDefinisciVettore"}));
}

TEST_F(GenNodi2P, PickedPairsOverwriteEachOther) {
    DialogDriver driver(dialog);
    driver.Type(1221, "3");
    host.View().Pick(1, 2, 3);
    host.View().Pick(4, 5, 6);
    EXPECT_EQ(Texts(driver), "1 2 3 4 5 6 3");
    host.View().Pick(9, 8, 7);
    EXPECT_EQ(Texts(driver), "9 8 7 4 5 6 3");
    EXPECT_EQ(dialog.GetVettoreFrom().x, 9);
    EXPECT_EQ(dialog.GetVettoreTo().z, 6);
    driver.Click(IDOK);
    EXPECT_EQ(host.Take(), (Lines{"GenNodi2Punti (9,8,7) (4,5,6) 3", "WM_FINEDIALOGO 1", "StopDefinisciVettore"}));
}

TEST_F(GenNodi2P, SpinRestoresStoredCoordinates) {
    // The fields are written without being read: what was typed since the last pick is not kept.
    DialogDriver driver(dialog);
    host.View().Pick(1, 2, 3);
    driver.Type(1119, "50");
    driver.ClickSpinUp(1224);
    EXPECT_EQ(Texts(driver), "1 2 3 0 0 0 2");
    // The count itself is read from the edit before it steps.
    driver.Type(1221, "41");
    driver.ClickSpinDown(1224);
    EXPECT_EQ(driver.Text(1221), "40");
    EXPECT_EQ(dialog.m_nNodi, 40);
}

TEST_F(GenNodi2P, SpinEndsAndTypedCounts) {
    host.View().endsDialogs = false;
    DialogDriver driver(dialog);
    driver.ClickSpinDown(1224);
    EXPECT_EQ(driver.Text(1221), "1");
    driver.Type(1221, "100");
    driver.ClickSpinUp(1224);
    EXPECT_EQ(driver.Text(1221), "100");
    driver.Type(1221, "-4"); // the host judges
    driver.Click(IDOK);
    EXPECT_EQ(host.Take(), (Lines{"GenNodi2Punti (0,0,0) (0,0,0) -4", "WM_FINEDIALOGO 1"}));
}

TEST_F(GenNodi2P, FailuresAndCancel) {
    DialogDriver driver(dialog);
    driver.Type(1124, "");
    user.ExpectMessage("Immettere un numero.");
    driver.Press(VK_RETURN);
    EXPECT_EQ(driver.Focus(), 1124);
    EXPECT_EQ(host.Take(), Lines{});
    driver.TypeKeys("0");
    host.doc.generated = 0;
    user.ExpectMessage("Parametri Errati!", IDOK, MB_OK);
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), (Lines{"GenNodi2Punti (0,0,0) (0,0,0) 1", "WM_FINEDIALOGO 1", "StopDefinisciVettore"}));
    host.Open(dialog);
    host.Take();
    DialogDriver(dialog).Press(VK_ESCAPE);
    EXPECT_EQ(host.Take(), (Lines{"WM_FINEDIALOGO 2", "StopDefinisciVettore"}));
}

} // namespace
