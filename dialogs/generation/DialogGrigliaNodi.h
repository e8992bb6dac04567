// The parameters of a grid of construction lines on a plane. The dialog only edits them; its owner draws and uses the
// grid, and reads the fields itself: the dialog tells it when they may have changed. Lengths are in the document's
// unit, angles in degrees.
#pragma once

#include "platform/controls/Button.h"
#include "platform/controls/SpinButton.h"
#include "platform/window/Dialog.h"

// To the owner: the dialog goes; what its controls show may have changed. Both with wParam and lParam 0.
inline constexpr UINT WM_GRIGLIANODI_FINE = 1125;
inline constexpr UINT WM_GRIGLIANODI_AGGIORNA = 1126;

class CDialogGrigliaNodi : public CDialog {
    DECLARE_DYNAMIC(CDialogGrigliaNodi)

  public:
    enum : UINT { IDD = 9016 };
    enum : int {
        IDC_PIANO_XY = 1000,
        IDC_PIANO_XZ = 1001,
        IDC_PIANO_YZ = 1002,
        IDC_INCLINAZIONE = 1006,
        IDC_ORIGINE_X = 1007,
        IDC_NEG_X = 1010,
        IDC_NEG_Y = 1011,
        IDC_POS_X = 1012,
        IDC_POS_Y = 1013,
        IDC_PASSO_X = 1014,
        IDC_ANGOLO_X = 1015,
        IDC_PASSO_Y = 1016,
        IDC_ANGOLO_Y = 1017,
        IDC_SPIN_NEG_X = 1030,
        IDC_SPIN_NEG_Y = 1031,
        IDC_SPIN_POS_X = 1032,
        IDC_SPIN_POS_Y = 1033,
    };

    explicit CDialogGrigliaNodi(CWnd* pParent = nullptr);

    CButton m_buttonAggiorna;
    CSpinButtonCtrl m_spinPosY, m_spinNegY, m_spinNegX, m_spinPosX;
    double m_dInclinazione = 0; // of the plane about its first axis
    double m_dAngoloX = 0, m_dAngoloY = 0;
    // Lines on the two sides of the origin.
    int m_nPosX = 10, m_nPosY = 10;
    double m_dPassoX = 1.0, m_dPassoY = 1.0;
    int m_nNegX = 0, m_nNegY = 0;
    double m_dOrigineX = 0, m_dOrigineY = 0, m_dOrigineZ = 0;
    int m_nPiano = 0;            // 0 X-Y, 1 X-Z, 2 Y-Z
    CWnd* m_pWndOwner = nullptr; // not owned; outlives the window
    int m_bCancel = 0;

    // Makes the window; 0 when it cannot be made.
    int Create(CWnd* pOwner);
    int IsModified() { return 0; }
    void SetModified(int bModified);

    void DoDataExchange(CDataExchange* pDX) override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) override;

  protected:
    void OnRadioPiano() { OnOK(); }
    void OnChangeEditOriginex() { SetModified(1); }
    void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

  private:
    void OnEditKillFocus(UINT) { OnRadioPiano(); }
    void OnEditChange(UINT) { OnChangeEditOriginex(); }

    DECLARE_MESSAGE_MAP()
};
