// The drawing half of the projection: lines are clipped, gathered by pen and handed over in few calls.
#include "model/element/FaceElemento.h"
#include "model/view/Adv3d.h"
#include "platform/drawing/DeviceContext.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr int clipMargin = 64;             // pixels around the viewport: symbols that start outside still reach in
constexpr double farthest = 1e6;           // pixels, while there is no viewport
constexpr std::size_t fullBatch = 1 << 18; // points; more is handed over early, so that memory stays bounded

// Cuts a line at one edge of the clipping rectangle; false when nothing is left.
bool Cut(double direction, double distance, double& first, double& last) {
    if (direction == 0)
        return distance >= 0;
    const double at = distance / direction;
    if (direction < 0)
        first = std::max(first, at);
    else
        last = std::min(last, at);
    return first <= last;
}

CPoint Whole(double x, double y) {
    return {static_cast<int>(std::floor(x + 0.5)), static_cast<int>(std::floor(y + 0.5))};
}

} // namespace

bool Adv3d::Clip(double& x1, double& y1, double& x2, double& y2) const {
    double left = -farthest, top = -farthest, right = farthest, bottom = farthest;
    if (!m_viewport.IsRectEmpty()) {
        left = m_viewport.left - clipMargin;
        top = m_viewport.top - clipMargin;
        right = m_viewport.right + clipMargin;
        bottom = m_viewport.bottom + clipMargin;
    }
    const double dx = x2 - x1, dy = y2 - y1;
    double first = 0, last = 1;
    if (!Cut(-dx, x1 - left, first, last) || !Cut(dx, right - x1, first, last) || !Cut(-dy, y1 - top, first, last) ||
        !Cut(dy, bottom - y1, first, last))
        return false;
    x2 = x1 + dx * last;
    y2 = y1 + dy * last;
    x1 += dx * first;
    y1 += dy * first;
    return true;
}

Adv3d::Batch& Adv3d::BatchFor(COLORREF color, int width) {
    const auto fits = [&](const Batch& b) { return b.color == color && b.width == width; };
    if (m_lastBatch < m_batches.size() && fits(m_batches[m_lastBatch]))
        return m_batches[m_lastBatch];
    const auto found = std::find_if(m_batches.begin(), m_batches.end(), fits);
    m_lastBatch = static_cast<std::size_t>(found - m_batches.begin());
    if (found == m_batches.end())
        m_batches.push_back({color, width, {}, {}});
    return m_batches[m_lastBatch];
}

void Adv3d::SetDC(CDC* pDC) {
    Flush();
    m_dc = pDC;
}

void Adv3d::Segment(const CFPoint& a, const CFPoint& b, COLORREF color, int width) {
    if (!m_dc)
        return;
    Punto p, q;
    if (!ProjectSegment(a, b, p, q))
        return;
    if (!Clip(p.x, p.y, q.x, q.y))
        return;
    const CPoint ends[] = {Whole(p.x, p.y), Whole(q.x, q.y)};
    ScreenPolyline(ends, 2, color, width);
}

void Adv3d::Polyline(const CFPoint* points, int count, COLORREF color, int width) {
    for (int i = 1; i < count; ++i)
        Segment(points[i - 1], points[i], color, width);
}

void Adv3d::ScreenPolyline(const CPoint* points, int count, COLORREF color, int width) {
    if (!m_dc || count < 2)
        return;
    Batch& lines = BatchFor(color, width);
    lines.points.insert(lines.points.end(), points, points + count);
    lines.counts.push_back(static_cast<DWORD>(count));
    if (lines.points.size() >= fullBatch)
        Flush();
}

void Adv3d::ScreenSquare(CPoint centre, int half, COLORREF color, int width) {
    const CPoint corners[] = {centre + CSize(-half, -half), centre + CSize(half, -half), centre + CSize(half, half),
                              centre + CSize(-half, half), centre + CSize(-half, -half)};
    ScreenPolyline(corners, 5, color, width);
}

void Adv3d::ScreenCircle(CPoint centre, int radius, COLORREF color, int width) {
    constexpr int sides = 12;
    CPoint points[sides + 1];
    for (int i = 0; i <= sides; ++i) {
        const double angle = 2 * std::numbers::pi * i / sides;
        points[i] = Whole(centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle));
    }
    ScreenPolyline(points, sides + 1, color, width);
}

void Adv3d::Arrow(const CFPoint& tip, CFPoint direction, double lunghezza, COLORREF color, int width) {
    if (!m_dc || !direction.Normalize())
        return;
    const CFPoint tail = tip - direction * (lunghezza * GetUnitsPerPixel(tip));
    const Punto p = Project(tip), q = Project(tail);
    if (!p.visible || !q.visible)
        return;
    Segment(tail, tip, color, width);
    const double dx = q.x - p.x, dy = q.y - p.y, seen = std::hypot(dx, dy);
    if (seen < 2) { // it points at the eye, or away from it
        ScreenCircle(p.Pixel(), 3, color, width);
        return;
    }
    if (std::abs(p.x) > farthest || std::abs(p.y) > farthest)
        return;
    const double head = std::min(7.0, seen) / seen;
    const CPoint strokes[] = {Whole(p.x + (dx - 0.4 * dy) * head, p.y + (dy + 0.4 * dx) * head), p.Pixel(),
                              Whole(p.x + (dx + 0.4 * dy) * head, p.y + (dy - 0.4 * dx) * head)};
    ScreenPolyline(strokes, 3, color, width);
}

void Adv3d::Text(CPoint topLeft, const CString& text, COLORREF color) {
    if (!m_dc)
        return;
    CRect around = m_viewport;
    around.InflateRect(clipMargin, clipMargin);
    if (!m_viewport.IsRectEmpty() && !around.PtInRect(topLeft))
        return;
    const int mode = m_dc->SetBkMode(TRANSPARENT);
    const COLORREF previous = m_dc->SetTextColor(color);
    m_dc->TextOut(topLeft.x, topLeft.y, text);
    m_dc->SetTextColor(previous);
    m_dc->SetBkMode(mode);
}

void Adv3d::DrawFaces(FaceElemento* faces, int count) {
    if (!m_dc || !faces || count <= 0)
        return;
    Flush(); // lines gathered before lie under the faces, lines drawn afterwards over them
    std::stable_sort(faces, faces + count,
                     [](const FaceElemento& a, const FaceElemento& b) { return a.depth < b.depth; });
    for (const FaceElemento* face = faces; face != faces + count; ++face) {
        if (face->corners.size() < 3)
            continue;
        CPen pen(PS_SOLID, 1, face->edge);
        CBrush brush(face->fill);
        const ObjectSelection selectedPen(*m_dc, pen);
        const ObjectSelection selectedBrush(*m_dc, brush);
        m_dc->Polygon(face->corners.data(), static_cast<int>(face->corners.size()));
    }
}

void Adv3d::Flush() {
    for (Batch& lines : m_batches) {
        if (lines.counts.empty())
            continue;
        if (m_dc) {
            CPen pen(PS_SOLID, lines.width, lines.color);
            const ObjectSelection selected(*m_dc, pen);
            m_dc->PolyPolyline(lines.points.data(), lines.counts.data(), static_cast<int>(lines.counts.size()));
        }
        lines.points.clear();
        lines.counts.clear();
    }
}
