// The load cases of a document: selects the current one, deletes, copies and renames them. Everything takes effect in
// the document at once.
#pragma once

#include "platform/controls/Button.h"
#include "platform/controls/ListBox.h"
#include "platform/window/Dialog.h"

class CCasoCarico;
class CQuovarDoc;

class CDialogListaCasiCarico : public CDialog {
  public:
    enum : UINT { IDD = 9020 };
    enum : int {
        IDC_ELIMINA = 1017,
        IDC_COPIA = 1074,
        IDC_PERMUTA = 1126, // a command without a control
        IDC_RINOMINA = 1127,
        IDC_LIST_CASICARICO = 1143,
    };

    // The document stays the caller's. Null lists nothing.
    explicit CDialogListaCasiCarico(CQuovarDoc* pDoc, CWnd* pParent = nullptr);

    BOOL OnInitDialog() override;
    void DoDataExchange(CDataExchange* pDX) override;
    void OnOK() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

  protected:
    CQuovarDoc* GetDoc() const { return m_pDoc; }
    void UpdateListBox();
    void UpdateSelect();

    void OnSelchangeListCasicarico();
    void OnButtonElimina();
    void OnButtonCopia();
    void OnButtonRinomina();
    void OnButtonPermuta();
    // Changes the sign of the axial results of a dynamic seismic case; nothing happens for another one.
    void Permuta(CString nome);

    CQuovarDoc* m_pDoc; // rows are the indexes of its load cases
    CButton m_buttonRinomina;
    CButton m_buttonCopia;
    CButton m_buttonSeleziona;
    CListBox m_listCasiCarico;
    CButton m_buttonElimina;

  private:
    CCasoCarico* CurrentCase();
    bool SwapResults(int idCaso);
    void Refresh();

    DECLARE_MESSAGE_MAP()
};
