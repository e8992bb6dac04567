// Virtual-key codes and the toolkit's.
#include "platform/private/peers/WindowPeer.h"
#include "platform/window/Messages.h"

#include <iterator>

namespace platform {

namespace {

struct KeyPair {
    int toolkit;
    UINT virtualKey;
};

constexpr KeyPair keys[] = {
    {Qt::Key_Backspace, VK_BACK},  {Qt::Key_Tab, VK_TAB},           {Qt::Key_Backtab, VK_TAB},
    {Qt::Key_Return, VK_RETURN},   {Qt::Key_Enter, VK_RETURN},      {Qt::Key_Shift, VK_SHIFT},
    {Qt::Key_Control, VK_CONTROL}, {Qt::Key_Alt, VK_MENU},          {Qt::Key_Escape, VK_ESCAPE},
    {Qt::Key_Space, VK_SPACE},     {Qt::Key_PageUp, VK_PRIOR},      {Qt::Key_PageDown, VK_NEXT},
    {Qt::Key_End, VK_END},         {Qt::Key_Home, VK_HOME},         {Qt::Key_Left, VK_LEFT},
    {Qt::Key_Up, VK_UP},           {Qt::Key_Right, VK_RIGHT},       {Qt::Key_Down, VK_DOWN},
    {Qt::Key_Insert, VK_INSERT},   {Qt::Key_Delete, VK_DELETE},     {Qt::Key_Menu, VK_APPS},
    {Qt::Key_Plus, VK_OEM_PLUS},   {Qt::Key_Equal, VK_OEM_PLUS},    {Qt::Key_Comma, VK_OEM_COMMA},
    {Qt::Key_Minus, VK_OEM_MINUS}, {Qt::Key_Period, VK_OEM_PERIOD},
};

// The numeric keypad's own codes; without the keypad's modifier the same characters are the main keyboard's.
constexpr KeyPair keypadKeys[] = {
    {Qt::Key_Asterisk, VK_MULTIPLY}, {Qt::Key_Plus, VK_ADD},      {Qt::Key_Minus, VK_SUBTRACT},
    {Qt::Key_Period, VK_DECIMAL},    {Qt::Key_Comma, VK_DECIMAL}, {Qt::Key_Slash, VK_DIVIDE},
};

} // namespace

UINT VirtualKey(int key, bool keypad) {
    if (keypad) {
        if (key >= Qt::Key_0 && key <= Qt::Key_9)
            return VK_NUMPAD0 + static_cast<UINT>(key - Qt::Key_0);
        for (const KeyPair& pair : keypadKeys)
            if (pair.toolkit == key)
                return pair.virtualKey;
    }
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z))
        return static_cast<UINT>(key);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
        return VK_F1 + static_cast<UINT>(key - Qt::Key_F1);
    for (const KeyPair& pair : keys)
        if (pair.toolkit == key)
            return pair.virtualKey;
    return 0;
}

int ToolkitKey(UINT code) {
    if ((code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z'))
        return static_cast<int>(code);
    if (code >= VK_NUMPAD0 && code <= VK_NUMPAD9)
        return Qt::Key_0 + static_cast<int>(code - VK_NUMPAD0);
    if (code >= VK_F1 && code <= VK_F12)
        return Qt::Key_F1 + static_cast<int>(code - VK_F1);
    for (const KeyPair& pair : keys)
        if (pair.virtualKey == code)
            return pair.toolkit;
    for (const KeyPair& pair : keypadKeys)
        if (pair.virtualKey == code)
            return pair.toolkit;
    return 0;
}

} // namespace platform
