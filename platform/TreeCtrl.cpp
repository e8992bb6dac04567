#include "platform/TreeCtrl.h"

#include "platform/ImageList.h"
#include "platform/private/Controls.h"
#include "platform/private/TreePeer.h"

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

using platform::TreeItem;
using platform::TreePeer;

namespace {

TreePeer* tree(HWND handle) {
    return platform::controlOf<TreePeer>(handle);
}

// Null for no item and for the places that stand for none.
TreeItem* itemOf(HTREEITEM handle) {
    const bool isPlace = handle == TVI_ROOT || handle == TVI_FIRST || handle == TVI_LAST || handle == TVI_SORT;
    return isPlace ? nullptr : reinterpret_cast<TreeItem*>(handle);
}

HTREEITEM handleOf(QTreeWidgetItem* item) {
    return reinterpret_cast<HTREEITEM>(static_cast<TreeItem*>(item));
}

// By the index, which knows its row; a search among the siblings would make a walk over them quadratic.
HTREEITEM neighbour(const TreePeer& peer, const TreeItem& item, int offset) {
    const QModelIndex at = peer.indexFromItem(&item);
    const QModelIndex beside = at.siblingAtRow(at.row() + offset);
    return beside.isValid() ? handleOf(peer.itemFromIndex(beside)) : nullptr;
}

} // namespace

BOOL CTreeCtrl::Create(DWORD style, const CRect& rect, CWnd* parent, UINT id) {
    return CWnd::Create("SysTreeView32", "", style, rect, parent, id);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR text, HTREEITEM parent, HTREEITEM after) {
    return InsertItem(text, -1, -1, parent, after);
}

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR text, int image, int selectedImage, HTREEITEM parent, HTREEITEM after) {
    TreePeer* peer = tree(m_hWnd);
    return peer ? handleOf(peer->add(text, image, selectedImage, itemOf(parent), after)) : nullptr;
}

BOOL CTreeCtrl::DeleteItem(HTREEITEM item) {
    TreePeer* peer = tree(m_hWnd);
    if (!peer || !item)
        return FALSE;
    if (item == TVI_ROOT)
        return DeleteAllItems();
    peer->remove(itemOf(item));
    return TRUE;
}

BOOL CTreeCtrl::DeleteAllItems() {
    TreePeer* peer = tree(m_hWnd);
    if (peer)
        peer->removeAll();
    return peer != nullptr;
}

