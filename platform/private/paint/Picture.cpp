#include "platform/private/paint/Picture.h"

#include <utility>

namespace platform {

void Picture::Erase(const QRegion& area) {
    if (area.isEmpty() || !m_canvas)
        return;
    const QRect whole(QPoint(), (m_canvas->image.deviceIndependentSize()).toSize());
    if (area.intersected(whole) != QRegion(whole)) {
        for (const QRect& part : area)
            m_canvas->Clear(part & whole);
        return;
    }
    m_drawn = false;
    if (m_canvas && m_canvas.use_count() == 1)
        m_canvas.reset();
    else if (m_canvas)
        m_canvas->Clear();
}

const std::shared_ptr<Canvas>& Picture::CanvasFor(QSize logical, qreal scale) {
    m_drawn = true;
    const QSize pixels = (QSizeF(logical) * scale).toSize().expandedTo(QSize(1, 1));
    if (m_canvas && m_canvas->image.size() == pixels && m_canvas->image.devicePixelRatio() == scale)
        return m_canvas;
    QImage fresh(pixels, QImage::Format_ARGB32_Premultiplied);
    fresh.setDevicePixelRatio(scale);
    fresh.fill(Qt::transparent);
    if (m_canvas) {
        QPainter painter(&fresh);
        painter.drawImage(QPointF(0, 0), m_canvas->image);
    }
    m_canvas = std::make_shared<Canvas>(std::move(fresh));
    return m_canvas;
}

void Picture::Blit(QPainter& painter) const {
    if (m_drawn && m_canvas)
        painter.drawImage(QPointF(0, 0), m_canvas->image);
}

} // namespace platform
