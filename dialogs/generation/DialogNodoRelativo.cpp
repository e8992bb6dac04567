#include "dialogs/generation/DialogNodoRelativo.h"

#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "model/element/Nodo.h"

namespace {
constexpr int updateReference = 0;
} // namespace

IMPLEMENT_DYNAMIC(CDialogNodoRelativo, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogNodoRelativo, PickingDialog)
    ON_BN_CLICKED(IDC_APPLICA, OnButtonApply)
    ON_CONTROL_RANGE(EN_KILLFOCUS, IDC_DX, IDC_X_RIFERIMENTO + 2, OnRadioRelaNo)
    ON_CONTROL_RANGE(BN_CLICKED, IDC_AGGIORNAMENTO_SI, IDC_AGGIORNAMENTO_SI + 1, OnRadioRelaNo)
END_MESSAGE_MAP()

CDialogNodoRelativo::CDialogNodoRelativo(CWnd* pParent) : PickingDialog(IDD, pParent) {
}

void CDialogNodoRelativo::DoDataExchange(CDataExchange* pDX) {
    PickingDialog::DoDataExchange(pDX);
    DDX_Radio(pDX, IDC_AGGIORNAMENTO_SI, m_nAggiornamento);
    DDX_Point(pDX, IDC_DX, m_dDx, m_dDy, m_dDz);
    DDX_Point(pDX, IDC_X_RIFERIMENTO, m_dXRiferimento, m_dYRiferimento, m_dZRiferimento);
}

BOOL CDialogNodoRelativo::OnInitDialog() {
    PickingDialog::OnInitDialog();
    StartPicking();
    return TRUE;
}

void CDialogNodoRelativo::SetVettoreFrom(CFPoint point) {
    StorePoint(point, m_dXRiferimento, m_dYRiferimento, m_dZRiferimento);
    UpdateData(FALSE);
    RestartPicking({});
}

void CDialogNodoRelativo::OnRadioRelaNo(UINT) {
    if (!IsClosing() && !IsCancel())
        UpdateData(TRUE);
}

void CDialogNodoRelativo::CambiaDocumento() {
    if (!UpdateData(TRUE))
        return;
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc)
        return;
    CFPoint place(m_dXRiferimento + m_dDx, m_dYRiferimento + m_dDy, m_dZRiferimento + m_dDz);
    CNodo* pNodo = pDoc->AddNodo(place, nullptr, 1);
    if (m_nAggiornamento != updateReference || !pNodo)
        return;
    StorePoint(*pNodo->GetPunto(), m_dXRiferimento, m_dYRiferimento, m_dZRiferimento);
    UpdateData(FALSE);
}

void CDialogNodoRelativo::OnOK() {
    EndPicking();
    CDialogDocument::OnOK();
}

void CDialogNodoRelativo::OnCancel() {
    EndPicking();
    CDialogDocument::OnCancel();
}
