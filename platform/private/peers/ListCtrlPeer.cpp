#include "platform/private/peers/ListCtrlPeer.h"

#include "platform/private/paint/Icons.h"
#include "platform/private/peers/Controls.h"

#include <QHeaderView>
#include <QListView>
#include <QStyledItemDelegate>
#include <QTreeView>

#include <algorithm>
#include <utility>

namespace platform {

namespace {

// Paints the selection, which the toolkit does not know.
class RowDelegate final : public QStyledItemDelegate {
  public:
    RowDelegate(const ListCtrlModel& model, QObject* parent) : QStyledItemDelegate(parent), m_model(model) {}

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state.setFlag(QStyle::State_Selected, m_model.Selected(index.row()));
    }

  private:
    const ListCtrlModel& m_model;
};

} // namespace

void ListCtrlControl::SetUp(const ControlSpec& spec) {
    QAbstractItemView& shown = View();
    ApplySpec(Peer(), spec);
    shown.setModel(&m_model);
    shown.setFocusPolicy(Qt::StrongFocus);
    shown.setTabKeyNavigation(false);
    const bool framed = (spec.style & WS_BORDER) || (spec.exStyle & (WS_EX_CLIENTEDGE | WS_EX_STATICEDGE));
    shown.setFrameShape(framed ? QFrame::StyledPanel : QFrame::NoFrame);
    shown.setSelectionMode(QAbstractItemView::NoSelection); // it is ours
    shown.setItemDelegate(new RowDelegate(m_model, &shown));
    shown.setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void ListCtrlControl::SetState(int row, UINT state, UINT mask) {
    const bool all = row < 0;
    const bool select = state & LVIS_SELECTED;
    const QPointer<QWidget> alive = Peer().widget;
    if ((mask & LVIS_SELECTED) && !(all && select && Single()))
        SelectRows(all ? 0 : row, all ? m_model.Count() - 1 : row, select, select && Single());
    if (alive && !Peer().destroyed && !all && (mask & state & LVIS_FOCUSED))
        View().selectionModel()->setCurrentIndex(RowIndex(row), QItemSelectionModel::NoUpdate);
}

void ListCtrlControl::SetImages(const CImageList* images) {
    View().setIconSize(IconSize(images));
    m_model.SetImages(images);
}

int ListCtrlControl::Insert(int row, ListCtrlModel::Row content) {
    int place = std::clamp(row, 0, m_model.Count());
    if (Peer().style & LVS_SORTASCENDING)
        place = SortedPlace(m_model.Count(), content.texts.front(),
                            [this](int index) -> const CString& { return m_model.Text(index, 0); });
    m_model.InsertRowAt(place, std::move(content));
    mark += mark >= place;
    return place;
}

void ListCtrlControl::Remove(int row) {
    m_model.RemoveRowAt(row);
    if (mark == row)
        mark = -1;
    mark -= mark > row;
}

void ListCtrlControl::Clear() {
    m_model.Clear();
    mark = -1;
}

LRESULT ListCtrlControl::TellItem(int code, const QPoint& point) {
    NMITEMACTIVATE click;
    const QModelIndex at = View().indexAt(point);
    click.iItem = at.isValid() ? at.row() : -1;
    click.iSubItem = at.isValid() ? at.column() : 0;
    click.ptAction = CPoint(point.x(), point.y());
    return Peer().NotifyParent(click.hdr, code);
}

bool ListCtrlControl::TellKey(const QKeyEvent& event) {
    const QPointer<QWidget> alive = Peer().widget;
    NMLVKEYDOWN key;
    key.wVKey = static_cast<WORD>(VirtualKey(event.key(), event.modifiers() & Qt::KeypadModifier));
    const LRESULT spent = Peer().NotifyParent(key.hdr, LVN_KEYDOWN);
    return spent || !alive || Peer().destroyed;
}

template <>
void ListCtrlOf<QTreeView>::SetUpView(const ControlSpec& spec) {
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setHeaderHidden(spec.style & LVS_NOCOLUMNHEADER);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(4);
}

template <>
void ListCtrlOf<QListView>::SetUpView(const ControlSpec& spec) {
    const bool icons = (spec.style & LVS_TYPEMASK) == LVS_ICON;
    setViewMode(icons ? IconMode : ListMode);
    setFlow((spec.style & LVS_TYPEMASK) == LVS_LIST ? TopToBottom : LeftToRight);
    setWrapping(true);
    setResizeMode(Adjust);
    setMovement(Static);
    setUniformItemSizes(false);
    setDragEnabled(false);
    if (!icons)
        setSpacing(1);
}

template <class Base>
ListCtrlOf<Base>::ListCtrlOf(const ControlSpec& spec, WindowPeer& parentPeer)
    : HostedScrollArea<Base>(&parentPeer, parentPeer.Surface()) {
    SetUp(spec);
    SetUpView(spec);
}

template <class Base>
LRESULT ListCtrlOf<Base>::DefaultMessage(UINT message, WPARAM wParam, LPARAM) {
    return PlayKey(*this, message, wParam);
}

template <class Base>
void ListCtrlOf<Base>::SetColumnWidth(int column, int width) {
    if constexpr (std::is_same_v<Base, QTreeView>) {
        Base::setColumnWidth(column, width);
    }
}

template <class Base>
QRect ListCtrlOf<Base>::RowRect(int row, int part) {
    QRect place = this->visualRect(RowIndex(row));
    if constexpr (std::is_same_v<Base, QTreeView>)
        if (part == LVIR_BOUNDS)
            place.setRight(this->visualRect(Model().index(row, Model().columnCount() - 1)).right());
    const int iconWidth = Model().Images() ? this->iconSize().width() + 4 : 0;
    if (part == LVIR_ICON)
        place.setWidth(iconWidth);
    else if (part == LVIR_LABEL)
        place.setLeft(place.left() + iconWidth);
    return place;
}

template <class Base>
void ListCtrlOf<Base>::keyPressEvent(QKeyEvent* event) {
    if (TellKey(*event) || SelectByKey(*event))
        return;
    const QPointer<QWidget> alive = this;
    const int former = this->currentIndex().row();
    Base::keyPressEvent(event); // moves the current row
    if (alive && !WindowPeer::destroyed)
        PickByKey(former, *event);
}

template <class Base>
void ListCtrlOf<Base>::mousePressEvent(QMouseEvent* event) {
    const QPointer<QWidget> alive = this;
    if (!StillPressed(*event))
        return;
    m_pressed = event->button() == Qt::LeftButton;
    const int row = RowAt(event->position().toPoint());
    Base::mousePressEvent(event); // makes it the current row
    if (!alive || WindowPeer::destroyed)
        return;
    if (row < 0 && !(event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)))
        SelectRows(0, -1, false, true); // beside the rows
    // The right button leaves a selection alone that it is pressed over: the menu is meant for all of it.
    else if (row >= 0 && (m_pressed || !Model().Selected(row)))
        PickByMouse(row, event->modifiers());
}

template <class Base>
void ListCtrlOf<Base>::mouseReleaseEvent(QMouseEvent* event) {
    const QPointer<QWidget> alive = this;
    const QPoint point = event->position().toPoint();
    Base::mouseReleaseEvent(event);
    if (!alive || WindowPeer::destroyed)
        return;
    if (event->button() == Qt::RightButton)
        TellItem(NM_RCLICK, point);
    else if (event->button() == Qt::LeftButton && std::exchange(m_pressed, false))
        TellItem(NM_CLICK, point);
}

template <class Base>
void ListCtrlOf<Base>::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        TellItem(NM_DBLCLK, event->position().toPoint());
}

WindowPeer* CreateListCtrl(const ControlSpec& spec, WindowPeer& parent) {
    if ((spec.style & LVS_TYPEMASK) == LVS_REPORT)
        return new ListCtrlOf<QTreeView>(spec, parent);
    return new ListCtrlOf<QListView>(spec, parent);
}

} // namespace platform
