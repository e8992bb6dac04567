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

struct NMLISTVIEW { // LVN_ITEMCHANGED
    NMHDR hdr;
    int iItem = -1;
    int iSubItem = 0;
    UINT uNewState = 0;
    UINT uOldState = 0;
    UINT uChanged = 0; // LVIF_STATE
    CPoint ptAction;
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

class CListCtrl : public CWnd {
    DECLARE_DYNAMIC(CListCtrl)
  public:
    // The width in pixels; a negative one is the toolkit's choice. Returns the column, -1 without a window.
    int InsertColumn(int column, LPCTSTR heading, int format = LVCFMT_LEFT, int width = -1, int subItem = -1);

    // Rows count from 0. InsertItem returns the row, -1 on failure.
    int InsertItem(int row, LPCTSTR text, int image = -1);
    BOOL DeleteItem(int row);
    BOOL DeleteAllItems(); // tells nobody
    int GetItemCount() const;
    CString GetItemText(int row, int column) const;
    BOOL SetItemText(int row, int column, LPCTSTR text);

    // Selection. A change tells LVN_ITEMCHANGED, also when the program makes it.
    BOOL SetItemState(int row, UINT state, UINT mask); // row -1 means all
    int GetNextItem(int row, UINT flags) const;        // the first one after `row` that has the flags, -1 for none
    UINT GetSelectedCount() const;
    int GetSelectionMark() const; // the row from which a selection extends, -1 for none

    BOOL GetItemRect(int row, CRect* rect, int part = LVIR_BOUNDS) const;
    // The list stays the caller's; returns the one that was set before.
    CImageList* SetImageList(CImageList* images, int kind);
};
