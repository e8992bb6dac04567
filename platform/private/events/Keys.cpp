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
    {Qt::Key_Pause, VK_PAUSE},     {Qt::Key_CapsLock, VK_CAPITAL},  {Qt::Key_Print, VK_SNAPSHOT},
    {Qt::Key_NumLock, VK_NUMLOCK}, {Qt::Key_ScrollLock, VK_SCROLL}, {Qt::Key_AltGr, VK_MENU},
    {Qt::Key_Super_L, VK_LWIN},    {Qt::Key_Super_R, VK_RWIN},
};

// The signs of an Italian keyboard, and where they do not contradict it those of an American one.
constexpr KeyPair signs[] = {
    {Qt::Key_Plus, VK_OEM_PLUS},
    {Qt::Key_Asterisk, VK_OEM_PLUS},
    {Qt::Key_Equal, VK_OEM_PLUS},
    {Qt::Key_Comma, VK_OEM_COMMA},
    {Qt::Key_Semicolon, VK_OEM_COMMA},
    {Qt::Key_Period, VK_OEM_PERIOD},
    {Qt::Key_Colon, VK_OEM_PERIOD},
    {Qt::Key_Minus, VK_OEM_MINUS},
    {Qt::Key_Underscore, VK_OEM_MINUS},
    {Qt::Key_Egrave, VK_OEM_1},
    {Qt::Key_Eacute, VK_OEM_1},
    {Qt::Key_Ugrave, VK_OEM_2},
    {Qt::Key_section, VK_OEM_2},
    {Qt::Key_Slash, VK_OEM_2},
    {Qt::Key_Ograve, VK_OEM_3},
    {Qt::Key_Ccedilla, VK_OEM_3},
    {Qt::Key_At, VK_OEM_3},
    {Qt::Key_QuoteLeft, VK_OEM_3},
    {Qt::Key_Apostrophe, VK_OEM_4},
    {Qt::Key_Question, VK_OEM_4},
    {Qt::Key_BracketLeft, VK_OEM_4},
    {Qt::Key_Backslash, VK_OEM_5},
    {Qt::Key_Bar, VK_OEM_5},
    {Qt::Key_Igrave, VK_OEM_6},
    {Qt::Key_AsciiCircum, VK_OEM_6},
    {Qt::Key_BracketRight, VK_OEM_6},
    {Qt::Key_Agrave, VK_OEM_7},
    {Qt::Key_degree, VK_OEM_7},
    {Qt::Key_NumberSign, VK_OEM_7},
    {Qt::Key_Less, VK_OEM_102},
    {Qt::Key_Greater, VK_OEM_102},
};

// What the digits' keys make with Shift, from 0 on.
constexpr int shiftedDigits[] = {Qt::Key_Equal,     Qt::Key_Exclam,    Qt::Key_QuoteDbl,  Qt::Key_sterling,
                                 Qt::Key_Dollar,    Qt::Key_Percent,   Qt::Key_Ampersand, Qt::Key_Slash,
                                 Qt::Key_ParenLeft, Qt::Key_ParenRight};

// The display server's numbers of the keys 1 to 9 and 0.
constexpr UINT firstDigitKey = 10, lastDigitKey = 19;

// 0 when it is no digit's key.
UINT DigitKey(int key, UINT scanCode) {
    if (scanCode)
        return scanCode >= firstDigitKey && scanCode <= lastDigitKey ? '0' + (scanCode - firstDigitKey + 1) % 10 : 0;
    for (UINT digit = 0; digit < std::size(shiftedDigits); ++digit)
        if (shiftedDigits[digit] == key)
            return '0' + digit;
    return 0;
}

template <std::size_t Count>
UINT Find(const KeyPair (&table)[Count], int key) {
    for (const KeyPair& pair : table)
        if (pair.toolkit == key)
            return pair.virtualKey;
    return 0;
}

template <std::size_t Count>
int FindToolkit(const KeyPair (&table)[Count], UINT code) {
    for (const KeyPair& pair : table)
        if (pair.virtualKey == code)
            return pair.toolkit;
    return 0;
}

// The numeric keypad's own codes; without the keypad's modifier the same characters are the main keyboard's.
constexpr KeyPair keypadKeys[] = {
    {Qt::Key_Asterisk, VK_MULTIPLY}, {Qt::Key_Plus, VK_ADD},      {Qt::Key_Minus, VK_SUBTRACT},
    {Qt::Key_Period, VK_DECIMAL},    {Qt::Key_Comma, VK_DECIMAL}, {Qt::Key_Slash, VK_DIVIDE},
};

} // namespace

UINT VirtualKey(int key, bool keypad, UINT scanCode) {
    if (keypad) {
        if (key >= Qt::Key_0 && key <= Qt::Key_9)
            return VK_NUMPAD0 + static_cast<UINT>(key - Qt::Key_0);
        if (const UINT code = Find(keypadKeys, key))
            return code;
    }
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z))
        return static_cast<UINT>(key);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
        return VK_F1 + static_cast<UINT>(key - Qt::Key_F1);
    if (const UINT code = Find(keys, key))
        return code;
    if (const UINT digit = DigitKey(key, scanCode))
        return digit;
    if (const UINT code = Find(signs, key))
        return code;
    // Letters of other alphabets, accents that wait for their letter: a key of the main keyboard all the same.
    const bool printable = key > Qt::Key_Space && key < Qt::Key_Escape;
    const bool waits = key >= Qt::Key_Dead_Grave && key <= Qt::Key_Dead_Longsolidusoverlay;
    return printable || waits ? UINT{VK_OEM_8} : 0;
}

int ToolkitKey(UINT code) {
    if ((code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z'))
        return static_cast<int>(code);
    if (code >= VK_NUMPAD0 && code <= VK_NUMPAD9)
        return Qt::Key_0 + static_cast<int>(code - VK_NUMPAD0);
    if (code >= VK_F1 && code <= VK_F12)
        return Qt::Key_F1 + static_cast<int>(code - VK_F1);
    if (const int key = FindToolkit(keys, code))
        return key;
    if (const int key = FindToolkit(signs, code))
        return key;
    return FindToolkit(keypadKeys, code);
}

} // namespace platform
