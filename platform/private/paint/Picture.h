// What was drawn into a window outside the toolkit's own painting. It covers the window's own look and stays until it
// is erased.
#pragma once

#include "platform/private/paint/Canvas.h"

#include <QRegion>

#include <memory>

namespace platform {

class Picture {
  public:
    bool Empty() const { return !m_drawn; }

    // The area, device-independent pixels, transparent again. A device context that is open on the picture stays
    // usable.
    void Erase(const QRegion& area);

    // The canvas for drawing, `logical` large at `scale` device pixels each; transparent where nothing was drawn. At a
    // change of size or scale there is a new one, with the old content at its top left. Whoever draws shares the
    // ownership, so that a window closed in between takes nothing from under an open painter.
    const std::shared_ptr<Canvas>& CanvasFor(QSize logical, qreal scale);

    // Puts the picture over what the painter shows at its origin.
    void Blit(QPainter& painter) const;

  private:
    std::shared_ptr<Canvas> m_canvas;
    bool m_drawn = false;
};

} // namespace platform
