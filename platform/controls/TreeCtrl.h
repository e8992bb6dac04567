// Trees, with check boxes on request.
#pragma once

#include "platform/window/Window.h"

class CImageList;

// Places among the children of an item, and the parent of the top items.
inline const HTREEITEM TVI_ROOT = reinterpret_cast<HTREEITEM>(static_cast<std::intptr_t>(-0x10000));
inline const HTREEITEM TVI_FIRST = reinterpret_cast<HTREEITEM>(static_cast<std::intptr_t>(-0x0FFFF));
inline const HTREEITEM TVI_LAST = reinterpret_cast<HTREEITEM>(static_cast<std::intptr_t>(-0x0FFFE));
inline const HTREEITEM TVI_SORT = reinterpret_cast<HTREEITEM>(static_cast<std::intptr_t>(-0x0FFFD));

enum : UINT {
    TVHT_NOWHERE = 0x0001,
    TVHT_ONITEMICON = 0x0002,
    TVHT_ONITEMLABEL = 0x0004,
    TVHT_ONITEMINDENT = 0x0008,
    TVHT_ONITEMBUTTON = 0x0010,
    TVHT_ONITEMRIGHT = 0x0020,
    TVHT_ONITEMSTATEICON = 0x0040,
    TVHT_ONITEM = TVHT_ONITEMICON | TVHT_ONITEMLABEL | TVHT_ONITEMSTATEICON,
};
enum : UINT { TVE_COLLAPSE = 1, TVE_EXPAND = 2, TVE_TOGGLE = 3 };
enum : UINT { TVGN_ROOT = 0, TVGN_NEXT = 1, TVGN_PREVIOUS = 2, TVGN_PARENT = 3, TVGN_CHILD = 4, TVGN_CARET = 9 };
enum : UINT { TVC_UNKNOWN = 0, TVC_BYMOUSE = 1, TVC_BYKEYBOARD = 2 };
enum : UINT { TVIS_SELECTED = 0x02, TVIS_BOLD = 0x10, TVIS_EXPANDED = 0x20 };
enum : int { TVSIL_NORMAL = 0, TVSIL_STATE = 2 };

struct TVITEM {
    HTREEITEM hItem = nullptr;
    UINT state = 0;
    DWORD_PTR lParam = 0; // the item's data
};
struct NMTREEVIEW { // TVN_SELCHANGING, TVN_SELCHANGED, TVN_ITEMEXPANDING, TVN_ITEMEXPANDED
    NMHDR hdr;
    UINT action = 0; // TVC_ for selections, TVE_ for expansions
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
struct NMTVDISPINFO { // TVN_ENDLABELEDIT; text null when the editing was cancelled
    NMHDR hdr;
    TVITEM item;
    LPCTSTR text = nullptr;
};

// A click tells NM_CLICK before anything changes; then the item is selected or its box toggled. A non-zero result keeps
// the selection, never the box. A key tells TVN_KEYDOWN before it acts; a non-zero result consumes it.
class CTreeCtrl : public CWnd {
    DECLARE_DYNAMIC(CTreeCtrl)
  public:
    BOOL Create(DWORD style, const CRect& rect, CWnd* parent, UINT id);

    // Null when the item could not be made. `parent` null is TVI_ROOT; `after` is an item or TVI_FIRST, _LAST or _SORT.
    HTREEITEM InsertItem(LPCTSTR text, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST);
    HTREEITEM InsertItem(LPCTSTR text, int image, int selectedImage, HTREEITEM parent = TVI_ROOT,
                         HTREEITEM after = TVI_LAST);
    BOOL DeleteItem(HTREEITEM item); // TVI_ROOT deletes them all
    BOOL DeleteAllItems();
    UINT GetCount() const;

    CString GetItemText(HTREEITEM item) const;
    BOOL SetItemText(HTREEITEM item, LPCTSTR text);
    DWORD_PTR GetItemData(HTREEITEM item) const;
    BOOL SetItemData(HTREEITEM item, DWORD_PTR data);
    BOOL SetItemImage(HTREEITEM item, int image, int selectedImage);
    UINT GetItemState(HTREEITEM item, UINT mask) const;
    BOOL SetItemState(HTREEITEM item, UINT state, UINT mask); // TVIS_BOLD, TVIS_EXPANDED
    BOOL GetCheck(HTREEITEM item) const;
    BOOL SetCheck(HTREEITEM item, BOOL check = TRUE); // tells nobody

    // Null at the end.
    HTREEITEM GetRootItem() const;
    HTREEITEM GetChildItem(HTREEITEM item) const;
    HTREEITEM GetNextItem(HTREEITEM item, UINT code) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const { return GetNextItem(item, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PREVIOUS); }
    HTREEITEM GetParentItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PARENT); }
    BOOL ItemHasChildren(HTREEITEM item) const;

    HTREEITEM GetSelectedItem() const;
    BOOL SelectItem(HTREEITEM item);        // null selects nothing; tells TVN_SELCHANGING and TVN_SELCHANGED
    BOOL Select(HTREEITEM item, UINT code); // TVGN_CARET
    BOOL Expand(HTREEITEM item, UINT code);
    BOOL EnsureVisible(HTREEITEM item);
    BOOL SortChildren(HTREEITEM item);
    BOOL EditLabel(HTREEITEM item);

    HTREEITEM HitTest(CPoint point, UINT* flags = nullptr) const; // a client point; null beside the items
    BOOL GetItemRect(HTREEITEM item, CRect* rect, BOOL textOnly) const;
    // The list stays the caller's; returns the one that was set before.
    CImageList* SetImageList(CImageList* images, int kind = TVSIL_NORMAL);
};
