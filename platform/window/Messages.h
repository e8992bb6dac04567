// Numbers of messages, notifications, keys and commands.
#pragma once

#include "platform/core/Geometry.h"
#include "platform/core/Types.h"

// Messages of a window.
enum : UINT {
    WM_CREATE = 0x0001,
    WM_DESTROY = 0x0002,
    WM_MOVE = 0x0003,
    WM_SIZE = 0x0005,
    WM_ACTIVATE = 0x0006,
    WM_SETFOCUS = 0x0007,
    WM_KILLFOCUS = 0x0008,
    WM_ENABLE = 0x000A,
    WM_PAINT = 0x000F,
    WM_CLOSE = 0x0010,
    WM_ERASEBKGND = 0x0014,
    WM_SHOWWINDOW = 0x0018,
    WM_SETCURSOR = 0x0020,
    WM_NOTIFY = 0x004E,
    WM_CONTEXTMENU = 0x007B,
    WM_NCDESTROY = 0x0082,
    WM_NCMOUSEMOVE = 0x00A0,
    WM_KEYDOWN = 0x0100,
    WM_KEYUP = 0x0101,
    WM_CHAR = 0x0102,
    WM_SYSKEYDOWN = 0x0104,
    WM_SYSKEYUP = 0x0105,
    WM_INITDIALOG = 0x0110,
    WM_COMMAND = 0x0111,
    WM_TIMER = 0x0113,
    WM_HSCROLL = 0x0114,
    WM_VSCROLL = 0x0115,
    WM_MOUSEMOVE = 0x0200,
    WM_LBUTTONDOWN = 0x0201,
    WM_LBUTTONUP = 0x0202,
    WM_LBUTTONDBLCLK = 0x0203,
    WM_RBUTTONDOWN = 0x0204,
    WM_RBUTTONUP = 0x0205,
    WM_RBUTTONDBLCLK = 0x0206,
    WM_MBUTTONDOWN = 0x0207,
    WM_MBUTTONUP = 0x0208,
    WM_MBUTTONDBLCLK = 0x0209,
    WM_MOUSEWHEEL = 0x020A,
    WM_USER = 0x0400,
};

// Codes of WM_SIZE, WM_ACTIVATE and the scroll messages.
enum : UINT { SIZE_RESTORED = 0, SIZE_MINIMIZED = 1, SIZE_MAXIMIZED = 2 };
enum : UINT { WA_INACTIVE = 0, WA_ACTIVE = 1, WA_CLICKACTIVE = 2 };
enum : UINT { SB_LINEUP = 0, SB_LINEDOWN = 1, SB_THUMBPOSITION = 4, SB_ENDSCROLL = 8 };
enum : UINT { MK_LBUTTON = 0x0001, MK_RBUTTON = 0x0002, MK_SHIFT = 0x0004, MK_CONTROL = 0x0008, MK_MBUTTON = 0x0010 };
enum : UINT { HTCLIENT = 1, HTCAPTION = 2, HTBORDER = 18 };

// Notification codes in the high word of a WM_COMMAND.
enum : UINT {
    BN_CLICKED = 0,
    BN_DOUBLECLICKED = 5,
    EN_SETFOCUS = 0x0100,
    EN_KILLFOCUS = 0x0200,
    EN_CHANGE = 0x0300,
    EN_UPDATE = 0x0400,
    LBN_SELCHANGE = 1,
    LBN_DBLCLK = 2,
    LBN_SELCANCEL = 3,
    LBN_SETFOCUS = 4,
    LBN_KILLFOCUS = 5,
    CBN_SELCHANGE = 1,
    CBN_DBLCLK = 2,
    CBN_SETFOCUS = 3,
    CBN_KILLFOCUS = 4,
    CBN_EDITCHANGE = 5,
    CBN_EDITUPDATE = 6,
    CBN_DROPDOWN = 7,
    CBN_CLOSEUP = 8,
    CBN_SELENDOK = 9,
    STN_CLICKED = 0,
    STN_DBLCLK = 1,
};

