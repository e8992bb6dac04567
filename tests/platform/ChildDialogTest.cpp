// A dialog inside another window: its frame, its mouse and its keys.
#include "platform/private/peers/WindowPeer.h"
#include "tests/platform/LoggedDialog.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace {

// What a dialog lies over: it counts what falls through to it.
class Ground : public CWnd {
  public:
    Ground() {
        Create(nullptr, "Vista", WS_VISIBLE, CRect(0, 0, 500, 400), nullptr, 0);
        DialogDriver(*this).Activate();
        SetFocus();
    }
    Log log;

    void Mouse(QEvent::Type type, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
        QWindow* window = m_hWnd->widget->windowHandle();
        if (type == QEvent::MouseButtonPress)
            QTest::mousePress(window, button, {}, at);
        else if (type == QEvent::MouseButtonRelease)
            QTest::mouseRelease(window, button, {}, at);
        else
            QTest::mouseMove(window, at);
        CWinApp::PumpMessages();
    }
    void Click(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
        Mouse(QEvent::MouseMove, at);
        Mouse(QEvent::MouseButtonPress, at, button);
        Mouse(QEvent::MouseButtonRelease, at, button);
    }
    void Drag(QPoint from, QPoint by) {
        Mouse(QEvent::MouseMove, from);
        Mouse(QEvent::MouseButtonPress, from);
        Mouse(QEvent::MouseMove, from + by);
        Mouse(QEvent::MouseButtonRelease, from + by);
    }
    void Key(Qt::Key key) {
        QTest::keyClick(m_hWnd->widget->windowHandle(), key);
        CWinApp::PumpMessages();
    }

  protected:
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override {
        if (message >= WM_LBUTTONDOWN && message <= WM_MOUSEWHEEL)
            log.push_back("mouse");
        if (message == WM_KEYDOWN || message == WM_CHAR)
            log.push_back("key");
        return CWnd::OnWndMsg(message, wParam, lParam, result);
    }
};

constexpr DWORD framed = WS_CHILD | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_VISIBLE;

// One over the ground at (100, 50), 200 x 150 with its frame.
class Legend : public LoggedDialog {
    TestTemplate m_template;

  public:
    explicit Legend(Ground& ground, const ControlRows& rows = ControlRows().Label("Scala", 300))
        : LoggedDialog(&ground), m_template(rows, framed) {
        onMessage = [this](UINT message, WPARAM wParam, LRESULT&) {
            if (message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN)
                log.push_back("pressed");
            if (message == WM_NCMOUSEMOVE)
                log.push_back(wParam == HTCAPTION ? "caption" : "border");
            return FALSE;
        };
        Open();
        MoveWindow(100, 50, 200, 150);
        CWinApp::PumpMessages();
        log.clear();
    }
    CRect Place() const { // in the ground
        CRect rect;
        GetWindowRect(rect);
        GetParent()->ScreenToClient(rect);
        return rect;
    }
    bool HasFocus() const { return CWnd::GetFocus() && (CWnd::GetFocus() == this || IsChild(CWnd::GetFocus())); }

  protected:
    void OnCancel() override { DestroyWindow(); }
};

} // namespace

