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

BOOL CSpinButtonCtrl::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("msctls_updown32", "", style, rect, parent, id);
}

void CSpinButtonCtrl::SetRange32(int lower, int upper) {
    if (SpinPeer* peer = Spin(m_hWnd))
        peer->SetRange(lower, upper);
}

DWORD CSpinButtonCtrl::GetRange() const {
    int lower = 0;
    int upper = 0;
    GetRange(lower, upper);
    return static_cast<DWORD>(MAKEWPARAM(static_cast<UINT>(upper), static_cast<UINT>(lower)));
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const {
    const SpinPeer* peer = Spin(m_hWnd);
    lower = peer ? peer->lower() : 0;
    upper = peer ? peer->Upper() : 0;
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

int CSpinButtonCtrl::SetBase(int base) {
    SpinPeer* peer = Spin(m_hWnd);
    if (!peer || (base != 10 && base != 16))
        return 0;
    const int former = peer->Base();
    peer->SetBase(base);
    return former;
}

UINT CSpinButtonCtrl::GetBase() const {
    const SpinPeer* peer = Spin(m_hWnd);
    return peer ? static_cast<UINT>(peer->Base()) : 0;
}
