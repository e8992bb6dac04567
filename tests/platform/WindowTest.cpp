// Styles, activation, the pointer, commands on their way, place and font of windows.
#include "platform/controls/Edit.h"
#include "platform/drawing/Gdi.h"
#include "platform/private/peers/WindowPeer.h"
#include "tests/platform/LoggedDialog.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

namespace {

void Move(CWnd& window, QPoint at) {
    QTest::mouseMove(window.m_hWnd->widget->windowHandle(), at);
    CWinApp::PumpMessages();
}

QPoint CenterOf(CWnd& dialog, int id) {
    return dialog.GetDlgItem(id)->m_hWnd->widget->geometry().center();
}

} // namespace

// A list window that closed took the focus from the dialog that the user typed in, whose field then committed.
TEST(Window, DestroyingAnInactiveOneLeavesTheFocusAlone) {
    Opened<> main;
    const TestTemplate source(TwoEdits());
    LoggedDialog list(&main), typed(&main);
    list.Open();
    DialogDriver user((typed.Open(), typed));
    user.SetFocus(100);
    DialogDriver::Wait(100); // a window manager may still be at the first one
    typed.log.clear();
    list.DestroyWindow();
    CWinApp::PumpMessages();
    EXPECT_EQ(CWnd::GetActiveWindow(), &typed);
    EXPECT_EQ(user.Focus(), 100);
    EXPECT_EQ(typed.log, Log{});
}

// Faults: a command run as soon as a dialog had ended found no active window, or one that lost its field a moment
// later.
TEST(Window, TheActiveOneHandsOnBeforeItsEndReturns) {
    Opened<> main;
    const TestTemplate source(TwoEdits());
    // A window manager takes its time, and may hand the activation round once more before it comes to rest.
    const bool managed = QGuiApplication::platformName() != "offscreen";
    const auto expectBack = [&](const char* how) {
        EXPECT_EQ(CWnd::GetActiveWindow(), &main) << how;
        EXPECT_EQ(CWnd::GetFocus(), main.GetDlgItem(101)) << how;
        EXPECT_EQ(main.log, Log{"active"}) << how;
        CWinApp::PumpMessages();
        DialogDriver::Wait(managed ? 150 : 50);
        EXPECT_EQ(CWnd::GetActiveWindow(), &main) << how << ", later";
        EXPECT_EQ(CWnd::GetFocus(), main.GetDlgItem(101)) << how << ", later";
        if (!managed) {
            EXPECT_EQ(main.log, Log{"active"}) << how << ", later";
        }
    };
    const auto open = [&](LoggedDialog& dialog) {
        main.user.SetFocus(101);
        DialogDriver(dialog).SetFocus(100);
        if (managed)
            DialogDriver::Wait(100);
        EXPECT_EQ(CWnd::GetActiveWindow(), &dialog);
        main.log.clear();
    };
    LoggedDialog tool(&main), ended(&main), modal(&main), inner(&tool);
    open((tool.Open(), tool));
    tool.DestroyWindow();
    expectBack("destroyed");
    open((ended.Open(), ended));
    ended.EndDialog(IDOK);
    expectBack("ended");
    modal.Run([&](DialogDriver& user) {
        main.log.clear();
        user.Click(IDCANCEL);
    });
    expectBack("modal");
    // The owner has gone out of sight before: its own owner is next.
    tool.Open();
    open((inner.Open(), inner));
    tool.ShowWindow(SW_HIDE);
    inner.EndDialog(IDOK);
    expectBack("owner hidden");
}

// A handler that follows the activation touched controls which the handler of the end had given up.
TEST(Window, ActivationIsNotToldAfterTheEnd) {
    Opened<> dialog;
    dialog.log.clear();
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.log, (Log{"left", "inactive", "destroy, children there", "gone"}));
}

TEST(Window, ItsStyleTellsItsStateAndChangesIt) {
    Opened<> dialog;
    CWnd& edit = *dialog.GetDlgItem(100);
    const auto state = [&] { return edit.GetStyle() & (WS_VISIBLE | WS_DISABLED); };
    EXPECT_EQ(state(), DWORD{WS_VISIBLE});
    edit.ShowWindow(SW_HIDE);
    edit.EnableWindow(FALSE);
    EXPECT_EQ(state(), DWORD{WS_DISABLED});
    EXPECT_TRUE(edit.ModifyStyle(WS_DISABLED, WS_VISIBLE));
    EXPECT_TRUE(edit.IsWindowVisible() && edit.IsWindowEnabled());
    EXPECT_FALSE(edit.ModifyStyle(WS_DISABLED, WS_VISIBLE)) << "nothing to change";
    EXPECT_TRUE(edit.ModifyStyle(WS_VISIBLE, WS_DISABLED));
    EXPECT_FALSE(edit.IsWindowVisible() || edit.IsWindowEnabled());
    dialog.ShowWindow(SW_HIDE);
    EXPECT_FALSE(dialog.GetStyle() & WS_VISIBLE);
}

