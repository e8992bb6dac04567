// What dialogs rely on: life of windows, order of messages, the keys of a dialog, focus at opening, modality.
#include "tests/platform/TestDialogs.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/TestApp.h"

#include <gtest/gtest.h>

#include <QTimer>

#include <functional>
#include <string>
#include <vector>

namespace {

using Log = std::vector<std::string>;

// Writes down what it is told.
class LoggedDialog : public CDialog {
  public:
    explicit LoggedDialog(CWnd* parent = nullptr) : CDialog(1, parent) {}

    Log log;
    BOOL focusResult = TRUE;
    std::function<void()> onInit;
    std::function<void(DialogDriver&)> script; // what the user does once the modal dialog is up

    BOOL Open() { return Create(1, m_pParentWnd); }
    int Run() {
        QTimer::singleShot(0, [this] {
            DialogDriver driver(*this);
            script(driver);
        });
        return DoModal();
    }

  protected:
    BOOL OnInitDialog() override {
        CDialog::OnInitDialog();
        log.push_back("init");
        if (onInit)
            onInit();
        return focusResult;
    }
    void OnSize(UINT, int cx, int cy) { log.push_back("size " + std::to_string(cx) + "x" + std::to_string(cy)); }
    void OnDestroy() {
        log.push_back(GetDlgItem(100) && GetDlgItem(100)->GetSafeHwnd() ? "destroy, children there" : "destroy");
    }
    void OnTimer(UINT_PTR id) { log.push_back("timer " + std::to_string(id)); }
    void OnActivate(UINT state, CWnd*, BOOL) { log.push_back(state == WA_INACTIVE ? "inactive" : "active"); }
    void OnContextMenu(CWnd* window, CPoint point) {
        log.push_back("menu over " + std::to_string(window ? window->GetDlgCtrlID() : -1));
        menuPoint = point;
    }
    void OnButton() { log.push_back("button"); }
    void OnRadio(UINT id) { log.push_back("radio " + std::to_string(id)); }
    void OnKillFocusEdit() { log.push_back("edit left"); }
    void PostNcDestroy() override { log.push_back("gone"); }

