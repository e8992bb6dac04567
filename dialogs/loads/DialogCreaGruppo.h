// Asks for the name of a group. What a name may be is the caller's rule.
#pragma once

#include "platform/window/Dialog.h"

class CDialogCreaGruppo : public CDialog {
  public:
    enum : UINT { IDD = 9008 };
    enum : int { IDC_NOME = 1251 };

    explicit CDialogCreaGruppo(CWnd* pParent = nullptr);

    CString m_strNome; // a proposal before, the name after OK

    void DoDataExchange(CDataExchange* pDX) override;
};
