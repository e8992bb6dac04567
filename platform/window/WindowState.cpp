// Text, state, place, painting and timers of windows.
#include "platform/drawing/DeviceContext.h"
#include "platform/drawing/Gdi.h"
#include "platform/private/paint/GdiData.h"
#include "platform/private/peers/WindowPeer.h"
#include "platform/window/Application.h"
#include "platform/window/Window.h"

#include <QApplication>

#include <memory>

// The font of a window that was given none is its dialog's: 8 points.
CFont* platform::WindowPeer::FontObject() {
    if (!m_font) {
        m_font = std::make_unique<CFont>();
        m_font->CreatePointFont(80, "MS Sans Serif");
    }
    return m_font.get();
}

void platform::WindowPeer::KeepFont(const LOGFONT& description) {
    m_font = std::make_unique<CFont>();
    m_font->CreateFontIndirect(&description);
}

const CWnd CWnd::wndTop;
const CWnd CWnd::wndBottom;

void CWnd::SetWindowText(LPCTSTR text) {
    if (m_hWnd)
        m_hWnd->SetText(text);
}

void CWnd::GetWindowText(CString& text) const {
    text = GetWindowText();
}

CString CWnd::GetWindowText() const {
    return m_hWnd ? m_hWnd->Text() : CString();
}

int CWnd::GetWindowTextLength() const {
    return GetWindowText().GetLength();
}

void CWnd::SetDlgItemText(int id, LPCTSTR text) {
    if (CWnd* control = GetDlgItem(id))
        control->SetWindowText(text);
}

void CWnd::CheckDlgButton(int id, UINT check) {
    if (CWnd* control = GetDlgItem(id))
        control->m_hWnd->SetCheck(static_cast<int>(check));
}

UINT CWnd::IsDlgButtonChecked(int id) const {
    const CWnd* control = GetDlgItem(id);
    return control ? static_cast<UINT>(control->m_hWnd->Check()) : 0;
}

void CWnd::CheckRadioButton(int first, int last, int checked) {
    for (int id = first; id <= last; ++id)
        CheckDlgButton(id, id == checked);
}

BOOL CWnd::EnableWindow(BOOL enable) {
    if (!m_hWnd)
        return FALSE;
    const BOOL wasDisabled = !IsWindowEnabled();
    m_hWnd->widget->setEnabled(enable);
    return wasDisabled;
}

BOOL CWnd::IsWindowEnabled() const {
    if (!m_hWnd || m_hWnd->modalLocks)
        return FALSE;
    // Its own state: a child of a disabled window is not disabled itself.
    return m_hWnd->widget->isEnabledTo(m_hWnd->widget->parentWidget());
}

BOOL CWnd::ShowWindow(int command) {
    if (!m_hWnd)
        return FALSE;
    QWidget* widget = m_hWnd->widget;
    const BOOL wasVisible = IsWindowVisible();
    switch (command) {
    case SW_HIDE:
        widget->hide();
        break;
    case SW_MINIMIZE:
        widget->showMinimized();
        break;
    case SW_SHOWNA:
        widget->setAttribute(Qt::WA_ShowWithoutActivating);
        widget->show();
        break;
    default:
        widget->show();
    }
    if (m_hWnd && command != SW_HIDE)
        m_hWnd->ended = false;
    return wasVisible;
}

BOOL CWnd::IsWindowVisible() const {
    return m_hWnd && m_hWnd->widget->isVisible();
}

CWnd* CWnd::SetFocus() {
    CWnd* former = GetFocus();
    if (m_hWnd) {
        if (m_hWnd->widget->window() != QApplication::activeWindow())
            m_hWnd->widget->activateWindow();
        if (m_hWnd->widget->focusPolicy() == Qt::NoFocus)
            m_hWnd->widget->setFocusPolicy(Qt::ClickFocus); // a dialog that takes the focus itself
        m_hWnd->widget->setFocus(Qt::OtherFocusReason);
    }
    return former;
}

CWnd* CWnd::SetActiveWindow() {
    CWnd* former = GetActiveWindow();
    if (m_hWnd)
        m_hWnd->widget->activateWindow();
    return former;
}

DWORD CWnd::GetStyle() const {
    if (!m_hWnd)
        return 0;
    const DWORD state = (m_hWnd->widget->isHidden() ? 0u : WS_VISIBLE) | (IsWindowEnabled() ? 0u : WS_DISABLED);
    return (m_hWnd->style & ~DWORD{WS_VISIBLE | WS_DISABLED}) | state;
}

BOOL CWnd::ModifyStyle(DWORD remove, DWORD add, UINT) {
    if (!m_hWnd)
        return FALSE;
    const DWORD former = GetStyle();
    const DWORD style = (former & ~remove) | add;
    const DWORD changed = style ^ former;
    if (!changed)
        return FALSE;
    const QPointer<QWidget> alive = m_hWnd->widget;
    m_hWnd->style = style;
    if (changed & ~DWORD{WS_VISIBLE | WS_DISABLED})
        m_hWnd->StyleChanged();
    if (changed & WS_DISABLED)
        EnableWindow(!(style & WS_DISABLED));
    if (alive && m_hWnd && (changed & WS_VISIBLE)) // a handler may have ended the window meanwhile
        ShowWindow(style & WS_VISIBLE ? SW_SHOWNA : SW_HIDE);
    return TRUE;
}

void CWnd::GetWindowRect(CRect& rect) const {
    rect = CRect(0, 0, 0, 0);
    if (!m_hWnd)
        return;
    const QWidget* widget = m_hWnd->widget;
    const QRect place =
        widget->isWindow() ? widget->frameGeometry() : QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size());
    rect = CRect(place.x(), place.y(), place.x() + place.width(), place.y() + place.height());
}

