#include "dialogs/generation/DialogGenNodiArcoCentro.h"

#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/generation/GenerationCommon.h"

IMPLEMENT_DYNAMIC(CDialogGenNodiArcoCentro, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogGenNodiArcoCentro, ConfirmedDialog)
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

CDialogGenNodiArcoCentro::CDialogGenNodiArcoCentro(CWnd* pParent) : ConfirmedDialog(IDD, pParent) {
}

void CDialogGenNodiArcoCentro::DoDataExchange(CDataExchange* pDX) {
    ConfirmedDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SPIN_NODI, m_spinNodi);
    DDX_Text(pDX, IDC_ANGOLO, m_dAngolo);
    DDX_Text(pDX, IDC_INCLINAZIONE, m_dInclinazione);
    DDX_Text(pDX, IDC_NODI, m_nNodi);
    DDX_Text(pDX, IDC_RAGGIO, m_dRaggio);
    DDX_Point(pDX, IDC_X_CENTRO, m_dXCentro, m_dYCentro, m_dZCentro);
    DDX_Point(pDX, IDC_X_INIZIALE, m_dXIniziale, m_dYIniziale, m_dZIniziale);
    DDX_Radio(pDX, IDC_PIANO_XY, m_nPiano);
}

BOOL CDialogGenNodiArcoCentro::OnInitDialog() {
    ConfirmedDialog::OnInitDialog();
    SetTitle(GetWindowText());
    ResetFields();
    UpdateData(FALSE);
    // The spin control shows 1, which the next reading of the controls takes.
    InitSpin(m_spinNodi, GetDlgItem(IDC_NODI), minSpinNodes, maxSpinCurveNodes, 1);
    StartPicking();
    return TRUE;
}

void CDialogGenNodiArcoCentro::ResetFields() {
    StorePoint(CFPoint(), m_dXCentro, m_dYCentro, m_dZCentro);
    StorePoint(CFPoint(), m_dXIniziale, m_dYIniziale, m_dZIniziale);
    m_dAngolo = m_dInclinazione = m_dRaggio = 0;
    m_nNodi = m_nPiano = 0;
}

CFPoint CDialogGenNodiArcoCentro::GetPuntoIniziale() {
    return CFPoint(m_dXIniziale, m_dYIniziale, m_dZIniziale);
}

CFPoint CDialogGenNodiArcoCentro::GetCentroCerchio() {
    return CFPoint(m_dXCentro, m_dYCentro, m_dZCentro);
}

void CDialogGenNodiArcoCentro::SetVettoreFrom(CFPoint point) {
    UpdateData(TRUE);
    StorePoint(point, m_dXCentro, m_dYCentro, m_dZCentro);
    UpdateData(FALSE);
}

void CDialogGenNodiArcoCentro::SetVettoreTo(CFPoint point) {
    UpdateData(TRUE);
    StorePoint(point, m_dXIniziale, m_dYIniziale, m_dZIniziale);
    m_dRaggio = CFPoint::GetMod(GetCentroCerchio(), point);
    UpdateData(FALSE);
}

void CDialogGenNodiArcoCentro::CambiaDocumento() {
    if (CQuovarDoc* pDoc = GetDoc())
        ReportRejection(pDoc->GenNodiArcoCerchio(m_nPiano + 1, m_dInclinazione, GetCentroCerchio(), GetPuntoIniziale(),
                                                 m_dAngolo, m_nNodi));
}

void CDialogGenNodiArcoCentro::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    m_nNodi = m_spinNodi.GetPos();
    ConfirmedDialog::OnVScroll(nSBCode, nPos, pScrollBar);
}
