#include "platform/ListBox.h"

#include "platform/private/Controls.h"
#include "platform/private/ListBoxPeer.h"
#include "platform/private/Units.h"

#include <algorithm>
#include <cstring>

IMPLEMENT_DYNAMIC(CListBox, CWnd)

using platform::controlOf;
using platform::ListBoxPeer;

namespace {

ListBoxPeer* box(HWND handle) {
    return controlOf<ListBoxPeer>(handle);
}

ListBoxPeer::Row* rowOf(HWND handle, int row) {
    ListBoxPeer* list = box(handle);
    return list ? list->row(row) : nullptr;
}

} // namespace

BOOL CListBox::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("LISTBOX", "", style, rect, parent, id);
}

int CListBox::AddString(LPCTSTR text) {
    ListBoxPeer* list = box(m_hWnd);
    return list ? list->add(text) : LB_ERR;
}

int CListBox::InsertString(int row, LPCTSTR text) {
    ListBoxPeer* list = box(m_hWnd);
    return list ? list->insert(row, text) : LB_ERR;
}

int CListBox::DeleteString(UINT row) {
    ListBoxPeer* list = box(m_hWnd);
    return list && list->remove(static_cast<int>(row)) ? list->count() : LB_ERR;
}

void CListBox::ResetContent() {
    if (ListBoxPeer* list = box(m_hWnd))
        list->reset();
}

int CListBox::InitStorage(int rows, UINT) {
    ListBoxPeer* list = box(m_hWnd);
    if (!list || rows < 0)
        return LB_ERRSPACE;
    list->reserve(rows);
    return list->count() + rows;
}

int CListBox::GetCount() const {
    const ListBoxPeer* list = box(m_hWnd);
    return list ? list->count() : LB_ERR;
}

int CListBox::GetText(int row, LPSTR buffer) const {
    const ListBoxPeer::Row* found = rowOf(m_hWnd, row);
    if (!found)
        return LB_ERR;
    std::memcpy(buffer, static_cast<const char*>(found->text), static_cast<std::size_t>(found->text.GetLength()) + 1);
    return found->text.GetLength();
}

void CListBox::GetText(int row, CString& text) const {
    if (const ListBoxPeer::Row* found = rowOf(m_hWnd, row))
        text = found->text;
}

int CListBox::GetTextLen(int row) const {
    const ListBoxPeer::Row* found = rowOf(m_hWnd, row);
    return found ? found->text.GetLength() : LB_ERR;
}

DWORD_PTR CListBox::GetItemData(int row) const {
    const ListBoxPeer::Row* found = rowOf(m_hWnd, row);
    return found ? found->data : static_cast<DWORD_PTR>(LB_ERR);
}

void* CListBox::GetItemDataPtr(int row) const {
    return reinterpret_cast<void*>(GetItemData(row));
}

int CListBox::SetItemData(int row, DWORD_PTR data) {
    ListBoxPeer::Row* found = rowOf(m_hWnd, row);
    if (!found)
        return LB_ERR;
    found->data = data;
    return LB_OKAY;
}

int CListBox::SetItemDataPtr(int row, void* data) {
    return SetItemData(row, reinterpret_cast<DWORD_PTR>(data));
}

int CListBox::GetCurSel() const {
    const ListBoxPeer* list = box(m_hWnd);
    if (!list || (!list->multiple() && list->selectedCount() == 0))
        return LB_ERR;
    return list->caret();
}

int CListBox::SetCurSel(int row) {
    ListBoxPeer* list = box(m_hWnd);
    if (!list || list->multiple())
        return LB_ERR;
    list->select(row);
    return list->row(row) ? row : LB_ERR;
}

int CListBox::GetSel(int row) const {
    const ListBoxPeer::Row* found = rowOf(m_hWnd, row);
    return found ? int{found->selected} : int{LB_ERR};
}

int CListBox::SetSel(int row, BOOL select) {
    ListBoxPeer* list = box(m_hWnd);
    if (!list || !list->multiple() || (row != -1 && !list->row(row)))
        return LB_ERR;
    if (row == -1) {
        list->setSelected(0, list->count() - 1, select);
        return LB_OKAY;
    }
    list->setSelected(row, row, select);
    if (select) {
        list->setAnchor(row);
        list->setCaret(row, true);
    }
    return LB_OKAY;
}

int CListBox::SelItemRange(BOOL select, int first, int last) {
    ListBoxPeer* list = box(m_hWnd);
    if (!list || !list->multiple())
        return LB_ERR;
    list->setSelected(std::min(first, last), std::max(first, last), select);
    return LB_OKAY;
}

