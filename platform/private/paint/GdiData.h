// What stands behind the handles of graphic objects.
#pragma once

#include "platform/drawing/Gdi.h"

#include <QFont>
#include <QImage>

#include <span>
#include <utility>

namespace platform {

struct GdiData {
    enum class Kind { Pen, Brush, Font, Bitmap };

    explicit GdiData(Kind k) : kind(k) {}
    GdiData(const GdiData&) = delete;
    GdiData& operator=(const GdiData&) = delete;
    virtual ~GdiData() = default;

    const Kind kind;
};

struct PenData : GdiData {
    explicit PenData(const LOGPEN& d) : GdiData(Kind::Pen), description(d) {}

    LOGPEN description;
};

struct BrushData : GdiData {
    explicit BrushData(const LOGBRUSH& d) : GdiData(Kind::Brush), description(d) {}

    LOGBRUSH description;
};

struct FontData : GdiData {
    explicit FontData(const LOGFONT& d);

    LOGFONT description;
    QFont font;
};

struct BitmapData : GdiData {
    explicit BitmapData(QImage pixels) : GdiData(Kind::Bitmap), image(std::move(pixels)) {}

    QSize size() const { return image.deviceIndependentSize().toSize(); }

    QImage image;
};

inline QRgb Opaque(COLORREF color) {
    return qRgb(GetRValue(color), GetGValue(color), GetBValue(color));
}

// A picture resource (an SVG file) drawn at `logical` size, or at its own when that is empty; null when it is none.
QImage RenderSvg(std::span<const unsigned char> svg, QSize logical, qreal scale);

} // namespace platform
