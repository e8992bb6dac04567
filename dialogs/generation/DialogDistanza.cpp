#include "dialogs/generation/DialogDistanza.h"

#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "model/values/Units.h"

CDialogDistanza::CDialogDistanza(CWnd* pParent) : PickingDialog(IDD, pParent) {
}

void CDialogDistanza::DoDataExchange(CDataExchange* pDX) {
    PickingDialog::DoDataExchange(pDX);
    DDX_Point(pDX, IDC_X1, m_dX1, m_dY1, m_dZ1);
    DDX_Point(pDX, IDC_X2, m_dX2, m_dY2, m_dZ2);
    DDX_Text(pDX, IDC_UNITA, m_strUnita);
    DDX_Text(pDX, IDC_DISTANZA, m_dDistanza);
}

BOOL CDialogDistanza::OnInitDialog() {
    PickingDialog::OnInitDialog();
    SetTitle("Distanza fra 2 Punti");
    BeginPair(CFPoint());
    UpdateData(FALSE);
    StartPicking();
    return TRUE;
}

// The document's unit may have changed since the pair before.
void CDialogDistanza::BeginPair(const CFPoint& first) {
    StorePoint(first, m_dX1, m_dY1, m_dZ1);
    StorePoint(CFPoint(), m_dX2, m_dY2, m_dZ2);
    m_dDistanza = 0;
    if (CQuovarDoc* pDoc = GetDoc())
        m_strUnita = CGrandezza::_GetStringLunghezza(pDoc->GetLunghezza());
}

void CDialogDistanza::SetVettoreFrom(CFPoint point) {
    UpdateData(TRUE);
    BeginPair(point);
    UpdateData(FALSE);
}

void CDialogDistanza::SetVettoreTo(CFPoint point) {
    UpdateData(TRUE);
    StorePoint(point, m_dX2, m_dY2, m_dZ2);
    m_dDistanza = CFPoint::GetMod(CFPoint(m_dX1, m_dY1, m_dZ1), point);
    UpdateData(FALSE);
}
