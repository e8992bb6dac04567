// What dialogs rely on: life of windows, order of messages, the keys of a dialog, focus at opening, modality.
#include "platform/controls/Edit.h"
#include "tests/platform/LoggedDialog.h"

TEST(Dialog, DialogUnitsAreTheSameOnEveryMachine) {
    const TestTemplate source(TwoEdits(), WS_POPUP | WS_CAPTION | WS_VISIBLE, 84, 64);
    LoggedDialog dialog;
    ASSERT_TRUE(dialog.Open());
    CRect client;
    dialog.GetClientRect(client);
    EXPECT_EQ(client.Size(), CSize(126, 104));
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
    EXPECT_FALSE(dialog.UpdateData() || dialog.DestroyWindow() || dialog.KillTimer(1));
    EXPECT_EQ(dialog.GetDlgItem(1), nullptr);
    EXPECT_EQ(dialog.SendMessage(WM_COMMAND, IDOK), 0);
    CEdit edit;
    edit.SetSel(0, -1);
    edit.ReplaceSel("x");
}

TEST(Dialog, FirstTabStopHasTheFocusUnlessTheDialogSetItItself) {
    const TestTemplate source(ControlRows().Label("n.ro").Edit(100).Disabled().Edit(101).Edit(102));
    for (const bool itself : {false, true}) {
        LoggedDialog dialog;
        dialog.focusResult = !itself;
        dialog.onInit = [&](CWnd& window) {
            if (itself)
                window.GetDlgItem(102)->SetFocus();
        };
        ASSERT_TRUE(dialog.Open());
        EXPECT_EQ(DialogDriver(dialog).Focus(), itself ? 102 : 101);
    }
}

// Faults: keys that need the buttons, or the focus on them.
TEST(Dialog, EnterAndEscapeAreTheDefaultButtonAndCancel) {
    const auto enter = [](DialogDriver& user) { user.Press(VK_RETURN); };
    const auto escape = [](DialogDriver& user) { user.Press(VK_ESCAPE); };
    for (const ControlRows& rows : {TwoEdits(), ControlRows().Edit(100)}) {
        const TestTemplate source(rows);
        LoggedDialog dialog;
        EXPECT_EQ(dialog.Run(enter), IDOK);
        EXPECT_EQ(dialog.Run(escape), IDCANCEL);
        EXPECT_EQ(dialog.Run([](DialogDriver& user) { user.CloseBox(); }), IDCANCEL);
    }
    const TestTemplate source(ControlRows().Edit(100).Button("OK", IDOK, BS_DEFPUSHBUTTON).Disabled());
    LoggedDialog dialog;
    bool stillOpen = false;
    const auto both = [&](DialogDriver& user) {
        enter(user); // eaten by the disabled default
        stillOpen = user.IsOpen();
        escape(user);
    };
    EXPECT_EQ(dialog.Run(both), IDCANCEL);
    EXPECT_TRUE(stillOpen);
}

TEST(Dialog, TabFollowsTheTemplateAndEntersAGroupAtItsCheckedButton) {
    Opened<> dialog(ControlRows()
                        .Edit(100)
                        .Radio("X", 301, true)
                        .Radio("Y", 302)
                        .Radio("Z", 303)
                        .Button("OK", IDOK, BS_DEFPUSHBUTTON | WS_GROUP)
                        .Button("Annulla", IDCANCEL),
                    [](LoggedDialog& made) { made.CheckRadioButton(301, 303, 302); });
    for (const int focus : {100, 302, int{IDOK}, int{IDCANCEL}}) {
        EXPECT_EQ(dialog.user.Focus(), focus);
        dialog.user.Press(VK_TAB);
    }
    EXPECT_EQ(dialog.user.Focus(), 100);
    dialog.user.Press(VK_TAB, ShiftKey);
    EXPECT_EQ(dialog.user.Focus(), 2);
    EXPECT_EQ(dialog.Count("radio 302"), 0); // passing through clicks nothing
}

TEST(Dialog, ArrowsInARadioGroupClickTheButtonThatTheyCheck) {
    Opened<> dialog(
        ControlRows().Radio("X", 301, true).Radio("Y", 302).Radio("Z", 303).Add("EDIT", "", 100, WS_TABSTOP | WS_GROUP),
        [](LoggedDialog& made) { made.CheckRadioButton(301, 303, 303); });
    DialogDriver& user = dialog.user;
    EXPECT_EQ(user.Focus(), 303);
    user.Press(VK_RIGHT); // round the corner, not out of the group
    EXPECT_EQ(user.Focus(), 301);
    EXPECT_TRUE(user.Checked(301));
    EXPECT_FALSE(user.Checked(303));
    EXPECT_EQ(dialog.Count("radio 301"), 1);
    user.Press(VK_UP);
    EXPECT_TRUE(user.Checked(303));
}

TEST(Dialog, MnemonicsGoToTheNextTabStopAndClickButtons) {
    Opened<> dialog(ControlRows()
                        .Edit(99)
                        .Label("n.ro &Copie :")
                        .Edit(100)
                        .Button("&Altro", 200)
                        .Add("BUTTON", "&Segmento", -1, BS_GROUPBOX)
                        .Edit(102));
    DialogDriver& user = dialog.user;
    user.Press('C', AltKey);
    EXPECT_EQ(user.Focus(), 100);
    user.TypeKeys("ca"); // in an edit a letter alone is text
    EXPECT_EQ(user.Text(100), "ca");
    EXPECT_EQ(dialog.Count("button"), 0);
    user.Press('A', AltKey);
    EXPECT_EQ(dialog.Count("button"), 1); // at once, not after the toolkit's animation
    user.Press('C');                      // on a button a letter alone is a mnemonic
    EXPECT_EQ(user.Focus(), 100);
    user.Press('S', AltKey);
    EXPECT_EQ(user.Focus(), 102);
}

