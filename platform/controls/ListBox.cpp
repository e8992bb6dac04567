#include "platform/controls/ListBox.h"

#include "platform/private/peers/Controls.h"
#include "platform/private/peers/ListBoxPeer.h"
#include "platform/resource/Units.h"

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

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

BOOL CListBox::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("LISTBOX", "", style, rect, parent, id);
}

int CListBox::AddString(LPCTSTR text) {
    ListBoxPeer* list = Box(m_hWnd);
    return list ? list->Add(text) : LB_ERR;
}

int CListBox::InsertString(int row, LPCTSTR text) {
    ListBoxPeer* list = Box(m_hWnd);
    return list ? list->Insert(row, text) : LB_ERR;
}

int CListBox::DeleteString(UINT row) {
    ListBoxPeer* list = Box(m_hWnd);
    return list && list->Remove(static_cast<int>(row)) ? list->Count() : LB_ERR;
}

void CListBox::ResetContent() {
    if (ListBoxPeer* list = Box(m_hWnd))
        list->Reset();
}

int CListBox::InitStorage(int rows, UINT) {
    const ListBoxPeer* list = Box(m_hWnd);
    return list && rows >= 0 ? list->Count() + rows : int{LB_ERRSPACE};
}

int CListBox::GetCount() const {
    const ListBoxPeer* list = Box(m_hWnd);
    return list ? list->Count() : LB_ERR;
}

int CListBox::GetText(int row, LPSTR buffer) const {
    const ListBoxPeer::Row* found = RowOf(m_hWnd, row);
    if (!found)
        return LB_ERR;
    std::memcpy(buffer, static_cast<const char*>(found->text), static_cast<std::size_t>(found->text.GetLength()) + 1);
    return found->text.GetLength();
}

void CListBox::GetText(int row, CString& text) const {
    if (const ListBoxPeer::Row* found = RowOf(m_hWnd, row))
        text = found->text;
}

int CListBox::GetTextLen(int row) const {
    const ListBoxPeer::Row* found = RowOf(m_hWnd, row);
    return found ? found->text.GetLength() : LB_ERR;
}

DWORD_PTR CListBox::GetItemData(int row) const {
    const ListBoxPeer::Row* found = RowOf(m_hWnd, row);
    return found ? found->data : static_cast<DWORD_PTR>(LB_ERR);
}

void* CListBox::GetItemDataPtr(int row) const {
    return reinterpret_cast<void*>(GetItemData(row));
}

int CListBox::SetItemData(int row, DWORD_PTR data) {
    ListBoxPeer::Row* found = RowOf(m_hWnd, row);
    if (!found)
        return LB_ERR;
    found->data = data;
    return LB_OKAY;
}

int CListBox::SetItemDataPtr(int row, void* data) {
    return SetItemData(row, reinterpret_cast<DWORD_PTR>(data));
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

int CListBox::SelItemRange(BOOL select, int first, int last) {
    ListBoxPeer* list = Box(m_hWnd);
    if (!list || !list->Multiple())
        return LB_ERR;
    list->SetSelected(std::min(first, last), std::max(first, last), select);
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

int CListBox::GetCaretIndex() const {
    const ListBoxPeer* list = Box(m_hWnd);
    return list ? list->Caret() : LB_ERR;
}

int CListBox::SetCaretIndex(int row, BOOL scroll) {
    ListBoxPeer* list = Box(m_hWnd);
    if (!list || !list->RowOf(row))
        return LB_ERR;
    list->SetCaret(row, scroll);
    return LB_OKAY;
}

int CListBox::GetAnchorIndex() const {
    const ListBoxPeer* list = Box(m_hWnd);
    return list ? list->Anchor() : LB_ERR;
}

void CListBox::SetAnchorIndex(int row) {
    ListBoxPeer* list = Box(m_hWnd);
    if (list && list->RowOf(row))
        list->SetAnchor(row);
}

int CListBox::FindString(int startAfter, LPCTSTR prefix) const {
    const ListBoxPeer* list = Box(m_hWnd);
    return list ? list->find(startAfter, prefix, false) : LB_ERR;
}

int CListBox::FindStringExact(int startAfter, LPCTSTR text) const {
    const ListBoxPeer* list = Box(m_hWnd);
    return list ? list->find(startAfter, text, true) : LB_ERR;
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

UINT CListBox::ItemFromPoint(CPoint point, BOOL& outside) const {
    ListBoxPeer* list = Box(m_hWnd);
    outside = TRUE;
    if (!list || list->Count() == 0)
        return 0;
    const int row = list->RowAt(point.y);
    outside = !list->RowOf(row) || !list->Surface()->rect().contains(point.x, point.y);
    return static_cast<UINT>(std::clamp(row, 0, list->Count() - 1));
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

int CListBox::GetHorizontalExtent() const {
    const ListBoxPeer* list = Box(m_hWnd);
    return list ? list->Extent() : 0;
}

BOOL CListBox::SetTabStops(int count, const int* stops) {
    ListBoxPeer* list = Box(m_hWnd);
    if (!list || !(list->style & LBS_USETABSTOPS))
        return FALSE;
    std::vector<int> pixels;
    // One stop repeats itself across the box.
    if (count == 1 && stops[0] > 0)
        for (int stop = stops[0]; pixels.size() < 64; stop += stops[0])
            pixels.push_back(platform::UnitsToX(stop));
    else
        std::transform(stops, stops + count, std::back_inserter(pixels), platform::UnitsToX);
    std::sort(pixels.begin(), pixels.end());
    list->SetTabStops(std::move(pixels));
    return TRUE;
}

BOOL CListBox::SetTabStops(int every) {
    return SetTabStops(1, &every);
}

void CListBox::SetTabStops() {
    SetTabStops(0, nullptr);
}
