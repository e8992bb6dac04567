#include "platform/private/paint/Canvas.h"

#include <algorithm>

namespace platform {

void Canvas::MakeOpaque(QRgb background) {
    if (std::exchange(m_opaque, true))
        return;
    for (int y = 0; y < image.height(); ++y) {
        QRgb* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int under = 255 - qAlpha(row[x]);
            if (under == 0)
                continue;
            const auto over = [&](int drawn, int below) { return drawn + below * under / 255; };
            row[x] = qRgb(over(qRed(row[x]), qRed(background)), over(qGreen(row[x]), qGreen(background)),
                          over(qBlue(row[x]), qBlue(background)));
        }
    }
}

void Canvas::Clear() {
    image.fill(Qt::transparent);
    m_opaque = false;
}

void Canvas::Clear(const QRect& part) {
    const qreal scale = image.devicePixelRatio();
    const QRect pixels = QRectF(part.x() * scale, part.y() * scale, part.width() * scale, part.height() * scale)
                             .toRect()
                             .intersected(image.rect());
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        QRgb* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::fill(row + pixels.left(), row + pixels.right() + 1, qRgba(0, 0, 0, 0));
    }
    m_opaque = false;
}

} // namespace platform
