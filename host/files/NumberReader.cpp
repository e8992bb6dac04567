#include "host/files/NumberReader.h"

#include "host/files/FileError.h"
#include "platform/core/String.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace host {

namespace {

bool IsSeparator(char character) {
    return character == ' ' || character == '\t' || character == ',' || character == '\r' || character == '\n' ||
           character == '\v' || character == '\f' || character == ';' || character == '"';
}

bool BeginsComment(char character) {
    return character == '#' || character == '%' || character == '?';
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

bool Convert(std::string_view token, int& number) {
    token = WithoutPlus(token);
    const auto [end, error] = std::from_chars(token.data(), token.data() + token.size(), number);
    return error == std::errc() && end == token.data() + token.size();
}

// Also with the exponents of Fortran, "1.5D+03". What is too small for a number is 0.
bool Convert(std::string_view given, double& number) {
    std::string token(WithoutPlus(given));
    if (const std::size_t exponent = token.find_first_of("dD"); exponent != std::string::npos) {
        token[exponent] = 'e';
        if (token.compare(exponent + 1, 1, "+") == 0)
            token.erase(exponent + 1, 1);
    }
    const char* const last = token.data() + token.size();
    const auto [end, error] = std::from_chars(token.data(), last, number);
    const bool small = token.find("e-") != std::string::npos || token.find("E-") != std::string::npos;
    if (error == std::errc::result_out_of_range && small)
        number = 0;
    else if (error != std::errc())
        return false;
    return end == last;
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
    const std::size_t end = std::min(m_text.find_first_of("\r\n", m_position), m_text.size());
    const std::string_view line = m_text.substr(m_position, end - m_position);
    m_position = end;
    if (!AtEnd())
        Step();
    return line;
}

// Over one character, or over a line end: "\n", "\r\n" or "\r".
void NumberReader::Step() {
    const bool pair = m_text.compare(m_position, 2, "\r\n") == 0;
    m_line += m_text[m_position] == '\n' || m_text[m_position] == '\r';
    m_position += pair ? 2 : 1;
}

std::string_view NumberReader::Token(const char* what) {
    while (!AtEnd()) {
        const char character = m_text[m_position];
        if (BeginsComment(character))
            m_position = std::min(m_text.find_first_of("\r\n", m_position), m_text.size());
        else if (IsSeparator(character))
            Step();
        else
            break;
    }
    m_tokenLine = m_line;
    if (AtEnd())
        FailAt(m_line, std::string(what) + ", ma il file finisce prima.");
    const std::size_t start = m_position;
    while (!AtEnd() && !IsSeparator(m_text[m_position]) && !BeginsComment(m_text[m_position]))
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
