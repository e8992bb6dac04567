#include "platform/controls/SpinButton.h"

#include "platform/private/peers/Controls.h"
#include "platform/private/peers/SpinPeer.h"

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CScrollBar)

using platform::SpinPeer;

namespace {

SpinPeer* Spin(HWND handle) {
    return platform::ControlOf<SpinPeer>(handle);
}

} // namespace

void CSpinButtonCtrl::SetRange(int lower, int upper) {
    if (SpinPeer* peer = Spin(m_hWnd))
        peer->SetRange(lower, upper);
}

int CSpinButtonCtrl::SetPos(int position) {
    SpinPeer* peer = Spin(m_hWnd);
    return peer ? peer->SetPosition(position) : 0;
}

int CSpinButtonCtrl::GetPos() const {
    SpinPeer* peer = Spin(m_hWnd);
    return peer ? peer->Position() : 0;
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* buddy) {
    SpinPeer* peer = Spin(m_hWnd);
    return peer ? FromHandle(peer->SetBuddy(buddy ? buddy->m_hWnd : nullptr)) : nullptr;
}

CWnd* CSpinButtonCtrl::GetBuddy() const {
    const SpinPeer* peer = Spin(m_hWnd);
    return peer ? FromHandle(peer->Buddy()) : nullptr;
}
