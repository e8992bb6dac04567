#include "tools/rescompiler/Script.h"

#include "tools/rescompiler/HeaderReader.h"

#include <filesystem>
#include <sstream>
#include <utility>

namespace rescompiler {

Script::Script(const std::string& path, const std::string& root) : m_root(root), m_files{path} {
    Scanner scanner(ReadText(path, {path, 1}), path, Scanner::Language::Script);
    Token token = scanner.Next();
    for (; token.kind != Token::Kind::End; token = scanner.Next()) {
        if (token.kind == Token::Kind::Mark && token.text.starts_with('#'))
            ReadDirective(token.text, token.place);
        else
            m_tokens.push_back(std::move(token));
    }
    m_tokens.push_back({Token::Kind::End, "", 0, {path, m_tokens.empty() ? 1 : m_tokens.back().place.line}});
}

void Script::ReadDirective(const std::string& line, const Place& place) {
    std::istringstream words(line.substr(1));
    std::string directive, name, value;
    words >> directive >> name >> value;
    const bool quoted = name.size() > 2 && name.front() == '"' && name.back() == '"';
    if (directive == "define" && !name.empty())
        Define(name, value, place);
    else if (directive == "include" && quoted)
        Include(name.substr(1, name.size() - 2), place);
    else
        throw ScriptError(place, "unknown directive " + line);
}

void Script::Define(const std::string& name, const std::string& value, const Place& place) {
    std::size_t used = 0;
    long long number = 0;
    try {
        number = std::stoll(value, &used, 0);
    } catch (const std::logic_error&) {
        used = 0;
    }
    if (used == 0 || used != value.size())
        throw ScriptError(place, name + " is not defined as a number");
    m_names.Add(name, number, place);
}

void Script::Include(const std::string& header, const Place& place) {
    const std::string path = (std::filesystem::path(m_root) / header).lexically_normal().string();
    if (m_files.insert(path).second)
        HeaderReader(ReadText(path, place), path, m_names).Read();
}

} // namespace rescompiler
