#include "host/ui/SharedKeys.h"

#include "platform/toolkit/Bridge.h"
#include "platform/window/Window.h"

#include <algorithm>
#include <iterator>

namespace host {

QKeySequence SharedKey(const MSG& message) {
    if (message.message != WM_KEYDOWN || GetKeyState(VK_SHIFT) < 0 || GetKeyState(VK_MENU) < 0)
        return {};
    const bool control = GetKeyState(VK_CONTROL) < 0;
    const WPARAM key = message.wParam;
    constexpr WPARAM withControl[] = {'S', 'Z', 'Y', '1', '2', '3', '4'};
    if (control && std::find(std::begin(withControl), std::end(withControl), key) != std::end(withControl))
        return QKeySequence(Qt::ControlModifier | static_cast<Qt::Key>(key));
    if (!control && key >= VK_F1 && key <= VK_F12)
        return QKeySequence(Qt::Key_F1 + static_cast<int>(key - VK_F1));
    return {};
}

} // namespace host
