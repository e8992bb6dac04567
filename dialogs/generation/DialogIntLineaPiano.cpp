#include "dialogs/generation/DialogIntLineaPiano.h"

#include "dialogs/frame/common/Controls.h"
#include "dialogs/frame/common/Reporting.h"
#include "dialogs/frame/host/QuovarDoc.h"
#include "dialogs/frame/host/QuovarSelection.h"
#include "model/element/Poligono.h"
#include "model/values/ExceptionEx.h"

#include <memory>

namespace {

constexpr LPCTSTR prompts[] = {"Definisci il primo nodo", "Definisci il secondo nodo", "Definisci il terzo nodo"};
constexpr double sameNode = 0.00001;

} // namespace

IMPLEMENT_DYNAMIC(CDialogIntLineaPiano, CDialogDocument)

CDialogIntLineaPiano::CDialogIntLineaPiano(CWnd* pParent) : PointsOnceDialog(IDD, pParent, prompts, m_nTool) {
}

void CDialogIntLineaPiano::DoDataExchange(CDataExchange* pDX) {
    PointsOnceDialog::DoDataExchange(pDX);
    DDX_Point(pDX, IDC_X1, m_dX1, m_dY1, m_dZ1);
    DDX_Point(pDX, IDC_X2, m_dX2, m_dY2, m_dZ2);
    DDX_Point(pDX, IDC_X3, m_dX3, m_dY3, m_dZ3);
}

BOOL CDialogIntLineaPiano::OnInitDialog() {
    PointsOnceDialog::OnInitDialog();
    SetTitle(GetWindowText());
    for (int pick = 0; pick < 3; ++pick)
        StorePick(pick, CFPoint());
    UpdateData(FALSE);
    StartCycle();
    return TRUE;
}

void CDialogIntLineaPiano::StorePick(int pick, const CFPoint& point) {
    if (pick == 0)
        StorePoint(point, m_dX1, m_dY1, m_dZ1);
    else if (pick == 1)
        StorePoint(point, m_dX2, m_dY2, m_dZ2);
    else
        StorePoint(point, m_dX3, m_dY3, m_dZ3);
}

void CDialogIntLineaPiano::CambiaDocumento() {
    CQuovarDoc* pDoc = GetDoc();
    if (!pDoc)
        return;
    CFPoint points[] = {{m_dX1, m_dY1, m_dZ1}, {m_dX2, m_dY2, m_dZ2}, {m_dX3, m_dY3, m_dZ3}};
    RunReporting([&] {
        CNodo* nodes[3];
        for (int i = 0; i < 3; ++i)
            nodes[i] = pDoc->GetNodo(points[i], nullptr, sameNode);
        if (!nodes[0] || !nodes[1] || !nodes[2])
            throw new CExceptionEx("");
        const auto plane = std::make_unique<CPoligono>();
        for (CNodo* node : nodes)
            if (!plane->AggiungiVertice(node))
                throw new CExceptionEx("");
        pDoc->m_pSelezione->IntersezioneLineePiano(plane.get());
    });
}
