#include "platform/private/peers/ListCtrlPeer.h"

#include "platform/private/paint/Icons.h"
#include "platform/private/peers/Controls.h"

#include <QHeaderView>
#include <QListView>
#include <QTreeView>

#include <algorithm>
#include <numeric>

namespace platform {

void ListCtrlControl::SetUp(const ControlSpec& spec) {
    QAbstractItemView& shown = View();
    ApplySpec(Peer(), spec);
    m_model.editable = spec.style & LVS_EDITLABELS;
    m_model.acceptLabel = [this](int row, const CString& text) { return TellLabel(row, text); };
    shown.setModel(&m_model);
    shown.setFocusPolicy(Qt::StrongFocus);
    shown.setTabKeyNavigation(false);
    const bool framed = (spec.style & WS_BORDER) || (spec.exStyle & (WS_EX_CLIENTEDGE | WS_EX_STATICEDGE));
    shown.setFrameShape(framed ? QFrame::StyledPanel : QFrame::NoFrame);
    shown.setSelectionMode(spec.style & LVS_SINGLESEL ? QAbstractItemView::SingleSelection
                                                      : QAbstractItemView::ExtendedSelection);
    shown.setSelectionBehavior(QAbstractItemView::SelectRows);
    shown.setEditTriggers(spec.style & LVS_EDITLABELS
                              ? QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed
                              : QAbstractItemView::NoEditTriggers);
    QObject::connect(shown.selectionModel(), &QItemSelectionModel::selectionChanged, &shown,
                     [this](const QItemSelection& selected, const QItemSelection& deselected) {
                         TellSelection(selected, deselected);
                     });
}

bool ListCtrlControl::Selected(int row) {
    return View().selectionModel()->isSelected(RowIndex(row));
}

int ListCtrlControl::SelectedCount() {
    int count = 0;
    for (const QItemSelectionRange& range : View().selectionModel()->selection())
        count += range.height();
    return count;
}

// Ranges, not rows: walking the selection of a hundred thousand must not look through all of it for each.
int ListCtrlControl::NextSelected(int after) {
    int next = -1;
    const QItemSelection& selection = View().selectionModel()->selection();
    for (const QItemSelectionRange& range : selection)
        if (range.bottom() > after) {
            const int candidate = std::max(range.top(), after + 1);
            next = next < 0 ? candidate : std::min(next, candidate);
        }
    return next;
}

void ListCtrlControl::SetState(int row, UINT state, UINT mask) {
    QItemSelectionModel& selection = *View().selectionModel();
    const bool all = row < 0;
    const QPointer<QWidget> alive = Peer().widget;
    if (mask & LVIS_SELECTED) {
        const bool select = state & LVIS_SELECTED;
        const bool single = View().selectionMode() == QAbstractItemView::SingleSelection;
        QItemSelectionModel::SelectionFlags command =
            select ? QItemSelectionModel::Select : QItemSelectionModel::Deselect;
        if (select && single)
            command = QItemSelectionModel::ClearAndSelect;
        const int last = all ? m_model.Count() - 1 : row;
        if (last >= 0 && !(all && select && single))
            selection.select(QItemSelection(RowIndex(all ? 0 : row), RowIndex(last)),
                             command | QItemSelectionModel::Rows);
    }
    if (alive && !Peer().destroyed && !all && (mask & state & LVIS_FOCUSED))
        selection.setCurrentIndex(RowIndex(row), QItemSelectionModel::NoUpdate);
}

void ListCtrlControl::SetImages(const CImageList* images) {
    View().setIconSize(IconSize(images));
    m_model.SetImages(images);
}

int ListCtrlControl::Insert(int row, ListCtrlModel::Row content) {
    int place = std::clamp(row, 0, m_model.Count());
    if (Peer().style & LVS_SORTASCENDING) {
        const auto before = [&](int index) {
            return CompareNoCase(m_model.Text(index, 0).View(), content.texts.front().View()) <= 0;
        };
        for (place = m_model.Count(); place > 0 && !before(place - 1);)
            --place;
    }
    m_model.InsertRowAt(place, std::move(content));
    return place;
}

void ListCtrlControl::Remove(int row) {
    m_silent = true;
    const bool wasSelected = Selected(row);
    m_model.RemoveRowAt(row);
    if (wasSelected && View().selectionMode() == QAbstractItemView::SingleSelection)
        View().clearSelection(); // the toolkit would select the neighbour
    m_silent = false;
}

void ListCtrlControl::Clear() {
    m_silent = true;
    m_model.Clear();
    mark = -1;
    m_silent = false;
}

void ListCtrlControl::Sort(PFNLVCOMPARE compare, LPARAM argument) {
    std::vector<int> order(static_cast<std::size_t>(m_model.Count()));
    std::iota(order.begin(), order.end(), 0);
    const auto dataOf = [this](int row) { return static_cast<LPARAM>(m_model.RowAt(row)->data); };
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return compare(dataOf(a), dataOf(b), argument) < 0; });
    // The selection and the focus stay with their rows.
    std::vector<bool> wasSelected(order.size());
    for (int row = NextSelected(-1); row >= 0; row = NextSelected(row))
        wasSelected[static_cast<std::size_t>(row)] = true;
    const int current = View().currentIndex().row();
    m_silent = true;
    m_model.Reorder(order);
    for (std::size_t row = 0; row < order.size(); ++row) {
        const int former = order[row];
        const UINT state = (wasSelected[static_cast<std::size_t>(former)] ? LVIS_SELECTED : 0u) |
                           (former == current ? LVIS_FOCUSED : 0u);
        if (state)
            SetState(static_cast<int>(row), state, state);
    }
    m_silent = false;
}

