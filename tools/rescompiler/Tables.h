// What scripts declare, with the place of each declaration for messages. Texts are UTF-8.
#pragma once

#include "platform/resource/Resource.h"
#include "tools/rescompiler/Script.h"

#include <cstdint>
#include <string>
#include <vector>

namespace rescompiler {

struct Control {
    Place place;
    platform::ControlTemplate::Kind kind = platform::ControlTemplate::Kind::Custom;
    std::string className;
    std::string text;
    int id = -1;
    int x = 0, y = 0, cx = 0, cy = 0;
    std::uint32_t style = 0, exStyle = 0;
    int image = 0;
};

struct Dialog {
    Place place;
    int id = 0;
    int x = 0, y = 0, cx = 0, cy = 0;
    std::string caption;
    std::uint32_t style = 0, exStyle = 0;
    std::string fontFace;
    int fontPoints = 0;
    int menu = 0;
    std::vector<Control> controls;
};

struct MenuItem {
    Place place;
    int id = 0;
    std::string text;
    bool separator = false, popup = false, grayed = false, checked = false;
    int childCount = 0;
};

struct Menu {
    Place place;
    int id = 0;
    int itemCount = 0;
    std::vector<MenuItem> items; // depth first
};

struct Picture {
    Place place;
    int id = 0;
    std::string file;  // path that can be opened
    std::string bytes; // filled by the check
};

struct Tables {
    std::vector<Dialog> dialogs;
    std::vector<Menu> menus;
    std::vector<Picture> bitmaps;
    std::vector<Picture> icons;
};

} // namespace rescompiler
