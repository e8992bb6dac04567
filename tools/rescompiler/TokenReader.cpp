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
    if (!AtText())
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

int TokenReader::ExpectNumber() {
    const Place place = Peek().place;
    long long sum = 0;
    bool negative = AcceptMark('-');
    do {
        const long long term = ExpectTerm();
        sum += negative ? -term : term;
        if (sum < std::numeric_limits<int>::min() || sum > std::numeric_limits<int>::max())
            throw ScriptError(place, "number out of range");
    } while ((negative = AcceptMark('-')) || AcceptMark('+'));
    return static_cast<int>(sum);
}

long long TokenReader::ExpectTerm() {
    if (Peek().kind != Token::Kind::Number && Peek().kind != Token::Kind::Word)
        FailExpected("a number or a name");
    const Token& token = Take();
    const long long term = token.kind == Token::Kind::Number ? token.number : NumberOf(token);
    constexpr long long most = std::numeric_limits<std::uint32_t>::max();
    if (term > most || term < -most) // so that no sum overflows
        throw ScriptError(token.place, "number out of range");
    return term;
}

long long TokenReader::NumberOf(const Token& word) const {
    if (const auto value = m_script.Names().Find(m_scope, word.text))
        return *value;
    if (const auto id = StandardId(word.text))
        return *id;
    if (const auto style = StyleValue(word.text))
        return *style;
    const std::string owner = m_script.Names().OwnerOf(word.text);
    throw ScriptError(word.place, owner.empty() ? "unknown name " + word.text : word.text + " is a name of " + owner);
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
