// Asks into how many parts lines are to be divided; dividing them is the caller's.
#pragma once

#include "platform/window/Dialog.h"

class CDialogSpezza : public CDialog {
  public:
    enum : UINT { IDD = 9039 };
    enum : int { IDC_DIVISIONI = 1400 };

    explicit CDialogSpezza(CWnd* pParent = nullptr);

    int m_nDivisioni = 0; // any number: the caller tests it

    void DoDataExchange(CDataExchange* pDX) override;
};
