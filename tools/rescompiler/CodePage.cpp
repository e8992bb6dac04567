#include "tools/rescompiler/CodePage.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace rescompiler {
namespace {

// Characters of 0x80 to 0x9f; 0 where the page has none. The rest of the page is Latin-1.
constexpr std::array<char32_t, 32> upperHalf = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                                0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr char32_t bad = 0xffffffff;

// Takes one character off the text at `at`; bad for bytes that are no UTF-8.
char32_t TakeCharacter(const std::string& text, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(text[at++]);
    const int more = lead < 0x80 ? 0 : lead >> 5 == 6 ? 1 : lead >> 4 == 14 ? 2 : lead >> 3 == 30 ? 3 : -1;
    if (more < 0)
        return bad;
    char32_t character = more == 0 ? lead : lead & (0x3fu >> more);
    for (int i = 0; i < more; ++i) {
        if (at >= text.size() || (text[at] & 0xC0) != 0x80)
            return bad;
        character = character << 6 | (text[at++] & 0x3Fu);
    }
    return character;
}

int ByteOf(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<int>(character);
    const auto found = std::ranges::find(upperHalf, character);
    return character == bad || found == upperHalf.end() ? -1 : static_cast<int>(0x80 + (found - upperHalf.begin()));
}

} // namespace

std::optional<std::string> ToCodePage(const std::string& utf8) {
    std::string bytes;
    for (std::size_t at = 0; at < utf8.size();) {
        const int byte = ByteOf(TakeCharacter(utf8, at));
        if (byte < 0)
            return std::nullopt;
        bytes += static_cast<char>(byte);
    }
    return bytes;
}

} // namespace rescompiler
