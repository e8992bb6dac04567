// From the toolkit's events to messages.
#include "platform/private/events/PostedMessage.h"
#include "platform/private/peers/WindowPeer.h"
#include "platform/window/Dialog.h"

#include <QApplication>
#include <QContextMenuEvent>
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

// Dispatches one message on behalf of an event; tells what the toolkit's handling returned, true when it did not run.
bool SendFor(WindowPeer& peer, QEvent* event, Base base, UINT message, WPARAM wParam, LPARAM lParam) {
    struct Restore { // also when something is thrown through the message
        Frame* outer = currentFrame;
        ~Restore() { currentFrame = outer; }
    } restore;
    Frame frame{peer, event, base, message};
    currentFrame = &frame;
    peer.Send(message, wParam, lParam);
    return frame.result;
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

// Asks the window under the pointer, then its parents, for a cursor; without an answer the arrow returns.
void AskCursor(WindowPeer& peer, UINT message) {
    for (WindowPeer* asked = &peer; asked && !asked->destroyed; asked = asked->parent) {
        if (asked->HasHandler(WM_SETCURSOR) &&
            asked->Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(&peer), MAKELPARAM(HTCLIENT, static_cast<int>(message))))
            return;
        if (asked->widget->isWindow())
            return;
    }
}

void SendContextMenu(WindowPeer& peer, QPoint screen) {
    // Unhandled, it climbs to the parents, up to the dialog.
    for (WindowPeer* asked = &peer; asked && !asked->destroyed; asked = asked->parent) {
        if (asked->HasHandler(WM_CONTEXTMENU)) {
            asked->Send(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(&peer), MAKELPARAM(screen.x(), screen.y()));
            return;
        }
        if (asked->widget->isWindow())
            break;
    }
    QContextMenuEvent event(QContextMenuEvent::Other, peer.Surface()->mapFromGlobal(screen), screen);
    peer.BaseEvent(&event);
}

bool DispatchMouse(WindowPeer& peer, QMouseEvent& event, Base base) {
    const QPointer<QWidget> alive = peer.widget;
    const UINT message = MouseMessage(event);
    if (message == WM_MOUSEMOVE) {
        AskCursor(peer, message);
        if (!alive || peer.destroyed)
            return true;
    }
    const CPoint point = ToPoint(event.position());
    const bool result = SendFor(peer, &event, base, message, MouseFlags(event), MAKELPARAM(point.x, point.y));
    if (message == WM_RBUTTONUP && alive && !peer.destroyed)
        SendContextMenu(peer, event.globalPosition().toPoint());
    // Inside a dialog nothing climbs to the parents: the control that was hit has had it.
    return peer.TopLevel()->isDialog ? (event.accept(), true) : result;
}

bool DispatchWheel(WindowPeer& peer, QWheelEvent& event, Base base) {
    const CPoint point = ToPoint(event.globalPosition());
    return SendFor(peer, &event, base, WM_MOUSEWHEEL,
                   MAKEWPARAM(static_cast<UINT>(MouseFlags(event)), static_cast<UINT>(event.angleDelta().y())),
                   MAKELPARAM(point.x, point.y));
}

// Lets the objects from the focused control up to its dialog see the key; true when one consumed it.
bool PreTranslate(WindowPeer& peer, MSG& message) {
    for (QPointer<QWidget> at = peer.widget; at;) {
        WindowPeer* seen = PeerOf(at);
        if (!seen || seen->destroyed)
            return true; // a handler ended the window: the key is spent
        const bool top = seen->widget->isWindow();
        const QPointer<QWidget> next = seen->parent ? seen->parent->widget : nullptr;
        if (seen->object && seen->object->PreTranslateMessage(&message))
            return true;
        if (top)
            return peer.destroyed;
        at = next;
    }
    return false;
}

bool DispatchKeyPress(WindowPeer& peer, QKeyEvent& event, Base base) {
    const QPointer<QWidget> alive = peer.widget;
    const bool keypad = event.modifiers() & Qt::KeypadModifier;
    const UINT message = event.modifiers() & Qt::AltModifier ? WM_SYSKEYDOWN : WM_KEYDOWN;
    MSG translated{&peer, message, VirtualKey(event.key(), keypad),
                   MAKELPARAM(event.count(), event.nativeScanCode() & 0xff), ToPoint(QCursor::pos())};
    const CString text = FromQString(event.text());
    if (!text.IsEmpty()) // above the classic 32 bits rides the character, for mnemonics
        translated.lParam |= static_cast<LPARAM>(static_cast<unsigned char>(text[0])) << 32;
    const bool inDialog = peer.TopLevel()->isDialog;
    if (PreTranslate(peer, translated) || !alive || peer.destroyed) {
        event.accept();
        return true;
    }
    const LPARAM lParam = translated.lParam & 0xffffffff;
    if (event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier)) {
        SendContextMenu(peer, peer.Surface()->mapToGlobal(peer.Surface()->rect().center()));
        event.accept();
        return true;
    }
    bool result = true;
    if (text.IsEmpty() || message == WM_SYSKEYDOWN) {
        result = SendFor(peer, &event, base, message, translated.wParam, lParam);
    } else {
        // A key with a character is two messages; the toolkit's handling belongs to the second, the first's is nothing.
        SendFor(
            peer, &event, [](WindowPeer&, QEvent*) { return true; }, WM_KEYDOWN, translated.wParam, lParam);
        if (alive && !peer.destroyed)
            result = SendFor(peer, &event, base, WM_CHAR, static_cast<unsigned char>(text[0]), lParam);
    }
    if (inDialog) {
        event.accept();
        return true;
    }
    return result;
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
    const bool result = SendFor(peer, &event, base, gained ? WM_SETFOCUS : WM_KILLFOCUS, 0, 0);
    if (alive && !peer.destroyed && event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason)
        peer.FocusChanged(gained);
    return result;
}

bool DispatchActivation(WindowPeer& peer, QEvent* event, Base base) {
    const bool result = base(peer, event);
    if (!peer.widget->isWindow() || !peer.live || peer.destroyed)
        return result;
    const bool active = event->type() == QEvent::WindowActivate;
    const UINT state = !active                                           ? WA_INACTIVE
                       : QGuiApplication::mouseButtons() != Qt::NoButton ? WA_CLICKACTIVE
                                                                         : WA_ACTIVE;
    peer.Send(WM_ACTIVATE, MAKEWPARAM(state, 0));
    return result;
}

bool DispatchClose(WindowPeer& peer, QEvent* event, Base base) {
    if (!peer.widget->isWindow())
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
    switch (event->type()) {
    case QEvent::KeyPress:
        if (IsFocused(peer))
            return DispatchKeyPress(peer, static_cast<QKeyEvent&>(*event), base);
        return base(peer, event);
    case QEvent::KeyRelease:
        return SendFor(peer, event, base, WM_KEYUP,
                       VirtualKey(static_cast<QKeyEvent*>(event)->key(),
                                  static_cast<QKeyEvent*>(event)->modifiers() & Qt::KeypadModifier),
                       0);
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
