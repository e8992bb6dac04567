// List views: a table with columns (LVS_REPORT), a list that flows in columns (LVS_LIST) or icons.
#pragma once

#include "platform/window/Window.h"

class CImageList;

enum : UINT { LVIF_TEXT = 1, LVIF_IMAGE = 2, LVIF_PARAM = 4, LVIF_STATE = 8 };
enum : UINT { LVIS_FOCUSED = 1, LVIS_SELECTED = 2 };
enum : UINT { LVNI_ALL = 0, LVNI_FOCUSED = 1, LVNI_SELECTED = 2 };
enum : int { LVCFMT_LEFT = 0, LVCFMT_RIGHT = 1, LVCFMT_CENTER = 2 };
enum : int { LVSIL_NORMAL = 0, LVSIL_SMALL = 1, LVSIL_STATE = 2 };
enum : int { LVIR_BOUNDS = 0, LVIR_ICON = 1, LVIR_LABEL = 2 };
enum : UINT { LVHT_NOWHERE = 1, LVHT_ONITEMICON = 2, LVHT_ONITEMLABEL = 4, LVHT_ONITEM = 14 };
enum : int { LVSCW_AUTOSIZE = -1, LVSCW_AUTOSIZE_USEHEADER = -2 };

struct NMLISTVIEW { // LVN_ITEMCHANGED, LVN_COLUMNCLICK
    NMHDR hdr;
    int iItem = -1;
    int iSubItem = 0;
    UINT uNewState = 0;
    UINT uOldState = 0;
    UINT uChanged = 0; // LVIF_STATE, LVIF_TEXT
    CPoint ptAction;
    DWORD_PTR lParam = 0; // the row's data
};
using NM_LISTVIEW = NMLISTVIEW;
struct NMITEMACTIVATE { // NM_CLICK, NM_DBLCLK, NM_RCLICK; iItem is -1 beside the rows
    NMHDR hdr;
    int iItem = -1;
    int iSubItem = 0;
    CPoint ptAction;
};
struct NMLVKEYDOWN { // LVN_KEYDOWN
    NMHDR hdr;
    WORD wVKey = 0;
    UINT flags = 0;
};
using LV_KEYDOWN = NMLVKEYDOWN;
struct NMLVDISPINFO { // LVN_ENDLABELEDIT; text null when the editing was cancelled, non-zero result accepts it
    NMHDR hdr;
    int iItem = -1;
    LPCTSTR text = nullptr;
};

using PFNLVCOMPARE = int (*)(LPARAM a, LPARAM b, LPARAM argument);

class CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)
  public:
    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id);

    // Columns; widths in pixels.
    int InsertColumn(int column, LPCTSTR heading, int format = LVCFMT_LEFT, int width = -1, int subItem = -1);
    BOOL DeleteColumn(int column);
    int GetColumnWidth(int column) const;
    BOOL SetColumnWidth(int column, int width);
    int GetColumnCount() const;

    // Rows count from 0. InsertItem returns the row, -1 on failure.
    int InsertItem(int row, LPCTSTR text, int image = -1);
    BOOL DeleteItem(int row);
    BOOL DeleteAllItems(); // tells nobody
    int GetItemCount() const;
    CString GetItemText(int row, int column) const;
    int GetItemText(int row, int column, LPSTR buffer, int capacity) const; // cut to capacity - 1 bytes; its length
    BOOL SetItemText(int row, int column, LPCTSTR text);
    DWORD_PTR GetItemData(int row) const;
    BOOL SetItemData(int row, DWORD_PTR data);
    BOOL SetItemImage(int row, int image);
    int GetItemImage(int row) const; // -1 for none

    // Selection. A change tells LVN_ITEMCHANGED, also when the program makes it.
    UINT GetItemState(int row, UINT mask) const;
    BOOL SetItemState(int row, UINT state, UINT mask); // row -1 means all
    int GetNextItem(int row, UINT flags) const;        // the first one after `row` that has the flags, -1 for none
    UINT GetSelectedCount() const;
    POSITION GetFirstSelectedItemPosition() const;
    int GetNextSelectedItem(POSITION& position) const; // the row; the position moves on
    int GetSelectionMark() const;                      // the row from which a selection extends, -1 for none
    int SetSelectionMark(int row);
    BOOL EnsureVisible(int row, BOOL partialOk);

    int HitTest(CPoint point, UINT* flags = nullptr) const; // client point; -1 beside the rows
    BOOL GetItemRect(int row, CRect* rect, int part = LVIR_BOUNDS) const;
    int FindItem(LPCTSTR text, int startAfter = -1) const; // whole text without regard to case
    BOOL SortItems(PFNLVCOMPARE compare, LPARAM argument); // compares the rows' data
    BOOL EditLabel(int row);                               // needs LVS_EDITLABELS
    BOOL Arrange(UINT = 0) { return TRUE; }
    BOOL Update(int row);
    DWORD SetExtendedStyle(DWORD) { return 0; }
    // The list stays the caller's; returns the one that was set before.
    CImageList* SetImageList(CImageList* images, int kind);
};