int CListBox::GetSelCount() const {
    const ListBoxPeer* list = box(m_hWnd);
    return list && list->multiple() ? list->selectedCount() : LB_ERR;
}

int CListBox::GetSelItems(int capacity, int* rows) const {
    ListBoxPeer* list = box(m_hWnd);
    if (!list || !list->multiple())
        return LB_ERR;
    int found = 0;
    for (int row = 0; row < list->count() && found < std::min(capacity, list->selectedCount()); ++row)
        if (list->row(row)->selected)
            rows[found++] = row;
    return found;
}

int CListBox::GetCaretIndex() const {
    const ListBoxPeer* list = box(m_hWnd);
    return list ? list->caret() : LB_ERR;
}

int CListBox::SetCaretIndex(int row, BOOL scroll) {
    ListBoxPeer* list = box(m_hWnd);
    if (!list || !list->row(row))
        return LB_ERR;
    list->setCaret(row, scroll);
    return LB_OKAY;
}

int CListBox::GetAnchorIndex() const {
    const ListBoxPeer* list = box(m_hWnd);
    return list ? list->anchor() : LB_ERR;
}

void CListBox::SetAnchorIndex(int row) {
    ListBoxPeer* list = box(m_hWnd);
    if (list && list->row(row))
        list->setAnchor(row);
}

int CListBox::FindString(int startAfter, LPCTSTR prefix) const {
    const ListBoxPeer* list = box(m_hWnd);
    return list ? list->find(startAfter, prefix, false) : LB_ERR;
}

int CListBox::FindStringExact(int startAfter, LPCTSTR text) const {
    const ListBoxPeer* list = box(m_hWnd);
    return list ? list->find(startAfter, text, true) : LB_ERR;
}

int CListBox::SelectString(int startAfter, LPCTSTR prefix) {
    const int row = FindString(startAfter, prefix);
    return row == LB_ERR ? LB_ERR : SetCurSel(row);
}

int CListBox::GetItemRect(int row, CRect* rect) const {
    ListBoxPeer* list = box(m_hWnd);
    if (!list || !list->row(row))
        return LB_ERR;
    const QRect place = list->rowRect(row);
    *rect = CRect(place.left(), place.top(), place.left() + place.width(), place.top() + place.height());
    return LB_OKAY;
}

int CListBox::GetItemHeight(int) const {
    const ListBoxPeer* list = box(m_hWnd);
    return list ? list->rowHeight() : LB_ERR;
}

UINT CListBox::ItemFromPoint(CPoint point, BOOL& outside) const {
    ListBoxPeer* list = box(m_hWnd);
    outside = TRUE;
    if (!list || list->count() == 0)
        return 0;
    const int row = list->rowAt(point.y);
    outside = !list->row(row) || !list->surface()->rect().contains(point.x, point.y);
    return static_cast<UINT>(std::clamp(row, 0, list->count() - 1));
}

int CListBox::GetTopIndex() const {
    ListBoxPeer* list = box(m_hWnd);
    return list ? list->topRow() : LB_ERR;
}

int CListBox::SetTopIndex(int row) {
    ListBoxPeer* list = box(m_hWnd);
    if (!list || !list->row(row))
        return LB_ERR;
    list->setTopRow(row);
    return LB_OKAY;
}

void CListBox::SetHorizontalExtent(int width) {
    if (ListBoxPeer* list = box(m_hWnd))
        list->setExtent(width);
}

int CListBox::GetHorizontalExtent() const {
    const ListBoxPeer* list = box(m_hWnd);
    return list ? list->extent() : 0;
}

BOOL CListBox::SetTabStops(int count, const int* stops) {
    ListBoxPeer* list = box(m_hWnd);
    if (!list || !(list->style & LBS_USETABSTOPS))
        return FALSE;
    std::vector<int> pixels;
    // One stop repeats itself across the box.
    if (count == 1 && stops[0] > 0)
        for (int stop = stops[0]; pixels.size() < 64; stop += stops[0])
            pixels.push_back(platform::unitsToX(stop));
    else
        std::transform(stops, stops + count, std::back_inserter(pixels), platform::unitsToX);
    std::sort(pixels.begin(), pixels.end());
    list->setTabStops(std::move(pixels));
    return TRUE;
}

BOOL CListBox::SetTabStops(int every) {
    return SetTabStops(1, &every);
}

void CListBox::SetTabStops() {
    SetTabStops(0, nullptr);
}
