#include "dialogs/generation/DialogGenNodiLineare.h"
#include "platform/Application.h"
#include "tests/support/DialogTest.h"

namespace {

using Dialog = CDialogGenNodiLineare;

class GenNodiLineare : public DialogTest {
  protected:
    GenNodiLineare() {
        host.Open(dialog);
        host.Take();
    }
    ~GenNodiLineare() override { dialog.DestroyWindow(); }

    void TypeStart(DialogDriver& driver, const char* x, const char* y, const char* z) {
        driver.Type(1200, x);
        driver.Type(1201, y);
        driver.Type(1202, z);
    }
    bool VectorEnabled(const DialogDriver& driver) {
        int enabled = driver.Enabled(1125);
        for (int id = 1113; id <= 1118; ++id)
            enabled += driver.Enabled(id);
        for (int id = 1227; id <= 1232; ++id)
            enabled += driver.Enabled(id);
        EXPECT_TRUE(enabled == 0 || enabled == 13) << "group, labels and edits go together: " << enabled << " of 13";
        return enabled == 13;
    }

    Dialog dialog;
};

TEST_F(GenNodiLineare, OpensWithItsDefaultsEachTime) {
    dialog.DestroyWindow();
    dialog.m_nNodi = 7;
    dialog.m_dPasso = -3;
    dialog.m_dZ2 = 4;
    dialog.m_dYIniziale = 4;
    dialog.m_nDirezione = 3;
    host.Take();
    ASSERT_NE(host.Open(dialog), 0);
    const DialogDriver driver(dialog);
    EXPECT_EQ(driver.Caption(), "Ponte : Generazione Nodi Lineare");
    EXPECT_EQ(host.Take(), Lines{"StartDefinisciVettore \"\" \"\""});
    EXPECT_EQ(driver.Text(1221), "1");
    EXPECT_EQ(driver.Text(1093), "1");
    for (const int id : {1200, 1201, 1202, 1227, 1228, 1229, 1230, 1231, 1232})
        EXPECT_EQ(driver.Text(id), "0") << id;
    EXPECT_TRUE(driver.Checked(1090));
    EXPECT_FALSE(VectorEnabled(driver));
}

TEST_F(GenNodiLineare, AxisIgnoresTheVector) {
    // The direction must come from the radio button even where picked points are still in the vector's fields.
    DialogDriver driver(dialog);
    host.View().Pick(7, 8, 9);
    host.View().Pick(10, 12, 15);
    driver.Click(1091);
    TypeStart(driver, "2", "3", "0");
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), (Lines{"GenNodiLineare (2,3,0) (2,4,0) 1 1", "WM_FINEDIALOGO 1", "StopDefinisciVettore"}));
}

TEST_F(GenNodiLineare, EachAxisAndTheStep) {
    host.View().endsDialogs = false;
    DialogDriver driver(dialog);
    TypeStart(driver, "0.1", "-2e3", "5");
    driver.Type(1093, "0.25");
    driver.Type(1221, "12");
    driver.Click(IDOK);
    driver.Click(1092);
    driver.Click(IDOK);
    EXPECT_EQ(host.Take(), (Lines{"GenNodiLineare (0.1,-2000,5) (1.1,-2000,5) 0.25 12", "WM_FINEDIALOGO 1",
                                  "GenNodiLineare (0.1,-2000,5) (0.1,-2000,6) 0.25 12", "WM_FINEDIALOGO 1"}));
}

TEST_F(GenNodiLineare, PickedPairThenTypedStart) {
    DialogDriver driver(dialog);
    host.View().Pick(1, 1, 0);
    EXPECT_EQ(driver.Text(1227) + driver.Text(1228) + driver.Text(1229), "110");
    EXPECT_EQ(driver.Text(1200) + driver.Text(1201) + driver.Text(1202), "110");
    EXPECT_TRUE(driver.Checked(1102));
    EXPECT_FALSE(driver.Checked(1090));
    EXPECT_TRUE(VectorEnabled(driver));
    host.View().Pick(4, 5, 0);
    TypeStart(driver, "0", "0", "2");
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), (Lines{"GenNodiLineare (0,0,2) (3,4,2) 1 1", "WM_FINEDIALOGO 1", "StopDefinisciVettore"}));
}

TEST_F(GenNodiLineare, PickKeepsWhatWasTyped) {
    DialogDriver driver(dialog);
    driver.Type(1093, "2.5");
    driver.Type(1221, "8");
    host.View().Pick(1, 2, 3);
    EXPECT_EQ(driver.Text(1093), "2.5");
    EXPECT_EQ(driver.Text(1221), "8");
    // "To" alone moves the vector's second point and nothing else.
    host.View().Pick(4, 5, 6);
    EXPECT_EQ(driver.Text(1200), "1");
    EXPECT_EQ(dialog.GetVettoreFrom().z, 3);
    EXPECT_EQ(dialog.GetVettoreTo().x, 4);
    EXPECT_EQ(dialog.GetPuntoIniziale().y, 2);
}

