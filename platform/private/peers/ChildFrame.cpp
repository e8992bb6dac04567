#include "platform/private/peers/ChildFrame.h"

#include "platform/window/Styles.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace platform {

namespace {

constexpr int sizingBorder = 4;
constexpr int plainBorder = 1;
constexpr int captionHeight = 17; // a tool window's
constexpr int cornerReach = 12;   // where a border sizes both ways
constexpr int smallestClient = 8;

bool HasCaption(DWORD style) {
    return (style & WS_CAPTION) == WS_CAPTION;
}

int BorderOf(DWORD style) {
    return style & WS_THICKFRAME ? sizingBorder : style & (WS_BORDER | WS_DLGFRAME) ? plainBorder : 0;
}

} // namespace

ChildFrame::ChildFrame(QWidget& window, DWORD style)
    : m_window(window),
      m_border(BorderOf(style)),
      m_caption(HasCaption(style) ? captionHeight : 0),
      m_sizable(style & WS_THICKFRAME),
      m_closable(HasCaption(style) && (style & WS_SYSMENU)) {
}

QMargins ChildFrame::Margins() const {
    return {m_border, m_border + m_caption, m_border, m_border};
}

QRect ChildFrame::CaptionRect() const {
    return {m_border, m_border, m_window.width() - 2 * m_border, m_caption};
}

QRect ChildFrame::CloseBoxRect() const {
    const QRect caption = CaptionRect();
    return m_closable ? QRect(caption.right() - m_caption + 1, caption.top(), m_caption, m_caption) : QRect();
}

bool ChildFrame::OnCaption(QPoint at) const {
    return CaptionRect().contains(at);
}

bool ChildFrame::OnCloseBox(QPoint at) const {
    return CloseBoxRect().contains(at);
}

void ChildFrame::Paint(QPainter& painter, bool active) const {
    const QPalette palette = m_window.palette();
    const QRect all = m_window.rect();
    painter.fillRect(all, palette.color(QPalette::Window));
    if (m_border) {
        painter.setPen(palette.color(active ? QPalette::Highlight : QPalette::Mid));
        painter.drawRect(all.adjusted(0, 0, -1, -1));
    }
    if (!m_caption)
        return;
    const QRect caption = CaptionRect();
    painter.fillRect(caption, palette.color(active ? QPalette::Highlight : QPalette::Mid));
    const QRect title = caption.adjusted(4, 0, m_closable ? -m_caption : -2, 0);
    const QColor ink = palette.color(active ? QPalette::HighlightedText : QPalette::WindowText);
    painter.setPen(ink);
    painter.drawText(title, Qt::AlignVCenter | Qt::TextSingleLine,
                     m_window.fontMetrics().elidedText(m_window.windowTitle(), Qt::ElideRight, title.width()));
    if (m_closable) {
        const QRectF cross = QRectF(CloseBoxRect()).adjusted(5, 5, -5, -5);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(ink, 1.5));
        painter.drawLine(cross.topLeft(), cross.bottomRight());
        painter.drawLine(cross.topRight(), cross.bottomLeft());
    }
}

unsigned ChildFrame::EdgesAt(QPoint at) const {
    if (OnCaption(at))
        return Left | Top | Right | Bottom;
    const QRect all = m_window.rect();
    const QRect inside = all.marginsRemoved({m_border, m_border, m_border, m_border});
    if (!m_sizable || inside.contains(at) || !all.contains(at))
        return 0;
    const bool besides = at.x() < inside.left() || at.x() > inside.right();
    const int reachX = besides ? m_border : cornerReach;
    const int reachY = besides ? cornerReach : m_border;
    return (at.x() < reachX ? Left : 0u) | (at.x() >= all.width() - reachX ? Right : 0u) |
           (at.y() < reachY ? Top : 0u) | (at.y() >= all.height() - reachY ? Bottom : 0u);
}

void ChildFrame::BeginDrag(QPoint at) {
    m_dragged = EdgesAt(m_window.mapFromGlobal(at));
    m_grabbed = at;
    m_place = m_window.geometry();
}

// A window that was moved out of its parent could not be taken back: some of its caption stays inside.
QRect ChildFrame::Within(QRect place) const {
    const QRect room = m_window.parentWidget()->rect();
    const int kept = m_border + captionHeight;
    place.moveLeft(std::clamp(place.left(), kept - place.width(), std::max(kept - place.width(), room.width() - kept)));
    place.moveTop(std::clamp(place.top(), 0, std::max(0, room.height() - kept)));
    return place;
}

void ChildFrame::Drag(QPoint at) {
    const QPoint moved = at - m_grabbed;
    if (m_dragged == (Left | Top | Right | Bottom)) {
        m_window.move(Within(m_place.translated(moved)).topLeft());
        return;
    }
    const QMargins margins = Margins();
    const int least = margins.left() + margins.right() + smallestClient;
    const int lowest = margins.top() + margins.bottom() + smallestClient;
    QRect place = m_place;
    if (m_dragged & Left)
        place.setLeft(std::min(place.left() + moved.x(), place.right() + 1 - least));
    if (m_dragged & Right)
        place.setRight(std::max(place.right() + moved.x(), place.left() - 1 + least));
    if (m_dragged & Top) // the caption stays below the parent's upper edge
        place.setTop(std::min(std::max(0, place.top() + moved.y()), place.bottom() + 1 - lowest));
    if (m_dragged & Bottom)
        place.setBottom(std::max(place.bottom() + moved.y(), place.top() - 1 + lowest));
    m_window.setGeometry(place);
}

void ChildFrame::ShowCursor(QPoint at) {
    const unsigned edges = EdgesAt(at);
    const auto is = [edges](unsigned one, unsigned other) { return edges == one || edges == other; };
    m_window.setCursor(is(Left, Right)                  ? Qt::SizeHorCursor
                       : is(Top, Bottom)                ? Qt::SizeVerCursor
                       : is(Left | Top, Right | Bottom) ? Qt::SizeFDiagCursor
                       : is(Right | Top, Left | Bottom) ? Qt::SizeBDiagCursor
                                                        : Qt::ArrowCursor);
}

} // namespace platform