  public:
    CPoint menuPoint;

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(LoggedDialog, CDialog)
    ON_WM_SIZE()
    ON_WM_DESTROY()
    ON_WM_TIMER()
    ON_WM_ACTIVATE()
    ON_WM_CONTEXTMENU()
    ON_BN_CLICKED(200, OnButton)
    ON_CONTROL_RANGE(BN_CLICKED, 301, 303, OnRadio)
    ON_EN_KILLFOCUS(100, OnKillFocusEdit)
END_MESSAGE_MAP()

bool contains(const Log& log, const std::string& line) {
    return std::find(log.begin(), log.end(), line) != log.end();
}

int countOf(const Log& log, const std::string& line) {
    return static_cast<int>(std::count(log.begin(), log.end(), line));
}

ControlRows twoEdits() {
    return ControlRows().edit(100).edit(101).button("OK", IDOK, BS_DEFPUSHBUTTON).button("Annulla", IDCANCEL);
}

} // namespace

TEST(Dialog, DialogUnitsAreTheSameOnEveryMachine) {
    const TestTemplate source(twoEdits(), WS_POPUP | WS_CAPTION | WS_VISIBLE, 84, 64);
    LoggedDialog dialog;
    ASSERT_TRUE(dialog.Open());
    CRect client;
    dialog.GetClientRect(client);
    EXPECT_EQ(client.Width(), 126);
    EXPECT_EQ(client.Height(), 104);
    EXPECT_EQ(dialog.log.front(), "size 126x104"); // at creation, before anything else
    EXPECT_EQ(dialog.log[1], "init");
}

// A window and its object live apart; whoever calls a closed dialog must not crash.
TEST(Dialog, OperationsWithoutAWindowAreHarmless) {
    LoggedDialog dialog;
    EXPECT_EQ(dialog.DoModal(), -1); // no template
    EXPECT_FALSE(dialog.Open());
    CRect rect;
    dialog.GetClientRect(rect);
    EXPECT_TRUE(rect.IsRectEmpty());
    dialog.SetWindowText("x");
    dialog.Invalidate();
    dialog.UpdateWindow();
    EXPECT_FALSE(dialog.UpdateData());
    EXPECT_FALSE(dialog.DestroyWindow());
    EXPECT_EQ(dialog.GetDlgItem(1), nullptr);
    EXPECT_EQ(dialog.SendMessage(WM_COMMAND, IDOK), 0);
    EXPECT_FALSE(dialog.KillTimer(1));
}

TEST(Dialog, DestructionReachesTheParentWhileItsChildrenExist) {
    const TestTemplate source(twoEdits());
    LoggedDialog dialog;
    ASSERT_TRUE(dialog.Open());
    CWnd* edit = dialog.GetDlgItem(100);
    ASSERT_TRUE(edit);
    dialog.log.clear();
    dialog.DestroyWindow();
    EXPECT_TRUE(contains(dialog.log, "destroy, children there"));
    EXPECT_EQ(dialog.log.back(), "gone");
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
}

// The focus leaves a closing dialog while its handlers can still read the controls.
TEST(Dialog, AnEditReportsTheFocusThatLeavesWithTheDialog) {
    const TestTemplate source(twoEdits());
    LoggedDialog dialog;
    ASSERT_TRUE(dialog.Open());
    DialogDriver driver(dialog);
    driver.SetFocus(100);
    dialog.log.clear();
    dialog.DestroyWindow();
    ASSERT_GE(dialog.log.size(), 2u);
    EXPECT_EQ(dialog.log[0], "edit left");
}

TEST(Dialog, FirstTabStopHasTheFocusUnlessTheDialogSetItItself) {
    const TestTemplate source(ControlRows().label("n.ro").edit(100).disabled().edit(101).edit(102));
    {
        LoggedDialog dialog;
        ASSERT_TRUE(dialog.Open());
        EXPECT_EQ(DialogDriver(dialog).Focus(), 101);
    }
    LoggedDialog dialog;
    dialog.focusResult = FALSE;
    dialog.onInit = [&] { dialog.GetDlgItem(102)->SetFocus(); };
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(DialogDriver(dialog).Focus(), 102);
}

TEST(Dialog, EnterAndEscapeAreTheDefaultButtonAndCancelAndMoveNoFocus) {
    const TestTemplate source(twoEdits());
    LoggedDialog dialog;
    int focusAtEnd = 0;
    dialog.script = [&](DialogDriver& user) {
        user.SetFocus(101);
        focusAtEnd = user.Focus();
        user.Press(VK_RETURN);
    };
    EXPECT_EQ(dialog.Run(), IDOK);
    EXPECT_EQ(focusAtEnd, 101);
    dialog.script = [](DialogDriver& user) { user.Press(VK_ESCAPE); };
    EXPECT_EQ(dialog.Run(), IDCANCEL);
    dialog.script = [](DialogDriver& user) { user.CloseBox(); };
    EXPECT_EQ(dialog.Run(), IDCANCEL);
}

TEST(Dialog, EnterNeedsNoButtonAndADisabledDefaultEatsIt) {
    {
        const TestTemplate source(ControlRows().edit(100)); // no buttons at all
        LoggedDialog dialog;
        dialog.script = [](DialogDriver& user) { user.Press(VK_RETURN); };
        EXPECT_EQ(dialog.Run(), IDOK);
        dialog.script = [](DialogDriver& user) { user.Press(VK_ESCAPE); };
        EXPECT_EQ(dialog.Run(), IDCANCEL);
    }
    const TestTemplate source(ControlRows().edit(100).button("OK", IDOK, BS_DEFPUSHBUTTON).disabled());
    LoggedDialog dialog;
    bool stillOpen = false;
    dialog.script = [&](DialogDriver& user) {
        user.Press(VK_RETURN);
        stillOpen = user.IsOpen();
        user.Press(VK_ESCAPE);
    };
    EXPECT_EQ(dialog.Run(), IDCANCEL);
    EXPECT_TRUE(stillOpen);
}

TEST(Dialog, EnterOnAnotherPushButtonClicksThatOne) {
    const TestTemplate source(twoEdits().button("Altro", 200));
    LoggedDialog dialog;
    ASSERT_TRUE(dialog.Open());
    DialogDriver user(dialog);
    user.SetFocus(200);
    user.Press(VK_RETURN);
    EXPECT_EQ(countOf(dialog.log, "button"), 1);
    EXPECT_TRUE(user.IsOpen());
}

TEST(Dialog, TabFollowsTheTemplateAndEntersAGroupAtItsCheckedButton) {
    const TestTemplate source(ControlRows()
                                  .edit(100)
                                  .radio("X", 301, true)
                                  .radio("Y", 302)
                                  .radio("Z", 303)
                                  .button("OK", IDOK, BS_DEFPUSHBUTTON | WS_GROUP)
                                  .button("Annulla", IDCANCEL));
    LoggedDialog dialog;
    dialog.onInit = [&] { dialog.CheckRadioButton(301, 303, 302); };
    ASSERT_TRUE(dialog.Open());
    DialogDriver user(dialog);
    Log order;
    for (int i = 0; i < 4; ++i) {
        order.push_back(std::to_string(user.Focus()));
        user.Press(VK_TAB);
    }
    EXPECT_EQ(order, (Log{"100", "302", "1", "2"}));
    EXPECT_EQ(user.Focus(), 100);
    user.Press(VK_TAB, ShiftKey);
    EXPECT_EQ(user.Focus(), 2);
    EXPECT_FALSE(contains(dialog.log, "radio 302")); // passing through clicks nothing
}

TEST(Dialog, ArrowsInARadioGroupClickTheButtonThatTheyCheck) {
    const TestTemplate source(ControlRows()
                                  .radio("X", 301, true)
                                  .radio("Y", 302)
                                  .radio("Z", 303)
                                  .add("EDIT", "", 100, WS_TABSTOP | WS_GROUP));
    LoggedDialog dialog;
    dialog.onInit = [&] { dialog.CheckRadioButton(301, 303, 303); };
    ASSERT_TRUE(dialog.Open());
    DialogDriver user(dialog);
    EXPECT_EQ(user.Focus(), 303);
    user.Press(VK_RIGHT); // round the corner, not out of the group
    EXPECT_EQ(user.Focus(), 301);
    EXPECT_TRUE(user.Checked(301));
    EXPECT_FALSE(user.Checked(303));
    EXPECT_EQ(countOf(dialog.log, "radio 301"), 1);
    user.Press(VK_UP);
    EXPECT_TRUE(user.Checked(303));
}

TEST(Dialog, MnemonicsGoToTheNextTabStopAndClickButtons) {
    const TestTemplate source(ControlRows()
                                  .edit(99)
                                  .label("n.ro &Copie :")
                                  .edit(100)
                                  .button("&Altro", 200)
                                  .label("&Gruppo")
                                  .radio("X", 301, true)
                                  .radio("Y", 302)
                                  .button("OK", IDOK, BS_DEFPUSHBUTTON | WS_GROUP));
    LoggedDialog dialog;
    dialog.onInit = [&] { dialog.CheckRadioButton(301, 302, 302); };
    ASSERT_TRUE(dialog.Open());
    DialogDriver user(dialog);
    user.Press('C', AltKey);
    EXPECT_EQ(user.Focus(), 100);
    user.TypeKeys("ca"); // in an edit a letter alone is text
    EXPECT_EQ(user.Text(100), "ca");
    EXPECT_FALSE(contains(dialog.log, "button"));
    user.Press('A', AltKey);
    EXPECT_EQ(countOf(dialog.log, "button"), 1); // at once, not after the toolkit's animation
    user.Press('C');                             // on a button a letter alone is a mnemonic
    EXPECT_EQ(user.Focus(), 100);
}

TEST(Dialog, APreTranslatedKeyIsConsumedBeforeNavigationSeesIt) {
    class Eater : public LoggedDialog {
      public:
        std::vector<UINT> seen;
        BOOL PreTranslateMessage(MSG* message) override {
            seen.push_back(static_cast<UINT>(message->wParam));
            return message->wParam == VK_TAB || LoggedDialog::PreTranslateMessage(message);
        }
    };
    const TestTemplate source(twoEdits());
    Eater dialog;
    ASSERT_TRUE(dialog.Open());
    DialogDriver user(dialog);
    user.Press(VK_TAB);
    EXPECT_EQ(user.Focus(), 100);
    user.Press('5');
    user.Press(VK_NUMPAD0 + 5);
    user.Press(VK_OEM_PERIOD);
    EXPECT_EQ(dialog.seen,
              (std::vector<UINT>{VK_TAB, '5', VK_NUMPAD0 + 5, VK_OEM_PERIOD})); // digits told from the keypad's
    EXPECT_EQ(user.Text(100), "55.");
}

TEST(Dialog, AModalDialogRestsItsParentAndReturnsItsCode) {
    const TestTemplate source(twoEdits());
    LoggedDialog parent;
    ASSERT_TRUE(parent.Open());
    LoggedDialog dialog(&parent);
    BOOL parentEnabled = TRUE;
    dialog.script = [&](DialogDriver&) {
        parentEnabled = parent.IsWindowEnabled();
        dialog.EndDialog(77);
    };
    EXPECT_EQ(dialog.Run(), 77);
    EXPECT_FALSE(parentEnabled);
    EXPECT_TRUE(parent.IsWindowEnabled());
    LoggedDialog ended; // EndDialog inside OnInitDialog: the loop never starts
    ended.onInit = [&] { ended.EndDialog(5); };
    EXPECT_EQ(ended.DoModal(), 5);
}

TEST(Window, TimersAreRestartedByTheirIdAndEndWithTheWindow) {
    const TestTemplate source(twoEdits());
    LoggedDialog dialog;
    ASSERT_TRUE(dialog.Open());
    dialog.SetTimer(3, 5);
    dialog.SetTimer(3, 60000); // the same timer, now far away
    dialog.SetTimer(4, 1);
    while (!contains(dialog.log, "timer 4"))
        CWinApp::PumpMessages();
    EXPECT_TRUE(dialog.KillTimer(4));
    EXPECT_FALSE(dialog.KillTimer(4));
    EXPECT_FALSE(contains(dialog.log, "timer 3"));
    dialog.SetTimer(3, 0);
    dialog.DestroyWindow();
    dialog.log.clear();
    CWinApp::PumpMessages();
    EXPECT_TRUE(dialog.log.empty());
}

TEST(Window, PostedMessagesComeThroughTheLoopAndTheRawHookSeesThemFirst) {
    class Hooked : public LoggedDialog {
      public:
        BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
            if (message == WM_USER + 5) {
                log.push_back("hook " + std::to_string(wParam));
                *result = 42;
                return TRUE;
            }
            return LoggedDialog::OnWndMsg(message, wParam, lParam, result);
        }
    };
    const TestTemplate source(twoEdits());
    Hooked dialog;
    ASSERT_TRUE(dialog.Open());
    dialog.log.clear();
    dialog.PostMessage(WM_USER + 5, 1);
    EXPECT_EQ(dialog.SendMessage(WM_USER + 5, 2), 42);
    EXPECT_EQ(dialog.log, Log{"hook 2"});
    CWinApp::PumpMessages();
    EXPECT_EQ(countOf(dialog.log, "hook 1"), 1);
}

