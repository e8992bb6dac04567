#include "platform/private/paint/Surface.h"
#include "platform/private/peers/WindowPeer.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace platform {
namespace {

QPen MakePen(const LOGPEN& description, const QColor& color) {
    const int width = std::max<int>(description.lopnWidth.x, 1);
    QPen pen(color, width);
    const bool broken = description.lopnStyle >= PS_DASH && description.lopnStyle <= PS_DASHDOTDOT;
    if (description.lopnStyle == PS_NULL)
        return QPen(Qt::NoPen);
    if (broken && width == 1) {
        static const QList<qreal> patterns[] = {{18, 6}, {3, 3}, {9, 6, 3, 6}, {9, 3, 3, 3, 3, 3}};
        pen.setDashPattern(patterns[description.lopnStyle - PS_DASH]);
        pen.setCapStyle(Qt::FlatCap);
        pen.setJoinStyle(Qt::MiterJoin);
        return pen;
    }
    // Pens are round, but up to three pixels a round end is a square one, and only that comes out symmetrical.
    pen.setCapStyle(width > 3 ? Qt::RoundCap : Qt::SquareCap);
    pen.setJoinStyle(width > 3 ? Qt::RoundJoin : Qt::MiterJoin);
    return pen;
}

template <typename Object>
Object* Stock(int index) {
    return static_cast<Object*>(StockObject(index));
}

void TakeStock(DrawState& state) {
    state.pen = Stock<CPen>(BLACK_PEN);
    state.brush = Stock<CBrush>(WHITE_BRUSH);
    state.font = Stock<CFont>(DEFAULT_GUI_FONT);
    state.penDescription = state.pen->Data()->description;
    state.brushDescription = state.brush->Data()->description;
    state.fontDescription = state.font->Data()->description;
    state.qFont = state.font->Data()->font;
}

} // namespace

Surface::Surface() {
    TakeStock(state);
}

Surface::Surface(WindowPeer* peer, bool announces) : m_announces(announces) {
    TakeStock(state);
    if (!peer || peer->destroyed)
        return;
    m_peer = peer;
    m_widget = peer->Surface();
    SetScale(m_widget->devicePixelRatioF());
    if (!announces && !peer->painting.isEmpty() && !QRegion(m_widget->rect()).subtracted(peer->painting).isEmpty())
        m_baseClip = peer->painting; // what lies outside has not been erased
}

Surface::Surface(QPainter& painter) : m_foreign(&painter) {
    TakeStock(state);
    painter.save();
    if (painter.hasClipping())
        m_baseClip = painter.clipRegion();
    const QTransform transform = painter.deviceTransform();
    SetScale(std::hypot(transform.m11(), transform.m12()));
}

Surface::~Surface() {
    if (m_foreign)
        m_foreign->restore();
    UseCanvas(nullptr);
    if (m_announced && m_widget)
        m_widget->update(); // the loop may have run since the first stroke
}

void Surface::UseCanvas(std::shared_ptr<Canvas> canvas) {
    if (canvas == m_canvas)
        return;
    if (m_canvas)
        m_canvas->Release();
    m_canvas = std::move(canvas);
    if (m_canvas) {
        m_canvas->Use();
        SetScale(m_canvas->image.devicePixelRatio());
    }
}

bool Surface::HasTarget() const {
    return m_foreign || m_widget || m_canvas;
}

bool Surface::Bind() {
    if (m_widget && !m_widget->size().isEmpty())
        UseCanvas(m_peer->picture.CanvasFor(m_widget->size(), m_widget->devicePixelRatioF()));
    if (m_widget && m_announces && !m_announced) {
        m_announced = true;
        m_widget->update();
    }
    m_painter = m_foreign ? m_foreign : m_canvas ? m_canvas->Painter() : nullptr;
    return m_painter;
}

QPainter* Surface::Plain() {
    if (!Bind())
        return nullptr;
    if (m_canvas && m_canvas->artist != this) {
        m_canvas->artist = this;
        m_penStale = m_brushStale = m_clipStale = true;
    }
    if (std::exchange(m_clipStale, false)) {
        const std::optional<QRegion>& base = m_baseClip;
        if (state.clip)
            m_painter->setClipRegion(base ? base->intersected(*state.clip) : *state.clip);
        else if (base)
            m_painter->setClipRegion(*base);
        else
            m_painter->setClipping(false);
    }
    return m_painter;
}

QPainter* Surface::Shaping() {
    QPainter* painter = Plain();
    if (!painter)
        return nullptr;
    if (std::exchange(m_penStale, false))
        painter->setPen(MakePen(state.penDescription, PenColor()));
    if (std::exchange(m_brushStale, false))
        painter->setBrush(Brush());
    return painter;
}

// The toolkit rounds thin strokes at 100 % to whole pixels by itself. All others cover the pixels whose middle lies
// inside, so they must run through the middles too; a hair less, so that pens of even width lie to the left and top of
// it.
double Surface::OutlineShift(bool thin) const {
    const bool rounded = m_scale == 1 && (thin || PenWidth() == 1);
    return (!thin && !HasPen()) || rounded ? 0 : 0.5 - 1.0 / 64;
}

bool Surface::SolidPen() const {
    const UINT style = state.penDescription.lopnStyle;
    return style == PS_SOLID || style == PS_INSIDEFRAME || (style != PS_NULL && PenWidth() > 1);
}

QBrush Surface::MakeBrush(const LOGBRUSH& description) {
    if (description.lbStyle == BS_NULL)
        return QBrush(Qt::NoBrush);
    return QBrush(QColor::fromRgb(Opaque(description.lbColor)));
}

const QFontMetricsF& Surface::Metrics() {
    if (!m_metrics || m_metricsFont != state.qFont) {
        m_metrics.emplace(state.qFont);
        m_metricsFont = state.qFont;
    }
    return *m_metrics;
}

void Surface::Fill(const CRect& rect, const QBrush& brush) {
    if (rect.IsRectEmpty() || brush.style() == Qt::NoBrush)
        return;
    if (QPainter* painter = Plain())
        painter->fillRect(Target(rect), brush);
}

void Surface::Fill(const CRect& rect, COLORREF color) {
    if (rect.IsRectEmpty())
        return;
    if (QPainter* painter = Plain())
        painter->fillRect(Target(rect), QColor::fromRgb(Opaque(color)));
}

const QImage* Surface::Pixels() {
    if (!Bind())
        return nullptr;
    if (m_canvas)
        return &m_canvas->image;
    const QPaintDevice* device = m_foreign->device();
    return device->devType() == QInternal::Image ? static_cast<const QImage*>(device) : nullptr;
}

QRgb Surface::Background() const {
    return m_widget ? m_widget->palette().color(m_widget->backgroundRole()).rgb() : qRgb(0, 0, 0);
}

QSize Surface::size() const {
    if (m_widget)
        return m_widget->size();
    if (m_canvas)
        return m_canvas->image.deviceIndependentSize().toSize();
    return m_foreign ? QSize(m_foreign->device()->width(), m_foreign->device()->height()) : QSize(0, 0);
}

} // namespace platform
