#include "platform/controls/ImageList.h"
#include "platform/private/paint/GdiData.h"
#include "platform/private/paint/ImageListData.h"

#include <algorithm>
#include <memory>

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

int CImageList::Add(CBitmap* bitmap, COLORREF mask) {
    if (!bitmap || !bitmap->Data())
        return -1;
    QImage strip = bitmap->Data()->image.copy();
    if (mask != CLR_NONE)
        MakeTransparent(strip, platform::Opaque(mask));
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

int CImageList::GetImageCount() const {
    return static_cast<int>(m_data->images.size());
}
