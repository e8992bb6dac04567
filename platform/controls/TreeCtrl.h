// Trees of one level, with check boxes on request.
#pragma once

#include "platform/window/Window.h"

class CImageList;

enum : UINT {
    TVHT_NOWHERE = 0x0001,
    TVHT_ONITEMICON = 0x0002,
    TVHT_ONITEMLABEL = 0x0004,
    TVHT_ONITEMRIGHT = 0x0020,
    TVHT_ONITEMSTATEICON = 0x0040,
    TVHT_ONITEM = TVHT_ONITEMICON | TVHT_ONITEMLABEL | TVHT_ONITEMSTATEICON,
};
enum : UINT { TVC_UNKNOWN = 0, TVC_BYMOUSE = 1, TVC_BYKEYBOARD = 2 };
enum : UINT { TVIS_SELECTED = 0x02 };

struct TVITEM {
    HTREEITEM hItem = nullptr;
    UINT state = 0;
    DWORD_PTR lParam = 0; // the item's data
};
struct NMTREEVIEW { // TVN_SELCHANGING, TVN_SELCHANGED
    NMHDR hdr;
    UINT action = 0; // TVC_
    TVITEM itemOld;
    TVITEM itemNew;
    CPoint ptDrag;
};
using NM_TREEVIEW = NMTREEVIEW;
struct NMTVKEYDOWN { // TVN_KEYDOWN
    NMHDR hdr;
    WORD wVKey = 0;
    UINT flags = 0;
};
using TV_KEYDOWN = NMTVKEYDOWN;

// A click tells NM_CLICK before anything changes; then the item is selected or its box toggled. A non-zero result keeps
// the selection, never the box. A key tells TVN_KEYDOWN before it acts; a non-zero result consumes it.
class CTreeCtrl : public CWnd {
    DECLARE_DYNAMIC(CTreeCtrl)
  public:
    // The new item comes last. Null when it could not be made; an image of -1 is none.
    HTREEITEM InsertItem(LPCTSTR text, int image = -1, int selectedImage = -1);
    BOOL DeleteAllItems();

    CString GetItemText(HTREEITEM item) const;
    DWORD_PTR GetItemData(HTREEITEM item) const;
    BOOL SetItemData(HTREEITEM item, DWORD_PTR data);
    BOOL GetCheck(HTREEITEM item) const;
    BOOL SetCheck(HTREEITEM item, BOOL check = TRUE); // tells nobody

    // Null at the end.
    HTREEITEM GetRootItem() const;
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const;

    HTREEITEM GetSelectedItem() const;
    BOOL SelectItem(HTREEITEM item); // null selects nothing; tells TVN_SELCHANGING and TVN_SELCHANGED

    HTREEITEM HitTest(CPoint point, UINT* flags = nullptr) const; // a client point; null beside the items
    BOOL GetItemRect(HTREEITEM item, CRect* rect, BOOL textOnly) const;
    // The list stays the caller's; returns the one that was set before.
    CImageList* SetImageList(CImageList* images);
};
