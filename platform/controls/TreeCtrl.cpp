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

TreeItem* ItemOf(HTREEITEM handle) {
    return reinterpret_cast<TreeItem*>(handle);
}

HTREEITEM HandleOf(QTreeWidgetItem* item) {
    return reinterpret_cast<HTREEITEM>(static_cast<TreeItem*>(item));
}

} // namespace

HTREEITEM CTreeCtrl::InsertItem(LPCTSTR text, int image, int selectedImage) {
    TreePeer* peer = Tree(m_hWnd);
    return peer ? HandleOf(peer->Add(text, image, selectedImage)) : nullptr;
}

BOOL CTreeCtrl::DeleteAllItems() {
    TreePeer* peer = Tree(m_hWnd);
    if (peer)
        peer->RemoveAll();
    return peer != nullptr;
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const {
    const TreeItem* found = Tree(m_hWnd) ? ItemOf(item) : nullptr;
    return found ? platform::FromQString(found->text(0)) : CString();
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

// By the index, which knows its row; a search among the siblings would make a walk over them quadratic.
HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM item) const {
    const TreePeer* peer = Tree(m_hWnd);
    if (!peer || !item)
        return nullptr;
    const QModelIndex at = peer->indexFromItem(ItemOf(item));
    const QModelIndex beside = at.siblingAtRow(at.row() + 1);
    return beside.isValid() ? HandleOf(peer->itemFromIndex(beside)) : nullptr;
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

CImageList* CTreeCtrl::SetImageList(CImageList* images) {
    TreePeer* peer = Tree(m_hWnd);
    return peer ? const_cast<CImageList*>(peer->SetImages(images)) : nullptr;
}
