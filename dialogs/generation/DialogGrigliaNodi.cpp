#include "dialogs/generation/DialogGrigliaNodi.h"

#include "dialogs/frame/common/Controls.h"
#include "platform/window/DataExchange.h"

namespace {
constexpr int mostSpinLines = 5000; // that the arrows reach; more can be typed
}

IMPLEMENT_DYNAMIC(CDialogGrigliaNodi, CDialog)

BEGIN_MESSAGE_MAP(CDialogGrigliaNodi, CDialog)
    ON_WM_VSCROLL()
    ON_BN_CLICKED(IDC_PIANO_XY, OnRadioPiano)
    ON_BN_CLICKED(IDC_PIANO_XZ, OnRadioPiano)
    ON_BN_CLICKED(IDC_PIANO_YZ, OnRadioPiano)
    ON_CONTROL_RANGE(EN_KILLFOCUS, IDC_INCLINAZIONE, IDC_ANGOLO_Y, OnEditKillFocus)
    ON_CONTROL_RANGE(EN_CHANGE, IDC_INCLINAZIONE, IDC_ANGOLO_Y, OnEditChange)
END_MESSAGE_MAP()

CDialogGrigliaNodi::CDialogGrigliaNodi(CWnd* pParent) : CDialog(IDD, pParent) {
}

int CDialogGrigliaNodi::Create(CWnd* pOwner) {
    m_pWndOwner = pOwner;
    return CDialog::Create(IDD, pOwner);
}

void CDialogGrigliaNodi::DoDataExchange(CDataExchange* pDX) {
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDOK, m_buttonAggiorna);
    DDX_Control(pDX, IDC_SPIN_POS_Y, m_spinPosY);
    DDX_Control(pDX, IDC_SPIN_NEG_Y, m_spinNegY);
    DDX_Control(pDX, IDC_SPIN_NEG_X, m_spinNegX);
    DDX_Control(pDX, IDC_SPIN_POS_X, m_spinPosX);
    DDX_Text(pDX, IDC_INCLINAZIONE, m_dInclinazione);
    DDX_Text(pDX, IDC_ANGOLO_X, m_dAngoloX);
    DDX_Text(pDX, IDC_ANGOLO_Y, m_dAngoloY);
    DDX_Text(pDX, IDC_POS_X, m_nPosX);
    DDX_Text(pDX, IDC_POS_Y, m_nPosY);
    DDX_Text(pDX, IDC_PASSO_X, m_dPassoX);
    DDX_Text(pDX, IDC_PASSO_Y, m_dPassoY);
    DDX_Text(pDX, IDC_NEG_X, m_nNegX);
    DDX_Text(pDX, IDC_NEG_Y, m_nNegY);
    DDX_Point(pDX, IDC_ORIGINE_X, m_dOrigineX, m_dOrigineY, m_dOrigineZ);
    DDX_Radio(pDX, IDC_PIANO_XY, m_nPiano);
}

BOOL CDialogGrigliaNodi::OnInitDialog() {
    CDialog::OnInitDialog();
    const auto init = [this](CSpinButtonCtrl& spin, int edit, int lines) {
        InitSpin(spin, GetDlgItem(edit), -mostSpinLines, mostSpinLines, static_cast<short>(lines));
    };
    init(m_spinPosX, IDC_POS_X, m_nPosX);
    init(m_spinPosY, IDC_POS_Y, m_nPosY);
    init(m_spinNegX, IDC_NEG_X, m_nNegX);
    init(m_spinNegY, IDC_NEG_Y, m_nNegY);
    UpdateData(FALSE); // counts beyond the arrows' reach
    SetModified(0);
    m_bCancel = 0;
    return TRUE;
}

void CDialogGrigliaNodi::SetModified(int bModified) {
    if (::IsWindow(m_buttonAggiorna.GetSafeHwnd()))
        m_buttonAggiorna.EnableWindow(bModified != 0);
}

// The dialog stays open.
void CDialogGrigliaNodi::OnOK() {
    if (!m_bCancel && m_pWndOwner)
        m_pWndOwner->SendMessage(WM_GRIGLIANODI_AGGIORNA);
    SetModified(0);
}

void CDialogGrigliaNodi::OnCancel() {
    m_bCancel = 1;
    DestroyWindow();
}

BOOL CDialogGrigliaNodi::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message == WM_DESTROY && m_pWndOwner)
        m_pWndOwner->SendMessage(WM_GRIGLIANODI_FINE);
    return CDialog::OnWndMsg(message, wParam, lParam, pResult);
}

void CDialogGrigliaNodi::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    OnOK();
    CDialog::OnVScroll(nSBCode, nPos, pScrollBar);
}
