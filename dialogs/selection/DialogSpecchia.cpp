#include "dialogs/selection/DialogSpecchia.h"

#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/selection/SelectionCommand.h"

namespace {
constexpr int planeXY = 0;
constexpr int origin = 3;
} // namespace

IMPLEMENT_DYNAMIC(CDialogSpecchia, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogSpecchia, ConfirmedDialog)
    ON_BN_CLICKED(IDC_PIANO_XY, OnRadioSpecchiaPiano)
    ON_BN_CLICKED(IDC_PIANO_YZ, OnRadioSpecchiaYz)
    ON_BN_CLICKED(IDC_PIANO_XZ, OnRadioSpechiaXz)
    ON_BN_CLICKED(IDC_ORIGINE, OnRadioSpecchiaOrigine)
END_MESSAGE_MAP()

CDialogSpecchia::CDialogSpecchia(CWnd* pParent) : ConfirmedDialog(IDD, pParent) {
}

void CDialogSpecchia::DoDataExchange(CDataExchange* pDX) {
    ConfirmedDialog::DoDataExchange(pDX);
    DDX_Radio(pDX, IDC_PIANO_XY, m_nPiano);
    DDX_Point(pDX, IDC_X, IDC_Y, IDC_Z, m_dX, m_dY, m_dZ);
}

BOOL CDialogSpecchia::OnInitDialog() {
    ConfirmedDialog::OnInitDialog();
    SetTitle(GetWindowText());
    m_nPiano = planeXY;
    m_dX = m_dY = m_dZ = 0;
    EnableVettore(m_nPiano != origin);
    UpdateData(FALSE);
    StartPicking("Definisci il punto del piano.");
    return TRUE;
}

void CDialogSpecchia::SetVettoreFrom(CFPoint point) {
    UpdateData(TRUE);
    StorePoint(point, m_dX, m_dY, m_dZ);
    UpdateData(FALSE);
}

void CDialogSpecchia::SetVettoreTo(CFPoint point) {
    SetVettoreFrom(point);
}

void CDialogSpecchia::CambiaDocumento() {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc)
        return;
    const CommandUndo undo(*pDoc, UNDO_COPIA);
    pDoc->m_pSelezione->SpecchiaSelezione(m_dX, m_dY, m_dZ, m_nPiano);
}

void CDialogSpecchia::EnableVettore(int bEnable) {
    EnableControls(*this, {IDC_X, IDC_Y, IDC_Z}, bEnable);
    EnableControls(*this, IDC_LABEL_X, IDC_GROUP_PUNTO, bEnable); // the three labels and the box around them
}

void CDialogSpecchia::OnRadioSpecchiaPiano() {
    EnableVettore(TRUE);
}

void CDialogSpecchia::OnRadioSpecchiaOrigine() {
    EnableVettore(FALSE);
}
