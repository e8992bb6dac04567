// List boxes with single, multiple (LBS_MULTIPLESEL) or extended (LBS_EXTENDEDSEL) selection. Rows count from 0. The
// parent hears of selecting only when the user does it.
#pragma once

#include "platform/window/Window.h"

enum : int { LB_OKAY = 0, LB_ERR = -1 };

class CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)
  public:
    // Rows. AddString returns the row, which in a sorted box is where the text belongs without regard to case.
    int AddString(LPCTSTR text);
    int DeleteString(UINT row); // the rows that are left, or LB_ERR
    void ResetContent();
    int GetCount() const; // LB_ERR without a window
    void GetText(int row, CString& text) const;

    // A number of the caller's that stays with its row; LB_ERR for a row that does not exist.
    DWORD_PTR GetItemData(int row) const;
    int SetItemData(int row, DWORD_PTR data);

    // Selection. With multiple selection GetCurSel is the row with the focus rectangle.
    int GetCurSel() const;
    int SetCurSel(int row);                         // -1 selects nothing and returns LB_ERR
    int GetSel(int row) const;                      // positive when selected
    int SetSel(int row, BOOL select = TRUE);        // multiple selection only; row -1 means all rows
    int GetSelCount() const;                        // LB_ERR in a box with single selection
    int GetSelItems(int capacity, int* rows) const; // fills rows in ascending order and returns their number

    // Searching without regard to case, beginning after `startAfter` and going round; -1 starts at the top.
    int FindString(int startAfter, LPCTSTR prefix) const;
    int SelectString(int startAfter, LPCTSTR prefix);

    // Places, in pixels of the client area.
    int GetItemRect(int row, CRect* rect) const;
    int GetItemHeight(int row) const;
    int GetTopIndex() const;
    int SetTopIndex(int row);
    void SetHorizontalExtent(int width);
};
