#include "platform/controls/ListBox.h"

#include "platform/private/peers/Controls.h"
#include "platform/private/peers/ListBoxPeer.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CListBox, CWnd)

using platform::ControlOf;
using platform::ListBoxPeer;

namespace {

ListBoxPeer* Box(HWND handle) {
    return ControlOf<ListBoxPeer>(handle);
}

ListBoxPeer::Row* RowOf(HWND handle, int row) {
    ListBoxPeer* list = Box(handle);
    return list ? list->RowOf(row) : nullptr;
}

} // namespace

int CListBox::AddString(LPCTSTR text) {
    ListBoxPeer* list = Box(m_hWnd);
    return list ? list->Add(text) : LB_ERR;
}

int CListBox::DeleteString(UINT row) {
    ListBoxPeer* list = Box(m_hWnd);
    return list && list->Remove(static_cast<int>(row)) ? list->Count() : LB_ERR;
}

void CListBox::ResetContent() {
    if (ListBoxPeer* list = Box(m_hWnd))
        list->Reset();
}

int CListBox::GetCount() const {
    const ListBoxPeer* list = Box(m_hWnd);
    return list ? list->Count() : LB_ERR;
}

void CListBox::GetText(int row, CString& text) const {
    if (const ListBoxPeer::Row* found = RowOf(m_hWnd, row))
        text = found->text;
}

DWORD_PTR CListBox::GetItemData(int row) const {
    const ListBoxPeer::Row* found = RowOf(m_hWnd, row);
    return found ? found->data : static_cast<DWORD_PTR>(LB_ERR);
}

int CListBox::SetItemData(int row, DWORD_PTR data) {
    ListBoxPeer::Row* found = RowOf(m_hWnd, row);
    if (!found)
        return LB_ERR;
    found->data = data;
    return LB_OKAY;
}

int CListBox::GetCurSel() const {
    const ListBoxPeer* list = Box(m_hWnd);
    if (!list)
        return LB_ERR;
    return list->Multiple() ? list->Caret() : list->Current();
}

int CListBox::SetCurSel(int row) {
    ListBoxPeer* list = Box(m_hWnd);
    if (!list || list->Multiple())
        return LB_ERR;
    list->Select(row);
    return list->RowOf(row) ? row : LB_ERR;
}

int CListBox::GetSel(int row) const {
    const ListBoxPeer::Row* found = RowOf(m_hWnd, row);
    return found ? int{found->selected} : int{LB_ERR};
}

int CListBox::SetSel(int row, BOOL select) {
    ListBoxPeer* list = Box(m_hWnd);
    if (!list || !list->Multiple() || (row != -1 && !list->RowOf(row)))
        return LB_ERR;
    if (row == -1) {
        list->SetSelected(0, list->Count() - 1, select);
        return LB_OKAY;
    }
    list->SetSelected(row, row, select);
    if (select) {
        list->SetAnchor(row);
        list->SetCaret(row, true);
    }
    return LB_OKAY;
}

int CListBox::GetSelCount() const {
    const ListBoxPeer* list = Box(m_hWnd);
    return list && list->Multiple() ? list->SelectedCount() : LB_ERR;
}

int CListBox::GetSelItems(int capacity, int* rows) const {
    ListBoxPeer* list = Box(m_hWnd);
    if (!list || !list->Multiple())
        return LB_ERR;
    int found = 0;
    for (int row = 0; row < list->Count() && found < std::min(capacity, list->SelectedCount()); ++row)
        if (list->RowOf(row)->selected)
            rows[found++] = row;
    return found;
}

int CListBox::FindString(int startAfter, LPCTSTR prefix) const {
    const ListBoxPeer* list = Box(m_hWnd);
    return list ? list->Find(startAfter, prefix) : LB_ERR;
}

int CListBox::SelectString(int startAfter, LPCTSTR prefix) {
    const int row = FindString(startAfter, prefix);
    return row == LB_ERR ? LB_ERR : SetCurSel(row);
}

int CListBox::GetItemRect(int row, CRect* rect) const {
    ListBoxPeer* list = Box(m_hWnd);
    if (!list || !list->RowOf(row))
        return LB_ERR;
    const QRect place = list->RowRect(row);
    *rect = CRect(place.left(), place.top(), place.left() + place.width(), place.top() + place.height());
    return LB_OKAY;
}

int CListBox::GetItemHeight(int) const {
    const ListBoxPeer* list = Box(m_hWnd);
    return list ? list->RowHeight() : LB_ERR;
}

int CListBox::GetTopIndex() const {
    ListBoxPeer* list = Box(m_hWnd);
    return list ? list->TopRow() : LB_ERR;
}

int CListBox::SetTopIndex(int row) {
    ListBoxPeer* list = Box(m_hWnd);
    if (!list || !list->RowOf(row))
        return LB_ERR;
    list->SetTopRow(row);
    return LB_OKAY;
}

void CListBox::SetHorizontalExtent(int width) {
    if (ListBoxPeer* list = Box(m_hWnd))
        list->SetExtent(width);
}
