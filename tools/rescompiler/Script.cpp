#include "tools/rescompiler/Script.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace rescompiler {
namespace {

bool IsWordStart(char c) {
    return std::isalpha(static_cast<unsigned char>(c)) || c == '_';
}

bool IsWordPart(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

// Cuts one file's text into tokens. Directives are handed back as lines.
class Scanner {
  public:
    Scanner(std::string text, std::string file) : m_text(std::move(text)), m_place{std::move(file), 1} {}

    // The next token, or a Mark "#" whose text goes on with the rest of the directive's line.
    Token Next() {
        SkipBlanksAndComments();
        Token token;
        token.place = m_place;
        if (m_at >= m_text.size())
            return token;
        const char c = m_text[m_at];
        if (c == '#')
            ScanDirective(token);
        else if (c == '"')
            ScanText(token);
        else if (std::isdigit(static_cast<unsigned char>(c)))
            ScanNumber(token);
        else if (IsWordStart(c))
            ScanWord(token);
        else
            ScanMark(token);
        return token;
    }

  private:
    bool Looking(const char* start) const { return m_text.compare(m_at, 2, start) == 0; }

    void Step() {
        if (m_text[m_at++] == '\n')
            ++m_place.line;
    }

    void SkipBlanksAndComments() {
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

    void SkipBlockComment() {
        const Place start = m_place;
        while (m_at < m_text.size() && !Looking("*/"))
            Step();
        if (m_at >= m_text.size())
            throw ScriptError(start, "comment without end");
        m_at += 2;
    }

    void ScanDirective(Token& token) {
        const std::size_t end = std::min(m_text.find('\n', m_at), m_text.size());
        token.kind = Token::Kind::Mark;
        token.text = m_text.substr(m_at, end - m_at);
        m_at = end;
    }

    void ScanText(Token& token) {
        token.kind = Token::Kind::Text;
        for (++m_at;;) {
            if (m_at >= m_text.size() || m_text[m_at] == '\n')
                throw ScriptError(token.place, "text without closing quote");
            const char c = m_text[m_at++];
            if (c == '"') {
                if (m_at >= m_text.size() || m_text[m_at] != '"')
                    return;
                ++m_at; // a doubled quote stands for one
                token.text += '"';
            } else {
                token.text += c == '\\' ? Escaped() : c;
            }
        }
    }

    char Escaped() {
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
            throw ScriptError(m_place, std::string("unknown escape \\") + c);
        }
    }

    void ScanNumber(Token& token) {
        std::string digits;
        while (m_at < m_text.size() && IsWordPart(m_text[m_at]))
            digits += m_text[m_at++];
        token.kind = Token::Kind::Number;
        token.text = digits;
        if (digits.back() == 'L' || digits.back() == 'l')
            digits.pop_back();
        std::size_t used = 0;
        try {
            token.number = std::stoll(digits, &used, digits.starts_with("0x") || digits.starts_with("0X") ? 16 : 10);
        } catch (const std::logic_error&) {
            used = 0;
        }
        if (used != digits.size())
            throw ScriptError(token.place, "bad number " + token.text);
    }

    void ScanWord(Token& token) {
        token.kind = Token::Kind::Word;
        while (m_at < m_text.size() && IsWordPart(m_text[m_at]))
            token.text += m_text[m_at++];
    }

    void ScanMark(Token& token) {
        token.kind = Token::Kind::Mark;
        token.text = m_text[m_at++];
        if (token.text.find_first_of(",|{}-") == std::string::npos)
            throw ScriptError(token.place, "unexpected character '" + token.text + "'");
    }

    std::string m_text;
    std::size_t m_at = 0;
    Place m_place;
};

} // namespace

ScriptError::ScriptError(const Place& place, const std::string& message)
    : std::runtime_error(place.file + ":" + std::to_string(place.line) + ": " + message) {
}

Script::Script(const std::string& path) {
    ReadFile(path, {path, 1});
    m_tokens.push_back({Token::Kind::End, "", 0, {path, m_tokens.empty() ? 1 : m_tokens.back().place.line}});
}

void Script::ReadFile(const std::string& path, const Place& from) {
    if (!m_files.insert(path).second)
        return; // a header counts once
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        throw ScriptError(from, "cannot read " + path);
    std::string text{std::istreambuf_iterator<char>(stream), {}};
    if (text.starts_with("\xEF\xBB\xBF"))
        text.erase(0, 3);
    Scanner scanner(std::move(text), path);
    for (Token token = scanner.Next(); token.kind != Token::Kind::End; token = scanner.Next()) {
        if (token.kind == Token::Kind::Mark && token.text.starts_with('#'))
            ReadDirective(token.text, token.place);
        else
            m_tokens.push_back(std::move(token));
    }
}

void Script::ReadDirective(const std::string& line, const Place& place) {
    std::istringstream words(line.substr(1));
    std::string directive, name, value;
    words >> directive >> name >> value;
    if (directive == "pragma" || directive == "ifndef" || directive == "endif")
        return;
    if (directive == "define" && !name.empty()) {
        if (!value.empty() && !value.starts_with("//")) // otherwise a header's guard
            Define(name, value, place);
        return;
    }
    const bool quoted = name.size() > 2 && name.front() == '"' && name.back() == '"';
    if (directive != "include" || !quoted)
        throw ScriptError(place, "unknown directive " + line);
    const auto folder = std::filesystem::path(place.file).parent_path();
    ReadFile((folder / name.substr(1, name.size() - 2)).string(), place);
}

void Script::Define(const std::string& name, const std::string& value, const Place& place) {
    std::size_t used = 0;
    long long number = 0;
    try {
        number = std::stoll(value, &used, 0);
    } catch (const std::logic_error&) {
        used = 0;
    }
    if (used != value.size())
        throw ScriptError(place, name + " is not defined as a number");
    const auto [known, added] = m_names.emplace(name, number);
    if (!added && known->second != number)
        throw ScriptError(place, name + " is defined twice");
}

} // namespace rescompiler
