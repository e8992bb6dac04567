#include "platform/Button.h"

#include "platform/private/ButtonPeer.h"
#include "platform/private/GdiData.h"

IMPLEMENT_DYNAMIC(CButton, CWnd)

namespace {

platform::ButtonControl* button(HWND handle) {
    return dynamic_cast<platform::ButtonControl*>(handle);
}

} // namespace

BOOL CButton::Create(LPCTSTR text, DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("BUTTON", text, style, rect, parent, id);
}

int CButton::GetCheck() const {
    return m_hWnd ? m_hWnd->check() : 0;
}

void CButton::SetCheck(int check) {
    if (m_hWnd)
        m_hWnd->setCheck(check);
}

UINT CButton::GetState() const {
    const platform::ButtonControl* control = button(m_hWnd);
    if (!control)
        return 0;
    return static_cast<UINT>(m_hWnd->check()) | (control->pushed() ? BST_PUSHED : 0u) |
           (m_hWnd->widget->hasFocus() ? BST_FOCUS : 0u);
}

void CButton::SetState(BOOL pushed) {
    if (platform::ButtonControl* control = button(m_hWnd))
        control->setPushed(pushed);
}

UINT CButton::GetButtonStyle() const {
    return m_hWnd ? platform::buttonType(m_hWnd->style) : 0;
}

void CButton::SetButtonStyle(UINT style, BOOL) {
    ModifyStyle(BS_TYPEMASK, style & BS_TYPEMASK);
}

void CButton::SetBitmap(const CBitmap* bitmap) {
    const platform::BitmapData* data = bitmap ? bitmap->Data() : nullptr;
    if (platform::ButtonControl* control = button(m_hWnd))
        control->setPicture(data ? QPixmap::fromImage(data->canvas->image) : QPixmap());
}
