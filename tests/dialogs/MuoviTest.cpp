#include "dialogs/selection/DialogMuovi.h"
#include "platform/Application.h"
#include "tests/support/DialogTest.h"

namespace {

class Muovi : public DialogTest {
  protected:
    Muovi() {
        host.Open(dialog);
        host.Take();
    }
    ~Muovi() override { dialog.DestroyWindow(); }

    CDialogMuovi dialog;
};

TEST_F(Muovi, OpensAtZeroEachTime) {
    dialog.DestroyWindow();
    dialog.m_dX1 = dialog.m_dZ2 = 4;
    host.Take();
    host.Open(dialog);
    const DialogDriver driver(dialog);
    EXPECT_EQ(driver.Caption(), "Ponte : Muovi");
    EXPECT_EQ(host.Take(), Lines{"StartDefinisciVettore \"\" \"\""});
    for (int id = 1119; id <= 1124; ++id)
        EXPECT_EQ(driver.Text(id), "0") << id;
}

TEST_F(Muovi, SecondPickMovesAtOnce) {
    host.View().Pick(1, 2, 3);
    EXPECT_EQ(DialogDriver(dialog).Text(1121), "3");
    EXPECT_EQ(host.Take(), Lines{});
    host.View().Pick(11, 22, 33);
    EXPECT_EQ(host.Take(), (Lines{"BeginUndo 1 10 20 30 0 0 0 0 0 0 0", "TraslaSelezione 10 20 30 0 0", "EndUndo 1",
                                  "WM_FINEDIALOGO 1", "StopDefinisciVettore"}));
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(Muovi, TypedPoints) {
    // All six differ: one edit bound to another's field would move elsewhere. The difference is second minus first.
    DialogDriver driver(dialog);
    const char* const texts[] = {"1", "2.5", "-3", "4", "8", "6e2"};
    for (int i = 0; i < 6; ++i)
        driver.Type(1119 + i, texts[i]);
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), (Lines{"BeginUndo 1 3 5.5 603 0 0 0 0 0 0 0", "TraslaSelezione 3 5.5 603 0 0", "EndUndo 1",
                                  "WM_FINEDIALOGO 1", "StopDefinisciVettore"}));
}

TEST_F(Muovi, TextStopsOkAndNullVectorIsTheHosts) {
    DialogDriver driver(dialog);
    driver.Type(1120, "1,5");
    user.ExpectMessage("Immettere un numero.");
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Lines{});
    driver.TypeKeys("0");
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), (Lines{"BeginUndo 1 0 0 0 0 0 0 0 0 0 0", "TraslaSelezione 0 0 0 0 0", "EndUndo 1",
                                  "WM_FINEDIALOGO 1", "StopDefinisciVettore"}));
}

TEST_F(Muovi, PickWhileAFieldIsWrong) {
    // The failure is reported and ignored: the picked point is stored, the wrong text gives way to its last value.
    DialogDriver driver(dialog);
    driver.Type(1122, "x");
    user.ExpectMessage("Immettere un numero.");
    host.View().Pick(1, 2, 3);
    EXPECT_EQ(driver.Text(1119) + driver.Text(1122), "10");
}

} // namespace
