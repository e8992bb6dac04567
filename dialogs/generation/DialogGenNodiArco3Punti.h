// Nodes on the arc through three points, typed or picked in the view one at a time.
// Coordinates are in the document's length unit.
#pragma once

#include "dialogs/generation/PointFieldsDialog.h"
#include "platform/controls/SpinButton.h"

class CDialogGenNodiArco3Punti : public PointFieldsDialog {
    DECLARE_DYNAMIC(CDialogGenNodiArco3Punti)

  public:
    enum : UINT { IDD = 9012 };
    enum : int {
        IDC_NODI = 1221,
        IDC_SPIN_NODI = 1224,
        IDC_PIANO_XY = 1235,
        IDC_PIANO_XZ = 1236,
        IDC_PIANO_YZ = 1237,
    };

    explicit CDialogGenNodiArco3Punti(CWnd* pParent = nullptr);

    CSpinButtonCtrl m_spinNodi;
    int m_nNodi = 1;
    int m_nPiano = -1; // 0 X-Y, 1 X-Z, 2 Y-Z

    int& GetTool() { return m_nTool; } // 0 to 2: the point that the next pick is
    CFPoint GetPunto1() { return PointAt(0); }
    CFPoint GetPunto2() { return PointAt(1); }
    CFPoint GetPunto3() { return PointAt(2); }

    void CambiaDocumento() override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

  private:
    int m_nTool = 0;
};
