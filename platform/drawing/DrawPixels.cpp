// The device context's fills, and the colours of single pixels.
#include "platform/drawing/DeviceContext.h"
#include "platform/private/paint/Surface.h"

void CDC::FillSolidRect(LPCRECT rect, COLORREF color) {
    SetBkColor(color);
    m_surface->Fill(*rect, color);
}

void CDC::FillSolidRect(int x, int y, int width, int height, COLORREF color) {
    const CRect rect(x, y, x + width, y + height);
    FillSolidRect(&rect, color);
}

void CDC::FillRect(LPCRECT rect, CBrush* brush) {
    if (brush && brush->Data())
        m_surface->Fill(*rect, m_surface->MakeBrush(brush->Data()->description));
}

void CDC::FrameRect(LPCRECT rect, CBrush* brush) {
    if (rect->IsRectEmpty())
        return;
    const CRect bars[] = {{rect->left, rect->top, rect->right, rect->top + 1},
                          {rect->left, rect->bottom - 1, rect->right, rect->bottom},
                          {rect->left, rect->top, rect->left + 1, rect->bottom},
                          {rect->right - 1, rect->top, rect->right, rect->bottom}};
    for (const CRect& bar : bars)
        FillRect(&bar, brush);
}

COLORREF CDC::GetPixel(int x, int y) const {
    const QImage* pixels = m_surface->Pixels();
    if (!pixels)
        return CLR_INVALID;
    const QPoint place = (QPointF(x, y) * pixels->devicePixelRatio()).toPoint();
    if (!pixels->valid(place))
        return CLR_INVALID;
    QImage drawn = pixels->copy({place, QSize(1, 1)});
    drawn.setDevicePixelRatio(1);
    QImage shown(1, 1, QImage::Format_RGB32); // what was never drawn shows the background
    shown.fill(m_surface->Background());
    QPainter(&shown).drawImage(0, 0, drawn);
    const QRgb pixel = shown.pixel(0, 0);
    return RGB(qRed(pixel), qGreen(pixel), qBlue(pixel));
}
