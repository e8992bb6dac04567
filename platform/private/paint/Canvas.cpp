#include "platform/private/paint/Canvas.h"

#include <algorithm>

namespace platform {

void Canvas::Clear(const QRect& part) {
    const qreal scale = image.devicePixelRatio();
    const QRect pixels = QRectF(part.x() * scale, part.y() * scale, part.width() * scale, part.height() * scale)
                             .toRect()
                             .intersected(image.rect());
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        QRgb* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::fill(row + pixels.left(), row + pixels.right() + 1, qRgba(0, 0, 0, 0));
    }
}

} // namespace platform
