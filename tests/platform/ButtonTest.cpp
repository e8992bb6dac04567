// Buttons: what a click changes and tells.
#include "tests/platform/ControlDialog.h"

#include "platform/controls/Button.h"
#include "platform/controls/ListBox.h"
#include "platform/controls/ListCtrl.h"
#include "platform/controls/Static.h"
#include "platform/private/peers/WindowPeer.h"

#include <QAbstractButton>
#include <QTest>
#include <QWindow>

#include <utility>

namespace {

class Button : public testing::Test {
  protected:
    CButton& Control(int id) { return m_dialog.Control<CButton>(id); }

    ControlDialog m_dialog{ControlRows()
                               .Add("BUTTON", "&Attivo", 100, BS_AUTOCHECKBOX | WS_TABSTOP)
                               .Add("BUTTON", "Tre", 101, BS_AUTO3STATE | WS_TABSTOP)
                               .Add("BUTTON", "A mano", 102, BS_CHECKBOX | WS_TABSTOP)
                               .Radio("Uno", 201, true)
                               .Radio("Due", 202)
                               .Radio("Altro", 203, true)
                               .Button("Dai && via", 300)
                               .Button("OK", IDOK, BS_DEFPUSHBUTTON)};
    DialogDriver& m_user = m_dialog.user;
};

} // namespace

TEST_F(Button, OnlyTheUserClicks) {
    for (const int id : {100, 101, 202, 300})
        Control(id).SetCheck(1);
    EXPECT_EQ(m_dialog.Take(), Log{});
    EXPECT_EQ(Control(100).GetCheck(), 1);
}

TEST_F(Button, ChecksChangeBeforeTheClickIsTold) {
    int seen = -1;
    m_dialog.onCommand = [&] { seen = Control(100).GetCheck(); };
    m_user.Click(100);
    EXPECT_EQ(m_dialog.Take(), Log{Told(100, BN_CLICKED)});
    EXPECT_EQ(seen, 1);
    m_user.Press(VK_SPACE);
    EXPECT_EQ(Control(100).GetCheck(), 0);
    m_dialog.Take();
    m_user.Press('A', AltKey); // a shortcut of the toolkit's would click a second time, past PreTranslateMessage
    EXPECT_EQ(WithoutFocus(m_dialog.Take()), Log{Told(100, BN_CLICKED)});
    EXPECT_EQ(Control(100).GetCheck(), 1);
    EXPECT_EQ(m_user.Text(100) + m_user.Text(300), "&AttivoDai && via"); // the texts keep their ampersands
}

TEST_F(Button, ThreeStatesGoRoundAndAPlainBoxWaitsForTheProgram) {
    std::vector<int> states;
    for (int click = 0; click < 3; ++click) {
        m_user.Click(101);
        states.push_back(Control(101).GetCheck());
    }
    EXPECT_EQ(states, (std::vector{1, 2, 0}));
    m_user.Click(102);
    EXPECT_EQ(Control(102).GetCheck(), 0);
}

TEST_F(Button, ARadioButtonUnchecksItsGroupOnly) {
    Control(201).SetCheck(1);
    Control(203).SetCheck(1); // another group
    m_user.Click(202);
    EXPECT_EQ(Control(202).GetCheck(), 1);
    EXPECT_EQ(Control(201).GetCheck(), 0);
    EXPECT_EQ(Control(203).GetCheck(), 1);
}

TEST_F(Button, AClickThatEndsOutsideOrOnADisabledButtonIsNone) {
    QWidget* widget = Control(300).m_hWnd->widget;
    QWindow* window = widget->window()->windowHandle();
    const QPoint inside = widget->mapTo(widget->window(), widget->rect().center());
    QTest::mousePress(window, Qt::LeftButton, {}, inside);
    QTest::mouseMove(window, inside + QPoint(150, 0));
    QTest::mouseRelease(window, Qt::LeftButton, {}, inside + QPoint(150, 0));
    TestApp::PumpMessages();
    Control(300).EnableWindow(FALSE);
    Control(300).m_hWnd->Click();
    EXPECT_EQ(WithoutFocus(m_dialog.Take()), Log{});
}

// The message box that leaving a field opens takes the release of the press that left it. Neither a button that stays
// sunken nor a list that selects without telling may come of it.
TEST(Presses, ThatEndedInAMessageBoxBeginNothing) {
    ControlDialog dialog(ControlRows()
                             .Edit(100)
                             .Button("Calcola", 300)
                             .Add("LISTBOX", "", 400, LBS_NOTIFY | WS_TABSTOP)
                             .Add("SysListView32", "", 500, LVS_REPORT | WS_TABSTOP));
    auto& box = dialog.Control<CListBox>(400);
    box.AddString("riga");
    auto& view = dialog.Control<CListCtrl>(500);
    view.InsertItem(0, "riga");
    for (const int id : {300, 400, 500}) {
        dialog.user.Click(100);
        dialog.Take();
        QWidget* surface = dialog.GetDlgItem(id)->m_hWnd->Surface();
        QWindow* window = surface->window()->windowHandle();
        const QPoint inside = surface->mapTo(surface->window(), QPoint(8, 4));
        dialog.onCommand = [&dialog, window] { // stands for the box
            const auto once = std::exchange(dialog.onCommand, nullptr);
            QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(1, 1));
        };
        QTest::mousePress(window, Qt::LeftButton, {}, inside);
        dialog.onCommand = nullptr;
        EXPECT_EQ(WithoutFocus(dialog.Take()), Log{}) << id;
    }
    EXPECT_FALSE(dynamic_cast<QAbstractButton&>(*dialog.GetDlgItem(300)->m_hWnd->widget).isDown());
    EXPECT_EQ(box.GetCurSel(), LB_ERR);
    EXPECT_EQ(view.GetSelectedCount(), 0u);
}

TEST(Static, TellsClicksOnlyWhenAskedTo) {
    ControlDialog dialog(
        ControlRows().Add("STATIC", "muta", 100, SS_LEFT).Add("STATIC", "parla", 101, SS_LEFT | SS_NOTIFY).Edit(102));
    dialog.user.Click(100);
    dialog.user.Click(101);
    EXPECT_EQ(WithoutFocus(dialog.Take()), Log{Told(101, STN_CLICKED)});
}
