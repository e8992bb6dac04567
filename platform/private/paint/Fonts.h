// The one place where font names of the classic desktop become fonts of this machine.
#pragma once

#include <QFont>

namespace platform {

// `face` is Windows-1252, null or "" for the dialog font; `pixelHeight` is the height of the em square in
// device-independent pixels (0 is the dialog font's 11); `weight` is 0 to 1000, 0 and 400 regular, 700 bold. Advances
// do not depend on the screen's scale, so a layout that fits at 100 % fits at 200 %.
QFont ToolkitFont(const char* face, int pixelHeight, int weight = 0, bool italic = false);

} // namespace platform
