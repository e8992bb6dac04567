#include "platform/private/ListCtrlPeer.h"

#include "platform/private/Controls.h"
#include "platform/private/Icons.h"

#include <QHeaderView>
#include <QListView>
#include <QTreeView>

#include <algorithm>
#include <numeric>

namespace platform {

void ListCtrlControl::setUp(const ControlSpec& spec) {
    QAbstractItemView& shown = view();
    applySpec(peer(), spec);
    m_model.editable = spec.style & LVS_EDITLABELS;
    m_model.acceptLabel = [this](int row, const CString& text) { return tellLabel(row, text); };
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
                         tellSelection(selected, deselected);
                     });
}

bool ListCtrlControl::selected(int row) {
    return view().selectionModel()->isSelected(rowIndex(row));
}

int ListCtrlControl::selectedCount() {
    int count = 0;
    for (const QItemSelectionRange& range : view().selectionModel()->selection())
        count += range.height();
    return count;
}

// Ranges, not rows: walking the selection of a hundred thousand must not look through all of it for each.
int ListCtrlControl::nextSelected(int after) {
    int next = -1;
    const QItemSelection& selection = view().selectionModel()->selection();
    for (const QItemSelectionRange& range : selection)
        if (range.bottom() > after) {
            const int candidate = std::max(range.top(), after + 1);
            next = next < 0 ? candidate : std::min(next, candidate);
        }
    return next;
}

void ListCtrlControl::setState(int row, UINT state, UINT mask) {
    QItemSelectionModel& selection = *view().selectionModel();
    const bool all = row < 0;
    const QPointer<QWidget> alive = peer().widget;
    if (mask & LVIS_SELECTED) {
        const bool select = state & LVIS_SELECTED;
        const bool single = view().selectionMode() == QAbstractItemView::SingleSelection;
        QItemSelectionModel::SelectionFlags command =
            select ? QItemSelectionModel::Select : QItemSelectionModel::Deselect;
        if (select && single)
            command = QItemSelectionModel::ClearAndSelect;
        const int last = all ? m_model.count() - 1 : row;
        if (last >= 0 && !(all && select && single))
            selection.select(QItemSelection(rowIndex(all ? 0 : row), rowIndex(last)),
                             command | QItemSelectionModel::Rows);
    }
    if (alive && !peer().destroyed && !all && (mask & state & LVIS_FOCUSED))
        selection.setCurrentIndex(rowIndex(row), QItemSelectionModel::NoUpdate);
}

void ListCtrlControl::setImages(const CImageList* images) {
    view().setIconSize(iconSize(images));
    m_model.setImages(images);
}

int ListCtrlControl::insert(int row, ListCtrlModel::Row content) {
    int place = std::clamp(row, 0, m_model.count());
    if (peer().style & LVS_SORTASCENDING) {
        const auto before = [&](int index) {
            return compareNoCase(m_model.text(index, 0).View(), content.texts.front().View()) <= 0;
        };
        for (place = m_model.count(); place > 0 && !before(place - 1);)
            --place;
    }
    m_model.insertRow(place, std::move(content));
    return place;
}

void ListCtrlControl::remove(int row) {
    m_silent = true;
    const bool wasSelected = selected(row);
    m_model.removeRow(row);
    if (wasSelected && view().selectionMode() == QAbstractItemView::SingleSelection)
        view().clearSelection(); // the toolkit would select the neighbour
    m_silent = false;
}

void ListCtrlControl::clear() {
    m_silent = true;
    m_model.clear();
    mark = -1;
    m_silent = false;
}

void ListCtrlControl::sort(PFNLVCOMPARE compare, LPARAM argument) {
    std::vector<int> order(static_cast<std::size_t>(m_model.count()));
    std::iota(order.begin(), order.end(), 0);
    const auto dataOf = [this](int row) { return static_cast<LPARAM>(m_model.row(row)->data); };
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return compare(dataOf(a), dataOf(b), argument) < 0; });
    // The selection and the focus stay with their rows.
    std::vector<bool> wasSelected(order.size());
    for (int row = nextSelected(-1); row >= 0; row = nextSelected(row))
        wasSelected[static_cast<std::size_t>(row)] = true;
    const int current = view().currentIndex().row();
    m_silent = true;
    m_model.reorder(order);
    for (std::size_t row = 0; row < order.size(); ++row) {
        const int former = order[row];
        const UINT state = (wasSelected[static_cast<std::size_t>(former)] ? LVIS_SELECTED : 0u) |
                           (former == current ? LVIS_FOCUSED : 0u);
        if (state)
            setState(static_cast<int>(row), state, state);
    }
    m_silent = false;
}

void ListCtrlControl::tellSelection(const QItemSelection& selected, const QItemSelection& deselected) {
    if (m_silent)
        return;
    const QPointer<QWidget> alive = peer().widget;
    const auto tellRows = [&](const QItemSelection& rows, UINT before, UINT after) {
        for (const QItemSelectionRange& range : rows)
            for (int row = range.top(); row <= range.bottom(); ++row) {
                if (!alive || peer().destroyed || !m_model.row(row))
                    return;
                NMLISTVIEW change;
                change.iItem = row;
                change.uOldState = before;
                change.uNewState = after;
                change.uChanged = LVIF_STATE;
                change.lParam = m_model.row(row)->data;
                peer().notifyParent(change.hdr, LVN_ITEMCHANGED);
            }
    };
    tellRows(deselected, LVIS_SELECTED, 0);
    tellRows(selected, 0, LVIS_SELECTED | LVIS_FOCUSED);
}

