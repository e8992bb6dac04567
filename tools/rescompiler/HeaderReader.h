// Takes the enumerators out of a C++ header, so that scripts and code share one number for each name.
#pragma once

#include "tools/rescompiler/NameTable.h"
#include "tools/rescompiler/Scanner.h"

#include <optional>
#include <string>
#include <vector>

namespace rescompiler {

// Knows just enough of the language: classes and namespaces as scopes, enumerations, and values that are sums of whole
// numbers and names. An enumerator with any other value, or inside of a function, is no name for scripts. Headers that
// the header includes are not read.
class HeaderReader {
  public:
    // `text` is what stands in `file`; the names must outlive the reader.
    HeaderReader(std::string text, std::string file, NameTable& names);

    // Throws ScriptError.
    void Read();

  private:
    Token Take();
    bool AtEnd() const { return m_token.kind == Token::Kind::End; }
    bool AtMark(const char* anyOf) const;
    bool AcceptMark(const char* anyOf);
    bool AcceptWord(const char* word);
    bool AcceptScopeWord();
    std::string TakeName();
    void ReadEnumeration();
    void ReadEnumerators(const std::string& scope);
    std::optional<long long> ReadValue(const std::string& scope);
    std::optional<long long> ReadTerm(const std::string& scope);
    void SkipToNextEnumerator();

    Scanner m_scanner;
    Token m_token; // the one ahead
    NameTable& m_names;
    std::vector<std::string> m_scopes{""}; // qualified, the innermost last
};

} // namespace rescompiler
