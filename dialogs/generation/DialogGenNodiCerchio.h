// Nodes on a full circle, its centre and a point that gives its radius typed or picked in the view one at a time.
// Coordinates and radius are in the document's length unit, the inclination in degrees.
#pragma once

#include "dialogs/frame/tool/PointCycleDialog.h"
#include "platform/controls/SpinButton.h"

class CDialogGenNodiCerchio : public PointCycleDialog {
    DECLARE_DYNAMIC(CDialogGenNodiCerchio)

  public:
    enum : UINT { IDD = 9014 };
    enum : int {
        IDC_INCLINAZIONE = 1006,
        IDC_NODI = 1221,
        IDC_SPIN_NODI = 1224,
        IDC_PIANO_XY = 1235,
        IDC_PIANO_XZ = 1239,
        IDC_PIANO_YZ = 1240,
        IDC_X_CENTRO = 1242,
        IDC_RAGGIO = 1245,
    };

    explicit CDialogGenNodiCerchio(CWnd* pParent = nullptr);

    CSpinButtonCtrl m_spinNodi;
    double m_dInclinazione = 0; // of the plane, about its first axis
    int m_nNodi = 1;
    double m_dRaggio = 0;
    double m_dXCentro = 0, m_dYCentro = 0, m_dZCentro = 0;
    int m_nPiano = -1; // 0 X-Y, 1 X-Z, 2 Y-Z

    int& GetTool() { return m_nTool; } // 0: the next pick is the centre; 1: it fixes the radius
    CFPoint GetCentro();

    void CambiaDocumento() override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

  protected:
    void StorePick(int pick, const CFPoint& point) override;
    void StrayPick() override {}

  private:
    int m_nTool = 0;
};
