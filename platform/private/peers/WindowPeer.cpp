#include "platform/private/peers/WindowPeer.h"

#include "platform/core/Exception.h"

#include <QApplication>
#include <QContextMenuEvent>

#include <algorithm>
#include <utility>

namespace platform {

WindowPeer* PeerOf(const QWidget* widget) {
    auto* self = const_cast<QWidget*>(widget);
    if (auto* peer = dynamic_cast<WindowPeer*>(self))
        return peer;
    const auto* hosting = dynamic_cast<const Hosting*>(self);
    return hosting ? hosting->Handle() : nullptr;
}

WindowPeer* NearestPeer(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget())
        if (WindowPeer* peer = PeerOf(widget))
            return peer;
    return nullptr;
}

WindowPeer::WindowPeer(QWidget* self, WindowPeer* parentPeer) : widget(self), parent(parentPeer) {
    if (parent)
        (widget->isWindow() ? parent->owned : parent->children).push_back(this);
}

WindowPeer::~WindowPeer() {
    // Reached without destroy() when the toolkit deletes the widget together with its parent.
    for (WindowPeer* child : children)
        child->parent = nullptr;
    for (WindowPeer* window : owned)
        window->parent = nullptr;
    LeaveParent();
    Release();
}

void WindowPeer::LeaveParent() {
    if (!parent)
        return;
    std::erase(parent->children, this);
    std::erase(parent->owned, this);
    parent = nullptr;
}

// A top-level window takes those that belong to it along; those of a child window live on without an owner.
void WindowPeer::DropOwned() {
    while (!owned.empty()) {
        WindowPeer& window = *owned.back();
        if (widget->isWindow())
            window.Destroy();
        else
            window.LeaveParent();
    }
}

CString WindowPeer::Text() const {
    return FromQString(widget->windowTitle());
}

void WindowPeer::SetText(const CString& text) {
    widget->setWindowTitle(ToQString(text));
}

std::unique_ptr<CWnd> WindowPeer::MakeObject() const {
    return std::make_unique<CWnd>();
}

void WindowPeer::FocusByKeyboard() {
    widget->setFocus(Qt::TabFocusReason);
}

void WindowPeer::SetRedraw(bool on) {
    widget->setUpdatesEnabled(on);
}

LRESULT WindowPeer::Send(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (object) // and its window may be gone when it has handled the message
        RunGuarded([&] { result = object->WindowProc(message, wParam, lParam); });
    else if (!RunEventDefault(*this, message, result))
        result = Default(message, wParam, lParam);
    return result;
}

LRESULT WindowPeer::Default(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_SETCURSOR && message != WM_CONTEXTMENU)
        return DefaultMessage(message, wParam, lParam);
    // These climb to the parents, up to the dialog.
    const bool last = destroyed || isDialog || !parent || widget->isWindow();
    if (!last)
        return parent->Send(message, wParam, lParam);
    // Nobody wanted it: the control's own menu.
    auto* hit = reinterpret_cast<WindowPeer*>(wParam);
    if (message == WM_CONTEXTMENU && hit && !hit->destroyed) {
        const QPoint screen(GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam));
        QContextMenuEvent event(QContextMenuEvent::Other, hit->Surface()->mapFromGlobal(screen), screen);
        hit->BaseEvent(&event);
    }
    return 0;
}

void WindowPeer::NotifyParent(UINT code) {
    if (live && !destroyed && parent && parent->object)
        parent->Send(WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(this));
}

LRESULT WindowPeer::NotifyParent(NMHDR& header, int code) {
    if (!live || destroyed || !parent || !parent->object)
        return 0;
    header.hwndFrom = this;
    header.idFrom = id;
    header.code = code;
    return parent->Send(WM_NOTIFY, id, reinterpret_cast<LPARAM>(&header));
}

CWnd* WindowPeer::Window() {
    if (!object && !destroyed) {
        m_owned = MakeObject();
        Attach(m_owned.get());
    }
    return object;
}

void WindowPeer::Attach(CWnd* newObject) {
    if (object)
        object->m_hWnd = nullptr;
    if (m_owned && newObject != m_owned.get())
        m_retired.push_back(std::move(m_owned));
    object = newObject;
    if (object)
        object->m_hWnd = this;
}

void WindowPeer::Detach() {
    Attach(nullptr);
}

void WindowPeer::Collect(std::vector<QPointer<QWidget>>& all) {
    all.emplace_back(widget);
    for (WindowPeer* child : children)
        child->Collect(all);
}

// Ends the link to the object. The object may delete itself in PostNcDestroy.
void WindowPeer::Release() {
    destroyed = true;
    if (CWnd* former = std::exchange(object, nullptr)) {
        former->m_hWnd = nullptr;
        if (former != m_owned.get())
            RunGuarded([former] { former->PostNcDestroy(); });
    }
}

namespace {

// The active window is this one or, such as a message box over it, goes with it.
bool HoldsActive(const QWidget& window) {
    const QWidget* at = QApplication::activeWindow();
    while (at && at != &window)
        at = at->parentWidget();
    return at;
}

} // namespace

bool WindowPeer::SendDestroy(const std::vector<QPointer<QWidget>>& all) {
    const QPointer<QWidget> self = widget;
    // Nobody hears of the activation any more when the end has been told.
    if (std::exchange(active, false))
        Send(WM_ACTIVATE, MAKEWPARAM(WA_INACTIVE, 0));
    for (const QPointer<QWidget>& each : all) {
        WindowPeer* peer = each ? PeerOf(each) : nullptr;
        if (!peer || peer->destroyed || (!peer->object && peer != this))
            continue;
        peer->m_ending = true;
        peer->Send(WM_DESTROY);
    }
    return self && !destroyed;
}

