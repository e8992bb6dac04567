// The distance between two points picked in the view, for as many pairs as the user likes. Coordinates and distance are
// in the document's length unit.
#pragma once

#include "dialogs/frame/tool/PickingDialog.h"

class CDialogDistanza : public PickingDialog {
  public:
    enum : UINT { IDD = 111 };
    enum : int {
        IDC_X1 = 1079,
        IDC_X2 = 1082,
        IDC_DISTANZA = 1085,
        IDC_UNITA = 1385,
    };

    explicit CDialogDistanza(CWnd* pParent = nullptr);

    double m_dX1 = 0, m_dY1 = 0, m_dZ1 = 0;
    double m_dX2 = 0, m_dY2 = 0, m_dZ2 = 0;
    CString m_strUnita; // of length
    double m_dDistanza = 0;

    using CDialogDocument::SetVettoreFrom;
    using CDialogDocument::SetVettoreTo;
    void SetVettoreFrom(CFPoint point) override; // of another pair: nothing is measured yet
    void SetVettoreTo(CFPoint point) override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

  private:
    void BeginPair(const CFPoint& first);
};
