#include "dialogs/generation/DialogGenNodi2P.h"

#include "dialogs/frame/common/Controls.h"
#include "dialogs/generation/GenerationCommon.h"

IMPLEMENT_DYNAMIC(CDialogGenNodi2P, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogGenNodi2P, ConfirmedDialog)
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

CDialogGenNodi2P::CDialogGenNodi2P(CWnd* pParent) : ConfirmedDialog(IDD, pParent) {
}

void CDialogGenNodi2P::DoDataExchange(CDataExchange* pDX) {
    ConfirmedDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SPIN_NODI, m_spinNodi);
    DDX_Text(pDX, IDC_NODI, m_nNodi);
    DDX_Point(pDX, IDC_X1, m_dX1, m_dY1, m_dZ1);
    DDX_Point(pDX, IDC_X2, m_dX2, m_dY2, m_dZ2);
}

BOOL CDialogGenNodi2P::OnInitDialog() {
    ConfirmedDialog::OnInitDialog();
    SetTitle("Generazione Nodi 2 Punti");
    m_dX1 = m_dX2 = m_dY1 = m_dY2 = m_dZ2 = m_dZ1 = 0;
    m_nNodi = 1;
    InitNodeSpin(m_spinNodi);
    UpdateData(FALSE);
    StartPicking();
    return TRUE;
}

CFPoint CDialogGenNodi2P::GetVettoreFrom() {
    return CFPoint(m_dX1, m_dY1, m_dZ1);
}

CFPoint CDialogGenNodi2P::GetVettoreTo() {
    return CFPoint(m_dX2, m_dY2, m_dZ2);
}

void CDialogGenNodi2P::SetVettoreFrom(CFPoint point) {
    UpdateData(TRUE);
    StorePoint(point, m_dX1, m_dY1, m_dZ1);
    UpdateData(FALSE);
}

void CDialogGenNodi2P::SetVettoreTo(CFPoint point) {
    UpdateData(TRUE);
    StorePoint(point, m_dX2, m_dY2, m_dZ2);
    UpdateData(FALSE);
}

void CDialogGenNodi2P::CambiaDocumento() {
    if (CQuovarDoc* pDoc = GetDoc())
        ReportRejection(pDoc->GenNodi2Punti(GetVettoreFrom(), GetVettoreTo(), m_nNodi));
}

void CDialogGenNodi2P::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    // Written without being read: a step of the spin control restores the coordinates last picked or confirmed.
    m_nNodi = m_spinNodi.GetPos();
    UpdateData(FALSE);
    ConfirmedDialog::OnVScroll(nSBCode, nPos, pScrollBar);
}
