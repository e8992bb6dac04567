#include "tools/rescompiler/TokenReader.h"

#include "tools/rescompiler/Symbols.h"

#include <algorithm>
#include <cctype>
#include <limits>

namespace rescompiler {
namespace {

bool IsWord(const Token& token, const std::string& word) {
    return token.kind == Token::Kind::Word &&
           std::ranges::equal(token.text, word,
                              [](unsigned char a, unsigned char b) { return std::toupper(a) == std::toupper(b); });
}

} // namespace

const Token& TokenReader::Take() {
    const Token& token = Peek();
    if (!AtEnd())
        ++m_at;
    return token;
}

bool TokenReader::AcceptWord(const char* word) {
    if (!IsWord(Peek(), word))
        return false;
    Take();
    return true;
}

bool TokenReader::AcceptMark(char mark) {
    if (Peek().kind != Token::Kind::Mark || Peek().text != std::string(1, mark))
        return false;
    Take();
    return true;
}

void TokenReader::ExpectComma() {
    if (!AcceptMark(','))
        FailExpected("a comma");
}

std::string TokenReader::ExpectText() {
    if (Peek().kind != Token::Kind::Text)
        FailExpected("a text in quotes");
    return Take().text;
}

void TokenReader::ExpectBegin() {
    if (!AcceptWord("BEGIN") && !AcceptMark('{'))
        FailExpected("BEGIN");
}

bool TokenReader::AcceptEnd() {
    return AcceptWord("END") || AcceptMark('}');
}

bool TokenReader::AtNumber() const {
    const Token& token = Peek();
    return token.kind == Token::Kind::Number || (token.kind == Token::Kind::Mark && token.text == "-") ||
           (token.kind == Token::Kind::Word && (m_script.Names().contains(token.text) || StyleValue(token.text)));
}

int TokenReader::ExpectNumber() {
    const Place place = Peek().place;
    const bool negative = AcceptMark('-');
    const Token& token = Peek();
    long long value = 0;
    if (token.kind == Token::Kind::Number)
        value = token.number;
    else if (const auto name = m_script.Names().find(token.text);
             token.kind == Token::Kind::Word && name != m_script.Names().end())
        value = name->second;
    else if (const auto style = StyleValue(token.text); token.kind == Token::Kind::Word && style)
        value = *style;
    else
        FailExpected("a number or a defined name");
    Take();
    if (negative)
        value = -value;
    if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max())
        throw ScriptError(place, "number out of range");
    return static_cast<int>(value);
}

std::uint32_t TokenReader::ExpectStyle(std::uint32_t base) {
    std::uint32_t style = base;
    do {
        if (AcceptWord("NOT"))
            style &= ~StyleTerm();
        else
            style |= StyleTerm();
    } while (AcceptMark('|'));
    return style;
}

std::uint32_t TokenReader::StyleTerm() {
    const Token& token = Take();
    if (token.kind == Token::Kind::Number && token.number >= 0 && token.number <= 0xffffffffLL)
        return static_cast<std::uint32_t>(token.number);
    if (token.kind == Token::Kind::Word)
        if (const auto value = StyleValue(token.text))
            return *value;
    throw ScriptError(token.place, "unknown style " + token.text);
}

void TokenReader::FailExpected(const std::string& what) const {
    const Token& token = Peek();
    throw ScriptError(token.place,
                      "expected " + what + (AtEnd() ? " before the end" : " instead of \"" + token.text + "\""));
}

} // namespace rescompiler
