#include "dialogs/selection/DialogRuota.h"

#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/selection/SelectionCommand.h"

#include <cmath>

namespace {
constexpr int generalAxis = 3;
// Recorded angles and the matrices made from them go back to pi as 3.141592654: the exact value would differ in the
// last digits from records that exist.
constexpr double radiansPerDegree = 0.017453292522222223;
} // namespace

IMPLEMENT_DYNAMIC(CDialogRuota, CDialogDocument)

BEGIN_MESSAGE_MAP(CDialogRuota, TwoPointDialog)
    ON_BN_CLICKED(IDC_RUOTA_X, OnRadioRuotaAsse)
    ON_BN_CLICKED(IDC_RUOTA_Y, OnRadioRuotaY)
    ON_BN_CLICKED(IDC_RUOTA_Z, OnRadioRuotaZ)
    ON_BN_CLICKED(IDC_ASSE_GENERICO, OnRadioRuotaAssegenerico)
END_MESSAGE_MAP()

CDialogRuota::CDialogRuota(CWnd* pParent) : TwoPointDialog(IDD, pParent) {
}

void CDialogRuota::DoDataExchange(CDataExchange* pDX) {
    TwoPointDialog::DoDataExchange(pDX);
    DDX_Radio(pDX, IDC_RUOTA_X, m_nAsse);
    DDX_Point(pDX, IDC_X1, m_dX1, m_dY1, m_dZ1);
    DDX_Point(pDX, IDC_X2, m_dX2, m_dY2, m_dZ2);
    DDX_Text(pDX, IDC_ANGOLO, m_dAngolo);
}

BOOL CDialogRuota::OnInitDialog() {
    TwoPointDialog::OnInitDialog();
    SetTitle("Ruota");
    ResetPoints();
    m_nAsse = generalAxis;
    m_dAngolo = 0;
    EnableVettore(m_nAsse == generalAxis);
    UpdateData(FALSE);
    StartPicking();
    return TRUE;
}

void CDialogRuota::CambiaDocumento() {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc)
        return;
    CQuovarSelection& selection = *pDoc->m_pSelezione;
    if (m_nAsse == generalAxis) {
        const CommandUndo undo(*pDoc, UNDO_RUOTA, {1, m_dX1, m_dY1, m_dZ1, m_dX2, m_dY2, m_dZ2, m_dAngolo});
        selection.RuotaSelezione(m_dX1, m_dY1, m_dZ1, m_dX2, m_dY2, m_dZ2, m_dAngolo, 0, UNIONE_NIENTE);
    } else if (m_nAsse >= 0) {
        const double radians = m_dAngolo * radiansPerDegree;
        const CommandUndo undo(*pDoc, UNDO_RUOTA, {0, radians, static_cast<double>(m_nAsse)});
        selection.RuotaSelezione(std::sin(radians), std::cos(radians), m_nAsse, 0, UNIONE_NIENTE);
    }
}

void CDialogRuota::EnableVettore(int bEnable) {
    EnableControls(*this, IDC_GROUP_ASSE, IDC_LABEL_ASSE_LAST, bEnable);
    EnableControls(*this, IDC_X1, IDC_Z1, bEnable);
    EnableControls(*this, IDC_X2, IDC_Z2, bEnable);
}

void CDialogRuota::OnRadioRuotaAsse() {
    EnableVettore(FALSE);
}

void CDialogRuota::OnRadioRuotaAssegenerico() {
    EnableVettore(TRUE);
}
