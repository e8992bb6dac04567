#include "dialogs/generation/PointFieldsDialog.h"

#include "dialogs/frame/common/Controls.h"

PointFieldsDialog::PointFieldsDialog(UINT nIDD, CWnd* pParent, Prompts prompts, int& counter, int first)
    : PointCycleDialog(nIDD, pParent, prompts, counter, first), m_hasFourth(prompts.size() > 3) {
}

CFPoint PointFieldsDialog::PointAt(int index) const {
    switch (index) {
    case 0:
        return CFPoint(m_dX1, m_dY1, m_dZ1);
    case 1:
        return CFPoint(m_dX2, m_dY2, m_dZ2);
    case 2:
        return CFPoint(m_dX3, m_dY3, m_dZ3);
    default:
        return CFPoint(m_dX4, m_dY4, m_dZ4);
    }
}

void PointFieldsDialog::StorePick(int pick, const CFPoint& point) {
    switch (pick) {
    case 0:
        return StorePoint(point, m_dX1, m_dY1, m_dZ1);
    case 1:
        return StorePoint(point, m_dX2, m_dY2, m_dZ2);
    case 2:
        return StorePoint(point, m_dX3, m_dY3, m_dZ3);
    default:
        return StorePoint(point, m_dX4, m_dY4, m_dZ4);
    }
}

void PointFieldsDialog::ResetPoints() {
    for (int i = 0; i < 4; ++i)
        PointFieldsDialog::StorePick(i, CFPoint());
}

void PointFieldsDialog::ExchangePoints(CDataExchange* pDX) {
    DDX_Point(pDX, IDC_X1, m_dX1, m_dY1, m_dZ1);
    DDX_Point(pDX, IDC_X2, m_dX2, m_dY2, m_dZ2);
    DDX_Point(pDX, IDC_X3, IDC_Y3, IDC_Z3, m_dX3, m_dY3, m_dZ3);
    if (m_hasFourth)
        DDX_Point(pDX, IDC_X4, IDC_Y4, IDC_Z4, m_dX4, m_dY4, m_dZ4);
}
