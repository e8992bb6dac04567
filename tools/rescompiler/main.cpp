// Compiles resource scripts into one C++ source:
//   rescompiler MODULE OUTPUT DEPFILE SCRIPT...
// Faults go to the error stream as "file:line: message" and end it with status 1; no output is left then.
#include "tools/rescompiler/Checker.h"
#include "tools/rescompiler/Parser.h"
#include "tools/rescompiler/Writer.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

namespace {

using namespace rescompiler;

// Rule that tells the build tool which files the output was made from. Blanks in names are escaped for it.
std::string DependencyRule(const std::string& output, const std::set<std::string>& files) {
    const auto escaped = [](const std::string& name) {
        std::string result;
        for (const char c : name)
            result += c == ' ' ? std::string("\\ ") : std::string(1, c);
        return result;
    };
    std::string rule = escaped(output) + ":";
    for (const std::string& file : files)
        rule += " " + escaped(file);
    return rule + "\n";
}

bool WriteFile(const std::string& path, const std::string& text) {
    std::ofstream stream(path, std::ios::binary);
    stream << text;
    stream.close();
    if (stream)
        return true;
    std::cerr << path << ":1: cannot write\n";
    return false;
}

// Reads every script, going on with the next after a faulty one. True when all were read.
bool ReadScripts(const std::vector<std::string>& paths, Tables& tables, std::set<std::string>& files) {
    bool good = true;
    for (const std::string& path : paths) {
        try {
            const Script script(path);
            files.insert(script.Files().begin(), script.Files().end());
            Parser(script, tables).Parse();
        } catch (const ScriptError& error) {
            std::cerr << error.what() << '\n';
            good = false;
        }
    }
    for (const Picture& picture : tables.bitmaps)
        files.insert(picture.file);
    for (const Picture& picture : tables.icons)
        files.insert(picture.file);
    return good;
}

int Compile(const std::string& module, const std::string& output, const std::string& depfile,
            const std::vector<std::string>& scripts) {
    std::error_code ignored;
    std::filesystem::remove(output, ignored); // a stale output must not outlive a fault
    Tables tables;
    std::set<std::string> files;
    if (!ReadScripts(scripts, tables, files))
        return 1;
    const std::vector<std::string> faults = Checker(tables).Check();
    for (const std::string& fault : faults)
        std::cerr << fault << '\n';
    if (!faults.empty())
        return 1;
    std::ostringstream source;
    Writer(tables, source).Write(module);
    return WriteFile(output, source.str()) && WriteFile(depfile, DependencyRule(output, files)) ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() < 4) {
        std::cerr << "usage: rescompiler MODULE OUTPUT DEPFILE SCRIPT...\n";
        return 2;
    }
    return Compile(arguments[0], arguments[1], arguments[2], {arguments.begin() + 3, arguments.end()});
}
