#include "tools/rescompiler/NameTable.h"

#include <algorithm>

namespace rescompiler {

std::string NameTable::Qualified(const std::string& scope, const std::string& name) {
    return scope.empty() ? name : scope + "::" + name;
}

std::string NameTable::ScopeOf(const std::string& qualified) {
    const std::size_t end = qualified.rfind("::");
    return end == std::string::npos ? "" : qualified.substr(0, end);
}

void NameTable::Add(const std::string& qualified, long long value, const Place& place) {
    const auto [known, added] = m_values.emplace(qualified, value);
    if (!added && known->second != value)
        throw ScriptError(place, qualified + " is defined twice");
}

std::optional<long long> NameTable::Find(const std::string& scope, const std::string& name) const {
    const auto found = m_values.find(Qualified(scope, name));
    if (found != m_values.end())
        return found->second;
    return scope.empty() ? std::nullopt : Find(ScopeOf(scope), name);
}

std::string NameTable::OwnerOf(const std::string& name) const {
    const auto owner =
        std::ranges::find_if(m_values, [&](const auto& entry) { return entry.first.ends_with("::" + name); });
    return owner == m_values.end() ? "" : ScopeOf(owner->first);
}

} // namespace rescompiler
