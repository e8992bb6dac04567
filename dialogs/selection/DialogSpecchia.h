// Mirrors the selection in a plane parallel to a coordinate plane, or in the origin.
// Coordinates are in the document's length unit.
#pragma once

#include "dialogs/frame/tool/PickingDialog.h"

class CDialogSpecchia : public ConfirmedDialog {
    DECLARE_DYNAMIC(CDialogSpecchia)

  public:
    enum : UINT { IDD = 9038 };
    enum : int {
        IDC_LABEL_X = 1127,
        IDC_GROUP_PUNTO = 1130,
        IDC_ORIGINE = 1193,
        IDC_X = 1204,
        IDC_Y = 1205,
        IDC_PIANO_XY = 1206,
        IDC_PIANO_YZ = 1207,
        IDC_PIANO_XZ = 1208,
        IDC_Z = 1209,
    };

    explicit CDialogSpecchia(CWnd* pParent = nullptr);

    int m_nPiano = 0;                    // parallel to 0 XY, 1 YZ, 2 XZ; 3 the origin
    double m_dX = 0, m_dY = 0, m_dZ = 0; // a point of the plane; passed on for the origin too

    void EnableVettore(int bEnable);

    // Either pick is the point of the plane.
    using CDialogDocument::SetVettoreFrom;
    using CDialogDocument::SetVettoreTo;
    void SetVettoreFrom(CFPoint point) override;
    void SetVettoreTo(CFPoint point) override;
    void CambiaDocumento() override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

  protected:
    void OnRadioSpecchiaPiano();
    void OnRadioSpecchiaYz() { OnRadioSpecchiaPiano(); }
    void OnRadioSpechiaXz() { OnRadioSpecchiaPiano(); }
    void OnRadioSpecchiaOrigine();

    DECLARE_MESSAGE_MAP()
};
