#include "tests/dialogs/SourceText.h"

#include <algorithm>
#include <cctype>

namespace {

bool IsWord(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

class Scanner {
  public:
    explicit Scanner(const std::string& source) : m_source(source) {}

    std::vector<Literal> Run() {
        while (m_at < m_source.size())
            Step();
        return m_found;
    }

  private:
    bool At(const char* text) const { return m_source.compare(m_at, std::char_traits<char>::length(text), text) == 0; }

    void Step() {
        if (At("//"))
            SkipPast("\n");
        else if (At("/*"))
            SkipPast("*/");
        else if (At("R\"("))
            SkipPast(")\"");
        else if (At("\""))
            TakeLiteral();
        else if (At("'") && !(m_at > 0 && IsWord(m_source[m_at - 1]))) // not the separator of digits
            SkipQuoted('\'');
        else
            TakeOther();
    }

    void SkipPast(const char* end) {
        const std::size_t found = m_source.find(end, m_at + 1);
        m_at = found == std::string::npos ? m_source.size() : found + std::char_traits<char>::length(end);
    }

    std::string SkipQuoted(char quote) {
        const std::size_t start = ++m_at;
        while (m_at < m_source.size() && m_source[m_at] != quote)
            m_at += m_source[m_at] == '\\' ? 2 : 1;
        m_at = std::min(m_at, m_source.size());
        const std::string text = m_source.substr(start, m_at - start);
        ++m_at;
        return text;
    }

    void TakeLiteral() {
        if (!m_joins)
            m_found.push_back({Line(), "", "", MacroBefore()});
        Literal& literal = m_found.back();
        const std::string text = SkipQuoted('"');
        literal.text += text;
        literal.ascii =
            literal.ascii && std::ranges::all_of(text, [](char c) { return static_cast<signed char>(c) >= 0; });
        while (m_at < m_source.size() && IsWord(m_source[m_at]))
            literal.suffix += m_source[m_at++];
        m_joins = true;
    }

    void TakeOther() {
        m_joins = m_joins && std::isspace(static_cast<unsigned char>(m_source[m_at]));
        ++m_at;
    }

    int Line() const {
        return 1 + static_cast<int>(std::count(m_source.begin(), m_source.begin() + static_cast<long>(m_at), '\n'));
    }

    std::string MacroBefore() const {
        if (m_at == 0 || m_source[m_at - 1] != '(')
            return {};
        std::size_t start = m_at - 1;
        while (start > 0 && IsWord(m_source[start - 1]))
            --start;
        return m_source.substr(start, m_at - 1 - start);
    }

    const std::string& m_source;
    std::size_t m_at = 0;
    bool m_joins = false; // nothing but blanks since the last literal
    std::vector<Literal> m_found;
};

} // namespace

std::vector<Literal> LiteralsOf(const std::string& source) {
    return Scanner(source).Run();
}
