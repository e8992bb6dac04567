#include "platform/private/Controls.h"

#include <QApplication>
#include <QKeyEvent>

namespace platform {

namespace {

struct ControlClass {
    const char* name;
    WindowPeer* (*create)(const ControlSpec&, WindowPeer&);
};

constexpr ControlClass Classes[] = {
    {"STATIC", createStatic},      {"EDIT", createEdit},
    {"BUTTON", createButton},      {"LISTBOX", createListBox},
    {"COMBOBOX", createComboBox},  {"msctls_updown32", createSpin},
    {"SysTreeView32", createTree}, {"SysListView32", createListCtrl},
};

// Keys whose real press sends no WM_CHAR.
bool isNavigation(WPARAM key) {
    return key >= VK_PRIOR && key <= VK_DOWN;
}

} // namespace

void applySpec(WindowPeer& peer, const ControlSpec& spec) {
    peer.id = spec.id;
    peer.style = spec.style;
    peer.exStyle = spec.exStyle;
    peer.widget->setGeometry(spec.place);
    if (spec.style & WS_DISABLED)
        peer.widget->setEnabled(false);
    if (!(spec.style & WS_VISIBLE))
        peer.widget->hide();
}

WindowPeer* createControl(const ControlSpec& spec, WindowPeer& parent) {
    for (const ControlClass& each : Classes)
        if (compareNoCase(each.name, spec.className) == 0)
            return each.create(spec, parent);
    return nullptr;
}

bool playKey(WindowPeer& peer, UINT message, WPARAM wParam) {
    if (message == WM_KEYDOWN && isNavigation(wParam)) {
        QKeyEvent press(QEvent::KeyPress, toolkitKey(static_cast<UINT>(wParam)), Qt::NoModifier);
        peer.baseEvent(&press);
        return true;
    }
    if (message == WM_CHAR) {
        const QString text = toQString(CString(static_cast<char>(wParam)));
        const int key = wParam == VK_BACK ? int(Qt::Key_Backspace) : text.at(0).toUpper().unicode();
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        peer.baseEvent(&press);
        return true;
    }
    return false;
}

} // namespace platform