bool WindowPeer::HoldsActivation() const {
    return QApplication::activeWindow() && HoldsActive(*widget);
}

// Also while the application itself is not active: the window then gives the focus back with the activation.
bool WindowPeer::HoldsFocus() const {
    const QWidget* focused = widget->window()->focusWidget();
    return focused && (focused == widget || widget->isAncestorOf(focused));
}

// At once: what the caller does next must find the owner active and its control focused, and no window in between may
// hear of an activation that is not to last.
void WindowPeer::HandOver(bool wasActive, bool hadFocus) {
    WindowPeer* owner = parent;
    while (owner && (owner->destroyed || !owner->widget->isVisible()))
        owner = owner->parent;
    if (!owner)
        return;
    if (widget->isWindow() && wasActive) {
        QWidget* next = owner->widget->window();
        next->activateWindow();
        QApplication::setActiveWindow(next);
    } else if (isDialog && hadFocus && !widget->isWindow()) {
        owner->widget->setFocus();
    }
}

void WindowPeer::End() {
    const QPointer<QWidget> self = widget;
    const bool wasActive = HoldsActivation(), hadFocus = HoldsFocus();
    ended = true;
    widget->hide();
    if (self && !destroyed)
        HandOver(wasActive, hadFocus);
}

void WindowPeer::Destroy() {
    if (destroyed)
        return;
    const QPointer<QWidget> self = widget;
    const bool wasActive = HoldsActivation(), hadFocus = HoldsFocus();
    // The focus leaves while everybody still stands, so that an edit can report it.
    if (hadFocus)
        widget->window()->focusWidget()->clearFocus();
    if (!self || destroyed)
        return;

    DropOwned();
    // The parent hears of it first, while its children exist; a handler may end any of them.
    std::vector<QPointer<QWidget>> all;
    Collect(all);
    if (!SendDestroy(all))
        return;
    widget->hide();
    for (auto each = all.rbegin(); each != all.rend(); ++each)
        if (WindowPeer* peer = *each ? PeerOf(*each) : nullptr) {
            peer->DropOwned();
            for (const auto& [timer, toolkitId] : peer->m_timers)
                peer->widget->killTimer(toolkitId);
            peer->m_timers.clear();
            peer->destroyed = true;
            if (peer != this)
                peer->Release();
        }
    HandOver(wasActive, hadFocus);
    LeaveParent();
    widget->deleteLater(); // the event that led here may still be inside the widget
    Release();
}

void WindowPeer::InvalidateArea(const QRect& area, bool erase) {
    m_toPaint += area;
    if (erase)
        m_toErase += area;
    Surface()->update(area & Surface()->rect());
}

void WindowPeer::PaintNow() {
    if (destroyed || m_toPaint.isEmpty())
        return;
    picture.Erase(std::exchange(m_toErase, {}));
    const QPointer<QWidget> alive = widget;
    const QRegion outer = std::exchange(painting, std::exchange(m_toPaint, {}));
    if (object)
        Send(WM_PAINT);
    if (alive)
        painting = outer;
}

void WindowPeer::TellActive(bool nowActive, bool byClick) {
    if (m_ending || destroyed || active == nowActive)
        return;
    active = nowActive;
    Send(WM_ACTIVATE, MAKEWPARAM(nowActive ? byClick ? WA_CLICKACTIVE : WA_ACTIVE : WA_INACTIVE, 0));
}

void WindowPeer::ReportSize() {
    const QSize size = Surface()->size();
    if (destroyed || size == m_reportedSize)
        return;
    m_reportedSize = size;
    m_toPaint = m_toErase = wholeArea;
    Resized();
    if (object)
        Send(WM_SIZE, widget->isMaximized() ? SIZE_MAXIMIZED : SIZE_RESTORED, MAKELPARAM(size.width(), size.height()));
}

void WindowPeer::StartTimer(UINT_PTR timer, int milliseconds) {
    KillTimer(timer);
    m_timers[timer] = widget->startTimer(std::max(0, milliseconds)); // the toolkit starts no negative one
}

bool WindowPeer::KillTimer(UINT_PTR timer) {
    const auto found = m_timers.find(timer);
    if (found == m_timers.end())
        return false;
    widget->killTimer(found->second);
    m_timers.erase(found);
    return true;
}

bool WindowPeer::HandleTimer(int toolkitId) {
    const auto found = std::find_if(m_timers.begin(), m_timers.end(),
                                    [toolkitId](const auto& timer) { return timer.second == toolkitId; });
    if (found == m_timers.end())
        return false;
    Send(WM_TIMER, found->first);
    return true;
}

WindowPeer* WindowPeer::TopLevel() {
    WindowPeer* peer = this;
    while (peer->parent && !peer->widget->isWindow())
        peer = peer->parent;
    return peer;
}

WindowPeer* WindowPeer::Dialog() {
    WindowPeer* peer = this;
    while (peer && !peer->isDialog)
        peer = peer->widget->isWindow() ? nullptr : peer->parent;
    return peer;
}

WindowPeer* WindowPeer::Child(UINT childId) const {
    const auto found =
        std::find_if(children.begin(), children.end(), [childId](const WindowPeer* c) { return c->id == childId; });
    return found == children.end() ? nullptr : *found;
}

bool WindowPeer::IsTabStop() const {
    return !destroyed && (style & WS_TABSTOP) && widget->isVisibleTo(widget->parentWidget()) && widget->isEnabled();
}

bool WindowPeer::IsChildOf(const WindowPeer& other) const {
    for (const WindowPeer* peer = parent; peer; peer = peer->parent)
        if (peer == &other)
            return true;
    return false;
}

} // namespace platform
