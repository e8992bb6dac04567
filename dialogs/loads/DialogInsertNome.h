// Asks for one line of text under a prompt of the caller's. It ends through OK only.
#pragma once

#include "platform/window/Dialog.h"

class CDialogInsertNome : public CDialog {
  public:
    enum : UINT { IDD = 105 };
    enum : int { IDC_NOME = 1025, IDC_ETICHETTA = 1045 };

    explicit CDialogInsertNome(CWnd* pParent = nullptr);

    CString m_strNome;      // the text, before and after
    CString m_strEtichetta; // the prompt

    void DoDataExchange(CDataExchange* pDX) override;
    void OnCancel() override {}
};
