// A resource script read into tokens, with the names that it may use.
#pragma once

#include "tools/rescompiler/NameTable.h"
#include "tools/rescompiler/Scanner.h"

#include <set>
#include <string>
#include <vector>

namespace rescompiler {

// Lines with '#' are taken while reading. `#include "file"` adds the enumerators of a header, `#define NAME number` a
// name for what only scripts number.
class Script {
  public:
    // Headers are named from the folder `root`, as in the code. Throws ScriptError for a file that cannot be read or
    // holds a bad token.
    Script(const std::string& path, const std::string& root);

    const std::vector<Token>& Tokens() const { return m_tokens; } // ends with one End token
    const NameTable& Names() const { return m_names; }
    const std::set<std::string>& Files() const { return m_files; } // every file read

  private:
    void ReadDirective(const std::string& line, const Place& place);
    void Define(const std::string& name, const std::string& value, const Place& place);
    void Include(const std::string& header, const Place& place);

    std::string m_root;
    std::vector<Token> m_tokens;
    NameTable m_names;
    std::set<std::string> m_files;
};

} // namespace rescompiler
