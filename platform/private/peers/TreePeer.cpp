#include "platform/private/peers/TreePeer.h"

#include "platform/private/paint/Icons.h"
#include "platform/private/peers/Controls.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <memory>
#include <utility>

namespace platform {

namespace {

TVITEM Describe(const TreeItem* item, bool selected) {
    TVITEM result;
    if (item) {
        result.hItem = reinterpret_cast<HTREEITEM>(const_cast<TreeItem*>(item));
        result.lParam = item->itemData;
        result.state = selected ? TVIS_SELECTED : 0u;
    }
    return result;
}

} // namespace

// Without the toolkit's own checking: it would toggle the box before the parent hears of the click.
TreeItem::TreeItem() : QTreeWidgetItem(UserType) {
    setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
}

TreePeer::TreePeer(const ControlSpec& spec, WindowPeer& parentPeer)
    : HostedScrollArea<QTreeWidget>(&parentPeer, parentPeer.Surface()) {
    ApplySpec(*this, spec);
    setFocusPolicy(Qt::StrongFocus);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setTabKeyNavigation(false);
    setRootIsDecorated(false);
    setEditTriggers(NoEditTriggers);
    const bool framed = (spec.style & WS_BORDER) || (spec.exStyle & (WS_EX_CLIENTEDGE | WS_EX_STATICEDGE));
    setFrameShape(framed ? StyledPanel : NoFrame);
    TreePeer::StyleChanged();
    connect(this, &QTreeWidget::itemSelectionChanged, this, [this] { SelectionMoved(); });
}

std::unique_ptr<CWnd> TreePeer::MakeObject() const {
    return std::make_unique<CTreeCtrl>();
}

void TreePeer::FocusChanged(bool gained) {
    Tell(gained ? NM_SETFOCUS : NM_KILLFOCUS);
}

LRESULT TreePeer::Tell(int code) {
    NMHDR header;
    return NotifyParent(header, code);
}

void TreePeer::StyleChanged() {
    if (!HasBoxes())
        return;
    for (QTreeWidgetItemIterator at(this); *at; ++at)
        if (!(*at)->data(0, Qt::CheckStateRole).isValid())
            (*at)->setCheckState(0, Qt::Unchecked);
}

LRESULT TreePeer::DefaultMessage(UINT message, WPARAM wParam, LPARAM) {
    return PlayKey(*this, message, wParam);
}

TreeItem* TreePeer::Add(const CString& text, int image, int selectedImage) {
    auto* item = new TreeItem; // the tree's from the insertion on
    item->setText(0, ToQString(text));
    if (HasBoxes())
        item->setCheckState(0, Qt::Unchecked);
    item->image = image;
    item->selectedImage = selectedImage;
    ShowImage(*item);
    addTopLevelItem(item);
    return item;
}

void TreePeer::RemoveAll() {
    m_silent = true;
    clear();
    m_told = nullptr;
    m_silent = false;
}

TreeItem* TreePeer::SelectedItem() const {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? nullptr : static_cast<TreeItem*>(itemFromIndex(selected.first()));
}

void TreePeer::SelectItem(TreeItem* item, UINT action) {
    if (item == SelectedItem())
        return;
    const QPointer<QWidget> alive = this;
    NMTREEVIEW change;
    change.action = action;
    change.itemOld = Describe(SelectedItem(), true);
    change.itemNew = Describe(item, true);
    if (NotifyParent(change.hdr, TVN_SELCHANGING) || !Usable(alive))
        return;
    const UINT outer = std::exchange(m_action, action);
    if (item)
        setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect);
    else
        clearSelection();
    if (alive)
        m_action = outer;
}

void TreePeer::SelectionMoved() {
    TreeItem* now = SelectedItem();
    TreeItem* former = std::exchange(m_told, now);
    if (m_images) {
        for (TreeItem* item : {former, now})
            if (item && (item == now || indexFromItem(item).isValid()))
                ShowImage(*item);
    }
    if (m_silent || former == now)
        return;
    NMTREEVIEW change;
    change.action = m_action;
    change.itemOld.hItem = reinterpret_cast<HTREEITEM>(former);
    change.itemNew = Describe(now, true);
    NotifyParent(change.hdr, TVN_SELCHANGED);
}

