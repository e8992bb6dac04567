// The device context's lines.
#include "platform/drawing/DeviceContext.h"
#include "platform/private/paint/Surface.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

using platform::Surface;

namespace {

// A thin line without its last pixel, whichever way it runs. The toolkit draws both ends, so the end is drawn back by
// one pixel along the line; a line of no length draws nothing.
void AddThinLine(std::vector<QLineF>& lines, QPointF from, QPointF to) {
    const double dx = to.x() - from.x(), dy = to.y() - from.y();
    const double length = std::max(std::abs(dx), std::abs(dy));
    if (length == 0)
        return;
    const double kept = (length - 1) / length;
    lines.emplace_back(from.x(), from.y(), from.x() + dx * kept, from.y() + dy * kept);
}

// The gaps of a broken pen show the background colour while the background is opaque.
void FillGaps(Surface& surface, QPainter& painter, const QPointF* points, int count) {
    if (surface.state.backMode != OPAQUE)
        return;
    QPen pen(QColor::fromRgb(platform::Opaque(surface.state.backColor)), 1);
    pen.setCapStyle(Qt::FlatCap);
    const QPen broken = painter.pen();
    painter.setPen(pen);
    painter.drawPolyline(points, count);
    painter.setPen(broken);
}

template <class Point>
void DrawJoined(Surface& surface, QPainter& painter, const Point* points, int count) {
    std::vector<QPointF> path;
    path.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        path.push_back(surface.StrokePoint(points[i]));
    if (!surface.SolidPen())
        FillGaps(surface, painter, path.data(), count);
    painter.drawPolyline(path.data(), count);
}

void Collect(Surface& surface, const CPoint* points, int count) {
    if (count < 2)
        return;
    QPointF from = surface.StrokePoint(points[0]);
    for (int i = 1; i < count; ++i) {
        const QPointF to = surface.StrokePoint(points[i]);
        AddThinLine(surface.lines, from, to);
        from = to;
    }
}

void DrawCollected(Surface& surface, QPainter& painter) {
    if (!surface.lines.empty())
        painter.drawLines(surface.lines.data(), static_cast<int>(surface.lines.size()));
    surface.lines.clear();
}

// Many lines of a chart are upright or level: filling their pixels is exact and several times faster.
bool DrawLevelOrUpright(const Surface& surface, QPainter& painter, CPoint from, CPoint to) {
    if (from.x != to.x && from.y != to.y)
        return false;
    CRect pixels(std::min(from.x, to.x), std::min(from.y, to.y), std::max(from.x, to.x), std::max(from.y, to.y));
    if (from.y == to.y) {
        pixels.OffsetRect(from.x > to.x ? 1 : 0, 0);
        pixels.bottom += 1;
    } else {
        pixels.OffsetRect(0, from.y > to.y ? 1 : 0);
        pixels.right += 1;
    }
    if (from != to)
        painter.fillRect(surface.Target(pixels), surface.PenColor());
    return true;
}

} // namespace

CPoint CDC::MoveTo(int x, int y) {
    return std::exchange(m_surface->state.position, CPoint(x, y));
}

BOOL CDC::LineTo(int x, int y) {
    const CPoint ends[] = {MoveTo(x, y), {x, y}};
    QPainter* painter = m_surface->HasPen() ? m_surface->Shaping() : nullptr;
    if (!painter)
        return m_surface->HasTarget();
    if (!m_surface->ThinPen()) {
        DrawJoined(*m_surface, *painter, ends, 2);
    } else if (!DrawLevelOrUpright(*m_surface, *painter, ends[0], ends[1])) {
        Collect(*m_surface, ends, 2);
        DrawCollected(*m_surface, *painter);
    }
    return TRUE;
}

BOOL CDC::Polyline(const CPoint* points, int count) {
    const auto length = static_cast<DWORD>(count);
    return count >= 2 && PolyPolyline(points, &length, 1);
}

BOOL CDC::Polyline(const FinePoint* points, int count) {
    QPainter* painter = count >= 2 && m_surface->HasPen() ? m_surface->Shaping() : nullptr;
    if (painter)
        DrawJoined(*m_surface, *painter, points, count);
    return count >= 2 && m_surface->HasTarget();
}

BOOL CDC::PolyPolyline(const CPoint* points, const DWORD* counts, int polylines) {
    QPainter* painter = m_surface->HasPen() ? m_surface->Shaping() : nullptr;
    if (!painter)
        return m_surface->HasTarget();
    const bool thin = m_surface->ThinPen();
    constexpr std::size_t portion = 2048; // lines that stay in the processor's cache between here and the painter
    for (int i = 0; i < polylines; points += counts[i++]) {
        if (m_surface->lines.size() >= portion)
            DrawCollected(*m_surface, *painter);
        const int count = static_cast<int>(counts[i]);
        if (thin)
            Collect(*m_surface, points, count);
        else if (count == 2 && m_surface->SolidPen())
            m_surface->lines.emplace_back(m_surface->StrokePoint(points[0]), m_surface->StrokePoint(points[1]));
        else if (count >= 2)
            DrawJoined(*m_surface, *painter, points, count);
    }
    DrawCollected(*m_surface, *painter);
    return TRUE;
}