TEST(Dialog, AModalDialogRestsItsParentReturnsItsCodeAndEndsWithItsOwner) {
    Opened<> parent;
    LoggedDialog dialog(&parent);
    BOOL parentEnabled = TRUE;
    const auto script = [&](DialogDriver&) {
        parentEnabled = parent.IsWindowEnabled();
        dialog.EndDialog(77);
    };
    EXPECT_EQ(dialog.Run(script), 77);
    EXPECT_FALSE(parentEnabled);
    EXPECT_TRUE(parent.IsWindowEnabled());
    dialog.onInit = [](LoggedDialog& ended) { ended.EndDialog(5); }; // the loop never starts
    EXPECT_EQ(dialog.DoModal(), 5);
    // A nested loop without its window would never end, and the program with it.
    dialog.onInit = {};
    dialog.log.clear();
    EXPECT_EQ(dialog.Run([&](DialogDriver&) { parent.DestroyWindow(); }), IDCANCEL);
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
    EXPECT_EQ(dialog.Count("destroy, children there"), 1);
}

TEST(Window, TimersAreRestartedByTheirIdAndEndWithTheWindow) {
    Opened<> dialog;
    dialog.SetTimer(3, 5);
    dialog.SetTimer(3, 60000); // the same timer, now far away
    dialog.SetTimer(4, 1);
    while (!dialog.Count("timer 4"))
        CWinApp::PumpMessages();
    EXPECT_TRUE(dialog.KillTimer(4));
    EXPECT_FALSE(dialog.KillTimer(4));
    EXPECT_EQ(dialog.Count("timer 3"), 0);
    dialog.SetTimer(3, 0);
    dialog.DestroyWindow();
    dialog.log.clear();
    CWinApp::PumpMessages();
    EXPECT_TRUE(dialog.log.empty());
}

TEST(Window, PostedMessagesComeThroughTheLoopAndTheRawHookSeesThemFirst) {
    Opened<> dialog;
    dialog.onMessage = [&](UINT message, WPARAM wParam, LRESULT& result) {
        if (message != WM_FIRST)
            return FALSE;
        dialog.log.push_back("hook " + std::to_string(wParam));
        result = 42;
        return TRUE;
    };
    dialog.log.clear();
    dialog.PostMessage(WM_FIRST, 1);
    EXPECT_EQ(dialog.SendMessage(WM_FIRST, 2), 42);
    EXPECT_EQ(dialog.log, Log{"hook 2"});
    CWinApp::PumpMessages();
    EXPECT_EQ(dialog.Count("hook 1"), 1);
}

TEST(Window, ResizingTellsTheNewSizeOnce) {
    const TestTemplate source(TwoEdits(), WS_POPUP | WS_CAPTION | WS_VISIBLE | WS_THICKFRAME);
    LoggedDialog dialog;
    ASSERT_TRUE(dialog.Open());
    CWinApp::PumpMessages();
    dialog.log.clear();
    dialog.SetWindowPos(nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER);
    CWinApp::PumpMessages();
    CRect window, client;
    dialog.GetWindowRect(window);
    EXPECT_EQ(window.Width(), 400); // with the frame
    dialog.GetClientRect(client);
    const Log once{"size " + std::to_string(client.Width()) + "x" + std::to_string(client.Height())};
    EXPECT_EQ(dialog.log, once);
    dialog.SetWindowPos(nullptr, 10, 10, 400, 300, SWP_NOZORDER);
    CWinApp::PumpMessages();
    EXPECT_EQ(dialog.log, once);
}

TEST(Window, TheContextMenuComesFromTheRightButtonAndFromTheKeyboard) {
    Opened<> dialog(ControlRows().Button("&Altro", 200).Edit(100));
    dialog.user.RightClick(200);
    EXPECT_EQ(dialog.Count("menu over 200"), 1);
    CRect rect;
    dialog.GetDlgItem(200)->GetWindowRect(rect);
    EXPECT_TRUE(rect.PtInRect(dialog.menuPoint)); // a point of the screen
    dialog.user.Press(VK_APPS);
    EXPECT_EQ(dialog.Count("menu over 200"), 2);
}

// A handler may end its own dialog, window and object, from inside any message.
TEST(Window, AHandlerMayDeleteItsDialog) {
    class Suicidal : public LoggedDialog {
      public:
        bool* deleted = nullptr;

      protected:
        void OnOK() override { DestroyWindow(); }
        void PostNcDestroy() override {
            *deleted = true;
            delete this;
        }
    };
    for (const bool byMouse : {true, false}) {
        bool deleted = false;
        auto* dialog = new Opened<Suicidal>;
        dialog->deleted = &deleted;
        DialogDriver user = dialog->user;
        if (byMouse)
            user.Click(IDOK);
        else
            user.Press(VK_RETURN);
        EXPECT_TRUE(deleted);
        EXPECT_FALSE(user.IsOpen());
    }
}

TEST(Window, ControlsAreFoundWithTheirKindAndAttachedOnce) {
    Opened<> dialog;
    CWnd* found = dialog.GetDlgItem(100);
    EXPECT_EQ(found, dialog.GetDlgItem(100));
    EXPECT_EQ(dialog.GetDlgItem(999), nullptr);
    EXPECT_EQ(found->GetParent(), &dialog);
    CWnd member;
    EXPECT_TRUE(member.SubclassDlgItem(100, &dialog));
    EXPECT_EQ(dialog.GetDlgItem(100), &member);
    EXPECT_FALSE(member.SubclassDlgItem(101, &dialog)); // it has a window already
    found->SetWindowText("x");                          // the former object has none any more
    EXPECT_EQ(member.GetWindowText(), CString());
}
