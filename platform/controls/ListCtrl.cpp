#include "platform/controls/ListCtrl.h"

#include "platform/private/peers/ListCtrlPeer.h"

#include <algorithm>
#include <cstring>
#include <utility>

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

using platform::ListCtrlControl;
using platform::ListCtrlModel;

namespace {

ListCtrlControl* List(HWND handle) {
    return dynamic_cast<ListCtrlControl*>(handle);
}

const ListCtrlModel::Row* RowOf(HWND handle, int row) {
    ListCtrlControl* control = List(handle);
    return control ? control->Model().RowAt(row) : nullptr;
}

// A position is the row after the one it stands at, so that null is the end.
POSITION PositionOf(int row) {
    return reinterpret_cast<POSITION>(static_cast<std::intptr_t>(row + 1));
}

} // namespace

BOOL CListCtrl::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("SysListView32", "", style, rect, parent, id);
}

int CListCtrl::InsertColumn(int column, LPCTSTR heading, int format, int width, int) {
    ListCtrlControl* control = List(m_hWnd);
    if (!control)
        return -1;
    column = std::clamp(column, 0, control->Model().Columns());
    control->Model().InsertColumnAt(column, {heading, format});
    if (width >= 0)
        control->SetColumnWidth(column, width);
    return column;
}

BOOL CListCtrl::DeleteColumn(int column) {
    ListCtrlControl* control = List(m_hWnd);
    if (!control || column < 0 || column >= control->Model().Columns())
        return FALSE;
    control->Model().RemoveColumnAt(column);
    return TRUE;
}

int CListCtrl::GetColumnWidth(int column) const {
    ListCtrlControl* control = List(m_hWnd);
    return control ? control->ColumnWidth(column) : 0;
}

BOOL CListCtrl::SetColumnWidth(int column, int width) {
    ListCtrlControl* control = List(m_hWnd);
    if (control)
        control->SetColumnWidth(column, width);
    return control != nullptr;
}

int CListCtrl::GetColumnCount() const {
    ListCtrlControl* control = List(m_hWnd);
    return control ? control->Model().Columns() : 0;
}

int CListCtrl::InsertItem(int row, LPCTSTR text, int image) {
    ListCtrlControl* control = List(m_hWnd);
    if (!control || row < 0)
        return -1;
    ListCtrlModel::Row content;
    content.texts.emplace_back(text);
    content.image = image;
    return control->Insert(row, std::move(content));
}

BOOL CListCtrl::DeleteItem(int row) {
    if (!RowOf(m_hWnd, row))
        return FALSE;
    List(m_hWnd)->Remove(row);
    return TRUE;
}

BOOL CListCtrl::DeleteAllItems() {
    ListCtrlControl* control = List(m_hWnd);
    if (control)
        control->Clear();
    return control != nullptr;
}

int CListCtrl::GetItemCount() const {
    ListCtrlControl* control = List(m_hWnd);
    return control ? control->Model().Count() : 0;
}

CString CListCtrl::GetItemText(int row, int column) const {
    ListCtrlControl* control = List(m_hWnd);
    return control ? control->Model().Text(row, column) : CString();
}

int CListCtrl::GetItemText(int row, int column, LPSTR buffer, int capacity) const {
    if (capacity <= 0)
        return 0;
    const CString text = GetItemText(row, column).Left(capacity - 1);
    std::memcpy(buffer, static_cast<const char*>(text), static_cast<std::size_t>(text.GetLength()) + 1);
    return text.GetLength();
}

BOOL CListCtrl::SetItemText(int row, int column, LPCTSTR text) {
    ListCtrlControl* control = List(m_hWnd);
    return control && control->Model().SetText(row, column, text);
}

DWORD_PTR CListCtrl::GetItemData(int row) const {
    const ListCtrlModel::Row* found = RowOf(m_hWnd, row);
    return found ? found->data : 0;
}

BOOL CListCtrl::SetItemData(int row, DWORD_PTR data) {
    ListCtrlControl* control = List(m_hWnd);
    return control && control->Model().SetRowData(row, data);
}

BOOL CListCtrl::SetItemImage(int row, int image) {
    ListCtrlControl* control = List(m_hWnd);
    return control && control->Model().SetImage(row, image);
}

int CListCtrl::GetItemImage(int row) const {
    const ListCtrlModel::Row* found = RowOf(m_hWnd, row);
    return found ? found->image : -1;
}

