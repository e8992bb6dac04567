// Buttons: what a click changes and tells.
#include "tests/platform/ControlDialog.h"

#include "platform/Button.h"
#include "platform/Static.h"
#include "platform/private/WindowPeer.h"

#include <QTest>
#include <QWindow>

namespace {

class Button : public testing::Test {
  protected:
    CButton& button(int id) { return dialog.control<CButton>(id); }

    ControlDialog dialog{ControlRows()
                             .add("BUTTON", "&Attivo", 100, BS_AUTOCHECKBOX | WS_TABSTOP)
                             .add("BUTTON", "Tre", 101, BS_AUTO3STATE | WS_TABSTOP)
                             .add("BUTTON", "A mano", 102, BS_CHECKBOX | WS_TABSTOP)
                             .radio("Uno", 201, true)
                             .radio("Due", 202)
                             .radio("Altro", 203, true)
                             .button("Dai && via", 300)
                             .button("OK", IDOK, BS_DEFPUSHBUTTON)};
    DialogDriver& user = dialog.user;
};

} // namespace

TEST_F(Button, OnlyTheUserClicks) {
    for (const int id : {100, 101, 202, 300})
        button(id).SetCheck(1);
    EXPECT_EQ(dialog.take(), Log{});
    EXPECT_EQ(button(100).GetCheck(), 1);
}

TEST_F(Button, ChecksChangeBeforeTheClickIsTold) {
    int seen = -1;
    dialog.onCommand = [&] { seen = button(100).GetCheck(); };
    user.Click(100);
    EXPECT_EQ(dialog.take(), Log{told(100, BN_CLICKED)});
    EXPECT_EQ(seen, 1);
    user.Press(VK_SPACE);
    EXPECT_EQ(button(100).GetCheck(), 0);
    dialog.take();
    user.Press('A', AltKey); // a shortcut of the toolkit's would click a second time, past PreTranslateMessage
    EXPECT_EQ(withoutFocus(dialog.take()), Log{told(100, BN_CLICKED)});
    EXPECT_EQ(button(100).GetCheck(), 1);
    EXPECT_EQ(user.Text(100) + user.Text(300), "&AttivoDai && via"); // the texts keep their ampersands
}

TEST_F(Button, ThreeStatesGoRoundAndAPlainBoxWaitsForTheProgram) {
    std::vector<int> states;
    for (int click = 0; click < 3; ++click) {
        user.Click(101);
        states.push_back(button(101).GetCheck());
    }
    EXPECT_EQ(states, (std::vector{1, 2, 0}));
    user.Click(102);
    EXPECT_EQ(button(102).GetCheck(), 0);
}

TEST_F(Button, ARadioButtonUnchecksItsGroupOnly) {
    button(201).SetCheck(1);
    button(203).SetCheck(1); // another group
    user.Click(202);
    EXPECT_EQ(dialog.GetCheckedRadioButton(201, 202), 202);
    EXPECT_EQ(button(201).GetCheck(), 0);
    EXPECT_EQ(button(203).GetCheck(), 1);
}

TEST_F(Button, AClickThatEndsOutsideOrOnADisabledButtonIsNone) {
    QWidget* widget = button(300).m_hWnd->widget;
    QWindow* window = widget->window()->windowHandle();
    const QPoint inside = widget->mapTo(widget->window(), widget->rect().center());
    QTest::mousePress(window, Qt::LeftButton, {}, inside);
    QTest::mouseMove(window, inside + QPoint(150, 0));
    QTest::mouseRelease(window, Qt::LeftButton, {}, inside + QPoint(150, 0));
    TestApp::PumpMessages();
    button(300).EnableWindow(FALSE);
    button(300).m_hWnd->click();
    EXPECT_EQ(withoutFocus(dialog.take()), Log{});
}

TEST(Static, TellsClicksOnlyWhenAskedTo) {
    ControlDialog dialog(
        ControlRows().add("STATIC", "muta", 100, SS_LEFT).add("STATIC", "parla", 101, SS_LEFT | SS_NOTIFY).edit(102));
    dialog.user.Click(100);
    dialog.user.Click(101);
    EXPECT_EQ(withoutFocus(dialog.take()), Log{told(101, STN_CLICKED)});
}