void TreePeer::Toggle(TreeItem* item) {
    if (HasBoxes() && item)
        item->setCheckState(0, item->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

QStyleOptionViewItem TreePeer::OptionFor(const TreeItem& item) const {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualItemRect(&item);
    option.index = indexFromItem(&item);
    option.text = item.text(0);
    option.features |= QStyleOptionViewItem::HasDisplay;
    if (item.data(0, Qt::CheckStateRole).isValid())
        option.features |= QStyleOptionViewItem::HasCheckIndicator;
    if (!item.icon(0).isNull()) {
        option.features |= QStyleOptionViewItem::HasDecoration;
        option.icon = item.icon(0);
        option.decorationSize = iconSize();
    }
    return option;
}

TreeItem* TreePeer::HitTest(const QPoint& point, UINT& flags) const {
    flags = TVHT_NOWHERE;
    auto* item = static_cast<TreeItem*>(itemAt(point));
    if (!item)
        return nullptr;
    const QStyleOptionViewItem option = OptionFor(*item);
    const auto part = [&](QStyle::SubElement element) {
        return QWidget::style()->subElementRect(element, &option, this);
    };
    const bool boxed = option.features & QStyleOptionViewItem::HasCheckIndicator;
    const bool pictured = option.features & QStyleOptionViewItem::HasDecoration;
    const QRect text = ItemRect(*item, true);
    if (boxed && point.x() <= part(QStyle::SE_ItemViewItemCheckIndicator).right() + 1)
        flags = TVHT_ONITEMSTATEICON;
    else if (pictured && point.x() <= part(QStyle::SE_ItemViewItemDecoration).right())
        flags = TVHT_ONITEMICON;
    else if (point.x() <= text.right())
        flags = TVHT_ONITEMLABEL;
    else
        flags = TVHT_ONITEMRIGHT;
    return item;
}

QRect TreePeer::ItemRect(const TreeItem& item, bool textOnly) const {
    const QStyleOptionViewItem option = OptionFor(item);
    if (!textOnly)
        return {0, option.rect.top(), viewport()->width(), option.rect.height()};
    QRect text = QWidget::style()->subElementRect(QStyle::SE_ItemViewItemText, &option, this);
    // The view gives the text all that is left of the line; the label ends where its characters do.
    const int margin = QWidget::style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    text.setWidth(option.fontMetrics.horizontalAdvance(option.text) + 2 * margin);
    return text;
}

const CImageList* TreePeer::SetImages(const CImageList* images) {
    const CImageList* former = std::exchange(m_images, images);
    setIconSize(platform::IconSize(images));
    for (QTreeWidgetItemIterator at(this); *at; ++at)
        ShowImage(static_cast<TreeItem&>(**at));
    return former;
}

void TreePeer::ShowImage(TreeItem& item) {
    if (!m_images && item.icon(0).isNull())
        return;
    const bool selected = item.treeWidget() && item.isSelected();
    item.setIcon(0, IconAt(m_images, selected && item.selectedImage >= 0 ? item.selectedImage : item.image));
}

void TreePeer::keyPressEvent(QKeyEvent* event) {
    const QPointer<QWidget> alive = this;
    NMTVKEYDOWN key;
    key.wVKey = static_cast<WORD>(VirtualKey(event->key(), event->modifiers() & Qt::KeypadModifier));
    if (NotifyParent(key.hdr, TVN_KEYDOWN) || !Usable(alive))
        return;
    if (event->key() == Qt::Key_Space && HasBoxes()) {
        Toggle(SelectedItem());
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Tell(NM_RETURN);
        return;
    }
    m_action = TVC_BYKEYBOARD;
    HostedScrollArea<QTreeWidget>::keyPressEvent(event);
    if (alive)
        m_action = TVC_UNKNOWN;
}

void TreePeer::mousePressEvent(QMouseEvent* event) {
    m_pressedAt = event->position().toPoint();
    m_pressed = event->button() == Qt::LeftButton && StillPressed(*event);
}

void TreePeer::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton)
        HostedScrollArea<QTreeWidget>::mouseMoveEvent(event);
}

// The click is told first, with everything as it was. The box then toggles whatever the handler answered: handlers that
// mark the click as handled still count on it.
void TreePeer::mouseReleaseEvent(QMouseEvent* event) {
    const QPointer<QWidget> alive = this;
    if (event->button() == Qt::RightButton)
        Tell(NM_RCLICK);
    if (event->button() != Qt::LeftButton || !std::exchange(m_pressed, false))
        return;
    UINT flags = 0;
    const QPoint point = event->position().toPoint();
    const TreeItem* pressed = HitTest(m_pressedAt, flags);
    if (HitTest(point, flags) != pressed)
        return;
    const LRESULT handled = Tell(NM_CLICK);
    if (!Usable(alive))
        return;
    TreeItem* item = HitTest(point, flags); // the handler may have changed the tree
    if (flags == TVHT_ONITEMSTATEICON)
        Toggle(item);
    else if (item && !handled && (flags & TVHT_ONITEM))
        SelectItem(item, TVC_BYMOUSE);
}

void TreePeer::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    const QPointer<QWidget> alive = this;
    Tell(NM_DBLCLK);
    if (!Usable(alive))
        return;
    UINT flags = 0;
    TreeItem* item = HitTest(event->position().toPoint(), flags);
    if (flags == TVHT_ONITEMSTATEICON)
        Toggle(item);
}

WindowPeer* CreateTree(const ControlSpec& spec, WindowPeer& parent) {
    return new TreePeer(spec, parent);
}

} // namespace platform
