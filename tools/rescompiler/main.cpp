// Compiles resource scripts into one C++ source:
//   rescompiler MODULE OUTPUT DEPFILE ROOT SCRIPT...
// Scripts name headers from the folder ROOT. An output that would not change is left alone, so that nothing is built
// anew for a header whose numbers stayed. Faults go to the error stream as "file:line: message" and end it with status
// 1; no output is left then.
#include "tools/rescompiler/Checker.h"
#include "tools/rescompiler/Parser.h"
#include "tools/rescompiler/Writer.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
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

std::string ReadFile(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

bool WriteFile(const std::string& path, const std::string& text) {
    if (ReadFile(path) == text)
        return true;
    std::ofstream stream(path, std::ios::binary);
    stream << text;
    stream.close();
    if (stream)
        return true;
    std::cerr << path << ":1: cannot write\n";
    return false;
}

// Reads every script, going on with the next after a faulty one. True when all were read.
bool ReadScripts(const std::vector<std::string>& paths, const std::string& root, Tables& tables,
                 std::set<std::string>& files) {
    bool good = true;
    for (const std::string& path : paths) {
        try {
            const Script script(path, root);
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

// True when the tables are sound; otherwise the faults have been told.
bool CheckTables(Tables& tables) {
    const std::vector<std::string> faults = Checker(tables).Check();
    for (const std::string& fault : faults)
        std::cerr << fault << '\n';
    return faults.empty();
}

int Compile(const std::string& module, const std::string& output, const std::string& depfile, const std::string& root,
            const std::vector<std::string>& scripts) {
    Tables tables;
    std::set<std::string> files;
    std::ostringstream source;
    bool good = ReadScripts(scripts, root, tables, files) && CheckTables(tables);
    if (good) {
        Writer(tables, source).Write(module);
        good = WriteFile(depfile, DependencyRule(output, files)) && WriteFile(output, source.str());
    }
    std::error_code ignored;
    if (!good)
        std::filesystem::remove(output, ignored); // a stale output must not outlive a fault
    return good ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() < 5) {
        std::cerr << "usage: rescompiler MODULE OUTPUT DEPFILE ROOT SCRIPT...\n";
        return 2;
    }
    return Compile(arguments[0], arguments[1], arguments[2], arguments[3], {arguments.begin() + 4, arguments.end()});
}
