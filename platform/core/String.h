// The counted 8-bit string of the window layer. Its bytes are Windows-1252; sources are UTF-8, so a literal with
// accents is written "può"_t and texts from outside enter through FromUtf8.
#pragma once

#include "platform/core/Types.h"

#include <concepts>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <type_traits>

class CString;

namespace platform {

// One argument of Format, with its type remembered, so that a conversion that does not fit its argument converts it
// instead of reading a wrong one.
struct FormatArgument {
    enum class Kind { Integer, Real, Text, Pointer };

    FormatArgument(double number) : kind(Kind::Real), real(number) {}
    FormatArgument(float number) : kind(Kind::Real), real(number) {}
    FormatArgument(const char* bytes) : kind(Kind::Text), text(bytes) {}
    FormatArgument(const CString& string);
    FormatArgument(const void* address) : kind(Kind::Pointer), text(address) {}
    FormatArgument(std::nullptr_t) : kind(Kind::Text), text(nullptr) {}
    template <typename T>
    requires std::integral<T> || std::is_enum_v<T> FormatArgument(T value)
        : kind(Kind::Integer), size(sizeof(T)), integer(static_cast<std::int64_t>(value)) {}

    Kind kind;
    std::size_t size = sizeof(int); // of an integer argument, in bytes: decides how a negative one looks in hexadecimal
    union {
        std::int64_t integer;
        double real;
        const void* text;
    };
};

// printf's conversions over checked arguments. A missing argument prints nothing; %n is not supported and prints
// nothing.
std::string Format(const char* pattern, const FormatArgument* arguments, std::size_t count);

std::string Utf8FromWindows1252(std::string_view bytes);
// Malformed sequences and characters outside the code page become one '?' each.
std::string Windows1252FromUtf8(std::string_view utf8);

// The code page's letters, accented ones included.
char Upper(char byte);
char Lower(char byte);
// Negative, 0 or positive, without regard to case; the order of sorted lists.
int CompareNoCase(std::string_view a, std::string_view b);

} // namespace platform

class CString {
  public:
    CString() = default;
    CString(const char* bytes) : m_bytes(bytes ? bytes : "") {}
    explicit CString(char byte, int count = 1) : m_bytes(count > 0 ? static_cast<std::size_t>(count) : 0, byte) {}
    explicit CString(std::string_view bytes) : m_bytes(bytes) {}

    static CString FromUtf8(std::string_view utf8) { return CString(platform::Windows1252FromUtf8(utf8)); }
    std::string ToUtf8() const { return platform::Utf8FromWindows1252(m_bytes); }
    std::string_view View() const { return m_bytes; }

    operator const char*() const { return m_bytes.c_str(); }
    int GetLength() const { return static_cast<int>(m_bytes.size()); }
    BOOL IsEmpty() const { return m_bytes.empty(); }
    void Empty() { m_bytes.clear(); }

    // A position outside the text reads as the closing 0.
    char GetAt(int index) const { return Inside(index) ? m_bytes[static_cast<std::size_t>(index)] : '\0'; }
    template <std::integral Index>
    char operator[](Index index) const {
        return GetAt(static_cast<int>(index));
    }

    // Counts and positions outside the text are cut to it.
    CString Left(int count) const { return Mid(0, count); }
    CString Mid(int first) const { return Mid(first, GetLength()); }
    CString Mid(int first, int count) const;

    // Positions, or -1.
    int Find(const char* part, int start = 0) const;
    int Find(char byte, int start = 0) const;
    int FindOneOf(const char* set) const;
    int ReverseFind(char byte) const;
    // The next piece between any of the separators from `start`, which moves past it; an empty text and -1 at the end.
    CString Tokenize(const char* separators, int& start) const;

    int Replace(const char* from, const char* to); // the number of replacements

    CString& MakeUpper();
    CString& MakeLower();
    // Blanks are space, tab, line ends, vertical tab and form feed.
    CString& TrimLeft(const char* set = blanks);
    CString& TrimRight(const char* set = blanks);
    CString& Trim(const char* set = blanks);

    // By bytes; CompareNoCase by the code page's letters.
    int Compare(const char* other) const { return m_bytes.compare(other ? other : ""); }
    int CompareNoCase(const char* other) const { return platform::CompareNoCase(m_bytes, other ? other : ""); }

    template <typename... Arguments>
    void Format(const char* pattern, const Arguments&... arguments) {
        m_bytes = Formatted(pattern, arguments...);
    }
    template <typename... Arguments>
    void AppendFormat(const char* pattern, const Arguments&... arguments) {
        m_bytes += Formatted(pattern, arguments...);
    }

    CString& operator=(const char* bytes);
    CString& operator+=(const CString& other);
    CString& operator+=(const char* bytes);
    CString& operator+=(char byte);

    friend CString operator+(CString a, const CString& b) { return std::move(a += b); }
    friend CString operator+(CString a, const char* b) { return std::move(a += b); }
    friend CString operator+(CString a, char b) { return std::move(a += b); }
    friend CString operator+(const char* a, const CString& b) { return CString(a) + b; }
    friend CString operator+(char a, const CString& b) { return CString(a) + b; }

    friend bool operator==(const CString& a, const CString& b) { return a.m_bytes == b.m_bytes; }
    friend bool operator==(const CString& a, const char* b) { return a.Compare(b) == 0; }
    friend auto operator<=>(const CString& a, const CString& b) { return a.m_bytes.compare(b.m_bytes) <=> 0; }
    friend auto operator<=>(const CString& a, const char* b) { return a.Compare(b) <=> 0; }

  private:
    static constexpr const char* blanks = " \t\r\n\v\f";

    bool Inside(int index) const { return index >= 0 && index < GetLength(); }
    template <typename... Arguments>
    static std::string Formatted(const char* pattern, const Arguments&... arguments) {
        if constexpr (sizeof...(arguments) == 0) {
            return platform::Format(pattern, nullptr, 0);
        } else {
            const platform::FormatArgument list[] = {platform::FormatArgument(arguments)...};
            return platform::Format(pattern, list, sizeof...(arguments));
        }
    }

    std::string m_bytes;
};

inline platform::FormatArgument::FormatArgument(const CString& string)
    : kind(Kind::Text), text(static_cast<const char*>(string)) {
}

CString operator""_t(const char* utf8, std::size_t length);
// Changes nothing: says of a literal with accents that UTF-8 is what its reader expects.
constexpr const char* operator""_utf8(const char* utf8, std::size_t) {
    return utf8;
}

// Writes UTF-8, for logs and test messages.
std::ostream& operator<<(std::ostream& stream, const CString& string);

template <>
struct std::hash<CString> {
    std::size_t operator()(const CString& string) const { return std::hash<std::string_view>()(string.View()); }
};
