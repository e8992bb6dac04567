// Copies of the selection, each rotated from the one before about the axis through two points, with corresponding nodes
// joined on request. Coordinates are in the document's length unit, the angle in degrees.
#pragma once

#include "dialogs/frame/tool/TwoPointDialog.h"
#include "platform/controls/SpinButton.h"

class CDialogCopiaRuota : public TwoPointDialog {
    DECLARE_DYNAMIC(CDialogCopiaRuota)

  public:
    enum : UINT { IDD = 9005 };
    enum : int {
        IDC_SPIN_COPIE = 1171,
        IDC_X1 = 1183,
        IDC_X2 = 1186,
        IDC_UNIONE_TRAVI = 1189,
        IDC_UNIONE_ASTE = 1190,
        IDC_UNIONE_NIENTE = 1191,
        IDC_COPIE = 1192,
        IDC_ANGOLO = 1193,
    };

    explicit CDialogCopiaRuota(CWnd* pParent = nullptr);

    CSpinButtonCtrl m_spinCopie;
    int m_nUnione = -1; // 0 beams, 1 truss members, 2 nothing; -1 no button
    int m_nCopie = 0;
    double m_dAngolo = 0; // of each copy from the one before

    void CambiaDocumento() override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void DoDataExchange(CDataExchange* pDX) override;
};
