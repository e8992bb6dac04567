// Combo boxes. The parent hears of selecting and typing only when the user does it.
#pragma once

#include "platform/window/Window.h"

enum : int { CB_ERR = -1 };

class CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
  public:
    int AddString(LPCTSTR text); // sorted without regard to case with CBS_SORT
    void ResetContent();
    int GetCount() const;
    void GetLBText(int row, CString& text) const;

    int GetCurSel() const; // CB_ERR when the text is no row's
    int SetCurSel(int row);
    int FindString(int startAfter, LPCTSTR prefix) const;
    int SelectString(int startAfter, LPCTSTR prefix);
};
