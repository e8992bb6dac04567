#include "platform/ListCtrl.h"

#include "platform/private/ListCtrlPeer.h"

#include <algorithm>
#include <cstring>

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

using platform::ListCtrlControl;
using platform::ListCtrlModel;

namespace {

ListCtrlControl* list(HWND handle) {
    return dynamic_cast<ListCtrlControl*>(handle);
}

const ListCtrlModel::Row* rowOf(HWND handle, int row) {
    ListCtrlControl* control = list(handle);
    return control ? control->model().row(row) : nullptr;
}

// A position is the row after the one it stands at, so that null is the end.
POSITION positionOf(int row) {
    return reinterpret_cast<POSITION>(static_cast<std::intptr_t>(row + 1));
}

} // namespace

BOOL CListCtrl::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("SysListView32", "", style, rect, parent, id);
}

int CListCtrl::InsertColumn(int column, LPCTSTR heading, int format, int width, int) {
    ListCtrlControl* control = list(m_hWnd);
    if (!control)
        return -1;
    column = std::clamp(column, 0, control->model().columns());
    control->model().insertColumn(column, {heading, format});
    if (width >= 0)
        control->setColumnWidth(column, width);
    return column;
}

BOOL CListCtrl::DeleteColumn(int column) {
    ListCtrlControl* control = list(m_hWnd);
    if (!control || column < 0 || column >= control->model().columns())
        return FALSE;
    control->model().removeColumn(column);
    return TRUE;
}

int CListCtrl::GetColumnWidth(int column) const {
    ListCtrlControl* control = list(m_hWnd);
    return control ? control->columnWidth(column) : 0;
}

BOOL CListCtrl::SetColumnWidth(int column, int width) {
    ListCtrlControl* control = list(m_hWnd);
    if (control)
        control->setColumnWidth(column, width);
    return control != nullptr;
}

int CListCtrl::GetColumnCount() const {
    ListCtrlControl* control = list(m_hWnd);
    return control ? control->model().columns() : 0;
}

int CListCtrl::InsertItem(int row, LPCTSTR text, int image) {
    ListCtrlControl* control = list(m_hWnd);
    if (!control || row < 0)
        return -1;
    ListCtrlModel::Row content;
    content.texts.emplace_back(text);
    content.image = image;
    return control->insert(row, std::move(content));
}

BOOL CListCtrl::DeleteItem(int row) {
    if (!rowOf(m_hWnd, row))
        return FALSE;
    list(m_hWnd)->remove(row);
    return TRUE;
}

BOOL CListCtrl::DeleteAllItems() {
    ListCtrlControl* control = list(m_hWnd);
    if (control)
        control->clear();
    return control != nullptr;
}

int CListCtrl::GetItemCount() const {
    ListCtrlControl* control = list(m_hWnd);
    return control ? control->model().count() : 0;
}

CString CListCtrl::GetItemText(int row, int column) const {
    ListCtrlControl* control = list(m_hWnd);
    return control ? control->model().text(row, column) : CString();
}

int CListCtrl::GetItemText(int row, int column, LPSTR buffer, int capacity) const {
    if (capacity <= 0)
        return 0;
    const CString text = GetItemText(row, column).Left(capacity - 1);
    std::memcpy(buffer, static_cast<const char*>(text), static_cast<std::size_t>(text.GetLength()) + 1);
    return text.GetLength();
}

BOOL CListCtrl::SetItemText(int row, int column, LPCTSTR text) {
    ListCtrlControl* control = list(m_hWnd);
    return control && control->model().setText(row, column, text);
}

DWORD_PTR CListCtrl::GetItemData(int row) const {
    const ListCtrlModel::Row* found = rowOf(m_hWnd, row);
    return found ? found->data : 0;
}

BOOL CListCtrl::SetItemData(int row, DWORD_PTR data) {
    ListCtrlControl* control = list(m_hWnd);
    return control && control->model().setRowData(row, data);
}

BOOL CListCtrl::SetItemImage(int row, int image) {
    ListCtrlControl* control = list(m_hWnd);
    return control && control->model().setImage(row, image);
}

int CListCtrl::GetItemImage(int row) const {
    const ListCtrlModel::Row* found = rowOf(m_hWnd, row);
    return found ? found->image : -1;
}

UINT CListCtrl::GetItemState(int row, UINT mask) const {
    if (!rowOf(m_hWnd, row))
        return 0;
    ListCtrlControl& control = *list(m_hWnd);
    return mask & ((control.selected(row) ? LVIS_SELECTED : 0u) | (control.focused(row) ? LVIS_FOCUSED : 0u));
}

