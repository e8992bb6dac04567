#include "platform/private/peers/WindowPeer.h"

#include "platform/core/Exception.h"

#include <QApplication>

#include <algorithm>
#include <new>

namespace platform {

namespace {

// An exception that no handler caught ends with its message: the toolkit's frames between here and the loop cannot pass
// it on. The user is told, unless that has been done. Object and window may be gone by then.
LRESULT Guarded(CWnd& object, UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        return object.WindowProc(message, wParam, lParam);
    } catch (CException* exception) {
        if (!exception->IsKindOf(RUNTIME_CLASS(CUserException)))
            exception->ReportError();
        exception->Delete();
    } catch (const std::bad_alloc&) {
        CMemoryException(FALSE).ReportError();
    }
    return 0;
}

} // namespace

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
    if (object)
        return Guarded(*object, message, wParam, lParam);
    LRESULT result = 0;
    if (RunEventDefault(*this, message, result))
        return result;
    return DefaultMessage(message, wParam, lParam);
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
            former->PostNcDestroy();
    }
}

void WindowPeer::Destroy() {
    if (destroyed)
        return;
    const QPointer<QWidget> self = widget;
    // The focus leaves while everybody still stands, so that an edit can report it.
    QWidget* focused = QApplication::focusWidget();
    if (focused && (focused == widget || widget->isAncestorOf(focused)))
        focused->clearFocus();
    if (!self || destroyed)
        return;

    DropOwned();
    // The parent hears of it first, while its children exist; a handler may end any of them.
    std::vector<QPointer<QWidget>> all;
    Collect(all);
    for (const QPointer<QWidget>& each : all) {
        WindowPeer* peer = each ? PeerOf(each) : nullptr;
        if (peer && !peer->destroyed && (peer->object || peer == this))
            peer->Send(WM_DESTROY);
    }
    if (!self || destroyed)
        return;
    widget->hide();
    const bool activeGone = widget->isWindow();
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
    if (parent && activeGone && parent->widget->isVisible())
        parent->widget->window()->activateWindow();
    LeaveParent();
    widget->deleteLater(); // the event that led here may still be inside the widget
    Release();
}

void WindowPeer::PaintNow() {
    if (destroyed || !paintPending)
        return;
    paintPending = false;
    if (std::exchange(erasePending, false))
        picture.Erase();
    if (object)
        Send(WM_PAINT);
}

void WindowPeer::ReportSize() {
    const QSize size = Surface()->size();
    if (destroyed || size == m_reportedSize)
        return;
    m_reportedSize = size;
    paintPending = erasePending = true;
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
