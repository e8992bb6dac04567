// The numbers that scripts may call by name.
#pragma once

#include "tools/rescompiler/Scanner.h"

#include <map>
#include <optional>
#include <string>

namespace rescompiler {

// A name belongs to a scope, as "CDialogMuovi" or "CDialogMuovi::Axis"; that of names outside of any class is "".
class NameTable {
  public:
    static std::string Qualified(const std::string& scope, const std::string& name);
    // What stands before the last "::", "" for a name without.
    static std::string ScopeOf(const std::string& qualified);

    // Throws ScriptError when the name has another value already.
    void Add(const std::string& qualified, long long value, const Place& place);

    // Value of a name, qualified or not, as seen from a scope: its own names hide those around it.
    std::optional<long long> Find(const std::string& scope, const std::string& name) const;

    // A scope that has this name, "" for none.
    std::string OwnerOf(const std::string& name) const;

  private:
    std::map<std::string, long long> m_values; // by qualified name
};

} // namespace rescompiler
