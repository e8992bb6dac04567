#include "dialogs/generation/DialogGenNodiArco3Punti.h"

#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/generation/GenerationCommon.h"

namespace {
constexpr LPCTSTR prompts[] = {"Definisci il primo nodo dell'arco.", "Definisci il secondo nodo dell'arco.",
                               "Definisci il terzo nodo dell'arco."};
constexpr LPCTSTR openingPrompt = "Definisci il primo nodo dell' arco."; // the blank is the system's
} // namespace

IMPLEMENT_DYNAMIC(CDialogGenNodiArco3Punti, CDialogDocument)

CDialogGenNodiArco3Punti::CDialogGenNodiArco3Punti(CWnd* pParent) : PointFieldsDialog(IDD, pParent, prompts, m_nTool) {
}

void CDialogGenNodiArco3Punti::DoDataExchange(CDataExchange* pDX) {
    PointFieldsDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_SPIN_NODI, m_spinNodi);
    DDX_Text(pDX, IDC_NODI, m_nNodi);
    ExchangePoints(pDX);
    DDX_Radio(pDX, IDC_PIANO_XY, m_nPiano);
}

BOOL CDialogGenNodiArco3Punti::OnInitDialog() {
    PointFieldsDialog::OnInitDialog();
    SetTitle(GetWindowText());
    ResetPoints();
    m_nNodi = 1;
    m_nPiano = 0;
    UpdateData(FALSE);
    InitSpin(m_spinNodi, GetDlgItem(IDC_NODI), minSpinNodes, maxSpinCurveNodes, 1);
    StartPicking(openingPrompt);
    m_nTool = 0;
    return TRUE;
}

void CDialogGenNodiArco3Punti::CambiaDocumento() {
    if (CQuovarDoc* pDoc = GetDoc())
        ReportRejection(pDoc->GenNodiArco3Punti(m_nPiano + 1, GetPunto1(), GetPunto2(), GetPunto3(), m_nNodi));
}
