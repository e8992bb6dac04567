// From the toolkit's events to messages.
#include "platform/core/Exception.h"
#include "platform/private/events/Cursor.h"
#include "platform/private/events/PostedMessage.h"
#include "platform/private/peers/WindowPeer.h"
#include "platform/window/Application.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

namespace platform {

namespace {

using Base = bool (*)(WindowPeer&, QEvent*);

// The event behind the message being dispatched. Its default handling runs at most once, when the message's default
// does.
struct Frame {
    WindowPeer& peer;
    QEvent* event;
    Base base;
    UINT message;
    bool ran = false;
    bool result = true;
};
Frame* currentFrame = nullptr;

// What became of an event: somebody took it, or the toolkit's handling ran and left it alone.
enum class Handling { Taken, Left };

// Dispatches one message on behalf of an event that was accepted before. A handler that does not ask for the default
// has taken the event.
Handling SendFor(WindowPeer& peer, QEvent* event, Base base, UINT message, WPARAM wParam, LPARAM lParam) {
    struct Restore { // also when something is thrown through the message
        Frame* outer = currentFrame;
        ~Restore() { currentFrame = outer; }
    } restore;
    Frame frame{peer, event, base, message};
    currentFrame = &frame;
    peer.Send(message, wParam, lParam);
    return frame.ran && !(frame.result && event->isAccepted()) ? Handling::Left : Handling::Taken;
}

CPoint ToPoint(const QPointF& point) {
    return {static_cast<int>(point.x()), static_cast<int>(point.y())};
}

WPARAM MouseFlags(const QSinglePointEvent& event) {
    const Qt::MouseButtons buttons = event.buttons();
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    return (buttons & Qt::LeftButton ? MK_LBUTTON : 0u) | (buttons & Qt::RightButton ? MK_RBUTTON : 0u) |
           (buttons & Qt::MiddleButton ? MK_MBUTTON : 0u) | (modifiers & Qt::ShiftModifier ? MK_SHIFT : 0u) |
           (modifiers & Qt::ControlModifier ? MK_CONTROL : 0u);
}

UINT MouseMessage(const QMouseEvent& event) {
    const UINT base = event.button() == Qt::RightButton    ? WM_RBUTTONDOWN
                      : event.button() == Qt::MiddleButton ? WM_MBUTTONDOWN
                                                           : WM_LBUTTONDOWN;
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        return base;
    case QEvent::MouseButtonRelease:
        return base + 1;
    case QEvent::MouseButtonDblClick:
        return base + 2;
    default:
        return WM_MOUSEMOVE;
    }
}

void SendContextMenu(WindowPeer& peer, QPoint screen) {
    peer.Send(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(&peer), MAKELPARAM(screen.x(), screen.y()));
}

bool DispatchMouse(WindowPeer& peer, QMouseEvent& event, Base base) {
    const QPointer<QWidget> alive = peer.widget;
    const PointerTarget target(peer.Surface());
    WindowPeer* dialog = peer.Dialog();
    const UINT message = MouseMessage(event);
    if (message == WM_MOUSEMOVE)
        AskCursor(peer, message);
    else if (dialog && message != WM_LBUTTONUP && message != WM_RBUTTONUP && message != WM_MBUTTONUP)
        dialog->Pressed();
    if (!alive || peer.destroyed)
        return true;
    event.accept();
    const CPoint point = ToPoint(event.position());
    const Handling handling = SendFor(peer, &event, base, message, MouseFlags(event), MAKELPARAM(point.x, point.y));
    if (message == WM_RBUTTONUP && alive && !peer.destroyed)
        SendContextMenu(peer, event.globalPosition().toPoint());
    // Inside a dialog nothing climbs to the parents: the control that was hit has had it.
    event.setAccepted(dialog || handling == Handling::Taken);
    return true;
}

bool DispatchWheel(WindowPeer& peer, QWheelEvent& event, Base base) {
    const CPoint point = ToPoint(event.globalPosition());
    const bool isDialog = peer.isDialog;
    event.accept();
    const Handling handling =
        SendFor(peer, &event, base, WM_MOUSEWHEEL,
                MAKEWPARAM(static_cast<UINT>(MouseFlags(event)), static_cast<UINT>(event.angleDelta().y())),
                MAKELPARAM(point.x, point.y));
    // It climbs, but not from a dialog to what lies behind.
    event.setAccepted(isDialog || handling == Handling::Taken);
    return true;
}

UINT CodeOf(const QKeyEvent& event) {
    return VirtualKey(event.key(), event.modifiers() & Qt::KeypadModifier, event.nativeScanCode());
}

// Lets the objects from the focused control up to its dialog see the key; true when one consumed it.
bool PreTranslate(WindowPeer& peer, MSG& message) {
    for (QPointer<QWidget> at = peer.widget; at;) {
        WindowPeer* seen = PeerOf(at);
        if (!seen || seen->destroyed)
            return true; // a handler ended the window: the key is spent
        const bool top = seen->isDialog || seen->widget->isWindow();
        const QPointer<QWidget> next = seen->parent ? seen->parent->widget : nullptr;
        bool spent = seen->object; // also a key that ends in an exception
        if (spent)
            RunGuarded([&] { spent = seen->object->PreTranslateMessage(&message); });
        if (spent)
            return true;
        if (top)
            return peer.destroyed;
        at = next;
    }
    return false;
}

// The window is gone, or its dialog has ended: it takes no more keys.
bool IsOver(const QPointer<QWidget>& alive, WindowPeer& peer) {
    if (!alive || peer.destroyed)
        return true;
    const WindowPeer* dialog = peer.Dialog();
    return dialog && dialog->ended;
}

// Sends what a key press is in messages; tells whether somebody had a use for it. Object and window may be gone then.
bool SendKey(WindowPeer& peer, QKeyEvent& event, Base base, const MSG& key, char character) {
    const QPointer<QWidget> alive = peer.widget;
    const LPARAM lParam = key.lParam & 0xffffffff;
    event.accept();
    if (!character || key.message == WM_SYSKEYDOWN)
        return SendFor(peer, &event, base, key.message, key.wParam, lParam) == Handling::Taken;
    // A key with a character is two messages; the toolkit's handling belongs to the second, the first's is nothing.
    const auto nothing = [](WindowPeer&, QEvent* e) { return e->ignore(), true; };
    const bool taken = SendFor(peer, &event, nothing, WM_KEYDOWN, key.wParam, lParam) == Handling::Taken;
    if (IsOver(alive, peer))
        return true;
    event.accept();
    const auto code = static_cast<unsigned char>(character);
    return SendFor(peer, &event, base, WM_CHAR, code, lParam) == Handling::Taken || taken;
}

bool IsMenuKey(const QKeyEvent& event) {
    return event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

bool DispatchKeyPress(WindowPeer& peer, QKeyEvent& event, Base base) {
    const QPointer<QWidget> alive = peer.widget;
    const bool inDialog = peer.Dialog();
    MSG message{&peer, event.modifiers() & Qt::AltModifier ? WM_SYSKEYDOWN : WM_KEYDOWN, CodeOf(event),
                MAKELPARAM(event.count(), event.nativeScanCode() & 0xff), ToPoint(QCursor::pos())};
    const CString text = FromQString(event.text());
    const char character = text.IsEmpty() ? '\0' : text[0];
    // Above the classic 32 bits rides the character, for mnemonics.
    message.lParam |= static_cast<LPARAM>(static_cast<unsigned char>(character)) << 32;
    bool taken = IsOver(alive, peer) || PreTranslate(peer, message) || IsOver(alive, peer);
    if (!taken && IsMenuKey(event)) {
        SendContextMenu(peer, peer.Surface()->mapToGlobal(peer.Surface()->rect().center()));
        taken = true;
    }
    taken = taken || SendKey(peer, event, base, message, character);
    message.lParam &= 0xffffffff;
    if (!taken && inDialog && !IsOver(alive, peer) && AfxGetApp())
        RunGuarded([&message] { AfxGetApp()->OnUnusedKey(message); });
    // What a dialog leaves does not climb to the window behind.
    event.setAccepted(taken || inDialog);
    return true;
}

bool DispatchKeyRelease(WindowPeer& peer, QKeyEvent& event, Base base) {
    const bool inDialog = peer.Dialog();
    event.accept();
    const bool taken = SendFor(peer, &event, base, WM_KEYUP, CodeOf(event), 0) == Handling::Taken;
    event.setAccepted(taken || inDialog);
    return true;
}

// A key that no focused control took climbs through the toolkit's parents: only the first window may handle it.
bool IsFocused(const WindowPeer& peer) {
    const QWidget* focused = QApplication::focusWidget();
    return !focused || NearestPeer(focused) == &peer;
}

bool DispatchPaint(WindowPeer& peer, QEvent* event, Base base) {
    peer.PaintNow();
    if (peer.destroyed)
        return true;
    const bool result = base(peer, event);
    if (!peer.picture.Empty()) {
        QPainter painter(peer.Surface());
        peer.picture.Blit(painter);
    }
    return result;
}

bool DispatchFocus(WindowPeer& peer, QFocusEvent& event, Base base) {
    const QPointer<QWidget> alive = peer.widget;
    const bool gained = event.gotFocus();
    SendFor(peer, &event, base, gained ? WM_SETFOCUS : WM_KILLFOCUS, 0, 0);
    const auto there = [&] { return alive && !peer.destroyed; };
    if (WindowPeer* dialog = there() ? peer.Dialog() : nullptr)
        dialog->ControlFocused(peer, gained);
    if (there() && event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason)
        peer.FocusChanged(gained);
    return true;
}

bool DispatchActivation(WindowPeer& peer, QEvent* event, Base base) {
    const bool result = base(peer, event);
    if (!peer.widget->isWindow() || !peer.live || peer.destroyed)
        return result;
    peer.TellActive(event->type() == QEvent::WindowActivate, QGuiApplication::mouseButtons() != Qt::NoButton);
    return result;
}

bool DispatchClose(WindowPeer& peer, QEvent* event, Base base) {
    if (!peer.widget->isWindow() && !peer.isDialog)
        return base(peer, event);
    event->ignore(); // the message's handling decides what becomes of the window
    if (peer.modalLocks == 0)
        peer.Send(WM_CLOSE);
    return true;
}

bool IsPointerEvent(QEvent::Type type) {
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
           type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove || type == QEvent::Wheel;
}

void SendPosted(WindowPeer& peer, const PostedMessage& posted) {
    if (!peer.destroyed)
        peer.Send(posted.message, posted.wParam, posted.lParam);
}

} // namespace

bool RunEventDefault(WindowPeer& peer, UINT message, LRESULT& result) {
    Frame* frame = currentFrame;
    if (!frame || &frame->peer != &peer || frame->message != message || frame->ran)
        return false;
    frame->ran = true;
    frame->result = frame->base(peer, frame->event);
    result = frame->result;
    return true;
}

bool DispatchEvent(WindowPeer& peer, QEvent* event) {
    // A scrolling control's painting and pointer are its viewport's; its own events of these kinds concern the frame.
    if (peer.Surface() != peer.widget &&
        (IsPointerEvent(event->type()) || event->type() == QEvent::Paint || event->type() == QEvent::Resize))
        return peer.BaseEvent(event);
    return DispatchEvent(peer, event, [](WindowPeer& p, QEvent* e) { return p.BaseEvent(e); });
}

bool DispatchEvent(WindowPeer& peer, QEvent* event, Base base) {
    if (peer.destroyed)
        return base(peer, event);
    if (IsPointerEvent(event->type()) && !peer.widget->isEnabled()) {
        event->ignore(); // a disabled control has no mouse: its parent does
        return false;
    }
    switch (event->type()) {
    case QEvent::KeyPress:
        if (IsFocused(peer))
            return DispatchKeyPress(peer, static_cast<QKeyEvent&>(*event), base);
        return base(peer, event);
    case QEvent::KeyRelease:
        return DispatchKeyRelease(peer, static_cast<QKeyEvent&>(*event), base);
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return DispatchMouse(peer, static_cast<QMouseEvent&>(*event), base);
    case QEvent::Wheel:
        return DispatchWheel(peer, static_cast<QWheelEvent&>(*event), base);
    case QEvent::ContextMenu:
        return true; // ours come from the release of the right button and from the keys
    case QEvent::Paint:
        return DispatchPaint(peer, event, base);
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        return DispatchFocus(peer, static_cast<QFocusEvent&>(*event), base);
    case QEvent::Resize: {
        const bool result = base(peer, event);
        if (peer.live)
            peer.ReportSize();
        return result;
    }
    case QEvent::Timer:
        return peer.HandleTimer(static_cast<QTimerEvent*>(event)->timerId()) || base(peer, event);
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
        return DispatchActivation(peer, event, base);
    case QEvent::Enter: {
        // Where the window manager owns the frame, arriving from outside stands for the pointer on the caption.
        const bool result = base(peer, event);
        if (peer.widget->isWindow() && !peer.destroyed)
            peer.Send(WM_NCMOUSEMOVE, HTCAPTION);
        return result;
    }
    case QEvent::Close:
        return DispatchClose(peer, event, base);
    default:
        if (event->type() == PostedMessage::EventType()) {
            SendPosted(peer, static_cast<PostedMessage&>(*event));
            return true;
        }
        return base(peer, event);
    }
}

} // namespace platform