TEST(Window, ResizingTellsTheNewSizeOnce) {
    const TestTemplate source(twoEdits(), WS_POPUP | WS_CAPTION | WS_VISIBLE | WS_THICKFRAME);
    LoggedDialog dialog;
    ASSERT_TRUE(dialog.Open());
    CWinApp::PumpMessages();
    dialog.log.clear();
    dialog.SetWindowPos(nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER);
    CWinApp::PumpMessages();
    CRect window;
    dialog.GetWindowRect(window);
    EXPECT_EQ(window.Width(), 400); // with the frame
    CRect client;
    dialog.GetClientRect(client);
    const Log once{"size " + std::to_string(client.Width()) + "x" + std::to_string(client.Height())};
    EXPECT_EQ(dialog.log, once);
    dialog.SetWindowPos(nullptr, 10, 10, 400, 300, SWP_NOZORDER);
    CWinApp::PumpMessages();
    EXPECT_EQ(dialog.log, once);
}

TEST(Window, TheContextMenuComesFromTheRightButtonAndFromTheKeyboard) {
    const TestTemplate source(ControlRows().button("&Altro", 200).edit(100));
    LoggedDialog dialog;
    ASSERT_TRUE(dialog.Open());
    DialogDriver user(dialog);
    user.RightClick(200);
    EXPECT_EQ(countOf(dialog.log, "menu over 200"), 1);
    CRect rect;
    dialog.GetDlgItem(200)->GetWindowRect(rect);
    EXPECT_TRUE(rect.PtInRect(dialog.menuPoint)); // a point of the screen
    user.Press(VK_APPS);
    EXPECT_EQ(countOf(dialog.log, "menu over 200"), 2);
}

