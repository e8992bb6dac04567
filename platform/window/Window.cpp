// Life, messages and relations of windows.
#include "platform/window/Window.h"

#include "platform/private/events/PostedMessage.h"
#include "platform/private/peers/Hosted.h"
#include "platform/window/DataExchange.h"

#include <QApplication>

#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CWnd, CObject)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

namespace {

using platform::WindowPeer;

// The message being handled, for Default().
const platform::Dispatch* currentMessage = nullptr;

class CurrentMessage {
  public:
    explicit CurrentMessage(const platform::Dispatch& dispatch) : m_outer(currentMessage) {
        currentMessage = &dispatch;
    }
    ~CurrentMessage() { currentMessage = m_outer; }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;

  private:
    const platform::Dispatch* m_outer;
};

WindowPeer* FocusedPeer() {
    QWidget* focused = QApplication::focusWidget();
    if (!focused && QApplication::activeWindow())
        focused = QApplication::activeWindow()->focusWidget();
    return platform::NearestPeer(focused);
}

} // namespace

const platform::MessageMap& CWnd::GetMessageMap() const {
    return _messageMap();
}

const platform::MessageMap& CWnd::_messageMap() {
    static const platform::MessageMap map{nullptr, nullptr, 0};
    return map;
}

CWnd::~CWnd() {
    CWnd::DestroyWindow();
}

CWnd* CWnd::FromHandle(HWND handle) {
    return handle ? handle->Window() : nullptr;
}

CWnd* CWnd::GetFocus() {
    return FromHandle(FocusedPeer());
}

CWnd* CWnd::GetActiveWindow() {
    return FromHandle(platform::NearestPeer(QApplication::activeWindow()));
}

BOOL CWnd::Attach(HWND handle) {
    if (!handle || handle->destroyed || m_hWnd)
        return FALSE;
    handle->Attach(this);
    return TRUE;
}

HWND CWnd::Detach() {
    const HWND handle = m_hWnd;
    if (handle)
        handle->Detach();
    return handle;
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent) {
    WindowPeer* control = parent && parent->m_hWnd ? parent->m_hWnd->Child(id) : nullptr;
    return control && Attach(control);
}

BOOL CWnd::Create(LPCTSTR className, LPCTSTR text, DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    if (m_hWnd)
        return FALSE;
    WindowPeer* owner = parent ? parent->m_hWnd : nullptr;
    const bool isChild = style & WS_CHILD;
    if (isChild && !owner)
        return FALSE;
    const QRect place(rect.left, rect.top, rect.Width(), rect.Height());
    WindowPeer* peer = nullptr;
    if (className && isChild) {
        peer = platform::CreateControl({className, text, style, 0, id, place, 0}, *owner);
        if (!peer)
            return FALSE;
    } else {
        QWidget* parentWidget = !owner ? nullptr : isChild ? owner->Surface() : owner->widget->window();
        auto* plain = new platform::Hosted<QWidget>(owner, parentWidget, isChild ? Qt::Widget : Qt::Window);
        plain->setGeometry(place);
        plain->setFocusPolicy(Qt::StrongFocus);
        plain->setMouseTracking(true);
        peer = plain;
        peer->SetText(text);
    }
    peer->id = id;
    peer->style = style;
    peer->Attach(this);
    const QPointer<QWidget> alive = peer->widget;
    if (peer->Send(WM_CREATE) == -1 && alive) // the handler refuses the window
        peer->Destroy();
    if (!alive || peer->destroyed)
        return FALSE;
    peer->live = true;
    peer->ReportSize();
    if (!alive || peer->destroyed)
        return FALSE;
    if (style & WS_VISIBLE)
        peer->widget->show();
    return TRUE;
}

BOOL CWnd::DestroyWindow() {
    if (!m_hWnd)
        return FALSE;
    m_hWnd->Destroy();
    return TRUE;
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_hWnd ? m_hWnd->Send(message, wParam, lParam) : 0;
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!m_hWnd)
        return FALSE;
    QCoreApplication::postEvent(m_hWnd->widget, new platform::PostedMessage(message, wParam, lParam));
    return TRUE;
}

BOOL CWnd::PreTranslateMessage(MSG*) {
    return FALSE;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result))
        return result;
    return DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (message == WM_COMMAND)
        return OnCommand(wParam, lParam);
    if (message == WM_NOTIFY)
        return OnNotify(wParam, lParam, result);
    const platform::MessageEntry* entry = platform::FindEntry(GetMessageMap(), message, 0, 0);
    if (!entry)
        return FALSE;
    platform::Dispatch dispatch{message, wParam, lParam, 0};
    const CurrentMessage current(dispatch);
    const BOOL handled = entry->thunk(*this, dispatch);
    *result = dispatch.result;
    return handled;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    if (m_inUpdateData && lParam)
        return TRUE;
    const platform::MessageEntry* entry =
        platform::FindEntry(GetMessageMap(), WM_COMMAND, HIWORD(wParam), LOWORD(wParam));
    if (!entry)
        return FALSE;
    platform::Dispatch dispatch{WM_COMMAND, wParam, lParam, 0};
    const CurrentMessage current(dispatch);
    return entry->thunk(*this, dispatch);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    if (m_inUpdateData)
        return TRUE;
    const auto* header = reinterpret_cast<const NMHDR*>(lParam);
    const platform::MessageEntry* entry =
        header ? platform::FindEntry(GetMessageMap(), WM_NOTIFY, header->code, static_cast<UINT>(wParam)) : nullptr;
    if (!entry)
        return FALSE;
    platform::Dispatch dispatch{WM_NOTIFY, wParam, lParam, 0};
    const CurrentMessage current(dispatch);
    const BOOL handled = entry->thunk(*this, dispatch);
    *result = dispatch.result;
    return handled;
}

LRESULT CWnd::Default() {
    // A handler called outside a message has no default to run.
    return currentMessage ? DefWindowProc(currentMessage->message, currentMessage->wParam, currentMessage->lParam) : 0;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (!m_hWnd)
        return 0;
    LRESULT result = 0;
    if (platform::RunEventDefault(*m_hWnd, message, result))
        return result;
    if (message == WM_CLOSE) {
        DestroyWindow();
        return 0;
    }
    return m_hWnd->Default(message, wParam, lParam);
}

CWnd* CWnd::GetDlgItem(int id) const {
    return m_hWnd ? FromHandle(m_hWnd->Child(static_cast<UINT>(id))) : nullptr;
}

int CWnd::GetDlgCtrlID() const {
    return m_hWnd ? static_cast<int>(m_hWnd->id) : 0;
}

CWnd* CWnd::GetParent() const {
    return m_hWnd ? FromHandle(m_hWnd->parent) : nullptr;
}

BOOL CWnd::IsChild(const CWnd* window) const {
    return m_hWnd && window && window->m_hWnd && window->m_hWnd->IsChildOf(*m_hWnd);
}

BOOL CWnd::UpdateData(BOOL saveAndValidate) {
    if (!m_hWnd)
        return FALSE;
    CDataExchange exchange(this, saveAndValidate);
    WindowPeer& peer = *m_hWnd;
    const QPointer<QWidget> alive = peer.widget;
    const bool outer = std::exchange(m_inUpdateData, true);
    BOOL done = TRUE;
    try {
        DoDataExchange(&exchange);
    } catch (const CExchangeFailure&) {
        done = FALSE; // its message has been shown
    } catch (...) {
        m_inUpdateData = outer;
        throw;
    }
    // The message's own loop may have ended the dialog, object and all.
    if (!alive || peer.destroyed)
        return FALSE;
    m_inUpdateData = outer;
    return done;
}
