// A row of nodes from a start point along an axis or along a vector picked in the view, at a fixed spacing.
// Coordinates and spacing are in the document's length unit.
#pragma once

#include "dialogs/frame/tool/TwoPointDialog.h"
#include "platform/controls/SpinButton.h"

class CDialogGenNodiLineare : public TwoPointDialog {
    DECLARE_DYNAMIC(CDialogGenNodiLineare)

  public:
    enum : UINT { IDD = 9015 };
    enum : int {
        IDC_DIREZIONE_X = 1090,
        IDC_DIREZIONE_Y = 1091,
        IDC_DIREZIONE_Z = 1092,
        IDC_PASSO = 1093,
        IDC_DIREZIONE_VETTORE = 1102,
        IDC_LABEL_VETTORE_FIRST = 1113,
        IDC_LABEL_VETTORE_LAST = 1118,
        IDC_GROUP_VETTORE = 1125,
        IDC_X_INIZIALE = 1200,
        IDC_NODI = 1221,
        IDC_X1 = 1227,
        IDC_X2 = 1230,
        IDC_Z2 = 1232,
        IDC_SPIN_NODI = 1233,
    };

    explicit CDialogGenNodiLineare(CWnd* pParent = nullptr);

    CSpinButtonCtrl m_spinNodi;
    int m_nNodi = 1;
    double m_dPasso = 1.0;
    double m_dXIniziale = 0, m_dYIniziale = 0, m_dZIniziale = 0;
    int m_nDirezione = 0; // 0 X, 1 Y, 2 Z, 3 the vector from point 1 to point 2

    CFPoint GetPuntoIniziale();

    using TwoPointDialog::SetVettoreFrom;
    using TwoPointDialog::SetVettoreTo;
    void SetVettoreFrom(CFPoint point) override;
    void SetVettoreTo(CFPoint point) override;
    void CambiaDocumento() override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

  protected:
    void OnRadioVettore();
    void OnRadioX();
    void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

  private:
    void AbilitaVettore(int bAbilita);
    void ResetFields();
    // The start point moved by the chosen direction.
    CFPoint DirectionPoint();

    DECLARE_MESSAGE_MAP()
};
