#include "platform/controls/TreeCtrl.h"

#include "platform/controls/ImageList.h"
#include "platform/private/peers/Controls.h"
#include "platform/private/peers/TreePeer.h"

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

using platform::TreeItem;
using platform::TreePeer;

namespace {

TreePeer* Tree(HWND handle) {
    return platform::ControlOf<TreePeer>(handle);
}

// Null for no item and for the places that stand for none.
TreeItem* ItemOf(HTREEITEM handle) {
    const bool isPlace = handle == TVI_ROOT || handle == TVI_FIRST || handle == TVI_LAST || handle == TVI_SORT;
    return isPlace ? nullptr : reinterpret_cast<TreeItem*>(handle);
}

HTREEITEM HandleOf(QTreeWidgetItem* item) {
    return reinterpret_cast<HTREEITEM>(static_cast<TreeItem*>(item));
}

// By the index, which knows its row; a search among the siblings would make a walk over them quadratic.
HTREEITEM Neighbour(const TreePeer& peer, const TreeItem& item, int offset) {
    const QModelIndex at = peer.indexFromItem(&item);
    const QModelIndex beside = at.siblingAtRow(at.row() + offset);
    return beside.isValid() ? HandleOf(peer.itemFromIndex(beside)) : nullptr;
}

} // namespace

BOOL CTreeCtrl::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("SysTreeView32", "", style, rect, parent, id);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR text, HTREEITEM parent, HTREEITEM after) {
    return InsertItem(text, -1, -1, parent, after);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR text, int image, int selectedImage, HTREEITEM parent, HTREEITEM after) {
    TreePeer* peer = Tree(m_hWnd);
    return peer ? HandleOf(peer->Add(text, image, selectedImage, ItemOf(parent), after)) : nullptr;
}

BOOL CTreeCtrl::DeleteItem(HTREEITEM item) {
    TreePeer* peer = Tree(m_hWnd);
    if (!peer || !item)
        return FALSE;
    if (item == TVI_ROOT)
        return DeleteAllItems();
    peer->Remove(ItemOf(item));
    return TRUE;
}

BOOL CTreeCtrl::DeleteAllItems() {
    TreePeer* peer = Tree(m_hWnd);
    if (peer)
        peer->RemoveAll();
    return peer != nullptr;
}

