#include "platform/SpinButton.h"

#include "platform/private/Controls.h"
#include "platform/private/SpinPeer.h"

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CScrollBar)

using platform::SpinPeer;

namespace {

SpinPeer* spin(HWND handle) {
    return platform::controlOf<SpinPeer>(handle);
}

} // namespace

BOOL CSpinButtonCtrl::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("msctls_updown32", "", style, rect, parent, id);
}

void CSpinButtonCtrl::SetRange32(int lower, int upper) {
    if (SpinPeer* peer = spin(m_hWnd))
        peer->setRange(lower, upper);
}

DWORD CSpinButtonCtrl::GetRange() const {
    int lower = 0;
    int upper = 0;
    GetRange(lower, upper);
    return static_cast<DWORD>(MAKEWPARAM(static_cast<UINT>(upper), static_cast<UINT>(lower)));
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const {
    const SpinPeer* peer = spin(m_hWnd);
    lower = peer ? peer->lower() : 0;
    upper = peer ? peer->upper() : 0;
}

int CSpinButtonCtrl::SetPos(int position) {
    SpinPeer* peer = spin(m_hWnd);
    return peer ? peer->setPosition(position) : 0;
}

int CSpinButtonCtrl::GetPos() const {
    SpinPeer* peer = spin(m_hWnd);
    return peer ? peer->position() : 0;
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* buddy) {
    SpinPeer* peer = spin(m_hWnd);
    return peer ? FromHandle(peer->setBuddy(buddy ? buddy->m_hWnd : nullptr)) : nullptr;
}

CWnd* CSpinButtonCtrl::GetBuddy() const {
    const SpinPeer* peer = spin(m_hWnd);
    return peer ? FromHandle(peer->buddy()) : nullptr;
}

int CSpinButtonCtrl::SetBase(int base) {
    SpinPeer* peer = spin(m_hWnd);
    if (!peer || (base != 10 && base != 16))
        return 0;
    const int former = peer->base();
    peer->setBase(base);
    return former;
}

UINT CSpinButtonCtrl::GetBase() const {
    const SpinPeer* peer = spin(m_hWnd);
    return peer ? static_cast<UINT>(peer->base()) : 0;
}
