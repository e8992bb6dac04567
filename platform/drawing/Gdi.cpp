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

BOOL CPen::CreatePen(int style, int width, COLORREF color) {
    return Replace(new platform::PenData({static_cast<UINT>(style), {std::max(width, 0), 0}, color}));
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
    return Replace(new platform::BrushData({BS_SOLID, color}));
}

BOOL CBrush::CreateBrushIndirect(const LOGBRUSH* description) {
    return Replace(new platform::BrushData(*description));
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

} // namespace

BOOL CBitmap::LoadBitmap(UINT id) {
    QImage image = ResourceImage(platform::FindBitmap(static_cast<int>(id)));
    return !image.isNull() && Replace(new platform::BitmapData(std::move(image)));
}

BOOL CBitmap::LoadIcon(UINT id) {
    QImage image = ResourceImage(platform::FindIcon(static_cast<int>(id)));
    return !image.isNull() && Replace(new platform::BitmapData(std::move(image)));
}

BOOL CBitmap::CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits) {
    if (width <= 0 || height <= 0 || std::max(width, height) > largestBitmap || planes != 1 || bitsPerPixel != 32)
        return FALSE;
    QImage image(width, height, QImage::Format_RGB32);
    if (bits)
        std::memcpy(image.bits(), bits, static_cast<std::size_t>(image.sizeInBytes()));
    else
        image.fill(Qt::black);
    image.convertTo(QImage::Format_ARGB32_Premultiplied);
    return Replace(new platform::BitmapData(std::move(image)));
}

platform::BitmapData* CBitmap::Data() const {
    return DataOf<platform::BitmapData>(m_hObject, GdiData::Kind::Bitmap);
}
