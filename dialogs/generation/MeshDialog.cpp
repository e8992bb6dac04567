#include "dialogs/generation/MeshDialog.h"

#include "dialogs/frame/common/CommandUndo.h"
#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/host/QuovarDoc.h"

namespace {
constexpr int firstPoint = 1;
constexpr int minSpinParts = 1;
constexpr int maxSpinParts = 1000; // more can be typed
} // namespace

BEGIN_MESSAGE_MAP(MeshDialog, PointFieldsDialog)
    ON_BN_CLICKED(IDC_APPLICA, OnButtonApplica)
    ON_WM_ACTIVATE()
END_MESSAGE_MAP()

MeshDialog::MeshDialog(UINT nIDD, CWnd* pParent, LPCTSTR title, Prompts prompts)
    : PointFieldsDialog(nIDD, pParent, prompts, m_nTool, firstPoint), m_title(title) {
}

void MeshDialog::DoDataExchange(CDataExchange* pDX) {
    PointFieldsDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SPIN_SUDDIVISIONI2, m_spinSuddivisioni2);
    DDX_Control(pDX, IDC_SPIN_SUDDIVISIONI1, m_spinSuddivisioni1);
    DDX_Text(pDX, IDC_SUDDIVISIONI1, m_nSuddivisioni1);
    DDX_Text(pDX, IDC_SUDDIVISIONI2, m_nSuddivisioni2);
    ExchangePoints(pDX);
}

BOOL MeshDialog::OnInitDialog() {
    PointFieldsDialog::OnInitDialog();
    SetTitle(m_title);
    ResetPoints();
    m_nSuddivisioni1 = m_nSuddivisioni2 = 1;
    UpdateData(FALSE);
    InitSpin(m_spinSuddivisioni1, GetDlgItem(IDC_SUDDIVISIONI1), minSpinParts, maxSpinParts, 1);
    InitSpin(m_spinSuddivisioni2, GetDlgItem(IDC_SUDDIVISIONI2), minSpinParts, maxSpinParts, 1);
    return TRUE;
}

// Whoever comes back to the dialog begins the round anew.
void MeshDialog::OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
    PointFieldsDialog::OnActivate(nState, pWndOther, bMinimized);
    if (nState == WA_ACTIVE || nState == WA_CLICKACTIVE)
        InizioMesh();
}

// The fields have just been shown, so there is nothing to read.
void MeshDialog::CycleDone() {
    PointFieldsDialog::CycleDone();
    OnApply();
}

// What a field holds that was not accepted is its last value.
void MeshDialog::OnButtonApplica() {
    UpdateData(TRUE);
    OnApply();
}

void MeshDialog::CambiaDocumento() {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc)
        return;
    const CommandUndo undo(*pDoc, UNDO_COPIA);
    pDoc->Mesh4Punti(GetPunto1(), GetPunto2(), GetPunto3(), GetPunto4(), m_nSuddivisioni1, m_nSuddivisioni2);
}

void MeshDialog::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    UpdateData(TRUE);
    PointFieldsDialog::OnVScroll(nSBCode, nPos, pScrollBar);
}
