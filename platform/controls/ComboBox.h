// Combo boxes. The parent hears of selecting and typing only when the user does it.
#pragma once

#include "platform/window/Window.h"

enum : int { CB_OKAY = 0, CB_ERR = -1 };

class CComboBox : public CWnd {
    DECLARE_DYNAMIC(CComboBox)
  public:
    // The height of `rect` counts the dropped list; the closed box is one line.
    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id);

    int AddString(LPCTSTR text); // sorted without regard to case with CBS_SORT
    int InsertString(int row, LPCTSTR text);
    int DeleteString(UINT row);
    void ResetContent();
    int GetCount() const;
    int GetLBText(int row, LPSTR buffer) const; // the caller's buffer holds GetLBTextLen + 1 bytes
    void GetLBText(int row, CString& text) const;
    int GetLBTextLen(int row) const;

    DWORD_PTR GetItemData(int row) const;
    int SetItemData(int row, DWORD_PTR data);
    void* GetItemDataPtr(int row) const;
    int SetItemDataPtr(int row, void* data);

    int GetCurSel() const; // CB_ERR when the text is no row's
    int SetCurSel(int row);
    int FindString(int startAfter, LPCTSTR prefix) const;
    int FindStringExact(int startAfter, LPCTSTR text) const;
    int SelectString(int startAfter, LPCTSTR prefix);

    void ShowDropDown(BOOL show = TRUE);
    BOOL GetDroppedState() const;
    BOOL LimitText(int characters);
    BOOL SetEditSel(int start, int end);
    int SetDroppedWidth(UINT width);
};
