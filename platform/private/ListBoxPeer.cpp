// Rows, selection by the program, scrolling and painting of list boxes.
#include "platform/private/ListBoxPeer.h"

#include "platform/ListBox.h"
#include "platform/private/Controls.h"
#include "platform/private/Units.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr int TextIndent = 2; // pixels

bool startsWith(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && compareNoCase(text.substr(0, prefix.size()), prefix) == 0;
}

} // namespace

ListBoxPeer::ListBoxPeer(const ControlSpec& spec, WindowPeer& parentPeer)
    : HostedScrollArea<QAbstractScrollArea>(&parentPeer, parentPeer.surface()) {
    applySpec(*this, spec);
    setFocusPolicy(Qt::StrongFocus);
    const bool framed = (spec.style & WS_BORDER) || (spec.exStyle & (WS_EX_CLIENTEDGE | WS_EX_STATICEDGE));
    setFrameShape(framed ? StyledPanel : NoFrame);
    setVerticalScrollBarPolicy(spec.style & WS_VSCROLL ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(spec.style & WS_HSCROLL ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

std::unique_ptr<CWnd> ListBoxPeer::makeObject() const {
    return std::make_unique<CListBox>();
}

void ListBoxPeer::focusChanged(bool gained) {
    viewport()->update();
    tell(gained ? LBN_SETFOCUS : LBN_KILLFOCUS);
}

LRESULT ListBoxPeer::defaultMessage(UINT message, WPARAM wParam, LPARAM) {
    return playKey(*this, message, wParam);
}

int ListBoxPeer::add(const CString& text) {
    if (!(WindowPeer::style & LBS_SORT) || m_rows.empty() || compareNoCase(m_rows.back().text.View(), text.View()) <= 0)
        return insert(-1, text);
    const auto place =
        std::upper_bound(m_rows.begin(), m_rows.end(), text, [](const CString& added, const Row& present) {
            return compareNoCase(added.View(), present.text.View()) < 0;
        });
    return insert(static_cast<int>(place - m_rows.begin()), text);
}

int ListBoxPeer::insert(int index, const CString& text) {
    if (index < -1 || index > count())
        return LB_ERR;
    if (index < 0)
        index = count();
    m_rows.insert(m_rows.begin() + index, Row{text, 0, false});
    m_caret += m_caret >= index;
    m_anchor += m_anchor >= index;
    if (multiple() && m_caret < 0)
        m_caret = 0;
    rowsChanged();
    return index;
}

bool ListBoxPeer::remove(int index) {
    const Row* gone = row(index);
    if (!gone)
        return false;
    m_selectedCount -= gone->selected;
    m_rows.erase(m_rows.begin() + index);
    if (m_caret == index && !multiple())
        m_caret = -1;
    else if (m_caret > index || m_caret >= count())
        --m_caret;
    if (m_anchor > index || m_anchor >= count())
        --m_anchor;
    rowsChanged();
    return true;
}

void ListBoxPeer::reset() {
    m_rows.clear();
    m_selectedCount = 0;
    m_caret = m_anchor = -1;
    m_dragging = false;
    rowsChanged();
}

int ListBoxPeer::find(int startAfter, const CString& text, bool whole) const {
    const int total = count();
    const int start = startAfter < 0 || startAfter >= total ? -1 : startAfter;
    for (int step = 1; step <= total; ++step) {
        const int index = (start + step) % total;
        const std::string_view candidate = m_rows[static_cast<std::size_t>(index)].text.View();
        if (whole ? compareNoCase(candidate, text.View()) == 0 : startsWith(candidate, text.View()))
            return index;
    }
    return LB_ERR;
}

void ListBoxPeer::select(int index) {
    setSelected(m_caret, m_caret,
                false); // no other row can be selected; callers step through a hundred thousand of them
    m_caret = m_anchor = row(index) ? index : -1;
    if (m_caret < 0)
        return;
    setSelected(m_caret, m_caret, true);
    showRow(m_caret);
}

void ListBoxPeer::setSelected(int first, int last, bool selected) {
    first = std::max(first, 0);
    last = std::min(last, count() - 1);
    if (first > last || (!selected && m_selectedCount == 0))
        return;
    for (int index = first; index <= last; ++index) {
        Row& each = m_rows[static_cast<std::size_t>(index)];
        m_selectedCount += int{selected} - int{each.selected};
        each.selected = selected;
    }
    repaintSoon();
}

void ListBoxPeer::setCaret(int index, bool scroll) {
    m_caret = index;
    if (scroll)
        showRow(index);
    repaintSoon();
}

// Whatever drops the request, being hidden or not redrawn, ends with a whole repaint, and that resets the mark.
void ListBoxPeer::repaintSoon() {
    if (std::exchange(m_repaintPending, true))
        return;
    viewport()->update();
}

bool ListBoxPeer::viewportEvent(QEvent* event) {
    // Here and not in paintEvent, which an object that paints the box itself keeps from being called.
    if (event->type() == QEvent::Paint)
        m_repaintPending = false;
    return HostedScrollArea<QAbstractScrollArea>::viewportEvent(event);
}

int ListBoxPeer::rowHeight() const {
    if (m_rowHeight == 0)
        m_rowHeight = fontMetrics().height();
    return m_rowHeight;
}

int ListBoxPeer::pageRows() const {
    return std::max(1, viewport()->height() / rowHeight());
}

// Loops fill boxes row by row; the scroll bars are set up once, when control is back in the loop or somebody asks.
void ListBoxPeer::rowsChanged() {
    if (m_arrangePending)
        return;
    m_arrangePending = true;
    QMetaObject::invokeMethod(
        this, [this] { arrange(); }, Qt::QueuedConnection);
    viewport()->update();
}

void ListBoxPeer::arrange() {
    m_arrangePending = false;
    const int top = std::exchange(m_wantedTop, -1); // before a new range moves the bar by itself
    verticalScrollBar()->setRange(0, std::max(0, count() - pageRows()));
    verticalScrollBar()->setPageStep(pageRows());
    horizontalScrollBar()->setRange(0, std::max(0, m_extent - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(rowHeight());
    if (top >= 0)
        verticalScrollBar()->setValue(top);
    viewport()->update();
}

QRect ListBoxPeer::rowRect(int index) {
    const int height = rowHeight();
    return {0, (index - topRow()) * height, viewport()->width(), height};
}

int ListBoxPeer::rowAt(int y) {
    const int height = rowHeight();
    return topRow() + (y >= 0 ? y / height : (y - height + 1) / height);
}

int ListBoxPeer::topRow() {
    if (m_arrangePending)
        arrange();
    return m_wantedTop >= 0 ? m_wantedTop : verticalScrollBar()->value();
}

// The scroll bar learns of it once control is back in the loop: it announces each of its values to accessibility and
// to the style, which loops that select row by row would feel.
void ListBoxPeer::setTopRow(int index) {
    const int top = topRow();
    index = std::clamp(index, 0, verticalScrollBar()->maximum());
    if (index == top)
        return;
    if (m_wantedTop < 0)
        QMetaObject::invokeMethod(
            this, [this] { moveBar(); }, Qt::QueuedConnection);
    m_wantedTop = index;
    repaintSoon();
}

void ListBoxPeer::moveBar() {
    if (const int top = std::exchange(m_wantedTop, -1); top >= 0)
        verticalScrollBar()->setValue(top);
}

void ListBoxPeer::scrollContentsBy(int dx, int dy) {
    if (dy != 0)
        m_wantedTop = -1; // the bar was moved meanwhile, and where it stands now counts
    HostedScrollArea<QAbstractScrollArea>::scrollContentsBy(dx, dy);
}

void ListBoxPeer::showRow(int index) {
    const int top = topRow();
    if (index < top)
        setTopRow(std::max(index, 0));
    else if (index >= top + pageRows())
        setTopRow(index - pageRows() + 1);
}

void ListBoxPeer::setExtent(int width) {
    m_extent = width;
    rowsChanged();
}

void ListBoxPeer::setTabStops(std::vector<int> pixels) {
    m_tabStops = std::move(pixels);
    viewport()->update();
}

void ListBoxPeer::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const int first = std::max(rowAt(event->rect().top()), 0);
    const int last = std::min(rowAt(event->rect().bottom()), count() - 1);
    const bool focused = hasFocus();
    for (int index = first; index <= last; ++index) {
        const QRect place = rowRect(index).translated(-horizontalScrollBar()->value(), 0);
        const QRect wide(place.topLeft(), QSize(std::max(place.width(), m_extent), place.height()));
        paintRow(painter, m_rows[static_cast<std::size_t>(index)], wide, focused && index == m_caret);
    }
}

void ListBoxPeer::paintRow(QPainter& painter, const Row& each, const QRect& place, bool focused) const {
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    if (each.selected)
        painter.fillRect(place, palette().brush(group, QPalette::Highlight));
    painter.setPen(palette().color(group, each.selected ? QPalette::HighlightedText : QPalette::Text));
    drawColumns(painter, toQString(each.text), place.adjusted(TextIndent, 0, 0, 0));
    if (!focused)
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = place;
    option.backgroundColor = palette().color(each.selected ? QPalette::Highlight : QPalette::Base);
    option.state |= QStyle::State_KeyboardFocusChange;
    QWidget::style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void ListBoxPeer::drawColumns(QPainter& painter, const QString& text, QRect place) const {
    constexpr int Flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;
    if (!text.contains(QLatin1Char('\t')) || !(WindowPeer::style & LBS_USETABSTOPS)) {
        painter.drawText(place, Flags, text);
        return;
    }
    const int origin = place.left();
    for (const QString& column : text.split(QLatin1Char('\t'))) {
        painter.drawText(place, Flags, column);
        const int end = place.left() - origin + fontMetrics().horizontalAdvance(column);
        const auto stop = std::upper_bound(m_tabStops.begin(), m_tabStops.end(), end);
        const int every = std::max(unitsToX(32), 1);
        place.setLeft(origin + (stop != m_tabStops.end() ? *stop : (end / every + 1) * every));
    }
}

void ListBoxPeer::resizeEvent(QResizeEvent* event) {
    HostedScrollArea<QAbstractScrollArea>::resizeEvent(event);
    arrange();
}

void ListBoxPeer::changeEvent(QEvent* event) {
    HostedScrollArea<QAbstractScrollArea>::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        m_rowHeight = 0;
        rowsChanged();
    }
}

WindowPeer* createListBox(const ControlSpec& spec, WindowPeer& parent) {
    return new ListBoxPeer(spec, parent);
}

} // namespace platform
