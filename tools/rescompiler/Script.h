// A resource script read into tokens, with the names that its headers define.
#pragma once

#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace rescompiler {

struct Place {
    std::string file;
    int line = 0;
};

// A fault in a script. what() is "file:line: message".
class ScriptError : public std::runtime_error {
  public:
    ScriptError(const Place& place, const std::string& message);
};

struct Token {
    enum class Kind { Word, Number, Text, Mark, End };

    Kind kind = Kind::End;
    std::string text; // a Text's characters in UTF-8 without quotes, escapes resolved
    long long number = 0;
    Place place;
};

// Lines with '#' are taken while reading: `#define NAME value` and `#include "file"` (beside the including file);
// guards and pragmas of headers are passed over.
class Script {
  public:
    // Throws ScriptError for a file that cannot be read or holds a bad token.
    explicit Script(const std::string& path);

    const std::vector<Token>& Tokens() const { return m_tokens; } // ends with one End token
    const std::map<std::string, long long>& Names() const { return m_names; }
    const std::set<std::string>& Files() const { return m_files; } // every file read

  private:
    void ReadFile(const std::string& path, const Place& from);
    void ReadDirective(const std::string& line, const Place& place);
    void Define(const std::string& name, const std::string& value, const Place& place);

    std::vector<Token> m_tokens;
    std::map<std::string, long long> m_names;
    std::set<std::string> m_files;
};

} // namespace rescompiler
