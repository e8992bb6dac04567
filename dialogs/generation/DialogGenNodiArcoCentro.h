// Nodes on an arc from a start point about a centre, both typed or picked in the view as a pair.
// Coordinates and radius are in the document's length unit, angles in degrees.
#pragma once

#include "dialogs/frame/tool/PickingDialog.h"
#include "platform/controls/SpinButton.h"

class CDialogGenNodiArcoCentro : public ConfirmedDialog {
    DECLARE_DYNAMIC(CDialogGenNodiArcoCentro)

  public:
    enum : UINT { IDD = 9013 };
    enum : int {
        IDC_ANGOLO = 1178,
        IDC_NODI = 1221,
        IDC_SPIN_NODI = 1224,
        IDC_PIANO_XY = 1235,
        IDC_PIANO_XZ = 1236,
        IDC_PIANO_YZ = 1237,
        IDC_INCLINAZIONE = 1238,
        IDC_X_CENTRO = 1239,
        IDC_RAGGIO = 1242,
        IDC_X_INIZIALE = 1243,
    };

    explicit CDialogGenNodiArcoCentro(CWnd* pParent = nullptr);

    CSpinButtonCtrl m_spinNodi;
    double m_dAngolo = 0;       // from the plane's first axis towards its second
    double m_dInclinazione = 0; // of the plane, about its first axis
    int m_nNodi = 0;
    double m_dRaggio = 0; // of the picked pair, for information only: the start point says it
    double m_dXCentro = 0, m_dYCentro = 0, m_dZCentro = 0;
    double m_dXIniziale = 0, m_dYIniziale = 0, m_dZIniziale = 0;
    int m_nPiano = 0; // 0 X-Y, 1 X-Z, 2 Y-Z

    CFPoint GetPuntoIniziale();
    CFPoint GetCentroCerchio();

    using CDialogDocument::SetVettoreFrom;
    using CDialogDocument::SetVettoreTo;
    void SetVettoreFrom(CFPoint point) override; // the centre
    void SetVettoreTo(CFPoint point) override;   // the start
    void CambiaDocumento() override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

  protected:
    void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

  private:
    void ResetFields();

    DECLARE_MESSAGE_MAP()
};
