// The target and the state behind a device context.
#pragma once

#include "platform/drawing/DeviceContext.h"
#include "platform/private/paint/Canvas.h"
#include "platform/private/paint/GdiData.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace platform {

class WindowPeer;

struct DrawState {
    // The objects are for their owner's restoring; what is drawn comes from the copies below them.
    CPen* pen;
    CBrush* brush;
    CFont* font;
    LOGPEN penDescription;
    LOGBRUSH brushDescription;
    QFont qFont;
    LOGFONT fontDescription;
    COLORREF textColor = RGB(0, 0, 0);
    COLORREF backColor = RGB(255, 255, 255);
    int backMode = OPAQUE;
    CPoint position;
    std::optional<QRegion> clip; // target coordinates
};

class Surface {
  public:
    Surface(); // draws nowhere
    // A window's picture; `announces` schedules the window's update when something was drawn.
    Surface(WindowPeer* peer, bool announces);
    explicit Surface(QPainter& painter); // of its owner, who lets it alone meanwhile
    ~Surface();
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    void UseCanvas(std::shared_ptr<Canvas> canvas); // null draws nowhere
    bool HasTarget() const;

    // The painter with clipping set, or null for nowhere.
    QPainter* Plain();
    QPainter* Shaping(); // pen and brush are set as well
    void PenChanged() { m_penStale = true; }
    void BrushChanged() { m_brushStale = true; }
    void ClipChanged() { m_clipStale = true; }

    bool HasPen() const { return state.penDescription.lopnStyle != PS_NULL; }
    bool HasBrush() const { return state.brushDescription.lbStyle != BS_NULL; }
    int PenWidth() const { return std::max<int>(state.penDescription.lopnWidth.x, 1); }
    bool SolidPen() const;
    bool ThinPen() const { return SolidPen() && PenWidth() == 1; }
    QColor PenColor() const { return QColor::fromRgb(Opaque(state.penDescription.lopnColor)); }
    QBrush Brush() const { return MakeBrush(state.brushDescription); }
    static QBrush MakeBrush(const LOGBRUSH& description);
    const QFontMetricsF& Metrics();

    // A straight stroke through the middle of the pixel at this point.
    template <class Point>
    QPointF StrokePoint(Point point) const {
        return Shifted(point, 0.5 - 0.5 / m_scale);
    }
    // A point of an outline for the current pen, or for a thin one instead of none.
    template <class Point>
    QPointF OutlinePoint(Point point, bool thin) const {
        return Shifted(point, OutlineShift(thin));
    }
    static QRect Target(const CRect& rect) { return {rect.left, rect.top, rect.Width(), rect.Height()}; }

    void Fill(const CRect& rect, const QBrush& brush);
    void Fill(const CRect& rect, COLORREF color);
    // The pixels, null for nowhere or for a foreign painter on something else; and what lies under transparent ones.
    const QImage* Pixels();
    QRgb Background() const;
    double Scale() const { return m_scale; }
    QSize size() const; // device-independent pixels
    QRect ClipBounds() const { return m_baseClip ? m_baseClip->boundingRect() : QRect(QPoint(), size()); }

    DrawState state;
    std::vector<DrawState> saved;
    std::vector<QLineF> lines; // reused from call to call

  private:
    void SetScale(double scale) { m_scale = scale > 0 ? scale : 1; }
    template <class Point>
    static QPointF Shifted(Point point, double by) {
        return {point.x + by, point.y + by};
    }
    double OutlineShift(bool thin) const;
    bool Bind();

    QPointer<QWidget> m_widget;
    WindowPeer* m_peer = nullptr; // good while the widget lives
    bool m_announces = false;
    bool m_announced = false;
    std::shared_ptr<Canvas> m_canvas;
    QPainter* m_foreign = nullptr;
    std::optional<QRegion> m_baseClip; // that the target came with, or of the part that is to be painted
    QPainter* m_painter = nullptr;
    double m_scale = 1;
    bool m_penStale = true;
    bool m_brushStale = true;
    bool m_clipStale = true;
    std::optional<QFontMetricsF> m_metrics;
    QFont m_metricsFont;
};

} // namespace platform
