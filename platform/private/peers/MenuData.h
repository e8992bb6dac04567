// What stands behind a CMenu.
#pragma once

#include "platform/window/Menu.h"

#include <memory>
#include <vector>

namespace platform {

class MenuData {
  public:
    struct Item {
        UINT id = 0;
        CString text;
        UINT flags = 0; // MF_SEPARATOR, MF_POPUP, MF_GRAYED, MF_DISABLED, MF_CHECKED
        std::unique_ptr<CMenu> popup;
    };

    std::vector<Item> items;
};

} // namespace platform
