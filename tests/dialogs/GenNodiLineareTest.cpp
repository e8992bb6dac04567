#include "dialogs/generation/DialogGenNodiLineare.h"
#include "tests/dialogs/ToolTest.h"

namespace {

using Dialog = CDialogGenNodiLineare;
constexpr int radioX = Dialog::IDC_DIREZIONE_X, radioY = Dialog::IDC_DIREZIONE_Y, radioZ = Dialog::IDC_DIREZIONE_Z;
constexpr int radioVector = Dialog::IDC_DIREZIONE_VETTORE;
constexpr int step = Dialog::IDC_PASSO, startX = Dialog::IDC_X_INIZIALE;
constexpr int nodes = Dialog::IDC_NODI, spin = Dialog::IDC_SPIN_NODI;

class GenNodiLineare : public ToolTest<CDialogGenNodiLineare> {
  protected:
    bool VectorEnabled() const {
        return EnabledTogether({{Dialog::IDC_GROUP_VETTORE, Dialog::IDC_GROUP_VETTORE},
                                {Dialog::IDC_LABEL_VETTORE_FIRST, Dialog::IDC_LABEL_VETTORE_LAST},
                                {Dialog::IDC_X1, Dialog::IDC_Z2}});
    }
};

TEST_F(GenNodiLineare, AxisIgnoresTheVector) {
    // The direction must come from the radio button even where picked points are still in the vector's fields.
    m_driver.Type(step, "2.5");
    m_host.View().Pick(7, 8, 9);
    m_host.View().Pick(10, 12, 15);
    EXPECT_EQ(m_driver.Text(step), "2.5") << "a pick keeps what was typed";
    m_driver.Click(radioY);
    TypeFrom(startX, {"2", "3", "0"});
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Ended({"GenNodiLineare (2,3,0) (2,4,0) 2.5 1"}));
}

TEST_F(GenNodiLineare, RadioButtonsEnableTheVector) {
    EXPECT_FALSE(VectorEnabled());
    m_driver.Click(radioVector);
    EXPECT_TRUE(VectorEnabled());
    m_driver.Press(VK_UP); // arrows inside the group click the button that they check
    EXPECT_TRUE(m_driver.Checked(radioZ));
    EXPECT_FALSE(VectorEnabled());
    m_driver.Press(VK_DOWN);
    EXPECT_TRUE(VectorEnabled());
    for (const int id : {radioX, radioY, radioZ}) {
        m_driver.Click(radioVector);
        m_driver.Click(id);
        EXPECT_FALSE(VectorEnabled()) << id;
    }
}

TEST_F(GenNodiLineare, SpinKeepsTypedFields) {
    TypeFrom(startX, {"2", "3", "4"});
    m_driver.ClickSpinUp(spin);
    EXPECT_EQ(m_driver.Text(nodes), "2");
    EXPECT_EQ(m_dialog.m_nNodi, 2);
    EXPECT_EQ(Texts({startX, startX + 1, startX + 2}), "2 3 4");
    EXPECT_EQ(m_dialog.m_dZIniziale, 4);
}

TEST_F(GenNodiLineare, PickingEndsWithTheWindowOnlyWhereItIsOn) {
    m_host.View().StopDefinisciVettore(); // the user's Escape in the view
    m_host.Take();
    m_driver.Press(VK_ESCAPE);
    EXPECT_EQ(m_host.Take(), Lines{"WM_FINEDIALOGO 2"}) << "stopping twice would end another dialog's picking";
}

TEST_F(GenNodiLineare, WorksByKeyboardAlone) {
    m_driver.Press('N', AltKey);
    EXPECT_EQ(m_driver.Focus(), nodes);
    m_driver.TypeKeys("4");
    m_driver.Press('A', AltKey);
    EXPECT_EQ(m_driver.Focus(), step);
    m_driver.TypeKeys("2,5");
    m_user.ExpectMessage("Immettere un numero.");
    m_driver.Press(VK_RETURN);
    m_driver.TypeKeys("1.5"); // the rejected text is selected, so typing replaces it
    m_driver.Press(VK_RETURN);
    EXPECT_EQ(m_host.Take(), Ended({"GenNodiLineare (0,0,0) (1,0,0) 1.5 4"}));
}

} // namespace
