#include "dialogs/generation/DialogGenNodiLineare.h"
#include "tests/dialogs/ToolTest.h"

namespace {

constexpr int radioX = 1090, radioY = 1091, radioZ = 1092, radioVector = 1102;
constexpr int step = 1093, startX = 1200, nodes = 1221, spin = 1233;

class GenNodiLineare : public ToolTest<CDialogGenNodiLineare> {
  protected:
    std::string Start() const { return Texts({1200, 1201, 1202}); }
    bool VectorEnabled() const { return EnabledTogether({{1125, 1125}, {1113, 1118}, {1227, 1232}}); }
};

TEST_F(GenNodiLineare, AxisIgnoresTheVector) {
    // The direction must come from the radio button even where picked points are still in the vector's fields.
    host.View().Pick(7, 8, 9);
    host.View().Pick(10, 12, 15);
    driver.Click(radioY);
    TypeFrom(startX, {"2", "3", "0"});
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Ended({"GenNodiLineare (2,3,0) (2,4,0) 1 1"}));
}

TEST_F(GenNodiLineare, EachAxisAndTheStep) {
    host.View().endsDialogs = false;
    TypeFrom(startX, {"0.1", "-2e3", "5"});
    driver.Type(step, "0.25");
    driver.Type(nodes, "12");
    driver.Click(IDOK);
    driver.Click(radioZ);
    driver.Click(IDOK);
    EXPECT_EQ(host.Take(), (Lines{"GenNodiLineare (0.1,-2000,5) (1.1,-2000,5) 0.25 12", "WM_FINEDIALOGO 1",
                                  "GenNodiLineare (0.1,-2000,5) (0.1,-2000,6) 0.25 12", "WM_FINEDIALOGO 1"}));
}

TEST_F(GenNodiLineare, PickedPairThenTypedStart) {
    driver.Type(step, "2.5");
    driver.Type(nodes, "8");
    host.View().Pick(1, 1, 3);
    EXPECT_EQ(Texts({1227, 1228, 1229}) + " " + Start(), "1 1 3 1 1 3");
    EXPECT_EQ(Texts({step, nodes}), "2.5 8") << "a pick keeps what was typed";
    EXPECT_TRUE(driver.Checked(radioVector));
    EXPECT_FALSE(driver.Checked(radioX));
    EXPECT_TRUE(VectorEnabled());
    host.View().Pick(4, 5, 3);
    EXPECT_EQ(Start(), "1 1 3") << "the second point moves the vector and nothing else";
    EXPECT_EQ(dialog.GetVettoreFrom().z, 3);
    EXPECT_EQ(dialog.GetVettoreTo().x, 4);
    EXPECT_EQ(dialog.GetPuntoIniziale().y, 1);
    TypeFrom(startX, {"0", "0", "2"});
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Ended({"GenNodiLineare (0,0,2) (3,4,2) 2.5 8"}));
}

TEST_F(GenNodiLineare, RadioButtonsEnableTheVector) {
    EXPECT_FALSE(VectorEnabled());
    driver.Click(radioVector);
    EXPECT_TRUE(VectorEnabled());
    driver.Press(VK_UP); // arrows inside the group click the button that they check
    EXPECT_TRUE(driver.Checked(radioZ));
    EXPECT_FALSE(VectorEnabled());
    driver.Press(VK_DOWN);
    EXPECT_TRUE(VectorEnabled());
    for (const int id : {radioX, radioY, radioZ}) {
        driver.Click(radioVector);
        driver.Click(id);
        EXPECT_FALSE(VectorEnabled()) << id;
    }
}

TEST_F(GenNodiLineare, SpinStopsAtItsEndsAndTypingDoesNot) {
    driver.ClickSpinDown(spin);
    EXPECT_EQ(driver.Text(nodes), "1");
    TypeFrom(startX, {"2", "3", "4"});
    driver.ClickSpinUp(spin);
    EXPECT_EQ(driver.Text(nodes), "2");
    EXPECT_EQ(dialog.m_nNodi, 2);
    EXPECT_EQ(Start(), "2 3 4") << "the spin keeps typed fields";
    EXPECT_EQ(dialog.m_dZIniziale, 4);
    driver.Type(nodes, "99");
    driver.ClickSpinUp(spin);
    driver.ClickSpinUp(spin);
    EXPECT_EQ(driver.Text(nodes), "100");
    driver.Type(nodes, "250");
    host.doc.generated = 0;
    user.ExpectMessage("Parametri Errati!", IDOK, MB_OK);
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Ended({"GenNodiLineare (2,3,4) (3,3,4) 1 250"})) << "rejected, the dialog still closes";
}

TEST_F(GenNodiLineare, PickingEndsWithTheWindowOnlyWhereItIsOn) {
    host.View().StopDefinisciVettore(); // the user's Escape in the view
    host.Take();
    driver.Press(VK_ESCAPE);
    EXPECT_EQ(host.Take(), Lines{"WM_FINEDIALOGO 2"}) << "stopping twice would end another dialog's picking";
}

TEST_F(GenNodiLineare, WorksByKeyboardAlone) {
    driver.Press('N', AltKey);
    EXPECT_EQ(driver.Focus(), nodes);
    driver.TypeKeys("4");
    driver.Press('A', AltKey);
    EXPECT_EQ(driver.Focus(), step);
    driver.TypeKeys("2,5");
    user.ExpectMessage("Immettere un numero.");
    driver.Press(VK_RETURN);
    driver.TypeKeys("1.5"); // the rejected text is selected, so typing replaces it
    driver.Press(VK_RETURN);
    EXPECT_EQ(host.Take(), Ended({"GenNodiLineare (0,0,0) (1,0,0) 1.5 4"}));
}

} // namespace
