// The pictures behind a CImageList.
#pragma once

#include "platform/controls/ImageList.h"

#include <QImage>

#include <vector>

namespace platform {

struct ImageListData {
    QSize size; // device-independent pixels; empty before Create
    std::vector<QImage> images;
};

} // namespace platform
