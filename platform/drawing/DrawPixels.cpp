// The device context's fills, single pixels and copies.
#include "platform/drawing/DeviceContext.h"
#include "platform/private/paint/Surface.h"

using platform::Surface;

namespace {

QPainter::CompositionMode BlitMode(DWORD operation) {
    switch (operation) {
    case NOTSRCCOPY:
        return QPainter::RasterOp_NotSource;
    case SRCINVERT:
        return QPainter::RasterOp_SourceXorDestination;
    case SRCAND:
        return QPainter::RasterOp_SourceAndDestination;
    case SRCPAINT:
        return QPainter::RasterOp_SourceOrDestination;
    default:
        return QPainter::CompositionMode_SourceOver;
    }
}

// A part of the source's pixels, opaque: what was never drawn shows the source's background.
QImage CopyOf(Surface& source, const CRect& rect) {
    const QImage* pixels = source.Pixels();
    if (!pixels)
        return {};
    const QRectF place(QPointF(source.Target(rect).topLeft()) * pixels->devicePixelRatio(),
                       QSizeF(source.Target(rect).size()) * pixels->devicePixelRatio());
    platform::Canvas copy(pixels->copy(place.toRect()).convertToFormat(QImage::Format_ARGB32_Premultiplied));
    copy.MakeOpaque(source.Background());
    return copy.image;
}

} // namespace

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
        m_surface->Fill(*rect, m_surface->MakeBrush(brush->Data()->description, brush->Data()->pattern));
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

void CDC::InvertRect(LPCRECT rect) {
    if (rect->IsRectEmpty())
        return;
    if (QPainter* painter = m_surface->WithMode(QPainter::RasterOp_NotDestination))
        painter->fillRect(m_surface->Target(*rect), Qt::black);
}

void CDC::Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight) {
    Draw3dRect(rect->left, rect->top, rect->Width(), rect->Height(), topLeft, bottomRight);
}

// The lower left and the upper right corner belong to the bottom and right lines.
void CDC::Draw3dRect(int x, int y, int width, int height, COLORREF topLeft, COLORREF bottomRight) {
    const auto bar = [&](int left, int top, int cx, int cy, COLORREF color) {
        m_surface->Fill({left, top, left + cx, top + cy}, color);
    };
    bar(x, y, width - 1, 1, topLeft);
    bar(x, y, 1, height - 1, topLeft);
    bar(x + width - 1, y, 1, height, bottomRight);
    bar(x, y + height - 1, width, 1, bottomRight);
}

void CDC::DrawFocusRect(LPCRECT rect) {
    QPainter* painter = rect->IsRectEmpty() ? nullptr : m_surface->WithMode(QPainter::RasterOp_NotDestination);
    if (!painter)
        return;
    const auto dot = [&](int x, int y) {
        if (((x + y) & 1) == 0)
            painter->fillRect(m_surface->Target({x, y, x + 1, y + 1}), Qt::black);
    };
    for (int x = rect->left; x < rect->right; ++x) {
        dot(x, rect->top);
        if (rect->Height() > 1)
            dot(x, rect->bottom - 1);
    }
    for (int y = rect->top + 1; y < rect->bottom - 1; ++y) {
        dot(rect->left, y);
        if (rect->Width() > 1)
            dot(rect->right - 1, y);
    }
}

COLORREF CDC::SetPixel(int x, int y, COLORREF color) {
    m_surface->Fill({x, y, x + 1, y + 1}, color);
    return m_surface->HasTarget() ? color : CLR_INVALID;
}

COLORREF CDC::GetPixel(int x, int y) const {
    const QImage* pixels = m_surface->Pixels();
    if (!pixels)
        return CLR_INVALID;
    const QPointF place = QPointF(m_surface->Target({x, y, x, y}).topLeft()) * pixels->devicePixelRatio();
    if (!pixels->valid(place.toPoint()))
        return CLR_INVALID;
    const QImage copy = CopyOf(*m_surface, {x, y, x + 1, y + 1});
    const QRgb pixel = copy.pixel(0, 0);
    return RGB(qRed(pixel), qGreen(pixel), qBlue(pixel));
}

BOOL CDC::PatBlt(int x, int y, int width, int height, DWORD operation) {
    CRect rect(x, y, x + width, y + height);
    rect.NormalizeRect();
    switch (operation) {
    case WHITENESS:
        m_surface->Fill(rect, RGB(255, 255, 255));
        break;
    case BLACKNESS:
        m_surface->Fill(rect, RGB(0, 0, 0));
        break;
    case DSTINVERT:
        InvertRect(&rect);
        break;
    case PATCOPY:
        m_surface->Fill(rect, m_surface->Brush());
        break;
    default:
        return FALSE;
    }
    return m_surface->HasTarget();
}

BOOL CDC::BitBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY, DWORD operation) {
    return StretchBlt(x, y, width, height, source, sourceX, sourceY, width, height, operation);
}

BOOL CDC::StretchBlt(int x, int y, int width, int height, CDC* source, int sourceX, int sourceY, int sourceWidth,
                     int sourceHeight, DWORD operation) {
    if (operation == WHITENESS || operation == BLACKNESS || operation == DSTINVERT || operation == PATCOPY)
        return PatBlt(x, y, width, height, operation);
    if (!source || width <= 0 || height <= 0 || sourceWidth <= 0 || sourceHeight <= 0)
        return FALSE;
    // A copy, since source and target may be the same picture, moved.
    const CRect part(sourceX, sourceY, sourceX + sourceWidth, sourceY + sourceHeight);
    const QImage image = CopyOf(*source->m_surface, part);
    QPainter* painter = image.isNull() ? nullptr : m_surface->WithMode(BlitMode(operation));
    if (!painter)
        return FALSE;
    painter->drawImage(m_surface->Target({x, y, x + width, y + height}), image, image.rect());
    return TRUE;
}
