#include "platform/controls/Button.h"

#include "platform/private/paint/GdiData.h"
#include "platform/private/peers/ButtonPeer.h"

IMPLEMENT_DYNAMIC(CButton, CWnd)

int CButton::GetCheck() const {
    return m_hWnd ? m_hWnd->Check() : 0;
}

void CButton::SetCheck(int check) {
    if (m_hWnd)
        m_hWnd->SetCheck(check);
}
