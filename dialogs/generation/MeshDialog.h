// Base of the dialogs that mesh a quadrilateral between points, picked in the view one at a time or typed. The last
// pick of a round applies the command, the button does so again, and the dialog stays open for the next mesh.
// Coordinates are in the document's length unit.
#pragma once

#include "dialogs/generation/PointFieldsDialog.h"
#include "platform/controls/SpinButton.h"

class MeshDialog : public PointFieldsDialog {
  public:
    enum : int {
        IDC_APPLICA = 1007,
        IDC_SUDDIVISIONI1 = 1248,
        IDC_SUDDIVISIONI2 = 1249,
        IDC_SPIN_SUDDIVISIONI1 = 1250,
        IDC_SPIN_SUDDIVISIONI2 = 1251,
    };

    CSpinButtonCtrl m_spinSuddivisioni2;
    CSpinButtonCtrl m_spinSuddivisioni1;
    int m_nSuddivisioni1 = 1; // of the side from the first corner to the second
    int m_nSuddivisioni2 = 1; // of the side from the second to the third

    void CambiaDocumento() override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

  protected:
    // One prompt for each point. Both texts outlive the dialog.
    MeshDialog(UINT nIDD, CWnd* pParent, LPCTSTR title, Prompts prompts);

    // The third and fourth corner; the first two are the first two points.
    virtual CFPoint GetPunto3() { return PointAt(2); }
    virtual CFPoint GetPunto4() { return PointAt(3); }
    CFPoint GetPunto1() { return PointAt(0); }
    CFPoint GetPunto2() { return PointAt(1); }
    void CycleDone() override;

    void OnButtonApplica();
    void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);

  private:
    void InizioMesh() { StartCycle(); }
    void FineMesh() { PointFieldsDialog::EndPicking(); }
    void EndPicking() override { FineMesh(); }

    const LPCTSTR m_title;
    int m_nTool = 0; // the point to pick next, from 1; 0 without a view

    DECLARE_MESSAGE_MAP()
};
