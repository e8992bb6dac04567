// What stands behind the handles of graphic objects.
#pragma once

#include "platform/drawing/Gdi.h"

#include "platform/private/paint/Canvas.h"

#include <QFont>
#include <QImage>

#include <memory>
#include <span>

namespace platform {

struct GdiData {
    enum class Kind { Pen, Brush, Font, Bitmap };

    explicit GdiData(Kind k) : kind(k) {}
    GdiData(const GdiData&) = default;
    virtual ~GdiData() = default;
    virtual GdiData* Copy() const = 0;

    const Kind kind;
};

struct PenData : GdiData {
    explicit PenData(const LOGPEN& d) : GdiData(Kind::Pen), description(d) {}
    GdiData* Copy() const override { return new PenData(*this); }

    LOGPEN description;
};

struct BrushData : GdiData {
    explicit BrushData(const LOGBRUSH& d, const QImage& image = {})
        : GdiData(Kind::Brush), description(d), pattern(image) {}
    GdiData* Copy() const override { return new BrushData(*this); }

    LOGBRUSH description;
    QImage pattern;
};

struct FontData : GdiData {
    explicit FontData(const LOGFONT& d);
    GdiData* Copy() const override { return new FontData(*this); }

    LOGFONT description;
    QFont font;
};

// The pixels are shared with the device context that the bitmap is selected into, which may outlive it.
struct BitmapData : GdiData {
    explicit BitmapData(QImage image) : GdiData(Kind::Bitmap), canvas(std::make_shared<Canvas>(std::move(image))) {}
    GdiData* Copy() const override { return new BitmapData(canvas->image.copy()); }

    QSize size() const { return canvas->image.deviceIndependentSize().toSize(); }

    std::shared_ptr<Canvas> canvas;
    std::shared_ptr<QImage> pixels{canvas, &canvas->image}; // the same object, for those who only read
};

inline QRgb Opaque(COLORREF color) {
    return qRgb(GetRValue(color), GetGValue(color), GetBValue(color));
}

// A picture resource (an SVG file) drawn at `logical` size, or at its own when that is empty; null when it is none.
QImage RenderSvg(std::span<const unsigned char> svg, QSize logical, qreal scale);

} // namespace platform
