// The support reactions of the first selected node, read-only: forces and moments along the global axes, in the
// document's units.
#pragma once

#include "dialogs/frame/tool/DialogDocument.h"
#include "platform/controls/Button.h"
#include "platform/controls/Edit.h"

class CNodo;

class CDialogNodoReazioniVincolari : public CDialogDocument {
    DECLARE_DYNAMIC(CDialogNodoReazioniVincolari)

  public:
    enum : UINT { IDD = 113 };
    enum : int {
        IDC_FX = 1112, // to IDC_FX + 5: Fx, Fy, Fz, Mx, My, Mz
        IDC_NODO = 1118,
    };

    explicit CDialogNodoReazioniVincolari(CWnd* pParent = nullptr);

    CEdit m_editFx, m_editFy, m_editFz, m_editMx, m_editMy, m_editMz;
    CButton m_btnNodo; // the frame: says which node, or why nothing is shown

    // Only changes of the selection and of the results refresh the fields.
    void Update(CView* pSender, long lHint, CObject* pHint) override;
    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;

  private:
    CNodo* GetNodo(); // null without a document or a selected node
    void AggiornaDialog();

    DECLARE_MESSAGE_MAP()
};