// A handler may end its own dialog, window and object, from inside any message.
TEST(Window, AHandlerMayDeleteItsDialog) {
    class Suicidal : public LoggedDialog {
      public:
        explicit Suicidal(bool& d) : deleted(d) {}
        bool& deleted;

      protected:
        void OnOK() override { DestroyWindow(); }
        void PostNcDestroy() override {
            deleted = true;
            delete this;
        }
    };
    const TestTemplate source(twoEdits());
    for (const bool byMouse : {true, false}) {
        bool deleted = false;
        auto* dialog = new Suicidal(deleted);
        ASSERT_TRUE(dialog->Open());
        DialogDriver user(*dialog);
        if (byMouse)
            user.Click(IDOK);
        else
            user.Press(VK_RETURN);
        EXPECT_TRUE(deleted);
        EXPECT_FALSE(user.IsOpen());
    }
}

TEST(Window, ControlsAreFoundWithTheirKindAndAttachedOnce) {
    const TestTemplate source(twoEdits());
    LoggedDialog dialog;
    ASSERT_TRUE(dialog.Open());
    CWnd* found = dialog.GetDlgItem(100);
    EXPECT_EQ(found, dialog.GetDlgItem(100));
    EXPECT_EQ(dialog.GetDlgItem(999), nullptr);
    EXPECT_EQ(found->GetParent(), &dialog);
    CWnd member;
    EXPECT_TRUE(member.SubclassDlgItem(100, &dialog));
    EXPECT_EQ(dialog.GetDlgItem(100), &member);
    EXPECT_EQ(member.GetWindow(GW_HWNDNEXT)->GetDlgCtrlID(), 101);
    EXPECT_FALSE(member.SubclassDlgItem(101, &dialog)); // it has a window already
    found->SetWindowText("x");                          // the former object has none any more
    EXPECT_EQ(member.GetWindowText(), CString());
}