// Codes of a WM_NOTIFY.
enum : int {
    NM_CLICK = -2,
    NM_DBLCLK = -3,
    NM_RETURN = -4,
    NM_RCLICK = -5,
    NM_SETFOCUS = -7,
    NM_KILLFOCUS = -8,
    LVN_ITEMCHANGING = -100,
    LVN_ITEMCHANGED = -101,
    LVN_KEYDOWN = -155,
    TVN_SELCHANGING = -401,
    TVN_SELCHANGED = -402,
    TVN_KEYDOWN = -412,
    UDN_DELTAPOS = -722,
};

// The command of every application for a new file.
enum : UINT { ID_FILE_NEW = 57600 };

// Standard commands of a dialog.
enum : int { IDOK = 1, IDCANCEL = 2, IDABORT = 3, IDRETRY = 4, IDIGNORE = 5, IDYES = 6, IDNO = 7, IDC_STATIC = -1 };

// Keys. Letters and the main keyboard's digits are their upper-case characters.
enum : UINT {
    VK_BACK = 0x08,
    VK_TAB = 0x09,
    VK_RETURN = 0x0D,
    VK_SHIFT = 0x10,
    VK_CONTROL = 0x11,
    VK_MENU = 0x12,
    VK_PAUSE = 0x13,
    VK_CAPITAL = 0x14,
    VK_ESCAPE = 0x1B,
    VK_SPACE = 0x20,
    VK_PRIOR = 0x21,
    VK_NEXT = 0x22,
    VK_END = 0x23,
    VK_HOME = 0x24,
    VK_LEFT = 0x25,
    VK_UP = 0x26,
    VK_RIGHT = 0x27,
    VK_DOWN = 0x28,
    VK_SNAPSHOT = 0x2C,
    VK_INSERT = 0x2D,
    VK_DELETE = 0x2E,
    VK_LWIN = 0x5B,
    VK_RWIN = 0x5C,
    VK_APPS = 0x5D,
    VK_NUMPAD0 = 0x60,
    VK_NUMPAD9 = 0x69,
    VK_MULTIPLY = 0x6A,
    VK_ADD = 0x6B,
    VK_SUBTRACT = 0x6D,
    VK_DECIMAL = 0x6E,
    VK_DIVIDE = 0x6F,
    VK_F1 = 0x70,
    VK_F12 = 0x7B,
    VK_NUMLOCK = 0x90,
    VK_SCROLL = 0x91,
    // The keys of signs, by what they carry on an Italian keyboard; some letters of other languages stand there too.
    VK_OEM_1 = 0xBA, // è
    VK_OEM_PLUS = 0xBB,
    VK_OEM_COMMA = 0xBC,
    VK_OEM_MINUS = 0xBD,
    VK_OEM_PERIOD = 0xBE,
    VK_OEM_2 = 0xBF,   // ù
    VK_OEM_3 = 0xC0,   // ò
    VK_OEM_4 = 0xDB,   // '
    VK_OEM_5 = 0xDC,   // the backslash
    VK_OEM_6 = 0xDD,   // ì
    VK_OEM_7 = 0xDE,   // à
    VK_OEM_8 = 0xDF,   // whatever else a layout has
    VK_OEM_102 = 0xE2, // <
};

// A message on its way; pt is the pointer's place on the screen.
struct MSG {
    HWND hwnd = nullptr;
    UINT message = 0;
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    CPoint pt;
};

// What a WM_NOTIFY points at; the codes of single controls append their own fields.
struct NMHDR {
    HWND hwndFrom = nullptr;
    UINT_PTR idFrom = 0;
    int code = 0;
};

constexpr LPARAM MAKELPARAM(int low, int high) {
    return static_cast<LPARAM>((static_cast<std::uint32_t>(low) & 0xffffu) |
                               (static_cast<std::uint32_t>(high) & 0xffffu) << 16);
}
// The signed halves of a message's point.
constexpr int GET_X_LPARAM(LPARAM value) {
    return static_cast<std::int16_t>(value & 0xffff);
}
constexpr int GET_Y_LPARAM(LPARAM value) {
    return static_cast<std::int16_t>(value >> 16 & 0xffff);
}
