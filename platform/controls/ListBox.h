// List boxes with single, multiple (LBS_MULTIPLESEL) or extended (LBS_EXTENDEDSEL) selection. Rows count from 0. The
// parent hears of selecting only when the user does it.
#pragma once

#include "platform/window/Window.h"

enum : int { LB_OKAY = 0, LB_ERR = -1, LB_ERRSPACE = -2 };

class CListBox : public CWnd {
    DECLARE_DYNAMIC(CListBox)
  public:
    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id);

    // Rows. AddString returns the row, which in a sorted box is where the text belongs without regard to case.
    int AddString(LPCTSTR text);
    int InsertString(int row, LPCTSTR text); // -1 appends; never sorts
    int DeleteString(UINT row);              // the rows that are left, or LB_ERR
    void ResetContent();
    int InitStorage(int rows, UINT bytes);    // the rows that there will be; room for them needs no asking
    int GetCount() const;                     // LB_ERR without a window
    int GetText(int row, LPSTR buffer) const; // the caller's buffer holds GetTextLen + 1 bytes; returns the length
    void GetText(int row, CString& text) const;
    int GetTextLen(int row) const;

    // A number of the caller's that stays with its row; LB_ERR for a row that does not exist.
    DWORD_PTR GetItemData(int row) const;
    void* GetItemDataPtr(int row) const;
    int SetItemData(int row, DWORD_PTR data);
    int SetItemDataPtr(int row, void* data);

    // Selection. With multiple selection GetCurSel is the row with the focus rectangle.
    int GetCurSel() const;
    int SetCurSel(int row);                  // -1 selects nothing and returns LB_ERR
    int GetSel(int row) const;               // positive when selected
    int SetSel(int row, BOOL select = TRUE); // multiple selection only; row -1 means all rows
    int SelItemRange(BOOL select, int first, int last);
    int GetSelCount() const;                        // LB_ERR in a box with single selection
    int GetSelItems(int capacity, int* rows) const; // fills rows in ascending order and returns their number
    int GetCaretIndex() const;
    int SetCaretIndex(int row, BOOL scroll = TRUE);
    int GetAnchorIndex() const;
    void SetAnchorIndex(int row);

    // Searching without regard to case, beginning after `startAfter` and going round; -1 starts at the top.
    int FindString(int startAfter, LPCTSTR prefix) const;
    int FindStringExact(int startAfter, LPCTSTR text) const;
    int SelectString(int startAfter, LPCTSTR prefix);

    // Places, in pixels of the client area.
    int GetItemRect(int row, CRect* rect) const;
    int GetItemHeight(int row) const;
    UINT ItemFromPoint(CPoint point, BOOL& outside) const; // the nearest row
    int GetTopIndex() const;
    int SetTopIndex(int row);
    void SetHorizontalExtent(int width);
    int GetHorizontalExtent() const;
    // Columns of texts with tabs, in dialog units; needs LBS_USETABSTOPS. Without stops of its own every 32 units.
    BOOL SetTabStops(int count, const int* stops);
    BOOL SetTabStops(int every);
    void SetTabStops();
};
