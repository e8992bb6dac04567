// A node at an offset from a reference point, typed or picked in the view. The new node may become the next reference,
// so that "Applica" lays a chain of nodes. Coordinates are in the document's length unit.
#pragma once

#include "dialogs/frame/tool/PickingDialog.h"

class CDialogNodoRelativo : public PickingDialog {
    DECLARE_DYNAMIC(CDialogNodoRelativo)

  public:
    enum : UINT { IDD = 108 };
    enum : int {
        IDC_APPLICA = 1062,
        IDC_DX = 1063,
        IDC_X_RIFERIMENTO = 1066,
        IDC_AGGIORNAMENTO_SI = 1069,
    };

    explicit CDialogNodoRelativo(CWnd* pParent = nullptr);

    int m_nAggiornamento = 0; // 0 the new node becomes the reference, 1 it does not
    double m_dDx = 0, m_dDy = 0, m_dDz = 0;
    double m_dXRiferimento = 0, m_dYRiferimento = 0, m_dZRiferimento = 0;

    using CDialogDocument::SetVettoreFrom;
    void SetVettoreFrom(CFPoint point) override;
    void CambiaDocumento() override;
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
    void DoDataExchange(CDataExchange* pDX) override;

  protected:
    void OnButtonApply() { OnApply(); }
    void OnRadioRelaNo(UINT nID);

    DECLARE_MESSAGE_MAP()
};
