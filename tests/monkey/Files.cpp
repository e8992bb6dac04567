#include "tests/monkey/Files.h"

#include "host/document/HostDocument.h"
#include "host/files/FileError.h"
#include "host/files/Frame3ddImport.h"
#include "host/files/ProjectFile.h"
#include "host/files/ProjectSchema.h"
#include "tests/host/Dump.h"
#include "tests/host/TestModel.h"
#include "tests/monkey/Consistency.h"
#include "tests/monkey/EventLog.h"

#include <sqlite3.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>

using namespace host;

namespace {

const char* const textModel = "Telaio di prova (kN,m)\n"
                              "4\n1 0 0 0 0\n2 0 0 3 0\n3 4 0 3 0\n4 4 0 0 0\n"
                              "2\n1 1 1 1 1 1 1\n4 1 1 1 0 0 0\n"
                              "3\n1 1 2 0.1 0.08 0.08 0.001 0.002 0.003 3e7 1.2e7 0 2.5\n"
                              "2 2 3 0.1 0.08 0.08 0.001 0.002 0.003 3e7 1.2e7 15 2.5\n"
                              "3 3 4 0.2 0.08 0.08 0.001 0.002 0.003 2e8 8e7 0 7.8\n"
                              "1\n0\n10\n1\n-1\n"
                              "2\n0 0 -9.81\n1\n3 0 0 -10 0 0 0\n1\n2 0 0 -5\n1\n2 0 0 0 0 0.5 2 -1 -3 0 0 0 0\n"
                              "1\n1 0 -2 0 1.5\n1\n1 1e-5 0.3 0.3 20 10 5 5\n0\n"
                              "0 0 0\n0\n0\n0\n0\n0\n1\n4 0 0 -0.01 0 0 0\n";

std::string Content(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void Write(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

const char* const wrongNumbers[] = {"0",   "-1",   "1",   "2",          "5",           "999999999",     "2147483648",
                                    "1e9", "1e99", "nan", "-1e308",     "inf",         "0x10",          "",
                                    "x",   "3,5",  "1e",  "4294967297", "-2147483648", "1000000000001", "1e-320"};

void ChangeBytes(Random& random, std::string& content) {
    const auto at = [&] { return static_cast<std::size_t>(random.Below(static_cast<int>(content.size()))); };
    for (int n = random.Below(3); n >= 0 && !content.empty(); --n) {
        switch (const std::size_t from = at(), size = std::min(at() % 600, content.size() - from); random.Below(5)) {
        case 0:
            content[from] = static_cast<char>(random.Next());
            break;
        case 1:
            content.resize(from);
            break;
        case 2:
            content.erase(from, size);
            break;
        case 3:
            content.insert(at(), content.substr(from, size));
            break;
        default:
            std::fill_n(content.begin() + static_cast<std::ptrdiff_t>(from), size, '\0');
        }
    }
}

// Another word in the place of one.
void ChangeWords(Random& random, std::string& text) {
    for (int n = random.Below(3); n >= 0 && !text.empty(); --n) {
        const auto from = std::min(text.find_first_of(" \n", random.Next() % text.size()), text.size() - 1) + 1;
        const auto to = std::min(text.find_first_of(" \n", from), text.size());
        text.replace(from, to - from, random.Of(wrongNumbers));
    }
}

// Rows that the tables take and a document does not.
void ChangeRows(Random& random, const std::string& path) {
    sqlite3* database = nullptr;
    sqlite3_open(path.c_str(), &database);
    for (int n = random.Below(3); n >= 0; --n) {
        const Table& table = *random.Of(tables::current);
        std::vector<std::string> columns{"pos"};
        std::string rest = std::string(table.columns) + ", ";
        for (std::size_t end; (end = rest.find(", ")) != std::string::npos; rest.erase(0, end + 2))
            columns.push_back(rest.substr(0, rest.find(' ')));
        const std::string row = " WHERE rowid = (SELECT 1 + " + std::to_string(random.Below(1000)) +
                                " % max(1, max(rowid)) FROM " + table.name + ")";
        const std::string value = random.Chance(20) ? "NULL" : "'" + std::string(random.Of(wrongNumbers)) + "'";
        const std::string set = " SET " + random.Of(columns) + " = ";
        const std::string statements[] = {std::string("UPDATE ") + table.name + set + value + row,
                                          std::string("UPDATE ") + table.name + set + random.Of(columns) + row,
                                          std::string("DELETE FROM ") + table.name + row,
                                          std::string("INSERT INTO ") + table.name + " SELECT * FROM " + table.name +
                                              row};
        sqlite3_exec(database, random.Of(statements).c_str(), nullptr, nullptr, nullptr); // may not be taken
    }
    sqlite3_close(database);
}

// Reads what must be refused as a whole or be sound.
void ReadMutated(const std::string& path, const std::string& folder) {
    try {
        HostDocument document;
        document.Replace(path.ends_with(".3dd") ? ImportFrame3dd(path) : LoadProject(path));
        eventlog::Expect(DocumentFault(document));
        eventlog::Expect(FileFault(document.Data(), folder));
    } catch (const FileError& error) {
        if (!*error.what())
            eventlog::Fail("a file is refused without a word");
    }
}

// Saves one generation after the other and tells which it begins, until it is killed.
[[noreturn]] void SaveForEver(HostDocument& document, const std::string& path, int generation, int pipe) {
    for (;; ++generation) {
        document.Data().Info().title = CString(std::to_string(generation).c_str());
        if (write(pipe, &generation, sizeof generation) < 0)
            _exit(1);
        SaveProject(document.Data(), path, "prova");
    }
}

} // namespace

std::vector<std::string> WriteModels(const std::string& folder) {
    HostDocument small, whole;
    small.Replace(ImportFrame3ddText(textModel));
    BuildEverything(whole);
    const std::vector<std::string> paths{folder + "/piccolo.asg", folder + "/testo.3dd", folder + "/tutto.asg"};
    SaveProject(small.Data(), paths[0], "prova");
    Write(paths[1], textModel);
    SaveProject(whole.Data(), paths[2], "prova");
    return paths;
}

std::string WriteMutated(Random& random, const std::string& path) {
    const bool text = path.ends_with(".3dd");
    const std::string out = std::filesystem::path(path).parent_path().string() + "/rotto" + (text ? ".3dd" : ".asg");
    std::string content = Content(path);
    const bool inside = random.Chance(70);
    if (!inside)
        ChangeBytes(random, content);
    else if (text)
        ChangeWords(random, content);
    Write(out, content);
    if (inside && !text)
        ChangeRows(random, out);
    return out;
}

void RunFiles(std::uint64_t seed, int count, const std::string& folder) {
    eventlog::Start("files", seed);
    Random random(seed);
    const std::vector<std::string> models = WriteModels(folder);
    for (int i = 0; i < count; ++i) {
        const std::string& model = random.Of(models);
        eventlog::Event("a mutated copy of " + model);
        ReadMutated(WriteMutated(random, model), folder);
    }
}

void RunKills(std::uint64_t seed, int count, const std::string& folder) {
    eventlog::Start("kills", seed);
    Random random(seed);
    HostDocument document;
    BuildEverything(document);
    const std::string path = folder + "/ucciso.asg", sound = Dump(document.Data());
    document.Data().Info().title = "0";
    SaveProject(document.Data(), path, "prova");
    int saved = 0; // the generation in the file
    for (int i = 0; i < count; ++i) {
        eventlog::Event("kill in a save");
        int ends[2];
        if (pipe(ends) != 0)
            eventlog::Fail("no pipe");
        const pid_t child = fork();
        if (child == 0)
            SaveForEver(document, path, saved + 1, ends[1]);
        close(ends[1]);
        int begun = 0;
        if (read(ends[0], &begun, sizeof begun) < 0) // the first save has begun
            eventlog::Fail("the saving process does not start");
        usleep(static_cast<useconds_t>(random.Below(40000)));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        for (int next; read(ends[0], &next, sizeof next) == sizeof next;)
            begun = next;
        close(ends[0]);
        DocumentData found;
        try {
            found = LoadProject(path);
        } catch (const FileError& error) {
            eventlog::Fail(std::string("a killed save leaves a broken file: ") + error.what());
        }
        const int former = saved;
        saved = std::stoi(found.Info().title.ToUtf8());
        if (saved != begun && saved != begun - 1 && saved != former)
            eventlog::Fail("a killed save leaves an older file");
        if (Dump(found) != sound)
            eventlog::Fail("a killed save leaves another model");
    }
    for (const auto& entry : std::filesystem::directory_iterator(folder)) // of the killed
        if (entry.path().filename().string().starts_with(".ucciso.asg"))
            std::filesystem::remove(entry.path());
}
