#include "dialogs/selection/DialogMuovi.h"

#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/selection/SelectionCommand.h"

IMPLEMENT_DYNAMIC(CDialogMuovi, CDialogDocument)

CDialogMuovi::CDialogMuovi(CWnd* pParent) : TwoPointDialog(IDD, pParent) {
}

void CDialogMuovi::DoDataExchange(CDataExchange* pDX) {
    TwoPointDialog::DoDataExchange(pDX);
    DDX_Point(pDX, IDC_X1, m_dX1, m_dY1, m_dZ1);
    DDX_Point(pDX, IDC_X2, m_dX2, m_dY2, m_dZ2);
}

BOOL CDialogMuovi::OnInitDialog() {
    TwoPointDialog::OnInitDialog();
    SetTitle(GetWindowText());
    ResetPoints();
    UpdateData(FALSE);
    StartPicking();
    return TRUE;
}

void CDialogMuovi::SetVettoreTo(CFPoint point) {
    TwoPointDialog::SetVettoreTo(point);
    OnOK();
}

void CDialogMuovi::CambiaDocumento() {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc)
        return;
    const CFPoint d = GetVettoreDiff();
    const CommandUndo undo(*pDoc, UNDO_SPOSTA, {d.x, d.y, d.z});
    pDoc->m_pSelezione->TraslaSelezione(d.x, d.y, d.z, 0, UNIONE_NIENTE);
}