void CWnd::GetClientRect(CRect& rect) const {
    rect = m_hWnd ? CRect(0, 0, m_hWnd->Surface()->width(), m_hWnd->Surface()->height()) : CRect(0, 0, 0, 0);
}

void CWnd::MoveWindow(int x, int y, int width, int height, BOOL) {
    SetWindowPos(nullptr, x, y, width, height, SWP_NOZORDER);
}

void CWnd::MoveWindow(const CRect& rect, BOOL repaint) {
    MoveWindow(rect.left, rect.top, rect.Width(), rect.Height(), repaint);
}

BOOL CWnd::SetWindowPos(const CWnd* after, int x, int y, int cx, int cy, UINT flags) {
    if (!m_hWnd)
        return FALSE;
    QWidget* widget = m_hWnd->widget;
    if (!(flags & SWP_NOMOVE))
        widget->move(x, y);
    if (!(flags & SWP_NOSIZE)) {
        // A top-level window's size includes the frame that the window manager gives it.
        const QSize frame = widget->isWindow() ? widget->frameGeometry().size() - widget->size() : QSize(0, 0);
        m_hWnd->SetSize(QSize(cx, cy).expandedTo(frame) - frame);
    }
    if (!(flags & SWP_NOZORDER) && after) {
        if (after == &wndBottom)
            widget->lower();
        else if (after == &wndTop)
            widget->raise();
        else if (after->m_hWnd)
            widget->stackUnder(after->m_hWnd->widget);
    }
    if (flags & SWP_SHOWWINDOW)
        widget->show();
    if (flags & SWP_HIDEWINDOW)
        widget->hide();
    if (m_hWnd && m_hWnd->live)
        m_hWnd->ReportSize(); // the toolkit tells a hidden window only when it is shown
    return TRUE;
}

void CWnd::ClientToScreen(CPoint& point) const {
    if (!m_hWnd)
        return;
    const QPoint screen = m_hWnd->Surface()->mapToGlobal(QPoint(point.x, point.y));
    point = CPoint(screen.x(), screen.y());
}

void CWnd::ClientToScreen(CRect& rect) const {
    CPoint corner = rect.TopLeft();
    ClientToScreen(corner);
    rect.OffsetRect(corner.x - rect.left, corner.y - rect.top);
}

void CWnd::ScreenToClient(CPoint& point) const {
    if (!m_hWnd)
        return;
    const QPoint client = m_hWnd->Surface()->mapFromGlobal(QPoint(point.x, point.y));
    point = CPoint(client.x(), client.y());
}

void CWnd::ScreenToClient(CRect& rect) const {
    CPoint corner = rect.TopLeft();
    ScreenToClient(corner);
    rect.OffsetRect(corner.x - rect.left, corner.y - rect.top);
}

void CWnd::Invalidate(BOOL erase) {
    if (!m_hWnd)
        return;
    m_hWnd->InvalidateArea(platform::wholeArea, erase);
}

void CWnd::InvalidateRect(const CRect* rect, BOOL erase) {
    if (!rect)
        Invalidate(erase);
    else if (m_hWnd)
        m_hWnd->InvalidateArea(QRect(rect->left, rect->top, rect->Width(), rect->Height()), erase);
}

void CWnd::UpdateWindow() {
    if (m_hWnd && IsWindowVisible())
        m_hWnd->PaintNow();
}

void CWnd::RedrawWindow() {
    Invalidate();
    UpdateWindow();
}

void CWnd::SetRedraw(BOOL redraw) {
    if (m_hWnd)
        m_hWnd->SetRedraw(redraw);
}

void CWnd::SetFont(CFont* font, BOOL) {
    if (!m_hWnd || !font || !font->Data())
        return;
    // The toolkit would hand it on to the controls, whose fonts are their own.
    if (!m_hWnd->isDialog && m_hWnd->children.empty())
        m_hWnd->widget->setFont(font->Data()->font);
    m_hWnd->KeepFont(font->Data()->description);
}

CFont* CWnd::GetFont() const {
    return m_hWnd ? m_hWnd->FontObject() : nullptr;
}

UINT_PTR CWnd::SetTimer(UINT_PTR id, UINT milliseconds, void*) {
    if (!m_hWnd)
        return 0;
    m_hWnd->StartTimer(id, static_cast<int>(milliseconds));
    return id ? id : 1;
}

BOOL CWnd::KillTimer(UINT_PTR id) {
    return m_hWnd && m_hWnd->KillTimer(id);
}

int CWnd::MessageBox(LPCTSTR text, LPCTSTR caption, UINT type) {
    CWinApp* application = AfxGetApp();
    if (!application)
        return 0;
    return caption ? application->ShowMessageBox(text, caption, type) : application->DoMessageBox(text, type, 0);
}

short GetKeyState(int key) {
    const Qt::KeyboardModifiers modifiers = QGuiApplication::keyboardModifiers();
    const Qt::MouseButtons buttons = QGuiApplication::mouseButtons();
    bool down = false;
    switch (static_cast<UINT>(key)) {
    case VK_SHIFT:
        down = modifiers & Qt::ShiftModifier;
        break;
    case VK_CONTROL:
        down = modifiers & Qt::ControlModifier;
        break;
    case VK_MENU:
        down = modifiers & Qt::AltModifier;
        break;
    case 1: // the left button
        down = buttons & Qt::LeftButton;
        break;
    case 2: // the right button
        down = buttons & Qt::RightButton;
        break;
    }
    return down ? static_cast<short>(-32768) : static_cast<short>(0);
}