// The cross of a drawing stayed for good, over the buttons too.
TEST(Window, TheArrowReturnsWhereNobodyAnswers) {
    Opened<> dialog;
    const QWidget& edit = *dialog.GetDlgItem(100)->m_hWnd->widget;
    const QWidget& button = *dialog.GetDlgItem(200)->m_hWnd->widget;
    BOOL answers = TRUE;
    dialog.onMessage = [&](UINT message, WPARAM, LRESULT& result) -> BOOL {
        if (message != WM_SETCURSOR || !answers)
            return FALSE;
        SetCursor(StandardCursor::Cross);
        return result = TRUE;
    };
    Move(dialog, CenterOf(dialog, 200));
    EXPECT_EQ(button.cursor().shape(), Qt::CrossCursor);
    Move(dialog, CenterOf(dialog, 100));
    EXPECT_EQ(edit.cursor().shape(), Qt::CrossCursor);
    EXPECT_EQ(button.cursor().shape(), Qt::ArrowCursor);
    answers = FALSE;
    Move(dialog, CenterOf(dialog, 100) + QPoint(1, 0));
    EXPECT_EQ(edit.cursor().shape(), Qt::IBeamCursor) << "a field has its own";
}

// A disabled button that a handler watched took the mouse; what lies under it is the dialog.
TEST(Window, ADisabledControlHasNoMouse) {
    Opened<> dialog;
    class Watched : public CWnd {
      public:
        int messages = 0;
        BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
            messages += message >= WM_MOUSEMOVE && message <= WM_MOUSEWHEEL;
            return CWnd::OnWndMsg(message, wParam, lParam, result);
        }
    } button;
    button.SubclassDlgItem(200, &dialog);
    dialog.onMessage = [&](UINT message, WPARAM, LRESULT&) {
        if (message == WM_LBUTTONDOWN)
            dialog.log.push_back("pressed");
        return FALSE;
    };
    button.EnableWindow(FALSE);
    const QPoint at = CenterOf(dialog, 200);
    dialog.user.ClickAt(at.x(), at.y());
    EXPECT_EQ(button.messages, 0);
    EXPECT_EQ(dialog.Count("pressed"), 1);
    button.EnableWindow();
    dialog.user.Click(200);
    EXPECT_GT(button.messages, 0);
    EXPECT_EQ(dialog.Count("pressed"), 1);
    button.Detach();
}

// The standard commands of a dialog's menu are its owner's or the application's; its buttons are its own.
TEST(Window, ACommandGoesOnToTheOwnerAndToTheApplication) {
    class Owner : public LoggedDialog {
      public:
        BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
            log.push_back("command " + std::to_string(LOWORD(wParam)));
            return LOWORD(wParam) == 0x8001 || LoggedDialog::OnCommand(wParam, lParam);
        }
    };
    Opened<Owner> owner;
    Opened<LoggedDialog> other;
    const TestTemplate source(TwoEdits());
    LoggedDialog dialog(&owner);
    dialog.Open();
    owner.log.clear();
    std::vector<UINT> asked;
    TestApp::Instance().commandHandler = [&](UINT command) { return asked.push_back(command), TRUE; };
    for (const WPARAM command : {WPARAM{0x8001}, WPARAM{57600}, MAKEWPARAM(57600, EN_CHANGE), WPARAM{555}})
        dialog.SendMessage(WM_COMMAND, command);
    std::erase(owner.log, "inactive");
    EXPECT_EQ(owner.log, (Log{"command 32769", "command 57600"}));
    EXPECT_EQ(asked, std::vector<UINT>{57600});
    dialog.SendMessage(WM_COMMAND, 200);
    EXPECT_EQ(dialog.Count("button"), 1);
    TestApp::Instance().commandHandler = nullptr;
}

TEST(Window, AFixedFrameIsSizedByTheProgramOnly) {
    Opened<> dialog;
    CRect rect;
    dialog.MoveWindow(10, 10, 320, 240);
    CWinApp::PumpMessages();
    dialog.GetWindowRect(rect);
    EXPECT_EQ(rect.Size(), CSize(320, 240));
    EXPECT_EQ(dialog.m_hWnd->widget->minimumSize(), dialog.m_hWnd->widget->maximumSize());
}

TEST(Window, HasTheBoxesThatItsTemplateNames) {
    for (const DWORD box : {DWORD{0}, DWORD{WS_MINIMIZEBOX}}) {
        const TestTemplate source(TwoEdits(), WS_POPUP | WS_CAPTION | WS_SYSMENU | box);
        LoggedDialog dialog;
        dialog.Open();
        EXPECT_EQ(bool(dialog.m_hWnd->widget->windowFlags() & Qt::WindowMinimizeButtonHint), box != 0);
    }
}

// A dialog's own font is no business of its controls.
TEST(Window, AFontIsTheWindowsOwn) {
    Opened<> dialog;
    CFont large;
    large.CreatePointFont(240, "Arial");
    const QFont before = dialog.GetDlgItem(100)->m_hWnd->widget->font();
    dialog.SetFont(&large);
    EXPECT_EQ(dialog.GetDlgItem(100)->m_hWnd->widget->font(), before);
    dialog.GetDlgItem(100)->SetFont(&large);
    EXPECT_NE(dialog.GetDlgItem(100)->m_hWnd->widget->font(), before);
}

// A box with a caption of its own went past the declared ones of a test.
TEST(Window, ItsMessageBoxesPassTheApplication) {
    Opened<> dialog;
    const Boxes boxes;
    EXPECT_EQ(dialog.MessageBox("Uno", "Titolo"), IDOK);
    EXPECT_EQ(dialog.MessageBox("Due"), IDOK);
    EXPECT_EQ(boxes.texts, (Log{"Uno", "Due"}));
}
