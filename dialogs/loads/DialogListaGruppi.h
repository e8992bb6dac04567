// The groups of the document: selecting groups in the list selects their elements in the model; groups can be deleted.
#pragma once

#include "dialogs/frame/tool/DialogDocument.h"
#include "platform/controls/Button.h"
#include "platform/controls/ListBox.h"
#include "platform/core/Collections.h"

class CDialogListaGruppi : public CDialogDocument {
    DECLARE_DYNAMIC(CDialogListaGruppi)

  public:
    enum : UINT { IDD = 9021 };
    enum : int { IDC_LIST = 1004, IDC_ELIMINA = 1017 };

    explicit CDialogListaGruppi(CWnd* pParent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void Update(CView* pSender, long lHint, CObject* pHint) override;
    void CambiaDocumento() override {}

  protected:
    void OnSelchangeList();
    void OnButtonElimina();

    CUIntArray m_listaIDScelti; // numbers of the selected groups, of the last change of the selection
    CButton m_buttonElimina;
    CListBox m_listGruppi; // rows are the indexes of the document's groups

  private:
    CUIntArray& GetListaIDScelti() { return m_listaIDScelti; }
    int GetSizeSel() const { return m_listaIDScelti.GetSize(); }
    int GetIDSel(int i) const { return static_cast<int>(m_listaIDScelti.GetAt(i)); }

    void AggiornaListBox();
    void AggiornaBottoni();
    void AggiornaListaSelezione(CQuovarDoc& doc);

    DECLARE_MESSAGE_MAP()
};
