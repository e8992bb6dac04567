#include "platform/private/WindowPeer.h"

#include "platform/Exception.h"

#include <QApplication>

#include <algorithm>
#include <new>

namespace platform {

QString toQString(const CString& text) {
    const std::string utf8 = text.ToUtf8();
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

CString fromQString(const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    return CString::FromUtf8({utf8.constData(), static_cast<std::size_t>(utf8.size())});
}

namespace {

// An exception that no handler caught ends with its message: the toolkit's frames between here and the loop cannot pass
// it on. The user is told, unless that has been done. Object and window may be gone by then.
LRESULT guarded(CWnd& object, UINT message, WPARAM wParam, LPARAM lParam) {
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

WindowPeer* peerOf(const QWidget* widget) {
    return dynamic_cast<WindowPeer*>(const_cast<QWidget*>(widget));
}

WindowPeer* nearestPeer(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget())
        if (WindowPeer* peer = peerOf(widget))
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
    leaveParent();
    release();
}

void WindowPeer::leaveParent() {
    if (!parent)
        return;
    std::erase(parent->children, this);
    std::erase(parent->owned, this);
    parent = nullptr;
}

// A top-level window takes those that belong to it along; those of a child window live on without an owner.
void WindowPeer::dropOwned() {
    while (!owned.empty()) {
        WindowPeer& window = *owned.back();
        if (widget->isWindow())
            window.destroy();
        else
            window.leaveParent();
    }
}

CString WindowPeer::text() const {
    return fromQString(widget->windowTitle());
}

void WindowPeer::setText(const CString& text) {
    widget->setWindowTitle(toQString(text));
}

std::unique_ptr<CWnd> WindowPeer::makeObject() const {
    return std::make_unique<CWnd>();
}

void WindowPeer::focusByKeyboard() {
    widget->setFocus(Qt::TabFocusReason);
}

void WindowPeer::setRedraw(bool on) {
    widget->setUpdatesEnabled(on);
}

LRESULT WindowPeer::send(UINT message, WPARAM wParam, LPARAM lParam) {
    if (object)
        return guarded(*object, message, wParam, lParam);
    LRESULT result = 0;
    if (runEventDefault(*this, message, result))
        return result;
    return defaultMessage(message, wParam, lParam);
}

void WindowPeer::notifyParent(UINT code) {
    if (live && !destroyed && parent && parent->object)
        parent->send(WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(this));
}

LRESULT WindowPeer::notifyParent(NMHDR& header, int code) {
    if (!live || destroyed || !parent || !parent->object)
        return 0;
    header.hwndFrom = this;
    header.idFrom = id;
    header.code = code;
    return parent->send(WM_NOTIFY, id, reinterpret_cast<LPARAM>(&header));
}

CWnd* WindowPeer::window() {
    if (!object && !destroyed) {
        m_owned = makeObject();
        attach(m_owned.get());
    }
    return object;
}

void WindowPeer::attach(CWnd* newObject) {
    if (object)
        object->m_hWnd = nullptr;
    if (m_owned && newObject != m_owned.get())
        m_retired.push_back(std::move(m_owned));
    object = newObject;
    if (object)
        object->m_hWnd = this;
}

void WindowPeer::detach() {
    attach(nullptr);
}

void WindowPeer::collect(std::vector<QPointer<QWidget>>& all) {
    all.emplace_back(widget);
    for (WindowPeer* child : children)
        child->collect(all);
}

// Ends the link to the object. The object may delete itself in PostNcDestroy.
void WindowPeer::release() {
    destroyed = true;
    if (CWnd* former = std::exchange(object, nullptr)) {
        former->m_hWnd = nullptr;
        if (former != m_owned.get())
            former->PostNcDestroy();
    }
}

void WindowPeer::destroy() {
    if (destroyed)
        return;
    const QPointer<QWidget> self = widget;
    // The focus leaves while everybody still stands, so that an edit can report it.
    QWidget* focused = QApplication::focusWidget();
    if (focused && (focused == widget || widget->isAncestorOf(focused)))
        focused->clearFocus();
    if (!self || destroyed)
        return;

    dropOwned();
    // The parent hears of it first, while its children exist; a handler may end any of them.
    std::vector<QPointer<QWidget>> all;
    collect(all);
    for (const QPointer<QWidget>& each : all) {
        WindowPeer* peer = each ? peerOf(each) : nullptr;
        if (peer && !peer->destroyed && (peer->object || peer == this))
            peer->send(WM_DESTROY);
    }
    if (!self || destroyed)
        return;
    widget->hide();
    const bool activeGone = widget->isWindow();
    for (auto each = all.rbegin(); each != all.rend(); ++each)
        if (WindowPeer* peer = *each ? peerOf(*each) : nullptr) {
            peer->dropOwned();
            for (const auto& [timer, toolkitId] : peer->m_timers)
                peer->widget->killTimer(toolkitId);
            peer->m_timers.clear();
            peer->destroyed = true;
            if (peer != this)
                peer->release();
        }
    if (parent && activeGone && parent->widget->isVisible())
        parent->widget->window()->activateWindow();
    leaveParent();
    widget->deleteLater(); // the event that led here may still be inside the widget
    release();
}

void WindowPeer::paintNow() {
    if (destroyed || !paintPending)
        return;
    paintPending = false;
    if (std::exchange(erasePending, false))
        picture.erase();
    if (object)
        send(WM_PAINT);
}

void WindowPeer::reportSize() {
    const QSize size = surface()->size();
    if (destroyed || size == m_reportedSize)
        return;
    m_reportedSize = size;
    paintPending = erasePending = true;
    resized();
    if (object)
        send(WM_SIZE, widget->isMaximized() ? SIZE_MAXIMIZED : SIZE_RESTORED, MAKELPARAM(size.width(), size.height()));
}

void WindowPeer::startTimer(UINT_PTR timer, int milliseconds) {
    killTimer(timer);
    m_timers[timer] = widget->startTimer(std::max(0, milliseconds)); // the toolkit starts no negative one
}

bool WindowPeer::killTimer(UINT_PTR timer) {
    const auto found = m_timers.find(timer);
    if (found == m_timers.end())
        return false;
    widget->killTimer(found->second);
    m_timers.erase(found);
    return true;
}

bool WindowPeer::handleTimer(int toolkitId) {
    const auto found = std::find_if(m_timers.begin(), m_timers.end(),
                                    [toolkitId](const auto& timer) { return timer.second == toolkitId; });
    if (found == m_timers.end())
        return false;
    send(WM_TIMER, found->first);
    return true;
}

WindowPeer* WindowPeer::topLevel() {
    WindowPeer* peer = this;
    while (peer->parent && !peer->widget->isWindow())
        peer = peer->parent;
    return peer;
}

WindowPeer* WindowPeer::child(UINT childId) const {
    const auto found =
        std::find_if(children.begin(), children.end(), [childId](const WindowPeer* c) { return c->id == childId; });
    return found == children.end() ? nullptr : *found;
}

bool WindowPeer::isTabStop() const {
    return !destroyed && (style & WS_TABSTOP) && widget->isVisibleTo(widget->parentWidget()) && widget->isEnabled();
}

bool WindowPeer::isChildOf(const WindowPeer& other) const {
    for (const WindowPeer* peer = parent; peer; peer = peer->parent)
        if (peer == &other)
            return true;
    return false;
}

} // namespace platform
