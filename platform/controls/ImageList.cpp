#include "platform/controls/ImageList.h"
#include "platform/drawing/DeviceContext.h"
#include "platform/private/paint/GdiData.h"
#include "platform/private/paint/ImageListData.h"
#include "platform/private/paint/Surface.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CImageList, CObject)

using platform::ImageListData;

namespace {

// The pictures side by side in an image, which may be finer than one pixel to the device-independent one; a bitmap
// narrower than a picture is none.
int AddStrip(ImageListData& data, const QImage& strip) {
    const qreal scale = strip.devicePixelRatio();
    const int width = qRound(data.size.width() * scale), height = qRound(data.size.height() * scale);
    const int first = static_cast<int>(data.images.size());
    if (data.size.isEmpty() || width <= 0 || strip.width() < width)
        return -1;
    for (int x = 0; x + width <= strip.width(); x += width)
        data.images.push_back(strip.copy(x, 0, width, height));
    return first;
}

void MakeTransparent(QImage& image, QRgb color) {
    for (int y = 0; y < image.height(); ++y) {
        QRgb* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::replace(row, row + image.width(), 0xff000000u | color, QRgb(0));
    }
}

} // namespace

CImageList::CImageList() : m_data(std::make_shared<ImageListData>()) {
}

CImageList::~CImageList() = default;

BOOL CImageList::Create(int width, int height, UINT, int, int) {
    if (width <= 0 || height <= 0)
        return FALSE;
    m_data = std::make_shared<ImageListData>();
    m_data->size = QSize(width, height);
    return TRUE;
}

BOOL CImageList::Create(UINT bitmapId, int width, int grow, COLORREF mask) {
    CBitmap bitmap;
    return bitmap.LoadBitmap(bitmapId) && Create(width, bitmap.Data()->size().height(), ILC_COLOR32, 0, grow) &&
           Add(&bitmap, mask) >= 0;
}

BOOL CImageList::DeleteImageList() {
    m_data = std::make_shared<ImageListData>();
    return TRUE;
}

int CImageList::Add(CBitmap* bitmap, COLORREF mask) {
    if (!bitmap || !bitmap->Data())
        return -1;
    QImage strip = bitmap->Data()->image.copy();
    if (mask != CLR_NONE)
        MakeTransparent(strip, platform::Opaque(mask));
    return AddStrip(*m_data, strip);
}

int CImageList::Add(CBitmap* bitmap, CBitmap* mask) {
    if (!bitmap || !bitmap->Data() || !mask || !mask->Data())
        return -1;
    QImage strip = bitmap->Data()->image.copy();
    const QImage holes = mask->Data()->image.scaled(strip.size());
    for (int y = 0; y < strip.height(); ++y)
        for (int x = 0; x < strip.width(); ++x)
            if (qGray(holes.pixel(x, y)) > 127)
                strip.setPixel(x, y, 0);
    return AddStrip(*m_data, strip);
}

int CImageList::Add(HICON icon) {
    if (!icon || icon->kind != platform::GdiData::Kind::Bitmap || m_data->size.isEmpty())
        return -1;
    const QImage& source = static_cast<platform::BitmapData*>(icon)->image;
    const qreal scale = source.devicePixelRatio();
    QImage image =
        source.scaled((QSizeF(m_data->size) * scale).toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(scale);
    return AddStrip(*m_data, image);
}

BOOL CImageList::Remove(int index) {
    if (index == -1) {
        m_data->images.clear();
        return TRUE;
    }
    if (index < 0 || index >= GetImageCount())
        return FALSE;
    m_data->images.erase(m_data->images.begin() + index);
    return TRUE;
}

int CImageList::GetImageCount() const {
    return static_cast<int>(m_data->images.size());
}

CSize CImageList::GetImageSize() const {
    return m_data->size.isEmpty() ? CSize() : CSize(m_data->size.width(), m_data->size.height());
}

COLORREF CImageList::SetBkColor(COLORREF color) {
    return std::exchange(m_data->background, color);
}

COLORREF CImageList::GetBkColor() const {
    return m_data->background;
}

BOOL CImageList::Draw(CDC* dc, int index, CPoint point, UINT style) {
    if (!dc || index < 0 || index >= GetImageCount())
        return FALSE;
    const CRect place(point, GetImageSize());
    if (m_data->background != CLR_NONE && !(style & ILD_TRANSPARENT))
        dc->m_surface->Fill(place, m_data->background);
    QPainter* painter = dc->m_surface->Plain();
    if (!painter)
        return FALSE;
    painter->drawImage(dc->m_surface->Target(place), m_data->images[static_cast<std::size_t>(index)]);
    return TRUE;
}