// Faults: no frame, so that the placement's size was the client's; clicks and the wheel reaching the view behind; no
// focus, so that Escape went to the view.
TEST(ChildDialog, HasItsFrameItsMouseAndItsKeys) {
    Ground ground;
    Legend dialog(ground);
    EXPECT_EQ(dialog.Place(), CRect(100, 50, 300, 200));
    CRect client;
    dialog.GetClientRect(client);
    EXPECT_LT(client.Width(), 200);
    EXPECT_LT(client.Height(), 150 - 10); // border and caption
    CPoint corner(0, 0);
    dialog.ClientToScreen(corner);
    ground.ScreenToClient(corner);
    EXPECT_GT(corner.y, 60);

    EXPECT_TRUE(dialog.HasFocus());
    ground.Click({400, 300});
    EXPECT_EQ(ground.log.size(), 2u);
    ground.SetFocus();
    ground.log.clear();
    ground.Click({200, 130});
    EXPECT_TRUE(dialog.HasFocus());
    ground.Click({200, 130}, Qt::RightButton);
    EXPECT_EQ(dialog.Count("pressed"), 2);
    QWidget* surface = dialog.m_hWnd->Surface();
    QWheelEvent wheel({20, 20}, surface->mapToGlobal(QPointF(20, 20)), {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(surface, &wheel);
    ground.Key(Qt::Key_F5);
    ground.Key(Qt::Key_Escape);
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
    EXPECT_EQ(ground.log, Log{});
    EXPECT_EQ(CWnd::GetFocus(), &ground) << "the view goes on with the keys";
}

// Faults: a caption that cannot be taken hold of, borders that size the wrong way, a frame without its messages, a
// dialog that is lost outside its view.
TEST(ChildDialog, IsMovedByItsCaptionAndSizedByItsBorder) {
    Ground ground;
    Legend dialog(ground);
    ground.Drag({180, 60}, {30, 20});
    EXPECT_EQ(dialog.Place(), CRect(130, 70, 330, 220));
    EXPECT_GT(dialog.Count("caption"), 0);
    ground.Drag({329, 150}, {-40, 7});
    EXPECT_EQ(dialog.Place(), CRect(130, 70, 290, 220));
    EXPECT_GT(dialog.Count("border"), 0);
    EXPECT_EQ(dialog.log.back().substr(0, 5), "size ");
    ground.Drag({131, 71}, {10, 10});
    EXPECT_EQ(dialog.Place(), CRect(140, 80, 290, 220));
    ground.Drag({180, 90}, {0, -85});
    EXPECT_EQ(dialog.Place().top, 0);
    ground.Click({280, 12}); // the close box
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr);
}

// A click on the ground must not take the focus from a field, which would commit it, nor lose the keys of a field.
TEST(ChildDialog, KeepsTheFocusOfItsControls) {
    Ground ground;
    Legend dialog(ground, ControlRows().Edit(100).Button("Altro", 200));
    EXPECT_EQ(CWnd::GetFocus(), dialog.GetDlgItem(100));
    ground.Click({290, 180});
    EXPECT_EQ(CWnd::GetFocus(), dialog.GetDlgItem(100));
    EXPECT_EQ(dialog.Count("left"), 0);
    ground.Key(Qt::Key_Tab);
    EXPECT_EQ(CWnd::GetFocus(), dialog.GetDlgItem(200));
    ground.SetFocus();
    ground.Click({290, 180});
    EXPECT_EQ(CWnd::GetFocus(), dialog.GetDlgItem(100));
    EXPECT_EQ(ground.log, Log{});
}

// Faults: keys that go to another legend, or nowhere, after one ended, perhaps while a tool window had the activation;
// a view that takes the focus from whoever has it.
TEST(ChildDialog, GivesTheFocusBackToItsView) {
    Ground ground;
    Legend other(ground, ControlRows().Edit(100));
    const auto expectBack = [&](Legend& dialog, const std::function<void()>& end) {
        DialogDriver(dialog).SetFocus(100);
        end();
        DialogDriver(ground).Activate();
        EXPECT_EQ(CWnd::GetFocus(), &ground);
        ground.Key(Qt::Key_F5);
        EXPECT_EQ(ground.log, Log{"key"});
        ground.log.clear();
    };
    Legend destroyed(ground, ControlRows().Edit(100)), ended(ground, ControlRows().Edit(100)),
        behind(ground, ControlRows().Edit(100));
    expectBack(destroyed, [&] { destroyed.DestroyWindow(); });
    expectBack(ended, [&] { ended.EndDialog(IDOK); });
    expectBack(behind, [&] {
        const Opened<> tool;
        behind.DestroyWindow();
    });
    Legend last(ground, ControlRows().Edit(100));
    other.EndDialog(IDOK);
    EXPECT_TRUE(last.HasFocus());
}