LRESULT ListCtrlControl::tellItem(int code, const QPoint& point) {
    NMITEMACTIVATE click;
    const QModelIndex at = view().indexAt(point);
    click.iItem = at.isValid() ? at.row() : -1;
    click.iSubItem = at.isValid() ? at.column() : 0;
    click.ptAction = CPoint(point.x(), point.y());
    return peer().notifyParent(click.hdr, code);
}

bool ListCtrlControl::tellKey(const QKeyEvent& event) {
    const QPointer<QWidget> alive = peer().widget;
    NMLVKEYDOWN key;
    key.wVKey = static_cast<WORD>(virtualKey(event.key(), event.modifiers() & Qt::KeypadModifier));
    const LRESULT spent = peer().notifyParent(key.hdr, LVN_KEYDOWN);
    return spent || !alive || peer().destroyed;
}

bool ListCtrlControl::tellLabel(int row, LPCTSTR text) {
    NMLVDISPINFO change;
    change.iItem = row;
    change.text = text;
    return peer().notifyParent(change.hdr, LVN_ENDLABELEDIT) != 0;
}

template <>
void ListCtrlOf<QTreeView>::setUpView(const ControlSpec& spec) {
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
        notifyParent(click.hdr, LVN_COLUMNCLICK);
    });
}

template <>
void ListCtrlOf<QListView>::setUpView(const ControlSpec& spec) {
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

template <class View>
ListCtrlOf<View>::ListCtrlOf(const ControlSpec& spec, WindowPeer& parentPeer)
    : HostedScrollArea<View>(&parentPeer, parentPeer.surface()) {
    setUp(spec);
    setUpView(spec);
}

template <class View>
LRESULT ListCtrlOf<View>::defaultMessage(UINT message, WPARAM wParam, LPARAM) {
    return playKey(*this, message, wParam);
}

template <class View>
int ListCtrlOf<View>::columnWidth(int column) {
    if constexpr (std::is_same_v<View, QTreeView>)
        return View::columnWidth(column);
    else
        return this->viewport()->width();
}

template <class View>
void ListCtrlOf<View>::setColumnWidth(int column, int width) {
    if constexpr (std::is_same_v<View, QTreeView>) {
        if (width < 0)
            this->resizeColumnToContents(column);
        else
            View::setColumnWidth(column, width);
    } else if (width > 0) {
        this->setGridSize(QSize(width, this->fontMetrics().height() + 4));
    }
}

template <class View>
QRect ListCtrlOf<View>::rowRect(int row, int part) {
    QRect place = this->visualRect(rowIndex(row));
    if constexpr (std::is_same_v<View, QTreeView>)
        if (part == LVIR_BOUNDS)
            place.setRight(this->visualRect(model().index(row, model().columnCount() - 1)).right());
    const int iconWidth = model().images() ? this->iconSize().width() + 4 : 0;
    if (part == LVIR_ICON)
        place.setWidth(iconWidth);
    else if (part == LVIR_LABEL)
        place.setLeft(place.left() + iconWidth);
    return place;
}

template <class View>
void ListCtrlOf<View>::keyPressEvent(QKeyEvent* event) {
    if (!tellKey(*event))
        View::keyPressEvent(event);
}

template <class View>
void ListCtrlOf<View>::mousePressEvent(QMouseEvent* event) {
    const QPointer<QWidget> alive = this;
    m_pressed = event->button() == Qt::LeftButton;
    const QModelIndex at = this->indexAt(event->position().toPoint());
    if (!at.isValid() && !(event->modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)))
        this->clearSelection(); // beside the rows
    if (alive && !WindowPeer::destroyed)
        View::mousePressEvent(event);
    if (alive && at.isValid() && !(event->modifiers() & Qt::ShiftModifier))
        mark = at.row();
}

template <class View>
void ListCtrlOf<View>::mouseReleaseEvent(QMouseEvent* event) {
    const QPointer<QWidget> alive = this;
    const QPoint point = event->position().toPoint();
    View::mouseReleaseEvent(event);
    if (!alive || WindowPeer::destroyed)
        return;
    if (event->button() == Qt::RightButton)
        tellItem(NM_RCLICK, point);
    else if (event->button() == Qt::LeftButton && std::exchange(m_pressed, false))
        tellItem(NM_CLICK, point);
}

template <class View>
void ListCtrlOf<View>::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        tellItem(NM_DBLCLK, event->position().toPoint());
}

WindowPeer* createListCtrl(const ControlSpec& spec, WindowPeer& parent) {
    if ((spec.style & LVS_TYPEMASK) == LVS_REPORT)
        return new ListCtrlOf<QTreeView>(spec, parent);
    return new ListCtrlOf<QListView>(spec, parent);
}

} // namespace platform
