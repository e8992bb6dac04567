#include "tools/rescompiler/Scanner.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <utility>

namespace rescompiler {

ScriptError::ScriptError(const Place& place, const std::string& message)
    : std::runtime_error(place.file + ":" + std::to_string(place.line) + ": " + message) {
}

Scanner::Scanner(std::string text, std::string file, Language language)
    : m_text(std::move(text)), m_place{std::move(file), 1}, m_language(language) {
}

Token Scanner::Next() {
    SkipBlanksAndComments();
    Token token;
    token.place = m_place;
    if (m_at >= m_text.size())
        return token;
    const char c = m_text[m_at];
    if (c == '#')
        ScanDirective(token);
    else if (c == '"' || (c == '\'' && InHeader()))
        ScanText(token);
    else if (std::isdigit(static_cast<unsigned char>(c)))
        ScanNumber(token);
    else if (AtWordStart(m_at))
        ScanWord(token);
    else
        ScanMark(token);
    return token;
}

bool Scanner::AtWordStart(std::size_t at) const {
    return at < m_text.size() && (std::isalpha(static_cast<unsigned char>(m_text[at])) || m_text[at] == '_');
}

bool Scanner::AtWordPart() const {
    return AtWordStart(m_at) || (m_at < m_text.size() && std::isdigit(static_cast<unsigned char>(m_text[m_at])));
}

void Scanner::Step() {
    if (m_text[m_at++] == '\n')
        ++m_place.line;
}

void Scanner::SkipBlanksAndComments() {
    while (m_at < m_text.size()) {
        if (std::isspace(static_cast<unsigned char>(m_text[m_at]))) {
            Step();
        } else if (Looking("//")) {
            while (m_at < m_text.size() && m_text[m_at] != '\n')
                ++m_at;
        } else if (Looking("/*")) {
            SkipBlockComment();
        } else {
            return;
        }
    }
}

void Scanner::SkipBlockComment() {
    const Place start = m_place;
    while (m_at < m_text.size() && !Looking("*/"))
        Step();
    if (m_at >= m_text.size())
        throw ScriptError(start, "comment without end");
    m_at += 2;
}

void Scanner::ScanDirective(Token& token) {
    const std::size_t end = std::min(m_text.find('\n', m_at), m_text.size());
    token.kind = Token::Kind::Mark;
    token.text = m_text.substr(m_at, end - m_at);
    m_at = end;
}

void Scanner::ScanText(Token& token) {
    token.kind = Token::Kind::Text;
    for (const char quote = m_text[m_at++];;) {
        if (m_at >= m_text.size() || m_text[m_at] == '\n')
            throw ScriptError(token.place, "text without closing quote");
        const char c = m_text[m_at++];
        if (c == quote) {
            if (m_at >= m_text.size() || m_text[m_at] != quote)
                return;
            ++m_at; // a doubled quote stands for one
            token.text += quote;
        } else {
            token.text += c == '\\' ? Escaped() : c;
        }
    }
}

char Scanner::Escaped() {
    const char c = m_at < m_text.size() ? m_text[m_at++] : '\0';
    switch (c) {
    case 't':
    case 'a': // in menus, the mark before the short cut
        return '\t';
    case 'n':
        return '\n';
    case '\\':
    case '"':
        return c;
    default:
        if (InHeader())
            return c;
        throw ScriptError(m_place, std::string("unknown escape \\") + c);
    }
}

void Scanner::ScanNumber(Token& token) {
    for (; AtWordPart() || (InHeader() && m_at < m_text.size() && m_text[m_at] == '\''); ++m_at)
        token.text += m_text[m_at];
    std::string digits = token.text;
    std::erase(digits, '\'');
    while (!digits.empty() && std::string(InHeader() ? "uUlL" : "lL").find(digits.back()) != std::string::npos)
        digits.pop_back();
    std::size_t used = 0;
    try {
        const bool hexadecimal = digits.starts_with("0x") || digits.starts_with("0X");
        token.number = std::stoll(digits, &used, hexadecimal ? 16 : 10);
    } catch (const std::logic_error&) {
        used = 0;
    }
    token.kind = used == digits.size() ? Token::Kind::Number : Token::Kind::Mark;
    if (token.kind == Token::Kind::Mark && !InHeader())
        throw ScriptError(token.place, "bad number " + token.text);
}

void Scanner::ScanWord(Token& token) {
    token.kind = Token::Kind::Word;
    while (AtWordPart() || (Looking("::") && AtWordStart(m_at + 2)))
        for (int letters = AtWordPart() ? 1 : 2; letters > 0; --letters)
            token.text += m_text[m_at++];
}

void Scanner::ScanMark(Token& token) {
    token.kind = Token::Kind::Mark;
    token.text = m_text[m_at++];
    if (!InHeader() && token.text.find_first_of(",|{}+-") == std::string::npos)
        throw ScriptError(token.place, "unexpected character '" + token.text + "'");
}

std::string ReadText(const std::string& path, const Place& from) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        throw ScriptError(from, "cannot read " + path);
    std::string text{std::istreambuf_iterator<char>(stream), {}};
    if (text.starts_with("\xEF\xBB\xBF"))
        text.erase(0, 3);
    return text;
}

} // namespace rescompiler
