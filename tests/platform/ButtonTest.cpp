// Buttons: what a click changes and tells.
#include "tests/platform/ControlDialog.h"

#include "platform/Button.h"
#include "platform/Static.h"
#include "platform/private/WindowPeer.h"

#include <QTest>
#include <QWindow>

namespace {

ControlRows buttons() {
    return ControlRows()
        .add("BUTTON", "&Attivo", 100, BS_AUTOCHECKBOX | WS_TABSTOP)
        .add("BUTTON", "Tre", 101, BS_AUTO3STATE | WS_TABSTOP)
        .add("BUTTON", "A mano", 102, BS_CHECKBOX | WS_TABSTOP)
        .radio("Uno", 201, true)
        .radio("Due", 202)
        .radio("Altro", 203, true)
        .button("Dai && via", 300)
        .button("OK", IDOK, BS_DEFPUSHBUTTON);
}

} // namespace

TEST(Button, OnlyTheUserClicks) {
    ControlDialog dialog(buttons());
    dialog.take();
    for (const int id : {100, 101, 202, 300})
        dialog.control<CButton>(id).SetCheck(1);
    EXPECT_EQ(dialog.take(), Log{});
    EXPECT_EQ(dialog.control<CButton>(100).GetCheck(), 1);
}

TEST(Button, ChecksChangeBeforeTheClickIsTold) {
    ControlDialog dialog(buttons());
    auto& box = dialog.control<CButton>(100);
    int seen = -1;
    dialog.onCommand = [&] { seen = box.GetCheck(); };
    DialogDriver user(dialog);
    dialog.take();
    user.Click(100);
    EXPECT_EQ(dialog.take(), Log{told(100, BN_CLICKED)});
    EXPECT_EQ(seen, 1);
    user.Press(VK_SPACE);
    EXPECT_EQ(box.GetCheck(), 0);
    user.Press('A', AltKey); // its mnemonic
    EXPECT_EQ(box.GetCheck(), 1);
    dialog.take();
}

TEST(Button, ThreeStatesGoRoundAndAPlainBoxWaitsForTheProgram) {
    ControlDialog dialog(buttons());
    DialogDriver user(dialog);
    auto& three = dialog.control<CButton>(101);
    std::vector<int> states;
    for (int click = 0; click < 3; ++click) {
        user.Click(101);
        states.push_back(three.GetCheck());
    }
    EXPECT_EQ(states, (std::vector{1, 2, 0}));
    user.Click(102);
    EXPECT_EQ(dialog.control<CButton>(102).GetCheck(), 0);
}

TEST(Button, ARadioButtonUnchecksItsGroupOnly) {
    ControlDialog dialog(buttons());
    dialog.control<CButton>(201).SetCheck(1);
    dialog.control<CButton>(203).SetCheck(1); // another group
    DialogDriver user(dialog);
    user.Click(202);
    EXPECT_EQ(dialog.GetCheckedRadioButton(201, 202), 202);
    EXPECT_EQ(dialog.control<CButton>(201).GetCheck(), 0);
    EXPECT_EQ(dialog.control<CButton>(203).GetCheck(), 1);
}

TEST(Button, TextsKeepTheirAmpersandsAndMakeNoShortcuts) {
    ControlDialog dialog(buttons());
    EXPECT_EQ(dialog.GetDlgItem(100)->GetWindowText(), CString("&Attivo"));
    EXPECT_EQ(dialog.GetDlgItem(300)->GetWindowText(), CString("Dai && via"));
    // A shortcut of the toolkit's would click a second time, past PreTranslateMessage.
    DialogDriver user(dialog);
    dialog.take();
    user.Press('A', AltKey);
    EXPECT_EQ(withoutFocus(dialog.take()), Log{told(100, BN_CLICKED)});
}

TEST(Button, AClickThatEndsOutsideOrOnADisabledButtonIsNone) {
    ControlDialog dialog(buttons());
    QWidget* button = dialog.GetDlgItem(300)->m_hWnd->widget;
    QWindow* window = button->window()->windowHandle();
    const QPoint inside = button->mapTo(button->window(), button->rect().center());
    QTest::mousePress(window, Qt::LeftButton, {}, inside);
    QTest::mouseMove(window, inside + QPoint(150, 0));
    QTest::mouseRelease(window, Qt::LeftButton, {}, inside + QPoint(150, 0));
    TestApp::PumpMessages();
    EXPECT_EQ(withoutFocus(dialog.take()), Log{});
    dialog.GetDlgItem(300)->EnableWindow(FALSE);
    dialog.GetDlgItem(300)->m_hWnd->click();
    EXPECT_EQ(withoutFocus(dialog.take()), Log{});
}

TEST(Static, TellsClicksOnlyWhenAskedTo) {
    ControlDialog dialog(
        ControlRows().add("STATIC", "muta", 100, SS_LEFT).add("STATIC", "parla", 101, SS_LEFT | SS_NOTIFY).edit(102));
    DialogDriver user(dialog);
    dialog.take();
    user.Click(100);
    user.Click(101);
    EXPECT_EQ(withoutFocus(dialog.take()), Log{told(101, STN_CLICKED)});
}