TEST_F(GenNodiLineare, RadioButtonsEnableTheVector) {
    DialogDriver driver(dialog);
    driver.Click(1102);
    EXPECT_TRUE(VectorEnabled(driver));
    driver.Press(VK_UP); // arrows inside the group click the button that they check
    EXPECT_TRUE(driver.Checked(1092));
    EXPECT_FALSE(VectorEnabled(driver));
    driver.Press(VK_DOWN);
    EXPECT_TRUE(VectorEnabled(driver));
    for (const int id : {1090, 1091, 1092}) {
        driver.Click(1102);
        driver.Click(id);
        EXPECT_FALSE(VectorEnabled(driver)) << id;
    }
}

TEST_F(GenNodiLineare, SpinStopsAtItsEndsAndTypingDoesNot) {
    host.View().endsDialogs = false;
    DialogDriver driver(dialog);
    driver.ClickSpinDown(1233);
    EXPECT_EQ(driver.Text(1221), "1");
    driver.ClickSpinUp(1233);
    EXPECT_EQ(driver.Text(1221), "2");
    EXPECT_EQ(dialog.m_nNodi, 2);
    driver.Type(1221, "99");
    driver.ClickSpinUp(1233);
    driver.ClickSpinUp(1233);
    EXPECT_EQ(driver.Text(1221), "100");
    driver.Type(1221, "250");
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), (Lines{"GenNodiLineare (0,0,0) (1,0,0) 1 250", "WM_FINEDIALOGO 1"}));
}

TEST_F(GenNodiLineare, SpinKeepsTypedFields) {
    DialogDriver driver(dialog);
    TypeStart(driver, "2", "3", "4");
    driver.ClickSpinUp(1233);
    EXPECT_EQ(driver.Text(1200) + driver.Text(1201) + driver.Text(1202), "234");
    EXPECT_EQ(dialog.m_dZIniziale, 4);
}

TEST_F(GenNodiLineare, TextThatIsNoNumberStopsOk) {
    DialogDriver driver(dialog);
    // A comma is no decimal separator, whatever the machine's language: reading half of the text would be worse.
    driver.Type(1093, "2,5");
    user.ExpectMessage("Immettere un numero.");
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Lines{});
    EXPECT_TRUE(driver.IsOpen());
    EXPECT_EQ(driver.Text(1093), "2,5");
    EXPECT_EQ(driver.Focus(), 1093);
    driver.TypeKeys("2.5"); // the rejected text was selected, so typing replaces it
    driver.Type(1221, "3.5");
    user.ExpectMessage("Immettere un numero intero.");
    driver.Click(IDOK);
    EXPECT_EQ(driver.Focus(), 1221);
    driver.TypeKeys("3");
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), (Lines{"GenNodiLineare (0,0,0) (1,0,0) 2.5 3", "WM_FINEDIALOGO 1", "StopDefinisciVettore"}));
}

TEST_F(GenNodiLineare, RejectionIsToldAndTheDialogStillCloses) {
    host.doc.generated = 0;
    user.ExpectMessage("Parametri Errati!", IDOK, MB_OK);
    DialogDriver(dialog).Press(VK_RETURN);
    EXPECT_EQ(host.Take(), (Lines{"GenNodiLineare (0,0,0) (1,0,0) 1 1", "WM_FINEDIALOGO 1", "StopDefinisciVettore"}));
    EXPECT_FALSE(dialog.IsWindow());
}

TEST_F(GenNodiLineare, CancelGeneratesNothing) {
    DialogDriver driver(dialog);
    driver.Type(1093, "abc"); // cancelling reads no field, so no message either
    driver.Press(VK_ESCAPE);
    EXPECT_EQ(host.Take(), (Lines{"WM_FINEDIALOGO 2", "StopDefinisciVettore"}));
}

TEST_F(GenNodiLineare, PickingEndsWithTheWindowOnlyWhereItIsOn) {
    host.View().StopDefinisciVettore(); // the user's Escape in the view
    host.Take();
    DialogDriver(dialog).Press(VK_ESCAPE);
    EXPECT_EQ(host.Take(), Lines{"WM_FINEDIALOGO 2"}) << "stopping twice would end another dialog's picking";
}

TEST_F(GenNodiLineare, WithoutItsViewItDoesNothing) {
    host.CloseView(host.View());
    host.Take();
    DialogDriver driver(dialog);
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Lines{});
    EXPECT_TRUE(driver.IsOpen());
    dialog.DestroyWindow();
    EXPECT_EQ(host.Take(), Lines{});
}

TEST_F(GenNodiLineare, WorksByKeyboardAlone) {
    DialogDriver driver(dialog);
    driver.Press('N', AltKey);
    EXPECT_EQ(driver.Focus(), 1221);
    driver.TypeKeys("4");
    driver.Press('A', AltKey);
    EXPECT_EQ(driver.Focus(), 1093);
    driver.TypeKeys("1.5");
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), (Lines{"GenNodiLineare (0,0,0) (1,0,0) 1.5 4", "WM_FINEDIALOGO 1", "StopDefinisciVettore"}));
}

} // namespace
