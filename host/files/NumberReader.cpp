#include "host/files/NumberReader.h"

#include "host/files/FileError.h"
#include "platform/core/String.h"

#include <charconv>
#include <cmath>

namespace host {

namespace {

bool IsSeparator(char character) {
    return character == ' ' || character == '\t' || character == ',' || character == '\r' || character == '\n' ||
           character == '\v' || character == '\f';
}

// What was found, short enough for a message box and free of bytes that no text has.
std::string Shown(std::string_view token) {
    std::string shown;
    for (const char character : token.substr(0, 24))
        shown += character >= ' ' && character < 0x7f ? character : '?';
    return shown + (token.size() > 24 ? "..." : "");
}

// A leading plus is common in such files, and the conversion below knows none.
std::string_view WithoutPlus(std::string_view token) {
    if (token.size() > 1 && token[0] == '+' && token[1] != '-' && token[1] != '+')
        token.remove_prefix(1);
    return token;
}

template <class Number>
bool Convert(std::string_view token, Number& number) {
    token = WithoutPlus(token);
    const auto [end, error] = std::from_chars(token.data(), token.data() + token.size(), number);
    return error == std::errc() && end == token.data() + token.size();
}

std::string Expected(const char* what, std::string_view token) {
    return std::string(what) + ", trovato \"" + Shown(token) + "\".";
}

} // namespace

void NumberReader::FailAt(int line, const std::string& message) const {
    throw FileError("Riga " + std::to_string(line) + ": " + message);
}

void NumberReader::Fail(const std::string& message) const {
    FailAt(m_tokenLine, message);
}

std::string_view NumberReader::Line() {
    const std::size_t end = m_text.find('\n', m_position);
    std::string_view line = m_text.substr(m_position, end == std::string_view::npos ? end : end - m_position);
    m_position = end == std::string_view::npos ? m_text.size() : end + 1;
    ++m_line;
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

std::string_view NumberReader::Token(const char* what) {
    while (m_position < m_text.size()) {
        const char character = m_text[m_position];
        if (character == '#') {
            const std::size_t end = m_text.find('\n', m_position);
            m_position = end == std::string_view::npos ? m_text.size() : end;
        } else if (IsSeparator(character)) {
            m_line += character == '\n';
            ++m_position;
        } else {
            break;
        }
    }
    m_tokenLine = m_line;
    if (m_position == m_text.size())
        FailAt(m_line, std::string(what) + ", ma il file finisce prima.");
    const std::size_t start = m_position;
    while (m_position < m_text.size() && !IsSeparator(m_text[m_position]) && m_text[m_position] != '#')
        ++m_position;
    return m_text.substr(start, m_position - start);
}

int NumberReader::Integer(const char* what, int lowest, int highest) {
    const std::string_view token = Token(what);
    int number = 0;
    if (!Convert(token, number))
        Fail(Expected(what, token));
    if (number < lowest || number > highest)
        Fail(Expected(what, token) + " Sono ammessi i valori da " + std::to_string(lowest) + " a " +
             std::to_string(highest) + ".");
    return number;
}

double NumberReader::Real(const char* what) {
    const std::string_view token = Token(what);
    double number = 0;
    if (!Convert(token, number) || !std::isfinite(number))
        Fail(Expected(what, token));
    return number;
}

bool NumberReader::Flag(const char* what) {
    return Integer(what, 0, 1) != 0;
}

int NumberReader::Count(const char* what, int numbersPerRow, int highest) {
    const int count = Integer(what, 0, highest);
    // A number takes a character and a separator at least; the last one may do without the separator.
    const std::size_t room = (m_text.size() - m_position + 1) / 2;
    if (static_cast<std::size_t>(count) * static_cast<std::size_t>(numbersPerRow) > room)
        Fail("il file è troppo corto per contenere "_utf8 + std::to_string(count) + " righe.");
    return count;
}

} // namespace host
