#include "platform/private/peers/Controls.h"

#include <QApplication>
#include <QKeyEvent>

namespace platform {

namespace {

struct ControlClass {
    const char* name;
    WindowPeer* (*create)(const ControlSpec&, WindowPeer&);
};

constexpr ControlClass classes[] = {
    {"STATIC", CreateStatic},      {"EDIT", CreateEdit},
    {"BUTTON", CreateButton},      {"LISTBOX", CreateListBox},
    {"COMBOBOX", CreateComboBox},  {"msctls_updown32", CreateSpin},
    {"SysTreeView32", CreateTree}, {"SysListView32", CreateListCtrl},
};

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
    for (const ControlClass& each : classes)
        if (CompareNoCase(each.name, spec.className) == 0)
            return each.create(spec, parent);
    return nullptr;
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
