// Rows, selection by the program, scrolling and painting of list boxes.
#include "platform/private/peers/ListBoxPeer.h"

#include "platform/controls/ListBox.h"
#include "platform/private/peers/Controls.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include <algorithm>
#include <memory>
#include <utility>

namespace platform {

namespace {

constexpr int textIndent = 2; // pixels

} // namespace

ListBoxPeer::ListBoxPeer(const ControlSpec& spec, WindowPeer& parentPeer)
    : HostedScrollArea<QAbstractScrollArea>(&parentPeer, parentPeer.Surface()) {
    ApplySpec(*this, spec);
    setFocusPolicy(Qt::StrongFocus);
    const bool framed = (spec.style & WS_BORDER) || (spec.exStyle & (WS_EX_CLIENTEDGE | WS_EX_STATICEDGE));
    setFrameShape(framed ? StyledPanel : NoFrame);
    ListBoxPeer::StyleChanged();
}

void ListBoxPeer::StyleChanged() {
    const DWORD style = WindowPeer::style;
    setVerticalScrollBarPolicy(style & WS_VSCROLL ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(style & WS_HSCROLL ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

std::unique_ptr<CWnd> ListBoxPeer::MakeObject() const {
    return std::make_unique<CListBox>();
}

void ListBoxPeer::FocusChanged(bool gained) {
    viewport()->update();
    Tell(gained ? LBN_SETFOCUS : LBN_KILLFOCUS);
}

LRESULT ListBoxPeer::DefaultMessage(UINT message, WPARAM wParam, LPARAM) {
    return PlayKey(*this, message, wParam);
}

int ListBoxPeer::Add(const CString& text) {
    const auto textAt = [this](int row) -> const CString& { return m_rows.At(row).text; };
    const int index = WindowPeer::style & LBS_SORT ? SortedPlace(Count(), text, textAt) : Count();
    m_rows.Insert(index, Row{text, 0, false});
    m_current += m_current >= index;
    m_caret += m_caret >= index;
    m_anchor += m_anchor >= index;
    if (Multiple() && m_caret < 0)
        m_caret = 0;
    RowsChanged();
    return index;
}

bool ListBoxPeer::Remove(int index) {
    const Row* gone = RowOf(index);
    if (!gone)
        return false;
    m_selectedCount -= gone->selected;
    m_rows.Erase(index);
    if (m_current == index)
        m_current = -1;
    m_current -= m_current > index;
    if (m_caret == index && !Multiple())
        m_caret = -1;
    else if (m_caret > index || m_caret >= Count())
        --m_caret;
    if (m_anchor > index || m_anchor >= Count())
        --m_anchor;
    RowsChanged();
    return true;
}

void ListBoxPeer::Reset() {
    m_rows.Clear();
    m_selectedCount = 0;
    m_current = m_caret = m_anchor = -1;
    m_dragging = false;
    RowsChanged();
}

int ListBoxPeer::Find(int startAfter, const CString& prefix) const {
    return FindPrefix(Count(), startAfter, prefix, [this](int row) -> const CString& { return m_rows.At(row).text; });
}

void ListBoxPeer::Select(int index) {
    // No other row can be selected; callers step through a hundred thousand of them.
    SetSelected(m_current, m_current, false);
    m_current = m_caret = m_anchor = RowOf(index) ? index : -1;
    if (m_current < 0)
        return;
    SetSelected(m_current, m_current, true);
    ShowRow(m_current);
}

void ListBoxPeer::SetSelected(int first, int last, bool selected) {
    first = std::max(first, 0);
    last = std::min(last, Count() - 1);
    if (first > last || (!selected && m_selectedCount == 0))
        return;
    for (int index = first; index <= last; ++index) {
        Row& each = m_rows.At(index);
        m_selectedCount += int{selected} - int{each.selected};
        each.selected = selected;
    }
    RepaintSoon();
}

void ListBoxPeer::SetCaret(int index, bool scroll) {
    m_caret = index;
    if (scroll)
        ShowRow(index);
    RepaintSoon();
}

// Whatever drops the request, being hidden or not redrawn, ends with a whole repaint, and that resets the mark.
void ListBoxPeer::RepaintSoon() {
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

int ListBoxPeer::RowHeight() const {
    if (m_rowHeight == 0)
        m_rowHeight = fontMetrics().height();
    return m_rowHeight;
}

int ListBoxPeer::PageRows() const {
    return std::max(1, viewport()->height() / RowHeight());
}

// Loops fill boxes row by row; the scroll bars are set up once, when control is back in the loop or somebody asks.
void ListBoxPeer::RowsChanged() {
    if (m_arrangePending)
        return;
    m_arrangePending = true;
    QMetaObject::invokeMethod(
        this, [this] { Arrange(); }, Qt::QueuedConnection);
    viewport()->update();
}

void ListBoxPeer::Arrange() {
    m_arrangePending = false;
    const int top = std::exchange(m_wantedTop, -1); // before a new range moves the bar by itself
    verticalScrollBar()->setRange(0, std::max(0, Count() - PageRows()));
    verticalScrollBar()->setPageStep(PageRows());
    horizontalScrollBar()->setRange(0, std::max(0, m_extent - viewport()->width()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(RowHeight());
    if (top >= 0)
        verticalScrollBar()->setValue(top);
    viewport()->update();
}

QRect ListBoxPeer::RowRect(int index) {
    const int height = RowHeight();
    return {0, (index - TopRow()) * height, viewport()->width(), height};
}

int ListBoxPeer::RowAt(int y) {
    const int height = RowHeight();
    return TopRow() + (y >= 0 ? y / height : (y - height + 1) / height);
}

int ListBoxPeer::TopRow() {
    if (m_arrangePending)
        Arrange();
    return m_wantedTop >= 0 ? m_wantedTop : verticalScrollBar()->value();
}

// The scroll bar learns of it once control is back in the loop: it announces each of its values to accessibility and
// to the style, which loops that select row by row would feel.
void ListBoxPeer::SetTopRow(int index) {
    const int top = TopRow();
    index = std::clamp(index, 0, verticalScrollBar()->maximum());
    if (index == top)
        return;
    if (m_wantedTop < 0)
        QMetaObject::invokeMethod(
            this, [this] { MoveBar(); }, Qt::QueuedConnection);
    m_wantedTop = index;
    RepaintSoon();
}

void ListBoxPeer::MoveBar() {
    if (const int top = std::exchange(m_wantedTop, -1); top >= 0)
        verticalScrollBar()->setValue(top);
}

void ListBoxPeer::scrollContentsBy(int dx, int dy) {
    if (dy != 0)
        m_wantedTop = -1; // the bar was moved meanwhile, and where it stands now counts
    HostedScrollArea<QAbstractScrollArea>::scrollContentsBy(dx, dy);
}

void ListBoxPeer::ShowRow(int index) {
    const int top = TopRow();
    if (index < top)
        SetTopRow(std::max(index, 0));
    else if (index >= top + PageRows())
        SetTopRow(index - PageRows() + 1);
}

void ListBoxPeer::SetExtent(int width) {
    m_extent = width;
    RowsChanged();
}

void ListBoxPeer::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    const int first = std::max(RowAt(event->rect().top()), 0);
    const int last = std::min(RowAt(event->rect().bottom()), Count() - 1);
    const bool focused = hasFocus();
    for (int index = first; index <= last; ++index) {
        const QRect place = RowRect(index).translated(-horizontalScrollBar()->value(), 0);
        const QRect wide(place.topLeft(), QSize(std::max(place.width(), m_extent), place.height()));
        PaintRow(painter, m_rows.At(index), wide, focused && index == m_caret);
    }
}

void ListBoxPeer::PaintRow(QPainter& painter, const Row& each, const QRect& place, bool focused) const {
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    if (each.selected)
        painter.fillRect(place, palette().brush(group, QPalette::Highlight));
    painter.setPen(palette().color(group, each.selected ? QPalette::HighlightedText : QPalette::Text));
    painter.drawText(place.adjusted(textIndent, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     ToQString(each.text));
    if (!focused)
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = place;
    option.backgroundColor = palette().color(each.selected ? QPalette::Highlight : QPalette::Base);
    option.state |= QStyle::State_KeyboardFocusChange;
    QWidget::style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

void ListBoxPeer::resizeEvent(QResizeEvent* event) {
    HostedScrollArea<QAbstractScrollArea>::resizeEvent(event);
    Arrange();
}

void ListBoxPeer::changeEvent(QEvent* event) {
    HostedScrollArea<QAbstractScrollArea>::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        m_rowHeight = 0;
        RowsChanged();
    }
}

WindowPeer* CreateListBox(const ControlSpec& spec, WindowPeer& parent) {
    return new ListBoxPeer(spec, parent);
}

} // namespace platform
