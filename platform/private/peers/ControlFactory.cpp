#include "platform/private/peers/Controls.h"
#include "platform/resource/ControlClasses.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace platform {

namespace {

// One for each class, in the classes' order.
constexpr std::array creators = {CreateStatic,   CreateEdit, CreateButton, CreateListBox,
                                 CreateComboBox, CreateSpin, CreateTree,   CreateListCtrl};
static_assert(creators.size() == controlClasses.size());

// Keys whose real press sends no WM_CHAR.
bool IsNavigation(WPARAM key) {
    return key >= VK_PRIOR && key <= VK_DOWN;
}

} // namespace

void ApplySpec(WindowPeer& peer, const ControlSpec& spec) {
    peer.id = spec.id;
    peer.style = spec.style;
    peer.exStyle = spec.exStyle;
    peer.widget->setGeometry(spec.place);
    if (spec.style & WS_DISABLED)
        peer.widget->setEnabled(false);
    if (!(spec.style & WS_VISIBLE))
        peer.widget->hide();
}

WindowPeer* CreateControl(const ControlSpec& spec, WindowPeer& parent) {
    const auto found = std::ranges::find_if(
        controlClasses, [&](const ControlClass& each) { return CompareNoCase(each.name, spec.className) == 0; });
    return found == controlClasses.end() ? nullptr : creators[found - controlClasses.begin()](spec, parent);
}

bool PlayKey(WindowPeer& peer, UINT message, WPARAM wParam) {
    if (message == WM_KEYDOWN && IsNavigation(wParam)) {
        QKeyEvent press(QEvent::KeyPress, ToolkitKey(static_cast<UINT>(wParam)), Qt::NoModifier);
        peer.BaseEvent(&press);
        return true;
    }
    if (message == WM_CHAR) {
        const QString text = ToQString(CString(static_cast<char>(wParam)));
        const int key = wParam == VK_BACK ? int(Qt::Key_Backspace) : text.at(0).toUpper().unicode();
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        peer.BaseEvent(&press);
        return true;
    }
    return false;
}

} // namespace platform
