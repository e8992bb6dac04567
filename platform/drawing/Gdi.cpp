#include "platform/drawing/Gdi.h"
#include "platform/drawing/DeviceContext.h"
#include "platform/private/paint/Fonts.h"
#include "platform/private/paint/GdiData.h"
#include "platform/resource/Resource.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <utility>

using platform::GdiData;

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)

namespace {

template <typename Data>
Data* DataOf(HGDIOBJ handle, GdiData::Kind kind) {
    return handle && handle->kind == kind ? static_cast<Data*>(handle) : nullptr;
}

constexpr int largestBitmap = 16384; // pixels each way; beyond it a size is a mistake, and its bytes overflow an int

} // namespace

BOOL CGdiObject::DeleteObject() {
    if (!m_hObject)
        return FALSE;
    delete std::exchange(m_hObject, nullptr);
    return TRUE;
}

BOOL CGdiObject::Attach(HGDIOBJ handle) {
    if (handle && handle == m_hObject)
        return TRUE;
    return Replace(handle);
}

HGDIOBJ CGdiObject::Detach() {
    return std::exchange(m_hObject, nullptr);
}

BOOL CGdiObject::Replace(HGDIOBJ handle) {
    DeleteObject();
    m_hObject = handle;
    return handle != nullptr;
}

BOOL CGdiObject::CreateStockObject(int index) {
    const CGdiObject* stock = platform::StockObject(index);
    if (!stock || stock->GetRuntimeClass() != GetRuntimeClass())
        return FALSE;
    return Replace(stock->m_hObject->Copy());
}

BOOL CPen::CreatePen(int style, int width, COLORREF color) {
    return Replace(new platform::PenData({static_cast<UINT>(style), {std::max(width, 0), 0}, color}));
}

BOOL CPen::CreatePenIndirect(const LOGPEN* description) {
    return CreatePen(static_cast<int>(description->lopnStyle), description->lopnWidth.x, description->lopnColor);
}

int CPen::GetLogPen(LOGPEN* description) const {
    if (!Data())
        return 0;
    *description = Data()->description;
    return static_cast<int>(sizeof *description);
}

const platform::PenData* CPen::Data() const {
    return DataOf<platform::PenData>(m_hObject, GdiData::Kind::Pen);
}

BOOL CBrush::CreateSolidBrush(COLORREF color) {
    return Replace(new platform::BrushData({BS_SOLID, color, 0}));
}

BOOL CBrush::CreateHatchBrush(int hatch, COLORREF color) {
    return Replace(new platform::BrushData({BS_HATCHED, color, hatch}));
}

BOOL CBrush::CreatePatternBrush(CBitmap* pattern) {
    if (!pattern || !pattern->Data())
        return FALSE;
    return Replace(new platform::BrushData({BS_PATTERN, 0, 0}, pattern->Data()->canvas->image.copy()));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* description) {
    return Replace(new platform::BrushData(*description));
}

int CBrush::GetLogBrush(LOGBRUSH* description) const {
    if (!Data())
        return 0;
    *description = Data()->description;
    return static_cast<int>(sizeof *description);
}

const platform::BrushData* CBrush::Data() const {
    return DataOf<platform::BrushData>(m_hObject, GdiData::Kind::Brush);
}

platform::FontData::FontData(const LOGFONT& d) : GdiData(Kind::Font), description(d) {
    description.lfFaceName[sizeof description.lfFaceName - 1] = '\0';
    const auto made = [&](int em) {
        return ToolkitFont(description.lfFaceName, em, description.lfWeight, description.lfItalic != 0);
    };
    const int height = std::clamp<int>(d.lfHeight, -2000, 2000);
    font = made(std::abs(height));
    if (height > 0) {
        const QFontMetricsF metrics(font); // a positive height is the cell's, larger than the em square
        font = made(std::max(1, qRound(height * height / (metrics.ascent() + metrics.descent()))));
    }
    font.setUnderline(description.lfUnderline != 0);
    font.setStrikeOut(description.lfStrikeOut != 0);
}

BOOL CFont::CreateFontIndirect(const LOGFONT* description) {
    return Replace(new platform::FontData(*description));
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* description, CDC*) {
    LOGFONT pixels = *description;
    pixels.lfHeight = -static_cast<LONG>(std::lround(std::abs(static_cast<double>(description->lfHeight)) * 96 / 720));
    return CreateFontIndirect(&pixels);
}

