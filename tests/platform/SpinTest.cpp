// Spin controls and their buddies.
#include "tests/platform/ControlDialog.h"

#include "platform/controls/SpinButton.h"
#include "platform/toolkit/Bridge.h"

#include <QApplication>
#include <QWheelEvent>

namespace {

constexpr DWORD attached = UDS_SETBUDDYINT | UDS_AUTOBUDDY | UDS_ARROWKEYS | UDS_NOTHOUSANDS;

ControlRows SpinBeside(DWORD style) {
    return ControlRows()
        .Edit(50)
        .Edit(100)
        .Add("msctls_updown32", "", 200, style)
        .Button("OK", IDOK, BS_DEFPUSHBUTTON)
        .Add("COMBOBOX", "", 300, CBS_DROPDOWNLIST | WS_TABSTOP);
}

class Spin : public testing::Test {
  protected:
    ControlDialog m_dialog{SpinBeside(attached)};
    CSpinButtonCtrl& m_spin = m_dialog.Control<CSpinButtonCtrl>(200);
    DialogDriver& m_user = m_dialog.user;
};

} // namespace

TEST_F(Spin, AStepReadsTheBuddyThenWritesItThenScrolls) {
    m_spin.SetRange(1, 100);
    EXPECT_EQ(m_spin.SetPos(1), 0);
    EXPECT_EQ(m_user.Text(100), "1");
    m_user.Type(100, "41");
    m_dialog.Take();
    m_user.ClickSpinUp(200);
    EXPECT_EQ(WithoutFocus(m_dialog.Take()), (Log{Notified(200, UDN_DELTAPOS), Told(100, EN_UPDATE),
                                                  Told(100, EN_CHANGE), "scroll 4:42", "scroll 8:42"}));
    EXPECT_EQ(m_dialog.scrollBar, static_cast<CScrollBar*>(&m_spin)); // handlers compare it with their member
    EXPECT_EQ(m_user.Text(100), "42");
}

TEST_F(Spin, TypedNumbersCountAndStayAsTyped) {
    m_spin.SetRange(1, 100);
    m_user.Type(100, "37");
    EXPECT_EQ(m_spin.GetPos(), 37);
    m_user.Type(100, "250"); // beyond the range
    (void)m_spin.GetPos();
    EXPECT_EQ(m_user.Text(100), "250");
    m_user.ClickSpinUp(200);
    m_user.ClickSpinUp(200);
    EXPECT_EQ(m_user.Text(100), "100");
    m_user.Type(100, "abc"); // no number: the position before it
    m_user.ClickSpinDown(200);
    EXPECT_EQ(m_user.Text(100), "99");
    m_spin.SetRange(-5000, 5000);
    m_spin.SetPos(-1234); // no digit grouping
    EXPECT_EQ(m_user.Text(100), "-1234");
}

// The step starts from the number that is shown: 50 less 1 is still beyond 10.
TEST_F(Spin, AStepFromBeyondTheRangeEndsAtItsEnd) {
    m_spin.SetRange(0, 10);
    m_user.Type(100, "50");
    m_user.Press(VK_DOWN);
    EXPECT_EQ(m_user.Text(100), "10");
}

TEST_F(Spin, WithoutARangeUpTakesAway) {
    m_spin.SetPos(10);
    m_user.ClickSpinUp(200);
    EXPECT_EQ(m_user.Text(100), "9");
}

TEST(SpinStyles, TheRangesEndsAreMetOrWrapped) {
    ControlDialog dialog(SpinBeside(attached | UDS_WRAP));
    auto& spin = dialog.Control<CSpinButtonCtrl>(200);
    spin.SetRange(1, 3);
    spin.SetPos(77);
    EXPECT_EQ(spin.GetPos(), 3);
    dialog.user.ClickSpinUp(200);
    EXPECT_EQ(spin.GetPos(), 1);
    spin.SetRange(100, 0); // up goes towards the second number, the smaller one here
    spin.SetPos(50);
    dialog.user.ClickSpinUp(200);
    EXPECT_EQ(spin.GetPos(), 49);
}

TEST_F(Spin, ArrowKeysInTheBuddyStepAndAHandlerMayRefuse) {
    m_spin.SetRange(0, 100);
    m_spin.SetPos(10);
    m_user.Click(100);
    m_user.Press(VK_UP);
    m_user.Press(VK_UP);
    m_user.Press(VK_DOWN);
    EXPECT_EQ(m_user.Text(100), "11");
    m_dialog.onNotify = [](int code) -> LRESULT { return code == UDN_DELTAPOS; };
    m_user.Press(VK_UP);
    EXPECT_EQ(m_user.Text(100), "11");
}

TEST_F(Spin, TheBuddyIsTheControlBeforeItOrTheOneThatTheProgramNames) {
    EXPECT_EQ(m_spin.GetBuddy(), m_dialog.GetDlgItem(100));
    EXPECT_EQ(m_spin.SetBuddy(m_dialog.GetDlgItem(50)), m_dialog.GetDlgItem(100));
    m_spin.SetPos(7);
    EXPECT_EQ(m_user.Text(50), "7");
    EXPECT_EQ(m_user.Text(100), "");
    m_dialog.GetDlgItem(50)->DestroyWindow();
    m_spin.SetPos(8); // the buddy is gone
    EXPECT_EQ(m_spin.GetPos(), 8);
    EXPECT_EQ(m_spin.GetBuddy(), nullptr);
}

TEST(SpinStyles, AttachedToTheRightItTakesItsPlaceFromTheBuddy) {
    ControlDialog dialog(SpinBeside(attached | UDS_ALIGNRIGHT));
    CRect edit, spin, plain;
    dialog.GetDlgItem(100)->GetWindowRect(edit);
    dialog.GetDlgItem(200)->GetWindowRect(spin);
    dialog.GetDlgItem(50)->GetWindowRect(plain);
    EXPECT_EQ(edit.right, spin.left);
    EXPECT_EQ(spin.right, plain.right);
    EXPECT_EQ(spin.top, edit.top);
}

TEST_F(Spin, TheWheelChangesNothingWithoutTheFocus) {
    m_spin.SetPos(5);
    m_user.Click(50);
    m_dialog.Take();
    for (const int id : {100, 200, 300}) {
        QWidget* widget = platform::WidgetOf(*m_dialog.GetDlgItem(id));
        const QPointF centre(widget->rect().center());
        QWheelEvent wheel(centre, widget->mapToGlobal(centre), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &wheel);
    }
    EXPECT_EQ(m_dialog.Take(), Log{});
    EXPECT_EQ(m_user.Text(100), "5");
}
