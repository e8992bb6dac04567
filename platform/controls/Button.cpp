#include "platform/controls/Button.h"

#include "platform/private/paint/GdiData.h"
#include "platform/private/peers/ButtonPeer.h"

IMPLEMENT_DYNAMIC(CButton, CWnd)

namespace {

platform::ButtonControl* Button(HWND handle) {
    return dynamic_cast<platform::ButtonControl*>(handle);
}

} // namespace

BOOL CButton::Create(LPCTSTR text, DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("BUTTON", text, style, rect, parent, id);
}

int CButton::GetCheck() const {
    return m_hWnd ? m_hWnd->Check() : 0;
}

void CButton::SetCheck(int check) {
    if (m_hWnd)
        m_hWnd->SetCheck(check);
}

UINT CButton::GetState() const {
    const platform::ButtonControl* control = Button(m_hWnd);
    if (!control)
        return 0;
    return static_cast<UINT>(m_hWnd->Check()) | (control->Pushed() ? BST_PUSHED : 0u) |
           (m_hWnd->widget->hasFocus() ? BST_FOCUS : 0u);
}

void CButton::SetState(BOOL pushed) {
    if (platform::ButtonControl* control = Button(m_hWnd))
        control->SetPushed(pushed);
}

UINT CButton::GetButtonStyle() const {
    return m_hWnd ? platform::ButtonType(m_hWnd->style) : 0;
}

void CButton::SetButtonStyle(UINT style, BOOL) {
    ModifyStyle(BS_TYPEMASK, style & BS_TYPEMASK);
}

void CButton::SetBitmap(const CBitmap* bitmap) {
    const platform::BitmapData* data = bitmap ? bitmap->Data() : nullptr;
    if (platform::ButtonControl* control = Button(m_hWnd))
        control->SetPicture(data ? QPixmap::fromImage(data->image) : QPixmap());
}
