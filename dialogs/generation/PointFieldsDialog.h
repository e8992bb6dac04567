// Base of the generation dialogs that take three or four points one at a time, each in three edits of its own.
// Coordinates are in the document's length unit.
#pragma once

#include "dialogs/frame/tool/PointCycleDialog.h"

class PointFieldsDialog : public PointCycleDialog {
  public:
    enum : int {
        IDC_X1 = 1119, // y and z follow
        IDC_X2 = 1122,
        IDC_X3 = 1126,
        IDC_Y3 = 1128,
        IDC_Z3 = 1130,
        IDC_X4 = 1132,
        IDC_Y4 = 1134,
        IDC_Z4 = 1136,
    };

    // The fourth is only there where there is a fourth prompt.
    double m_dX1 = 0, m_dY1 = 0, m_dZ1 = 0;
    double m_dX2 = 0, m_dY2 = 0, m_dZ2 = 0;
    double m_dX3 = 0, m_dY3 = 0, m_dZ3 = 0;
    double m_dX4 = 0, m_dY4 = 0, m_dZ4 = 0;

  protected:
    // One prompt for each point; see PointCycleDialog.
    PointFieldsDialog(UINT nIDD, CWnd* pParent, Prompts prompts, int& counter, int first = 0);

    CFPoint PointAt(int index) const; // from 0
    void ExchangePoints(CDataExchange* pDX);
    void ResetPoints();
    void StorePick(int pick, const CFPoint& point) override;

  private:
    const bool m_hasFourth;
};
