// The target and the state behind a device context.
#pragma once

#include "platform/DeviceContext.h"
#include "platform/private/Canvas.h"
#include "platform/private/GdiData.h"

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
    QImage pattern;
    QFont qFont;
    LOGFONT fontDescription;
    COLORREF textColor = RGB(0, 0, 0);
    COLORREF backColor = RGB(255, 255, 255);
    int backMode = OPAQUE;
    UINT textAlign = TA_LEFT;
    int mode = R2_COPYPEN;
    int fillMode = ALTERNATE;
    CPoint origin;
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

    void useCanvas(std::shared_ptr<Canvas> canvas); // null draws nowhere
    bool hasTarget() const;

    // The painter with clipping and drawing mode set, or null for nowhere. The mode is the state's for pens and shapes,
    // and plain for everything else.
    QPainter* plain() { return prepared(QPainter::CompositionMode_SourceOver); }
    QPainter* shaping(); // pen and brush are set as well
    QPainter* withMode(QPainter::CompositionMode mode) { return prepared(mode); }
    void penChanged() { m_penStale = true; }
    void brushChanged() { m_brushStale = true; }
    void clipChanged() { m_clipStale = true; }

    bool hasPen() const { return state.penDescription.lopnStyle != PS_NULL; }
    bool hasBrush() const { return state.brushDescription.lbStyle != BS_NULL; }
    int penWidth() const { return std::max<int>(state.penDescription.lopnWidth.x, 1); }
    bool solidPen() const;
    bool thinPen() const { return solidPen() && penWidth() == 1; }
    QColor penColor() const { return QColor::fromRgb(opaque(state.penDescription.lopnColor)); }
    QBrush brush() const { return makeBrush(state.brushDescription, state.pattern); }
    QBrush makeBrush(const LOGBRUSH& description, const QImage& pattern) const;
    const QFontMetricsF& metrics();

    // A straight stroke through the middle of the pixel at this point.
    template <class Point>
    QPointF strokePoint(Point point) const {
        return shifted(point, 0.5 - 0.5 / m_scale);
    }
    // A point of an outline for the current pen, or for a thin one instead of none.
    template <class Point>
    QPointF outlinePoint(Point point, bool thin) const {
        return shifted(point, outlineShift(thin));
    }
    QRect target(const CRect& rect) const {
        return {rect.left + state.origin.x, rect.top + state.origin.y, rect.Width(), rect.Height()};
    }

    void fill(const CRect& rect, const QBrush& brush);
    void fill(const CRect& rect, COLORREF color);
    // The pixels, null for nowhere or for a foreign painter on something else; and what lies under transparent ones.
    const QImage* pixels();
    QRgb background() const;
    double scale() const { return m_scale; }
    QSize size() const; // device-independent pixels

    DrawState state;
    std::vector<DrawState> saved;
    CBitmap* bitmap = nullptr; // selected; null for none
    bool memory = false;
    std::vector<QLineF> lines; // reused from call to call

  private:
    friend class ::CDC;

    void setScale(double scale) { m_scale = scale > 0 ? scale : 1; }
    template <class Point>
    QPointF shifted(Point point, double by) const {
        return {point.x + state.origin.x + by, point.y + state.origin.y + by};
    }
    double outlineShift(bool thin) const;
    bool bind();
    QPainter* prepared(QPainter::CompositionMode mode);

    QPointer<QWidget> m_widget;
    WindowPeer* m_peer = nullptr; // good while the widget lives
    bool m_announces = false;
    bool m_announced = false;
    std::shared_ptr<Canvas> m_canvas;
    QPainter* m_foreign = nullptr;
    std::optional<QRegion> m_foreignClip;
    QPainter* m_painter = nullptr;
    double m_scale = 1;
    bool m_penStale = true;
    bool m_brushStale = true;
    bool m_clipStale = true;
    std::optional<QFontMetricsF> m_metrics;
    QFont m_metricsFont;
};

} // namespace platform
