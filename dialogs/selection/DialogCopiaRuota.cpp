#include "dialogs/selection/DialogCopiaRuota.h"

#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/selection/SelectionCommand.h"

namespace {
constexpr int joinNothing = 2;
constexpr int maxSpinCopies = 100; // more can be typed
} // namespace

IMPLEMENT_DYNAMIC(CDialogCopiaRuota, CDialogDocument)

CDialogCopiaRuota::CDialogCopiaRuota(CWnd* pParent) : TwoPointDialog(IDD, pParent) {
}

void CDialogCopiaRuota::DoDataExchange(CDataExchange* pDX) {
    TwoPointDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SPIN_COPIE, m_spinCopie);
    DDX_Radio(pDX, IDC_UNIONE_TRAVI, m_nUnione);
    DDX_Point(pDX, IDC_X1, m_dX1, m_dY1, m_dZ1);
    DDX_Point(pDX, IDC_X2, m_dX2, m_dY2, m_dZ2);
    DDX_Text(pDX, IDC_COPIE, m_nCopie);
    DDX_Text(pDX, IDC_ANGOLO, m_dAngolo);
}

BOOL CDialogCopiaRuota::OnInitDialog() {
    TwoPointDialog::OnInitDialog();
    SetTitle(GetWindowText());
    ResetPoints();
    m_nUnione = joinNothing;
    m_nCopie = 1;
    m_dAngolo = 0;
    InitSpin(m_spinCopie, GetDlgItem(IDC_COPIE), 0, maxSpinCopies, m_nCopie);
    UpdateData(FALSE);
    StartPicking();
    return TRUE;
}

void CDialogCopiaRuota::OnOK() {
    if (!IsCancel() && UpdateData(TRUE) && AcceptCopies(m_nCopie))
        CDialogDocument::OnOK();
}

void CDialogCopiaRuota::CambiaDocumento() {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc)
        return;
    const CommandUndo undo(*pDoc, UNDO_COPIA);
    pDoc->m_pSelezione->RuotaSelezione(m_dX1, m_dY1, m_dZ1, m_dX2, m_dY2, m_dZ2, m_dAngolo, m_nCopie,
                                       JoinKind(m_nUnione));
}
