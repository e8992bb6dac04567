#include "platform/drawing/Gdi.h"

#include <memory>

namespace platform {
namespace {

std::unique_ptr<CGdiObject> Brush(UINT style, COLORREF color) {
    const LOGBRUSH description = {style, color};
    auto made = std::make_unique<CBrush>();
    made->CreateBrushIndirect(&description);
    return made;
}

std::unique_ptr<CGdiObject> Font(LPCTSTR face) {
    auto made = std::make_unique<CFont>();
    made->CreatePointFont(80, face);
    return made;
}

std::unique_ptr<CGdiObject> Make(int index) {
    switch (index) {
    case WHITE_BRUSH:
        return Brush(BS_SOLID, RGB(255, 255, 255));
    case LTGRAY_BRUSH:
        return Brush(BS_SOLID, RGB(192, 192, 192));
    case GRAY_BRUSH:
        return Brush(BS_SOLID, RGB(128, 128, 128));
    case DKGRAY_BRUSH:
        return Brush(BS_SOLID, RGB(64, 64, 64));
    case BLACK_BRUSH:
        return Brush(BS_SOLID, RGB(0, 0, 0));
    case NULL_BRUSH:
        return Brush(BS_NULL, 0);
    case WHITE_PEN:
        return std::make_unique<CPen>(PS_SOLID, 1, RGB(255, 255, 255));
    case BLACK_PEN:
        return std::make_unique<CPen>(PS_SOLID, 1, RGB(0, 0, 0));
    case NULL_PEN:
        return std::make_unique<CPen>(PS_NULL, 1, RGB(0, 0, 0));
    case OEM_FIXED_FONT:
    case ANSI_FIXED_FONT:
        return Font("Courier New");
    case ANSI_VAR_FONT:
    case DEFAULT_GUI_FONT:
        return Font("MS Sans Serif");
    case SYSTEM_FONT:
        return Font("System");
    default:
        return nullptr;
    }
}

} // namespace

CGdiObject* StockObject(int index) {
    // Made on first use, since fonts need the toolkit; kept to the end of the process, which outlives the toolkit.
    static CGdiObject* objects[DEFAULT_GUI_FONT + 1] = {};
    if (index < 0 || index > DEFAULT_GUI_FONT)
        return nullptr;
    if (!objects[index])
        objects[index] = Make(index).release();
    return objects[index];
}

} // namespace platform
