// Rotates the selection about a global axis through the origin or about the axis through two points.
// Coordinates are in the document's length unit, the angle in degrees.
#pragma once

#include "dialogs/frame/tool/TwoPointDialog.h"

class CDialogRuota : public TwoPointDialog {
    DECLARE_DYNAMIC(CDialogRuota)

  public:
    enum : UINT { IDD = 9032 };
    enum : int {
        IDC_GROUP_ASSE = 1112,
        IDC_LABEL_ASSE_FIRST = 1113,
        IDC_LABEL_ASSE_LAST = 1118,
        IDC_X2 = 1143,
        IDC_Z2 = 1145,
        IDC_RUOTA_Z = 1170,
        IDC_RUOTA_X = 1213,
        IDC_RUOTA_Y = 1214,
        IDC_X1 = 1215,
        IDC_Z1 = 1217,
        IDC_ANGOLO = 1218,
        IDC_ASSE_GENERICO = 1239,
    };

    explicit CDialogRuota(CWnd* pParent = nullptr);

    int m_nAsse = 3; // 0 X, 1 Y, 2 Z, 3 the axis through the two points
    double m_dAngolo = 0;

    void EnableVettore(int bEnable);

    void CambiaDocumento() override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

  protected:
    void OnRadioRuotaAsse();
    void OnRadioRuotaY() { OnRadioRuotaAsse(); }
    void OnRadioRuotaZ() { OnRadioRuotaAsse(); }
    void OnRadioRuotaAssegenerico();

    DECLARE_MESSAGE_MAP()
};
