#include "platform/controls/ListCtrl.h"

#include "platform/private/peers/ListCtrlPeer.h"

#include <algorithm>
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

} // namespace

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

BOOL CListCtrl::SetItemText(int row, int column, LPCTSTR text) {
    ListCtrlControl* control = List(m_hWnd);
    return control && control->Model().SetText(row, column, text);
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

int CListCtrl::GetSelectionMark() const {
    const ListCtrlControl* control = List(m_hWnd);
    return control ? control->mark : -1;
}

BOOL CListCtrl::GetItemRect(int row, CRect* rect, int part) const {
    if (!RowOf(m_hWnd, row))
        return FALSE;
    const QRect place = List(m_hWnd)->RowRect(row, part);
    *rect = CRect(place.left(), place.top(), place.left() + place.width(), place.top() + place.height());
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
