#include "tools/rescompiler/HeaderReader.h"

#include <cstdint>
#include <limits>
#include <utility>

namespace rescompiler {
namespace {

// Scope of a function's body and the like.
constexpr const char* hidden = "{}";

} // namespace

HeaderReader::HeaderReader(std::string text, std::string file, NameTable& names)
    : m_scanner(std::move(text), std::move(file), Scanner::Language::Header),
      m_token(m_scanner.Next()),
      m_names(names) {
}

void HeaderReader::Read() {
    std::string opening; // name of what the next brace opens
    while (!AtEnd()) {
        if (AcceptWord("enum")) {
            ReadEnumeration();
        } else if (AcceptScopeWord()) {
            opening = TakeName();
        } else if (AcceptMark("{")) {
            m_scopes.push_back(NameTable::Qualified(m_scopes.back(), opening.empty() ? hidden : opening));
            opening.clear();
        } else {
            if (AtMark("}") && m_scopes.size() > 1)
                m_scopes.pop_back();
            if (AtMark(";()")) // it was a declaration or a parameter
                opening.clear();
            Take();
        }
    }
}

Token HeaderReader::Take() {
    return std::exchange(m_token, m_scanner.Next());
}

bool HeaderReader::AtMark(const char* anyOf) const {
    return m_token.kind == Token::Kind::Mark && m_token.text.size() == 1 &&
           std::string(anyOf).find(m_token.text) != std::string::npos;
}

bool HeaderReader::AcceptMark(const char* anyOf) {
    const bool accepted = AtMark(anyOf);
    if (accepted)
        Take();
    return accepted;
}

bool HeaderReader::AcceptWord(const char* word) {
    const bool accepted = m_token.kind == Token::Kind::Word && m_token.text == word;
    if (accepted)
        Take();
    return accepted;
}

bool HeaderReader::AcceptScopeWord() {
    return AcceptWord("class") || AcceptWord("struct") || AcceptWord("namespace");
}

// The last of the words ahead, which may begin with an export mark; "" for none.
std::string HeaderReader::TakeName() {
    std::string name;
    while (m_token.kind == Token::Kind::Word)
        if (!AcceptWord("final"))
            name = Take().text;
    return name;
}

void HeaderReader::ReadEnumeration() {
    const bool scoped = AcceptWord("class") || AcceptWord("struct");
    const std::string name = TakeName();
    while (!AtEnd() && !AtMark("{;()=")) // past the underlying type
        Take();
    if (AcceptMark("{"))
        ReadEnumerators(scoped ? NameTable::Qualified(m_scopes.back(), name) : m_scopes.back());
}

void HeaderReader::ReadEnumerators(const std::string& scope) {
    const bool known = scope.find(hidden) == std::string::npos;
    std::optional<long long> value = 0;
    while (!AtEnd() && !AcceptMark("}")) {
        const Token name = Take();
        if (AcceptMark("="))
            value = ReadValue(scope);
        if (known && name.kind == Token::Kind::Word && value)
            m_names.Add(NameTable::Qualified(scope, name.text), (*value)++, name.place);
        AcceptMark(",");
    }
}

// Nothing when the value is more than a sum.
std::optional<long long> HeaderReader::ReadValue(const std::string& scope) {
    std::optional<long long> sum = 0;
    bool negative = AcceptMark("-");
    do {
        const std::optional<long long> term = ReadTerm(scope);
        sum = sum && term ? std::optional(*sum + (negative ? -*term : *term)) : std::nullopt;
    } while ((negative = AcceptMark("-")) || AcceptMark("+"));
    if (!AtMark(",}"))
        sum.reset();
    SkipToNextEnumerator();
    return sum;
}

// Nothing for what is no number or none of a script's size.
std::optional<long long> HeaderReader::ReadTerm(const std::string& scope) {
    if (m_token.kind != Token::Kind::Word && m_token.kind != Token::Kind::Number)
        return std::nullopt;
    const Token token = Take();
    if (token.kind == Token::Kind::Word)
        return m_names.Find(scope, token.text);
    return token.number <= std::numeric_limits<std::uint32_t>::max() ? std::optional(token.number) : std::nullopt;
}

void HeaderReader::SkipToNextEnumerator() {
    for (int depth = 0; !AtEnd() && (depth > 0 || !AtMark(",}")); Take())
        depth += AtMark("({") - AtMark(")}");
}

} // namespace rescompiler