BOOL CFont::CreatePointFont(int tenths, LPCTSTR face, CDC* device) {
    LOGFONT description;
    description.lfHeight = tenths;
    description.lfCharSet = DEFAULT_CHARSET;
    std::strncpy(description.lfFaceName, face ? face : "", sizeof description.lfFaceName - 1);
    return CreatePointFontIndirect(&description, device);
}

BOOL CFont::CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic, BYTE underline,
                       BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision, BYTE quality,
                       BYTE pitchAndFamily, LPCTSTR face) {
    LOGFONT description = {height,    width,   escapement,   orientation,   weight,  italic,         underline,
                           strikeOut, charSet, outPrecision, clipPrecision, quality, pitchAndFamily, {}};
    std::strncpy(description.lfFaceName, face ? face : "", sizeof description.lfFaceName - 1);
    return CreateFontIndirect(&description);
}

int CFont::GetLogFont(LOGFONT* description) const {
    if (!Data())
        return 0;
    *description = Data()->description;
    return static_cast<int>(sizeof *description);
}

const platform::FontData* CFont::Data() const {
    return DataOf<platform::FontData>(m_hObject, GdiData::Kind::Font);
}

QImage platform::RenderSvg(std::span<const unsigned char> svg, QSize logical, qreal scale) {
    QSvgRenderer renderer(
        QByteArray::fromRawData(reinterpret_cast<const char*>(svg.data()), static_cast<qsizetype>(svg.size())));
    if (!renderer.isValid())
        return {};
    if (logical.isEmpty())
        logical = renderer.defaultSize();
    if (logical.isEmpty() || logical.width() > largestBitmap || logical.height() > largestBitmap)
        return {};
    QImage image((QSizeF(logical) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(logical)));
    return image;
}

namespace {

// Bitmaps of resources are drawn once, at the finest scale of the screens, and scaled down where that is less.
QImage ResourceImage(const platform::BitmapResource* resource) {
    const qreal scale = qGuiApp ? qGuiApp->devicePixelRatio() : 1;
    return resource ? platform::RenderSvg(resource->svg, {}, scale) : QImage();
}

QImage BlackImage(int width, int height, qreal scale) {
    if (width < 0 || height < 0 || width > largestBitmap || height > largestBitmap)
        return {};
    QImage image((QSizeF(std::max(width, 1), std::max(height, 1)) * scale).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::black);
    return image;
}

} // namespace

BOOL CBitmap::LoadBitmap(UINT id) {
    QImage image = ResourceImage(platform::FindBitmap(static_cast<int>(id)));
    return !image.isNull() && Replace(new platform::BitmapData(std::move(image)));
}

BOOL CBitmap::LoadIcon(UINT id) {
    QImage image = ResourceImage(platform::FindIcon(static_cast<int>(id)));
    return !image.isNull() && Replace(new platform::BitmapData(std::move(image)));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* device, int width, int height) {
    QImage image = BlackImage(width, height, device ? device->GetScale() : 1);
    return !image.isNull() && Replace(new platform::BitmapData(std::move(image)));
}

BOOL CBitmap::CreateBitmap(int width, int height, UINT, UINT bitsPerPixel, const void* bits) {
    QImage image = BlackImage(width, height, 1);
    if (image.isNull() || (bits && bitsPerPixel != 1 && bitsPerPixel != 32))
        return FALSE;
    const auto* bytes = static_cast<const unsigned char*>(bits);
    const int stride = bitsPerPixel == 32 ? width * 4 : (width + 15) / 16 * 2;
    for (int y = 0; bits && y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const unsigned char* row = bytes + static_cast<std::ptrdiff_t>(y) * stride;
            QRgb pixel = 0;
            if (bitsPerPixel == 32)
                std::memcpy(&pixel, row + 4 * x, sizeof pixel);
            else
                pixel = row[x / 8] & 0x80u >> x % 8 ? qRgb(255, 255, 255) : qRgb(0, 0, 0);
            image.setPixel(x, y, 0xff000000u | pixel);
        }
    return Replace(new platform::BitmapData(std::move(image)));
}

int CBitmap::GetBitmap(BITMAP* description) const {
    if (!Data())
        return 0;
    *description = {};
    description->bmWidth = Data()->size().width();
    description->bmHeight = Data()->size().height();
    description->bmWidthBytes = description->bmWidth * 4;
    return static_cast<int>(sizeof *description);
}

platform::BitmapData* CBitmap::Data() const {
    return DataOf<platform::BitmapData>(m_hObject, GdiData::Kind::Bitmap);
}