void ListCtrlControl::TellSelection(const QItemSelection& selected, const QItemSelection& deselected) {
    if (m_silent)
        return;
    const QPointer<QWidget> alive = Peer().widget;
    const auto tellRows = [&](const QItemSelection& rows, UINT before, UINT after) {
        for (const QItemSelectionRange& range : rows)
            for (int row = range.top(); row <= range.bottom(); ++row) {
                if (!alive || Peer().destroyed || !m_model.RowAt(row))
                    return;
                NMLISTVIEW change;
                change.iItem = row;
                change.uOldState = before;
                change.uNewState = after;
                change.uChanged = LVIF_STATE;
                change.lParam = m_model.RowAt(row)->data;
                Peer().NotifyParent(change.hdr, LVN_ITEMCHANGED);
            }
    };
    tellRows(deselected, LVIS_SELECTED, 0);
    tellRows(selected, 0, LVIS_SELECTED | LVIS_FOCUSED);
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

bool ListCtrlControl::TellLabel(int row, LPCTSTR text) {
    NMLVDISPINFO change;
    change.iItem = row;
    change.text = text;
    return Peer().NotifyParent(change.hdr, LVN_ENDLABELEDIT) != 0;
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
    header()->setSectionsClickable(true);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int column) {
        NMLISTVIEW click;
        click.iSubItem = column;
        this->NotifyParent(click.hdr, LVN_COLUMNCLICK);
    });
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
int ListCtrlOf<Base>::ColumnWidth(int column) {
    if constexpr (std::is_same_v<Base, QTreeView>)
        return Base::columnWidth(column);
    else
        return this->viewport()->width();
}

template <class Base>
void ListCtrlOf<Base>::SetColumnWidth(int column, int width) {
    if constexpr (std::is_same_v<Base, QTreeView>) {
        if (width < 0)
            this->resizeColumnToContents(column);
        else
            Base::setColumnWidth(column, width);
    } else if (width > 0) {
        this->setGridSize(QSize(width, this->fontMetrics().height() + 4));
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
    if (!TellKey(*event))
        Base::keyPressEvent(event);
}

template <class Base>
void ListCtrlOf<Base>::mousePressEvent(QMouseEvent* event) {
    const QPointer<QWidget> alive = this;
    m_pressed = event->button() == Qt::LeftButton;
    const QModelIndex at = this->indexAt(event->position().toPoint());
    if (!at.isValid() && !(event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)))
        this->clearSelection(); // beside the rows
    if (alive && !WindowPeer::destroyed)
        Base::mousePressEvent(event);
    if (alive && at.isValid() && !(event->modifiers() & Qt::ShiftModifier))
        mark = at.row();
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