UINT CTreeCtrl::GetCount() const {
    TreePeer* peer = Tree(m_hWnd);
    UINT count = 0;
    if (peer)
        for (QTreeWidgetItemIterator at(peer); *at; ++at)
            ++count;
    return count;
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const {
    const TreeItem* found = Tree(m_hWnd) ? ItemOf(item) : nullptr;
    return found ? platform::FromQString(found->text(0)) : CString();
}

BOOL CTreeCtrl::SetItemText(HTREEITEM item, LPCTSTR text) {
    TreeItem* found = Tree(m_hWnd) ? ItemOf(item) : nullptr;
    if (found)
        found->setText(0, platform::ToQString(text));
    return found != nullptr;
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM item) const {
    const TreeItem* found = Tree(m_hWnd) ? ItemOf(item) : nullptr;
    return found ? found->itemData : 0;
}

BOOL CTreeCtrl::SetItemData(HTREEITEM item, DWORD_PTR data) {
    TreeItem* found = Tree(m_hWnd) ? ItemOf(item) : nullptr;
    if (found)
        found->itemData = data;
    return found != nullptr;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM item, int image, int selectedImage) {
    TreePeer* peer = Tree(m_hWnd);
    TreeItem* found = peer ? ItemOf(item) : nullptr;
    if (!found)
        return FALSE;
    found->image = image;
    found->selectedImage = selectedImage;
    peer->ShowImage(*found);
    return TRUE;
}

UINT CTreeCtrl::GetItemState(HTREEITEM item, UINT mask) const {
    const TreeItem* found = Tree(m_hWnd) ? ItemOf(item) : nullptr;
    if (!found)
        return 0;
    return mask & ((found->isSelected() ? TVIS_SELECTED : 0u) | (found->isExpanded() ? TVIS_EXPANDED : 0u) |
                   (found->font(0).bold() ? TVIS_BOLD : 0u));
}

BOOL CTreeCtrl::SetItemState(HTREEITEM item, UINT state, UINT mask) {
    TreePeer* peer = Tree(m_hWnd);
    TreeItem* found = peer ? ItemOf(item) : nullptr;
    if (!found)
        return FALSE;
    if (mask & TVIS_BOLD) {
        QFont font = peer->font();
        font.setBold(state & TVIS_BOLD);
        found->setFont(0, font);
    }
    if (mask & TVIS_EXPANDED)
        found->setExpanded(state & TVIS_EXPANDED);
    return TRUE;
}

BOOL CTreeCtrl::GetCheck(HTREEITEM item) const {
    const TreeItem* found = Tree(m_hWnd) ? ItemOf(item) : nullptr;
    return found && found->checkState(0) == Qt::Checked;
}

BOOL CTreeCtrl::SetCheck(HTREEITEM item, BOOL check) {
    const TreePeer* peer = Tree(m_hWnd);
    TreeItem* found = peer && peer->HasBoxes() ? ItemOf(item) : nullptr;
    if (found)
        found->setCheckState(0, check ? Qt::Checked : Qt::Unchecked);
    return found != nullptr;
}

HTREEITEM CTreeCtrl::GetRootItem() const {
    const TreePeer* peer = Tree(m_hWnd);
    return peer ? HandleOf(peer->topLevelItem(0)) : nullptr;
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM item) const {
    if (!item || item == TVI_ROOT)
        return GetRootItem();
    const TreeItem* found = Tree(m_hWnd) ? ItemOf(item) : nullptr;
    return found && found->childCount() > 0 ? HandleOf(found->child(0)) : nullptr;
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM item, UINT code) const {
    const TreePeer* peer = Tree(m_hWnd);
    if (!peer)
        return nullptr;
    if (code == TVGN_ROOT)
        return GetRootItem();
    if (code == TVGN_CARET)
        return GetSelectedItem();
    if (code == TVGN_CHILD)
        return GetChildItem(item);
    TreeItem* found = ItemOf(item);
    if (!found)
        return nullptr;
    switch (code) {
    case TVGN_NEXT:
        return Neighbour(*peer, *found, 1);
    case TVGN_PREVIOUS:
        return Neighbour(*peer, *found, -1);
    case TVGN_PARENT:
        return HandleOf(found->parent());
    default:
        return nullptr;
    }
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM item) const {
    const TreeItem* found = Tree(m_hWnd) ? ItemOf(item) : nullptr;
    return found && found->childCount() > 0;
}

HTREEITEM CTreeCtrl::GetSelectedItem() const {
    const TreePeer* peer = Tree(m_hWnd);
    return peer ? HandleOf(peer->SelectedItem()) : nullptr;
}

BOOL CTreeCtrl::SelectItem(HTREEITEM item) {
    TreePeer* peer = Tree(m_hWnd);
    if (!peer)
        return FALSE;
    const QPointer<QWidget> alive = peer;
    TreeItem* wanted = ItemOf(item);
    peer->SelectItem(wanted, TVC_UNKNOWN);
    return alive && !peer->WindowPeer::destroyed && peer->SelectedItem() == wanted;
}

BOOL CTreeCtrl::Select(HTREEITEM item, UINT code) {
    return code == TVGN_CARET && SelectItem(item);
}

BOOL CTreeCtrl::Expand(HTREEITEM item, UINT code) {
    TreePeer* peer = Tree(m_hWnd);
    TreeItem* found = peer ? ItemOf(item) : nullptr;
    return found && peer->expand(found, code);
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM item) {
    TreePeer* peer = Tree(m_hWnd);
    TreeItem* found = peer ? ItemOf(item) : nullptr;
    if (found)
        peer->scrollToItem(found);
    return found != nullptr;
}

BOOL CTreeCtrl::SortChildren(HTREEITEM item) {
    TreePeer* peer = Tree(m_hWnd);
    if (peer)
        peer->SortChildren(ItemOf(item));
    return peer != nullptr;
}

BOOL CTreeCtrl::EditLabel(HTREEITEM item) {
    TreePeer* peer = Tree(m_hWnd);
    TreeItem* found = peer && (peer->WindowPeer::style & TVS_EDITLABELS) ? ItemOf(item) : nullptr;
    if (found)
        peer->editItem(found);
    return found != nullptr;
}

HTREEITEM CTreeCtrl::HitTest(CPoint point, UINT* flags) const {
    const TreePeer* peer = Tree(m_hWnd);
    UINT found = TVHT_NOWHERE;
    TreeItem* item = peer ? peer->HitTest({point.x, point.y}, found) : nullptr;
    if (flags)
        *flags = found;
    return HandleOf(item);
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM item, CRect* rect, BOOL textOnly) const {
    const TreePeer* peer = Tree(m_hWnd);
    const TreeItem* found = peer ? ItemOf(item) : nullptr;
    if (!found || peer->visualItemRect(found).isEmpty())
        return FALSE;
    const QRect place = peer->ItemRect(*found, textOnly);
    *rect = CRect(place.left(), place.top(), place.left() + place.width(), place.top() + place.height());
    return TRUE;
}

CImageList* CTreeCtrl::SetImageList(CImageList* images, int kind) {
    TreePeer* peer = Tree(m_hWnd);
    if (!peer || kind != TVSIL_NORMAL)
        return nullptr;
    return const_cast<CImageList*>(peer->SetImages(images));
}
