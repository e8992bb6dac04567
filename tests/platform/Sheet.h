// A white sheet to draw on in memory, read back as rows of text.
#pragma once

#include "platform/drawing/DeviceContext.h"
#include "platform/private/paint/GdiData.h"
#include "platform/toolkit/PainterDC.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <optional>
#include <string>

// Rows from the first to the last that is not white, '#' for drawn and '.' for white pixels, each row ended by '/'.
inline std::string DrawnRows(const QImage& image) {
    std::string all;
    std::size_t used = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            all += image.pixel(x, y) == qRgb(255, 255, 255) ? '.' : '#';
        all += '/';
        if (all.find('#', used) != std::string::npos)
            used = all.size();
    }
    return all.substr(0, used);
}

// The smallest rectangle around what is drawn, in device pixels.
inline CRect DrawnBox(const QImage& image) {
    CRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != qRgb(255, 255, 255))
                box |= CRect(x, y, x + 1, y + 1);
    return box;
}

inline void DrawLine(CDC& dc, int x1, int y1, int x2, int y2) {
    dc.MoveTo(x1, y1);
    dc.LineTo(x2, y2);
}

class Sheet {
  public:
    explicit Sheet(int width, int height, double scale = 1)
        : m_image((QSizeF(width, height) * scale).toSize(), QImage::Format_ARGB32_Premultiplied) {
        m_image.setDevicePixelRatio(scale);
        m_image.fill(Qt::white);
        m_painter.emplace(&m_image);
        m_dc.emplace(*m_painter);
    }

    CDC* operator->() { return &*m_dc; }
    CDC& Dc() { return *m_dc; }
    void Line(int x1, int y1, int x2, int y2) { DrawLine(*m_dc, x1, y1, x2, y2); }
    QRgb Pixel(int x, int y) const { return m_image.pixel(x, y); }
    std::string Rows() const { return DrawnRows(m_image); }
    CRect Box() const { return DrawnBox(m_image); }
    const QImage& Image() const { return m_image; }

  private:
    QImage m_image;
    std::optional<QPainter> m_painter;
    std::optional<platform::PainterDC> m_dc;
};
