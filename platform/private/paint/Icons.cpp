#include "platform/private/paint/Icons.h"

#include <QPixmap>

namespace platform {

QIcon IconAt(const CImageList* images, int index) {
    if (!images || index < 0 || index >= images->GetImageCount())
        return {};
    const QPixmap pixmap = QPixmap::fromImage(images->Data()->images[static_cast<std::size_t>(index)]);
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

QSize IconSize(const CImageList* images) {
    return images ? images->Data()->size : QSize();
}

} // namespace platform
