// The plain types of the window layer. Widths are those that messages rely on: a WPARAM or LPARAM holds a pointer.
#pragma once

#include <cstddef>
#include <cstdint>

namespace platform {
class WindowPeer;
class ImageData;
class MenuData;
struct ResourceRef;
} // namespace platform

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = unsigned int;
using LONG = std::int32_t;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using COLORREF = std::uint32_t; // 0x00bbggrr
using LPCSTR = const char*;
using LPCTSTR = const char*;
using LPSTR = char*;

// The window behind a CWnd; null while there is none.
using HWND = platform::WindowPeer*;
using HINSTANCE = const void*;
using HTREEITEM = struct TreeItemHandle*;

// A place in a list or an iteration; null is the end.
struct PositionTag;
using POSITION = PositionTag*;

inline constexpr BOOL TRUE = 1;
inline constexpr BOOL FALSE = 0;

constexpr COLORREF RGB(int red, int green, int blue) {
    return static_cast<COLORREF>((red & 0xff) | (green & 0xff) << 8 | (blue & 0xff) << 16);
}
constexpr BYTE GetRValue(COLORREF color) {
    return static_cast<BYTE>(color & 0xff);
}
constexpr BYTE GetGValue(COLORREF color) {
    return static_cast<BYTE>(color >> 8 & 0xff);
}
constexpr BYTE GetBValue(COLORREF color) {
    return static_cast<BYTE>(color >> 16 & 0xff);
}
constexpr WORD LOWORD(std::uintptr_t value) {
    return static_cast<WORD>(value & 0xffff);
}
constexpr WORD HIWORD(std::uintptr_t value) {
    return static_cast<WORD>(value >> 16 & 0xffff);
}
constexpr WPARAM MAKEWPARAM(UINT low, UINT high) {
    return (low & 0xffffu) | static_cast<WPARAM>(high & 0xffffu) << 16;
}
