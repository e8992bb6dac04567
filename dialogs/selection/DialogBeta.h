// Shows the angle that the selected beams are turned by about their axis, and assigns one to them or to all beams of
// the view. Degrees.
#pragma once

#include "dialogs/frame/tool/DialogDocument.h"
#include "platform/controls/Button.h"
#include "platform/controls/Edit.h"

class CDialogBeta : public CDialogDocument {
    DECLARE_DYNAMIC(CDialogBeta)

  public:
    enum : UINT { IDD = 9133 };
    enum : int {
        IDC_SELEZIONE = 1133,
        IDC_BETA = 9001,
        IDC_VISTA = 9003,
    };

    explicit CDialogBeta(CWnd* pParent = nullptr);

    double m_dBeta = 0;
    CEdit m_editBeta;
    CButton m_buttonVista;
    CButton m_buttonSelezione;

    void Update(CView* pSender, long lHint, CObject* pHint) override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

  protected:
    void OnButtonSelezione();
    void OnButtonVista();
    void OnChangeEditBeta();

  private:
    void AggiornaBottoni();
    // The field shows what all selected beams have, and is empty when they differ or when there are none.
    void AggiornaBeta();
    bool HasCommonBeta(double& beta);

    DECLARE_MESSAGE_MAP()
};
