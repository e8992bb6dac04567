// Intersects the selected lines with the plane of three nodes, picked in the view one after the other: the last pick
// runs the command and ends the dialog. Coordinates are in the document's length unit.
#pragma once

#include "dialogs/frame/tool/PointCycleDialog.h"

class CDialogIntLineaPiano : public PointsOnceDialog {
    DECLARE_DYNAMIC(CDialogIntLineaPiano)

  public:
    enum : UINT { IDD = 9139 };
    enum : int {
        IDC_X1 = 1119,
        IDC_X2 = 1122,
        IDC_X3 = 1125,
    };

    explicit CDialogIntLineaPiano(CWnd* pParent = nullptr);

    double m_dX1 = 0, m_dX2 = 0, m_dX3 = 0;
    double m_dY1 = 0, m_dY2 = 0, m_dY3 = 0;
    double m_dZ1 = 0, m_dZ2 = 0, m_dZ3 = 0;
    int m_nTool = 0; // the next pick is the first point (0), the second (1), the third (2)

    void CambiaDocumento() override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

  protected:
    void StorePick(int pick, const CFPoint& point) override;
    void StrayPick() override {}
};
