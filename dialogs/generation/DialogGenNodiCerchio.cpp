#include "dialogs/generation/DialogGenNodiCerchio.h"

#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/generation/GenerationCommon.h"

namespace {
constexpr LPCTSTR prompts[] = {"Definisci il centro del cerchio.", "Definisci il raggio."};
} // namespace

IMPLEMENT_DYNAMIC(CDialogGenNodiCerchio, CDialogDocument)

CDialogGenNodiCerchio::CDialogGenNodiCerchio(CWnd* pParent) : PointCycleDialog(IDD, pParent, prompts, m_nTool) {
}

void CDialogGenNodiCerchio::DoDataExchange(CDataExchange* pDX) {
    PointCycleDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SPIN_NODI, m_spinNodi);
    DDX_Text(pDX, IDC_INCLINAZIONE, m_dInclinazione);
    DDX_Text(pDX, IDC_NODI, m_nNodi);
    DDX_Text(pDX, IDC_RAGGIO, m_dRaggio);
    DDX_Point(pDX, IDC_X_CENTRO, m_dXCentro, m_dYCentro, m_dZCentro);
    DDX_Radio(pDX, IDC_PIANO_XY, m_nPiano);
}

BOOL CDialogGenNodiCerchio::OnInitDialog() {
    PointCycleDialog::OnInitDialog();
    SetTitle(GetWindowText());
    StorePoint(CFPoint(), m_dXCentro, m_dYCentro, m_dZCentro);
    m_dInclinazione = m_dRaggio = 0;
    m_nNodi = 1;
    m_nPiano = 0;
    UpdateData(FALSE);
    InitSpin(m_spinNodi, GetDlgItem(IDC_NODI), minSpinNodes, maxSpinCurveNodes, 1);
    StartPicking(prompts[0]); // the counter of the picks stays where it was
    return TRUE;
}

CFPoint CDialogGenNodiCerchio::GetCentro() {
    return CFPoint(m_dXCentro, m_dYCentro, m_dZCentro);
}

void CDialogGenNodiCerchio::StorePick(int pick, const CFPoint& point) {
    if (pick == 0)
        StorePoint(point, m_dXCentro, m_dYCentro, m_dZCentro);
    else
        m_dRaggio = CFPoint::GetMod(GetCentro(), point);
}

void CDialogGenNodiCerchio::CambiaDocumento() {
    if (CQuovarDoc* pDoc = GetDoc())
        ReportRejection(pDoc->GenNodiCerchio(m_nPiano + 1, m_dInclinazione, m_nNodi, GetCentro(), m_dRaggio));
}
