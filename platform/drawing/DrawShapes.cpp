// The device context's shapes: outlined by the pen, filled by the brush.
#include "platform/drawing/DeviceContext.h"
#include "platform/private/paint/Surface.h"

using platform::Surface;

namespace {

CRect Normalized(CRect rect) {
    rect.NormalizeRect();
    return rect;
}

// The rectangle that the middle of the outline follows; a pen that stays inside its frame moves it inwards.
CRect Outline(const Surface& surface, CRect rect) {
    if (surface.state.penDescription.lopnStyle == PS_INSIDEFRAME) {
        const int width = surface.PenWidth();
        rect.DeflateRect(width / 2, width / 2, (width - 1) / 2, (width - 1) / 2);
    }
    rect.right -= 1;
    rect.bottom -= 1;
    return rect;
}

QRectF OutlineRect(const Surface& surface, const CRect& line, bool thin = false) {
    return {surface.OutlinePoint(line.TopLeft(), thin), surface.OutlinePoint(line.BottomRight(), thin)};
}

// Four bars and the inside apart: exact for every width and scale, and right for modes that combine.
void DrawSolidRectangle(Surface& surface, QPainter& painter, const CRect& line) {
    const int width = surface.PenWidth(), before = width / 2;
    const CRect inner(line.left - before + width, line.top - before + width, line.right - before, line.bottom - before);
    const CRect outer(line.left - before, line.top - before, line.right - before + width, line.bottom - before + width);
    const auto bar = [&](int left, int top, int right, int bottom) {
        const CRect rect(left, top, right, bottom);
        if (!rect.IsRectEmpty())
            painter.fillRect(surface.Target(rect), surface.PenColor());
    };
    if (inner.IsRectEmpty()) {
        bar(outer.left, outer.top, outer.right, outer.bottom);
        return;
    }
    bar(outer.left, outer.top, outer.right, inner.top);
    bar(outer.left, inner.bottom, outer.right, outer.bottom);
    bar(outer.left, inner.top, inner.left, inner.bottom);
    bar(inner.right, inner.top, outer.right, inner.bottom);
    if (surface.HasBrush())
        painter.fillRect(surface.Target(inner), surface.Brush());
}

template <class Point>
BOOL DrawPolygon(Surface& surface, const Point* points, int count) {
    QPainter* painter = surface.Shaping();
    if (!painter)
        return surface.HasTarget();
    QPolygonF polygon;
    polygon.reserve(count);
    for (int i = 0; i < count; ++i)
        polygon << surface.OutlinePoint(points[i], false);
    if (polygon.size() >= 2)
        painter->drawPolygon(polygon, Qt::OddEvenFill);
    return polygon.size() >= 2;
}

} // namespace

BOOL CDC::Rectangle(int left, int top, int right, int bottom) {
    CRect rect = Normalized({left, top, right, bottom});
    QPainter* painter = rect.IsRectEmpty() ? nullptr : m_surface->Shaping();
    if (!painter)
        return m_surface->HasTarget();
    if (!m_surface->HasPen()) {
        rect.DeflateRect(0, 0, 1, 1); // without an outline, the room of its right and bottom line stays empty
        if (!rect.IsRectEmpty() && m_surface->HasBrush())
            painter->fillRect(m_surface->Target(rect), m_surface->Brush());
    } else if (m_surface->SolidPen()) {
        DrawSolidRectangle(*m_surface, *painter, Outline(*m_surface, rect));
    } else {
        const CRect line = Outline(*m_surface, rect);
        const CPoint corners[] = {
            line.TopLeft(), {line.right, line.top}, line.BottomRight(), {line.left, line.bottom}, line.TopLeft()};
        if (m_surface->HasBrush())
            painter->fillRect(m_surface->Target(rect), m_surface->Brush());
        Polyline(corners, 5);
    }
    return TRUE;
}

BOOL CDC::Rectangle(LPCRECT rect) {
    return Rectangle(rect->left, rect->top, rect->right, rect->bottom);
}

BOOL CDC::Ellipse(int left, int top, int right, int bottom) {
    CRect rect = Normalized({left, top, right, bottom});
    if (!m_surface->HasPen())
        rect.DeflateRect(0, 0, 1, 1);
    QPainter* painter = rect.IsRectEmpty() ? nullptr : m_surface->Shaping();
    if (!painter)
        return m_surface->HasTarget();
    const CRect line = Outline(*m_surface, rect);
    // The toolkit's bare filling loses the top row; outlined in its own colour it keeps the box.
    const bool own = !m_surface->HasPen() && m_surface->state.brushDescription.lbStyle == BS_SOLID;
    if (own) {
        painter->setPen(QPen(m_surface->Brush().color(), 1));
        m_surface->PenChanged();
    }
    const QRectF box = OutlineRect(*m_surface, line, own);
    if (line.Width() < 1 || line.Height() < 1)
        painter->drawLine(QLineF(m_surface->StrokePoint(line.TopLeft()), m_surface->StrokePoint(line.BottomRight())));
    else
        painter->drawEllipse(box);
    return TRUE;
}

BOOL CDC::Ellipse(LPCRECT rect) {
    return Ellipse(rect->left, rect->top, rect->right, rect->bottom);
}

BOOL CDC::Polygon(const CPoint* points, int count) {
    return DrawPolygon(*m_surface, points, count);
}

BOOL CDC::Polygon(const FinePoint* points, int count) {
    return DrawPolygon(*m_surface, points, count);
}