UINT CListCtrl::GetItemState(int row, UINT mask) const {
    if (!RowOf(m_hWnd, row))
        return 0;
    ListCtrlControl& control = *List(m_hWnd);
    return mask & ((control.Model().Selected(row) ? LVIS_SELECTED : 0u) | (control.Focused(row) ? LVIS_FOCUSED : 0u));
}

BOOL CListCtrl::SetItemState(int row, UINT state, UINT mask) {
    ListCtrlControl* control = List(m_hWnd);
    if (!control || (row != -1 && !RowOf(m_hWnd, row)))
        return FALSE;
    control->SetState(row, state, mask);
    return TRUE;
}

int CListCtrl::GetNextItem(int row, UINT flags) const {
    ListCtrlControl* control = List(m_hWnd);
    if (!control)
        return -1;
    if (flags & LVNI_SELECTED)
        return control->Model().NextSelected(row);
    if (flags & LVNI_FOCUSED) {
        const int focused = control->View().currentIndex().row();
        return focused > row ? focused : -1;
    }
    return row + 1 < control->Model().Count() ? row + 1 : -1;
}

UINT CListCtrl::GetSelectedCount() const {
    ListCtrlControl* control = List(m_hWnd);
    return control ? static_cast<UINT>(control->Model().SelectedCount()) : 0;
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const {
    return PositionOf(GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& position) const {
    const int row = static_cast<int>(reinterpret_cast<std::intptr_t>(position)) - 1;
    position = PositionOf(GetNextItem(row, LVNI_SELECTED));
    return row;
}

int CListCtrl::GetSelectionMark() const {
    const ListCtrlControl* control = List(m_hWnd);
    return control ? control->mark : -1;
}

int CListCtrl::SetSelectionMark(int row) {
    ListCtrlControl* control = List(m_hWnd);
    return control ? std::exchange(control->mark, row) : -1;
}

BOOL CListCtrl::EnsureVisible(int row, BOOL) {
    if (!RowOf(m_hWnd, row))
        return FALSE;
    ListCtrlControl& control = *List(m_hWnd);
    control.View().scrollTo(control.Model().index(row, 0));
    return TRUE;
}

int CListCtrl::HitTest(CPoint point, UINT* flags) const {
    ListCtrlControl* control = List(m_hWnd);
    const int row = control ? control->RowAt({point.x, point.y}) : -1;
    if (flags) {
        *flags = LVHT_NOWHERE;
        if (row >= 0)
            *flags = control->RowRect(row, LVIR_ICON).contains(point.x, point.y) ? LVHT_ONITEMICON : LVHT_ONITEMLABEL;
    }
    return row;
}

BOOL CListCtrl::GetItemRect(int row, CRect* rect, int part) const {
    if (!RowOf(m_hWnd, row))
        return FALSE;
    const QRect place = List(m_hWnd)->RowRect(row, part);
    *rect = CRect(place.left(), place.top(), place.left() + place.width(), place.top() + place.height());
    return TRUE;
}

int CListCtrl::FindItem(LPCTSTR text, int startAfter) const {
    ListCtrlControl* control = List(m_hWnd);
    if (control)
        for (int row = startAfter + 1; row < control->Model().Count(); ++row)
            if (control->Model().Text(row, 0).CompareNoCase(text) == 0)
                return row;
    return -1;
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE compare, LPARAM argument) {
    ListCtrlControl* control = List(m_hWnd);
    if (control)
        control->Sort(compare, argument);
    return control != nullptr;
}

BOOL CListCtrl::EditLabel(int row) {
    if (!RowOf(m_hWnd, row) || !List(m_hWnd)->Model().editable)
        return FALSE;
    ListCtrlControl& control = *List(m_hWnd);
    control.View().edit(control.Model().index(row, 0));
    return TRUE;
}

BOOL CListCtrl::Update(int row) {
    if (!RowOf(m_hWnd, row))
        return FALSE;
    ListCtrlControl& control = *List(m_hWnd);
    control.View().update(control.Model().index(row, 0));
    return TRUE;
}

CImageList* CListCtrl::SetImageList(CImageList* images, int kind) {
    ListCtrlControl* control = List(m_hWnd);
    // Each kind of view shows one of the two lists.
    const bool icons = m_hWnd && (m_hWnd->style & LVS_TYPEMASK) == LVS_ICON;
    if (!control || kind != (icons ? LVSIL_NORMAL : LVSIL_SMALL))
        return nullptr;
    const CImageList* former = control->Model().Images();
    control->SetImages(images);
    return const_cast<CImageList*>(former);
}
