// Pictures of an image list as the toolkit's views take them.
#pragma once

#include "platform/private/paint/ImageListData.h"

#include <QIcon>

namespace platform {

// Empty for an index outside the list and for no list. Views grey or tint an icon in some of their states; these look
// the same in all of them.
QIcon IconAt(const CImageList* images, int index);
QSize IconSize(const CImageList* images);

} // namespace platform
