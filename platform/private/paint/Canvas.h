// An image with the one painter that may be open on it. Several device contexts on one window share them.
#pragma once

#include <QImage>
#include <QPainter>

#include <optional>
#include <utility>

namespace platform {

class Canvas {
  public:
    explicit Canvas(QImage pixels) : image(std::move(pixels)) {}

    // Opens the painter for one more user; every user ends with release().
    void Use() {
        if (m_users++ == 0)
            m_painter.emplace(&image);
    }
    void Release() {
        if (--m_users == 0) {
            m_painter.reset();
            artist = nullptr;
        }
    }
    QPainter* Painter() { return &*m_painter; }

    void Clear() { image.fill(Qt::transparent); }
    void Clear(const QRect& part); // device-independent pixels, inside the image

    QImage image;                 // premultiplied, at its scale; never copied while a painter is open on it
    const void* artist = nullptr; // whose pen, brush and clipping the painter has now

  private:
    std::optional<QPainter> m_painter;
    int m_users = 0;
};

} // namespace platform
