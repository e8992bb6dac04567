// Spin controls and their buddies.
#include "tests/platform/ControlDialog.h"

#include "platform/SpinButton.h"
#include "platform/private/WindowPeer.h"

#include <QApplication>
#include <QWheelEvent>

namespace {

constexpr DWORD Attached = UDS_SETBUDDYINT | UDS_AUTOBUDDY | UDS_ARROWKEYS | UDS_NOTHOUSANDS;

ControlRows spinBeside(DWORD style) {
    return ControlRows()
        .edit(50)
        .edit(100)
        .add("msctls_updown32", "", 200, style)
        .button("OK", IDOK, BS_DEFPUSHBUTTON)
        .add("COMBOBOX", "", 300, CBS_DROPDOWNLIST | WS_TABSTOP);
}

class Spin : public testing::Test {
  protected:
    ControlDialog dialog{spinBeside(Attached)};
    CSpinButtonCtrl& spin = dialog.control<CSpinButtonCtrl>(200);
    DialogDriver& user = dialog.user;
};

} // namespace

TEST_F(Spin, AStepReadsTheBuddyThenWritesItThenScrolls) {
    spin.SetRange(1, 100);
    EXPECT_EQ(spin.SetPos(1), 0);
    EXPECT_EQ(user.Text(100), "1");
    user.Type(100, "41");
    dialog.take();
    user.ClickSpinUp(200);
    EXPECT_EQ(withoutFocus(dialog.take()), (Log{notified(200, UDN_DELTAPOS), told(100, EN_UPDATE), told(100, EN_CHANGE),
                                                "scroll 4:42", "scroll 8:42"}));
    EXPECT_EQ(dialog.scrollBar, static_cast<CScrollBar*>(&spin)); // handlers compare it with their member
    EXPECT_EQ(user.Text(100), "42");
}

TEST_F(Spin, TypedNumbersCountAndStayAsTyped) {
    spin.SetRange(1, 100);
    user.Type(100, "37");
    EXPECT_EQ(spin.GetPos(), 37);
    user.Type(100, "250"); // beyond the range
    (void)spin.GetPos();
    EXPECT_EQ(user.Text(100), "250");
    user.ClickSpinUp(200);
    user.ClickSpinUp(200);
    EXPECT_EQ(user.Text(100), "100");
    user.Type(100, "abc"); // no number: the position before it
    user.ClickSpinDown(200);
    EXPECT_EQ(user.Text(100), "99");
    spin.SetRange(-5000, 5000);
    spin.SetPos(-1234); // no digit grouping
    EXPECT_EQ(user.Text(100), "-1234");
}

TEST(SpinStyles, TheRangesEndsAreMetOrWrapped) {
    ControlDialog dialog(spinBeside(Attached | UDS_WRAP));
    auto& spin = dialog.control<CSpinButtonCtrl>(200);
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
    spin.SetPos(10);
    user.Click(100);
    user.Press(VK_UP);
    user.Press(VK_UP);
    user.Press(VK_DOWN);
    EXPECT_EQ(user.Text(100), "11");
    dialog.onNotify = [](int code) -> LRESULT { return code == UDN_DELTAPOS; };
    user.Press(VK_UP);
    EXPECT_EQ(user.Text(100), "11");
}

TEST_F(Spin, TheBuddyIsTheControlBeforeItOrTheOneThatTheProgramNames) {
    EXPECT_EQ(spin.GetBuddy(), dialog.GetDlgItem(100));
    EXPECT_EQ(spin.SetBuddy(dialog.GetDlgItem(50)), dialog.GetDlgItem(100));
    spin.SetPos(7);
    EXPECT_EQ(user.Text(50), "7");
    EXPECT_EQ(user.Text(100), "");
    dialog.GetDlgItem(50)->DestroyWindow();
    spin.SetPos(8); // the buddy is gone
    EXPECT_EQ(spin.GetPos(), 8);
    EXPECT_EQ(spin.GetBuddy(), nullptr);
}

TEST(SpinStyles, AttachedToTheRightItTakesItsPlaceFromTheBuddy) {
    ControlDialog dialog(spinBeside(Attached | UDS_ALIGNRIGHT));
    CRect edit, spin, plain;
    dialog.GetDlgItem(100)->GetWindowRect(edit);
    dialog.GetDlgItem(200)->GetWindowRect(spin);
    dialog.GetDlgItem(50)->GetWindowRect(plain);
    EXPECT_EQ(edit.right, spin.left);
    EXPECT_EQ(spin.right, plain.right);
    EXPECT_EQ(spin.top, edit.top);
}

TEST_F(Spin, TheWheelChangesNothingWithoutTheFocus) {
    spin.SetPos(5);
    user.Click(50);
    dialog.take();
    for (const int id : {100, 200, 300}) {
        QWidget* widget = dialog.GetDlgItem(id)->m_hWnd->widget;
        const QPointF centre(widget->rect().center());
        QWheelEvent wheel(centre, widget->mapToGlobal(centre), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(widget, &wheel);
    }
    EXPECT_EQ(dialog.take(), Log{});
    EXPECT_EQ(user.Text(100), "5");
}
