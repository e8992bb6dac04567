// Walks a script's tokens and reads the values that every statement is made of.
#pragma once

#include "tools/rescompiler/Script.h"

#include <cstdint>
#include <string>

namespace rescompiler {

class TokenReader {
  public:
    // The script must outlive the reader.
    explicit TokenReader(const Script& script) : m_script(script) {}

    const Token& Peek() const { return m_script.Tokens()[m_at]; }
    const Token& Take();
    bool AtEnd() const { return Peek().kind == Token::Kind::End; }

    bool AtText() const { return Peek().kind == Token::Kind::Text; }

    // Words are told apart without regard to case. The Accept functions take the token only when it is the one asked
    // for; the Expect functions throw ScriptError otherwise.
    bool AcceptWord(const char* word);
    bool AcceptMark(char mark);
    void ExpectComma();
    std::string ExpectText();
    // BEGIN or {, END or }.
    void ExpectBegin();
    bool AcceptEnd();

    // A number, a name, or a sum of them such as IDC_X1 + 2. Names are those of the current scope and of no class.
    int ExpectNumber();

    // Class whose names may be written without it from here on; "" for none.
    void SetScope(const std::string& scope) { m_scope = scope; }

    // Style names and numbers joined by |, any of them after NOT: sets the ones named and clears those after NOT.
    // `base` is what the statement sets by itself.
    std::uint32_t ExpectStyle(std::uint32_t base);

  private:
    long long ExpectTerm();
    long long NumberOf(const Token& word) const;
    std::uint32_t StyleTerm();
    [[noreturn]] void FailExpected(const std::string& what) const;

    const Script& m_script;
    std::string m_scope;
    std::size_t m_at = 0;
};

} // namespace rescompiler