BOOL CListCtrl::SetItemState(int row, UINT state, UINT mask) {
    ListCtrlControl* control = list(m_hWnd);
    if (!control || (row != -1 && !rowOf(m_hWnd, row)))
        return FALSE;
    control->setState(row, state, mask);
    return TRUE;
}

int CListCtrl::GetNextItem(int row, UINT flags) const {
    ListCtrlControl* control = list(m_hWnd);
    if (!control)
        return -1;
    if (flags & LVNI_SELECTED)
        return control->nextSelected(row);
    if (flags & LVNI_FOCUSED) {
        const int focused = control->view().currentIndex().row();
        return focused > row ? focused : -1;
    }
    return row + 1 < control->model().count() ? row + 1 : -1;
}

UINT CListCtrl::GetSelectedCount() const {
    ListCtrlControl* control = list(m_hWnd);
    return control ? static_cast<UINT>(control->selectedCount()) : 0;
}

POSITION CListCtrl::GetFirstSelectedItemPosition() const {
    return positionOf(GetNextItem(-1, LVNI_SELECTED));
}

int CListCtrl::GetNextSelectedItem(POSITION& position) const {
    const int row = static_cast<int>(reinterpret_cast<std::intptr_t>(position)) - 1;
    position = positionOf(GetNextItem(row, LVNI_SELECTED));
    return row;
}

int CListCtrl::GetSelectionMark() const {
    const ListCtrlControl* control = list(m_hWnd);
    return control ? control->mark : -1;
}

int CListCtrl::SetSelectionMark(int row) {
    ListCtrlControl* control = list(m_hWnd);
    return control ? std::exchange(control->mark, row) : -1;
}

BOOL CListCtrl::EnsureVisible(int row, BOOL) {
    if (!rowOf(m_hWnd, row))
        return FALSE;
    ListCtrlControl& control = *list(m_hWnd);
    control.view().scrollTo(control.model().index(row, 0));
    return TRUE;
}

int CListCtrl::HitTest(CPoint point, UINT* flags) const {
    ListCtrlControl* control = list(m_hWnd);
    const int row = control ? control->rowAt({point.x, point.y}) : -1;
    if (flags) {
        *flags = LVHT_NOWHERE;
        if (row >= 0)
            *flags = control->rowRect(row, LVIR_ICON).contains(point.x, point.y) ? LVHT_ONITEMICON : LVHT_ONITEMLABEL;
    }
    return row;
}

BOOL CListCtrl::GetItemRect(int row, CRect* rect, int part) const {
    if (!rowOf(m_hWnd, row))
        return FALSE;
    const QRect place = list(m_hWnd)->rowRect(row, part);
    *rect = CRect(place.left(), place.top(), place.left() + place.width(), place.top() + place.height());
    return TRUE;
}

int CListCtrl::FindItem(LPCTSTR text, int startAfter) const {
    ListCtrlControl* control = list(m_hWnd);
    if (control)
        for (int row = startAfter + 1; row < control->model().count(); ++row)
            if (control->model().text(row, 0).CompareNoCase(text) == 0)
                return row;
    return -1;
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE compare, LPARAM argument) {
    ListCtrlControl* control = list(m_hWnd);
    if (control)
        control->sort(compare, argument);
    return control != nullptr;
}

BOOL CListCtrl::EditLabel(int row) {
    if (!rowOf(m_hWnd, row) || !list(m_hWnd)->model().editable)
        return FALSE;
    ListCtrlControl& control = *list(m_hWnd);
    control.view().edit(control.model().index(row, 0));
    return TRUE;
}

BOOL CListCtrl::Update(int row) {
    if (!rowOf(m_hWnd, row))
        return FALSE;
    ListCtrlControl& control = *list(m_hWnd);
    control.view().update(control.model().index(row, 0));
    return TRUE;
}

CImageList* CListCtrl::SetImageList(CImageList* images, int kind) {
    ListCtrlControl* control = list(m_hWnd);
    // Each kind of view shows one of the two lists.
    const bool icons = m_hWnd && (m_hWnd->style & LVS_TYPEMASK) == LVS_ICON;
    if (!control || kind != (icons ? LVSIL_NORMAL : LVSIL_SMALL))
        return nullptr;
    const CImageList* former = control->model().images();
    control->setImages(images);
    return const_cast<CImageList*>(former);
}
