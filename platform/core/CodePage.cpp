// Windows-1252: its characters, its letters, and the way from and to UTF-8.
#include "platform/core/String.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <string_view>

namespace platform {
namespace {

// Bytes 0x80 to 0x9f; 0 where the code page defines none. All other bytes are the character of their number.
constexpr std::array<char16_t, 32> middle = {0x20ac, 0,      0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021,
                                             0x02c6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017d, 0,
                                             0,      0x2018, 0x2019, 0x201c, 0x201d, 0x2022, 0x2013, 0x2014,
                                             0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0,      0x017e, 0x0178};

char ByteOf(char32_t character) {
    if (character < 0x80 || (character >= 0xa0 && character <= 0xff))
        return static_cast<char>(character);
    const auto found = std::find(middle.begin(), middle.end(), character);
    return found == middle.end() || character == 0 ? '?' : static_cast<char>(0x80 + (found - middle.begin()));
}

struct Decoded {
    char32_t character; // 0xfffd for a malformed sequence
    std::size_t length; // bytes used, at least 1
};

// One character; refuses overlong forms, surrogates and everything above U+10FFFF.
Decoded Decode(std::string_view utf8) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    const unsigned char first = byte(0);
    if (first < 0x80)
        return {first, 1};
    const std::size_t length = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
    if (first < 0xc2 || first > 0xf4)
        return {0xfffd, 1};
    char32_t character = first & (0xffu >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if (i >= utf8.size() || (byte(i) & 0xc0) != 0x80)
            return {0xfffd, i};
        character = character << 6 | (byte(i) & 0x3fu);
    }
    const bool overlong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    if (overlong || character > 0x10ffff || (character >= 0xd800 && character < 0xe000))
        return {0xfffd, length};
    return {character, length};
}

constexpr std::array<unsigned char, 256> LowerTable() {
    std::array<unsigned char, 256> table{};
    for (unsigned i = 0; i < 256; ++i) {
        const bool ascii = i >= 'A' && i <= 'Z';
        const bool accented = i >= 0xc0 && i <= 0xde && i != 0xd7; // 0xd7 is the multiplication sign
        table[i] = static_cast<unsigned char>(ascii || accented ? i + 0x20 : i);
    }
    table[0x8a] = 0x9a;
    table[0x8c] = 0x9c;
    table[0x8e] = 0x9e;
    table[0x9f] = 0xff;
    return table;
}

constexpr std::array<unsigned char, 256> UpperTable() {
    constexpr auto lowered = LowerTable();
    std::array<unsigned char, 256> table{};
    for (unsigned i = 0; i < 256; ++i)
        table[i] = static_cast<unsigned char>(i);
    for (unsigned i = 0; i < 256; ++i)
        if (lowered[i] != i)
            table[lowered[i]] = static_cast<unsigned char>(i);
    return table;
}

constexpr auto toLower = LowerTable();
constexpr auto toUpper = UpperTable();

} // namespace

std::string Utf8FromWindows1252(std::string_view bytes) {
    std::string utf8;
    utf8.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const char32_t character = byte >= 0x80 && byte < 0xa0 ? middle[byte - 0x80u] : byte;
        if (character == 0 && byte != 0) {
            utf8 += '?';
        } else if (character < 0x80) {
            utf8 += static_cast<char>(character);
        } else if (character < 0x800) {
            utf8 += static_cast<char>(0xc0 | character >> 6);
            utf8 += static_cast<char>(0x80 | (character & 0x3f));
        } else {
            utf8 += static_cast<char>(0xe0 | character >> 12);
            utf8 += static_cast<char>(0x80 | (character >> 6 & 0x3f));
            utf8 += static_cast<char>(0x80 | (character & 0x3f));
        }
    }
    return utf8;
}

std::string Windows1252FromUtf8(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        const Decoded decoded = Decode(utf8);
        bytes += ByteOf(decoded.character);
        utf8.remove_prefix(decoded.length);
    }
    return bytes;
}

char Upper(char byte) {
    return static_cast<char>(toUpper[static_cast<unsigned char>(byte)]);
}

char Lower(char byte) {
    return static_cast<char>(toLower[static_cast<unsigned char>(byte)]);
}

int CompareNoCase(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const int difference = toLower[static_cast<unsigned char>(a[i])] - toLower[static_cast<unsigned char>(b[i])];
        if (difference != 0)
            return difference;
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

} // namespace platform
