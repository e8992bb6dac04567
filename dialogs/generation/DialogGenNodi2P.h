// A row of nodes on the segment between two points, typed or picked in the view.
// Coordinates are in the document's length unit.
#pragma once

#include "dialogs/frame/tool/TwoPointDialog.h"
#include "platform/controls/SpinButton.h"

class CDialogGenNodi2P : public TwoPointDialog {
    DECLARE_DYNAMIC(CDialogGenNodi2P)

  public:
    enum : UINT { IDD = 9011 };
    enum : int {
        IDC_X1 = 1119,
        IDC_X2 = 1122,
        IDC_NODI = 1221,
        IDC_SPIN_NODI = 1224,
    };

    explicit CDialogGenNodi2P(CWnd* pParent = nullptr);

    CSpinButtonCtrl m_spinNodi;
    int m_nNodi = 1;

    void CambiaDocumento() override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

  protected:
    void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

    DECLARE_MESSAGE_MAP()
};
