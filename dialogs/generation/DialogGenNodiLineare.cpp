#include "dialogs/generation/DialogGenNodiLineare.h"

#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/generation/GenerationCommon.h"

namespace {
constexpr int directionX = 0;
constexpr int directionY = 1;
constexpr int directionZ = 2;
constexpr int directionVector = 3;
} // namespace

IMPLEMENT_DYNAMIC(CDialogGenNodiLineare, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogGenNodiLineare, TwoPointDialog)
    ON_BN_CLICKED(IDC_DIREZIONE_VETTORE, OnRadioVettore)
    ON_BN_CLICKED(IDC_DIREZIONE_X, OnRadioX)
    ON_BN_CLICKED(IDC_DIREZIONE_Y, OnRadioX)
    ON_BN_CLICKED(IDC_DIREZIONE_Z, OnRadioX)
    ON_WM_VSCROLL()
END_MESSAGE_MAP()

CDialogGenNodiLineare::CDialogGenNodiLineare(CWnd* pParent) : TwoPointDialog(IDD, pParent) {
}

void CDialogGenNodiLineare::DoDataExchange(CDataExchange* pDX) {
    TwoPointDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SPIN_NODI, m_spinNodi);
    DDX_Point(pDX, IDC_X1, m_dX1, m_dY1, m_dZ1);
    DDX_Point(pDX, IDC_X2, m_dX2, m_dY2, m_dZ2);
    DDX_Text(pDX, IDC_NODI, m_nNodi);
    DDX_Text(pDX, IDC_PASSO, m_dPasso);
    DDX_Point(pDX, IDC_X_INIZIALE, m_dXIniziale, m_dYIniziale, m_dZIniziale);
    DDX_Radio(pDX, IDC_DIREZIONE_X, m_nDirezione);
}

BOOL CDialogGenNodiLineare::OnInitDialog() {
    TwoPointDialog::OnInitDialog();
    SetTitle(GetWindowText());
    ResetFields();
    AbilitaVettore(0);
    InitSpin(m_spinNodi, GetDlgItem(IDC_NODI), minSpinNodes, maxSpinNodes, m_nNodi);
    UpdateData(FALSE);
    StartPicking();
    return TRUE;
}

void CDialogGenNodiLineare::ResetFields() {
    ResetPoints();
    m_dXIniziale = m_dYIniziale = m_dZIniziale = 0;
    m_nNodi = 1;
    m_dPasso = 1.0;
    m_nDirezione = directionX;
}

CFPoint CDialogGenNodiLineare::GetPuntoIniziale() {
    return CFPoint(m_dXIniziale, m_dYIniziale, m_dZIniziale);
}

void CDialogGenNodiLineare::SetVettoreFrom(CFPoint point) {
    UpdateData(TRUE);
    AbilitaVettore(1);
    StoreFrom(point);
    StorePoint(point, m_dXIniziale, m_dYIniziale, m_dZIniziale);
    m_nDirezione = directionVector;
    UpdateData(FALSE);
}

void CDialogGenNodiLineare::SetVettoreTo(CFPoint point) {
    UpdateData(TRUE);
    AbilitaVettore(1);
    StoreTo(point);
    m_nDirezione = directionVector;
    UpdateData(FALSE);
}

CFPoint CDialogGenNodiLineare::DirectionPoint() {
    const CFPoint p = GetPuntoIniziale();
    switch (m_nDirezione) {
    case directionX:
        return CFPoint(p.x + 1, p.y, p.z);
    case directionY:
        return CFPoint(p.x, p.y + 1, p.z);
    case directionZ:
        return CFPoint(p.x, p.y, p.z + 1);
    default:
        return p + GetVettoreDiff();
    }
}

void CDialogGenNodiLineare::CambiaDocumento() {
    if (CQuovarDoc* pDoc = GetDoc())
        ReportRejection(pDoc->GenNodiLineare(GetPuntoIniziale(), DirectionPoint(), m_dPasso, m_nNodi));
}

void CDialogGenNodiLineare::OnRadioVettore() {
    AbilitaVettore(1);
}

void CDialogGenNodiLineare::OnRadioX() {
    AbilitaVettore(0);
}

void CDialogGenNodiLineare::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    UpdateData(TRUE);
    m_nNodi = m_spinNodi.GetPos();
    UpdateData(FALSE);
    TwoPointDialog::OnVScroll(nSBCode, nPos, pScrollBar);
}

void CDialogGenNodiLineare::AbilitaVettore(int bAbilita) {
    EnableControls(*this, {IDC_GROUP_VETTORE}, bAbilita);
    EnableControls(*this, IDC_LABEL_VETTORE_FIRST, IDC_LABEL_VETTORE_LAST, bAbilita);
    EnableControls(*this, IDC_X1, IDC_Z2, bAbilita);
}