UINT CTreeCtrl::GetCount() const {
    TreePeer* peer = tree(m_hWnd);
    UINT count = 0;
    if (peer)
        for (QTreeWidgetItemIterator at(peer); *at; ++at)
            ++count;
    return count;
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const {
    const TreeItem* found = tree(m_hWnd) ? itemOf(item) : nullptr;
    return found ? platform::fromQString(found->text(0)) : CString();
}

BOOL CTreeCtrl::SetItemText(HTREEITEM item, LPCTSTR text) {
    TreeItem* found = tree(m_hWnd) ? itemOf(item) : nullptr;
    if (found)
        found->setText(0, platform::toQString(text));
    return found != nullptr;
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM item) const {
    const TreeItem* found = tree(m_hWnd) ? itemOf(item) : nullptr;
    return found ? found->itemData : 0;
}

BOOL CTreeCtrl::SetItemData(HTREEITEM item, DWORD_PTR data) {
    TreeItem* found = tree(m_hWnd) ? itemOf(item) : nullptr;
    if (found)
        found->itemData = data;
    return found != nullptr;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM item, int image, int selectedImage) {
    TreePeer* peer = tree(m_hWnd);
    TreeItem* found = peer ? itemOf(item) : nullptr;
    if (!found)
        return FALSE;
    found->image = image;
    found->selectedImage = selectedImage;
    peer->showImage(*found);
    return TRUE;
}

UINT CTreeCtrl::GetItemState(HTREEITEM item, UINT mask) const {
    const TreeItem* found = tree(m_hWnd) ? itemOf(item) : nullptr;
    if (!found)
        return 0;
    return mask & ((found->isSelected() ? TVIS_SELECTED : 0u) | (found->isExpanded() ? TVIS_EXPANDED : 0u) |
                   (found->font(0).bold() ? TVIS_BOLD : 0u));
}

BOOL CTreeCtrl::SetItemState(HTREEITEM item, UINT state, UINT mask) {
    TreePeer* peer = tree(m_hWnd);
    TreeItem* found = peer ? itemOf(item) : nullptr;
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
    const TreeItem* found = tree(m_hWnd) ? itemOf(item) : nullptr;
    return found && found->checkState(0) == Qt::Checked;
}

BOOL CTreeCtrl::SetCheck(HTREEITEM item, BOOL check) {
    const TreePeer* peer = tree(m_hWnd);
    TreeItem* found = peer && peer->hasBoxes() ? itemOf(item) : nullptr;
    if (found)
        found->setCheckState(0, check ? Qt::Checked : Qt::Unchecked);
    return found != nullptr;
}

HTREEITEM CTreeCtrl::GetRootItem() const {
    const TreePeer* peer = tree(m_hWnd);
    return peer ? handleOf(peer->topLevelItem(0)) : nullptr;
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM item) const {
    if (!item || item == TVI_ROOT)
        return GetRootItem();
    const TreeItem* found = tree(m_hWnd) ? itemOf(item) : nullptr;
    return found && found->childCount() > 0 ? handleOf(found->child(0)) : nullptr;
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM item, UINT code) const {
    const TreePeer* peer = tree(m_hWnd);
    if (!peer)
        return nullptr;
    if (code == TVGN_ROOT)
        return GetRootItem();
    if (code == TVGN_CARET)
        return GetSelectedItem();
    if (code == TVGN_CHILD)
        return GetChildItem(item);
    TreeItem* found = itemOf(item);
    if (!found)
        return nullptr;
    switch (code) {
    case TVGN_NEXT:
        return neighbour(*peer, *found, 1);
    case TVGN_PREVIOUS:
        return neighbour(*peer, *found, -1);
    case TVGN_PARENT:
        return handleOf(found->parent());
    default:
        return nullptr;
    }
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM item) const {
    const TreeItem* found = tree(m_hWnd) ? itemOf(item) : nullptr;
    return found && found->childCount() > 0;
}

HTREEITEM CTreeCtrl::GetSelectedItem() const {
    const TreePeer* peer = tree(m_hWnd);
    return peer ? handleOf(peer->selectedItem()) : nullptr;
}

BOOL CTreeCtrl::SelectItem(HTREEITEM item) {
    TreePeer* peer = tree(m_hWnd);
    if (!peer)
        return FALSE;
    const QPointer<QWidget> alive = peer;
    TreeItem* wanted = itemOf(item);
    peer->selectItem(wanted, TVC_UNKNOWN);
    return alive && !peer->WindowPeer::destroyed && peer->selectedItem() == wanted;
}

BOOL CTreeCtrl::Select(HTREEITEM item, UINT code) {
    return code == TVGN_CARET && SelectItem(item);
}

BOOL CTreeCtrl::Expand(HTREEITEM item, UINT code) {
    TreePeer* peer = tree(m_hWnd);
    TreeItem* found = peer ? itemOf(item) : nullptr;
    return found && peer->expand(found, code);
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM item) {
    TreePeer* peer = tree(m_hWnd);
    TreeItem* found = peer ? itemOf(item) : nullptr;
    if (found)
        peer->scrollToItem(found);
    return found != nullptr;
}

BOOL CTreeCtrl::SortChildren(HTREEITEM item) {
    TreePeer* peer = tree(m_hWnd);
    if (peer)
        peer->sortChildren(itemOf(item));
    return peer != nullptr;
}

BOOL CTreeCtrl::EditLabel(HTREEITEM item) {
    TreePeer* peer = tree(m_hWnd);
    TreeItem* found = peer && (peer->WindowPeer::style & TVS_EDITLABELS) ? itemOf(item) : nullptr;
    if (found)
        peer->editItem(found);
    return found != nullptr;
}

HTREEITEM CTreeCtrl::HitTest(CPoint point, UINT* flags) const {
    const TreePeer* peer = tree(m_hWnd);
    UINT found = TVHT_NOWHERE;
    TreeItem* item = peer ? peer->hitTest({point.x, point.y}, found) : nullptr;
    if (flags)
        *flags = found;
    return handleOf(item);
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM item, CRect* rect, BOOL textOnly) const {
    const TreePeer* peer = tree(m_hWnd);
    const TreeItem* found = peer ? itemOf(item) : nullptr;
    if (!found || peer->visualItemRect(found).isEmpty())
        return FALSE;
    const QRect place = peer->itemRect(*found, textOnly);
    *rect = CRect(place.left(), place.top(), place.left() + place.width(), place.top() + place.height());
    return TRUE;
}

CImageList* CTreeCtrl::SetImageList(CImageList* images, int kind) {
    TreePeer* peer = tree(m_hWnd);
    if (!peer || kind != TVSIL_NORMAL)
        return nullptr;
    return const_cast<CImageList*>(peer->setImages(images));
}
