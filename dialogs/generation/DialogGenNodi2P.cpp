#include "dialogs/generation/DialogGenNodi2P.h"

#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/generation/GenerationCommon.h"

IMPLEMENT_DYNAMIC(CDialogGenNodi2P, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogGenNodi2P, TwoPointDialog)
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

CDialogGenNodi2P::CDialogGenNodi2P(CWnd* pParent) : TwoPointDialog(IDD, pParent) {
}

void CDialogGenNodi2P::DoDataExchange(CDataExchange* pDX) {
    TwoPointDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SPIN_NODI, m_spinNodi);
    DDX_Text(pDX, IDC_NODI, m_nNodi);
    DDX_Point(pDX, IDC_X1, m_dX1, m_dY1, m_dZ1);
    DDX_Point(pDX, IDC_X2, m_dX2, m_dY2, m_dZ2);
}

BOOL CDialogGenNodi2P::OnInitDialog() {
    TwoPointDialog::OnInitDialog();
    SetTitle(GetWindowText());
    ResetPoints();
    m_nNodi = 1;
    InitSpin(m_spinNodi, nullptr, minSpinNodes, maxSpinNodes, m_nNodi);
    UpdateData(FALSE);
    StartPicking();
    return TRUE;
}

void CDialogGenNodi2P::CambiaDocumento() {
    if (CQuovarDoc* pDoc = GetDoc())
        ReportRejection(pDoc->GenNodi2Punti(GetVettoreFrom(), GetVettoreTo(), m_nNodi));
}

void CDialogGenNodi2P::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    // Written without being read: a step of the spin control restores the coordinates last picked or confirmed.
    m_nNodi = m_spinNodi.GetPos();
    UpdateData(FALSE);
    TwoPointDialog::OnVScroll(nSBCode, nPos, pScrollBar);
}
