// The arrows between the folders and the rooms in them, and the encodings of literals, checked over the sources.
#include "tests/dialogs/SourceText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

namespace fs = std::filesystem;
using std::string;

// Lowest first: a file sees its own layer and those before it.
constexpr std::string_view layers[] = {"platform", "model", "dialogs", "host"};

// A room sees itself and those of lower rank in its layer. Rooms of equal rank do not see each other.
struct Room {
    std::string_view path;
    int rank;
    std::span<const std::string_view> alsoSees = {}; // headers, or rooms, of a higher or an equal rank
};
constexpr std::string_view ofDocuments[] = {"host/document/DocumentData.h", "host/document/Refusal.h"};
constexpr std::string_view commands[] = {"host/commands/"};
constexpr std::string_view windows[] = {"host/ui/"};
constexpr Room rooms[] = {
    {"platform/core/", 0},
    {"platform/data/", 1},
    {"platform/resource/", 1},
    {"platform/drawing/", 2},
    {"platform/window/", 3},
    {"platform/controls/", 4},
    {"platform/grid/", 5},
    {"platform/toolkit/", 6},
    {"platform/private/", 7},

    {"model/values/", 0},
    {"model/index/", 1},
    {"model/view/", 1},
    {"model/design/", 2},
    {"model/result/", 2},
    {"model/element/", 3},
    {"model/load/", 4},
    {"model/entity/", 5},

    {"dialogs/frame/host/", 0},
    {"dialogs/frame/common/", 1},
    {"dialogs/frame/tool/", 2},
    {"dialogs/frame/", 3},
    {"dialogs/archive/", 4},
    {"dialogs/check/", 4},
    {"dialogs/generation/", 4},
    {"dialogs/generators/", 4},
    {"dialogs/loads/", 4},
    {"dialogs/properties/", 4},
    {"dialogs/results/", 4},
    {"dialogs/selection/", 4},
    {"dialogs/views/", 4},

    // What works on the objects alone stands below the document that offers it.
    {"host/analysis/", 0, ofDocuments},
    {"host/archive/", 0, ofDocuments},
    {"host/design/", 0, ofDocuments},
    {"host/generators/", 0, ofDocuments},
    {"host/document/", 1},
    {"host/files/", 2},
    {"host/view/", 2},
    {"host/commands/", 3, windows}, // a command works on the workspace, which runs it
    {"host/ui/", 3, commands},
    {"host/app/", 4},
};

bool IsHeader(const string& path) {
    return path.ends_with(".h");
}

string LayerOf(const string& path) {
    return path.substr(0, path.find('/'));
}

int RankOfLayer(const string& path) {
    return static_cast<int>(std::ranges::find(layers, LayerOf(path)) - std::begin(layers));
}

const Room* RoomOf(const string& path) {
    const Room* found = nullptr; // the innermost
    for (const Room& room : rooms)
        if (path.starts_with(room.path) && (!found || room.path.size() > found->path.size()))
            found = &room;
    return found;
}

bool IsInner(const string& path) {
    return path.starts_with("platform/private/") || path.starts_with("platform/toolkit/");
}

bool MayNameToolkit(const string& path) {
    return path.starts_with("host/") || IsInner(path) || (path.starts_with("platform/") && !IsHeader(path));
}

// What a platform source does for its header takes the whole platform; so do an object's drawing and checks in the
// model. Only their headers keep to the order of the rooms.
bool SourcesAreFree(const string& path) {
    return !IsHeader(path) && (path.starts_with("platform/") || path.starts_with("model/"));
}

// A dialog that opens another one names that one's header in its source.
bool OpensDialog(const string& path, const string& target) {
    return !IsHeader(path) && path.starts_with("dialogs/") && !path.starts_with("dialogs/frame/") &&
           target.find("/Dialog") != string::npos;
}

bool MaySee(const string& path, const string& target) {
    if (target.starts_with("platform/private/"))
        return path.starts_with("platform/") && (IsInner(path) || !IsHeader(path));
    if (target.starts_with("platform/toolkit/"))
        return MayNameToolkit(path);
    if (RankOfLayer(target) != RankOfLayer(path))
        return RankOfLayer(target) < RankOfLayer(path);
    const Room* from = RoomOf(path);
    const Room* to = RoomOf(target);
    if (!from || !to)
        return false;
    return from == to || to->rank < from->rank || SourcesAreFree(path) || OpensDialog(path, target) ||
           std::ranges::any_of(from->alsoSees, [&](std::string_view seen) { return target.starts_with(seen); });
}

// Below the view a refusal is a value, which the windows tell.
bool MayTellTheUser(const string& path) {
    return !path.starts_with("host/") || path.starts_with("host/view/") || RoomOf(path)->rank >= 3;
}

// A literal with other than ASCII characters says how it is converted.
bool SaysItsEncoding(const string& path, const Literal& literal) {
    if (literal.suffix == "_t")
        return true;
    const bool toolkitText = literal.macro == "QStringLiteral" || literal.suffix == "_s";
    return MayNameToolkit(path) && (literal.suffix == "_utf8" || toolkitText);
}

// One text for each offence of a source file; paths are relative to the source tree.
std::vector<string> Offences(const string& path, const string& source) {
    static const std::regex include("^\\s*#\\s*include\\s*\"([^\"]+)\"");
    static const std::regex toolkitName("\\b(Qt\\b|Q(?!UOVAR)[A-Z][A-Za-z]+)");
    std::vector<string> offences;
    const auto add = [&](int line, const string& text) {
        offences.push_back(path + ":" + std::to_string(line) + ": " + text);
    };
    if (!RoomOf(path))
        return {path + ": lies in no room"};
    std::istringstream lines(source);
    string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        if (!MayNameToolkit(path) && std::regex_search(line, toolkitName))
            add(number, "names the toolkit: " + line);
        if (!MayTellTheUser(path) && line.find("AfxMessageBox") != string::npos)
            add(number, "tells the user: " + line);
        std::smatch match;
        if (!std::regex_search(line, match, include))
            continue;
        if (!MaySee(path, match[1]))
            add(number, "may not include " + match[1].str());
        if (!MayTellTheUser(path) && match[1] == "platform/window/Application.h")
            add(number, "includes the message boxes: a refusal below the windows is a value");
    }
    for (const Literal& literal : LiteralsOf(source))
        if (!literal.ascii && !SaysItsEncoding(path, literal))
            add(literal.line, "a literal does not say how it is converted: " + literal.text);
    return offences;
}

TEST(Layering, CheckerSeesOffences) {
    const struct {
        const char* path;
        const char* source;
        std::size_t offences;
    } cases[] = {
        {"dialogs/frame/tool/A.cpp", "#include \"host/ui/B.h\"\n", 1},
        {"dialogs/loads/A.cpp", "#include \"platform/private/B.h\"\n", 1},
        {"dialogs/loads/A.cpp", "#include \"platform/toolkit/Bridge.h\"\n", 1},
        {"dialogs/loads/A.cpp", "#include \"dialogs/selection/SelectionCommand.h\"\n", 1},
        {"dialogs/loads/A.cpp", "#include \"dialogs/selection/DialogMuovi.h\"\n", 0},
        {"dialogs/frame/tool/A.cpp", "#include \"dialogs/selection/DialogMuovi.h\"\n", 1},
        {"dialogs/loads/A.h", "#include \"dialogs/selection/DialogMuovi.h\"\n", 1},
        {"dialogs/frame/host/A.h", "class CQuovarDoc; // Quovar\n#include \"dialogs/frame/tool/B.h\"\n", 1},
        {"model/entity/A.cpp", "#include \"dialogs/frame/host/QuovarDoc.h\"\n", 1},
        {"model/entity/A.cpp", "QString text;\n", 1},
        {"model/element/A.h", "#include \"model/load/Carico.h\"\n", 1},
        {"model/element/A.cpp", "#include \"model/load/Carico.h\"\n", 0},
        {"model/A.h", "", 1},
        {"platform/window/A.h", "#include <QWidget>\n", 1},
        {"platform/window/A.h", "#include \"platform/controls/Edit.h\"\n", 1},
        {"platform/window/A.h", "#include \"platform/private/paint/B.h\"\n", 1},
        {"platform/window/A.cpp", "#include \"platform/private/paint/B.h\"\n", 0},
        {"platform/core/A.cpp", "#include \"model/element/Nodo.h\"\n", 1},
        {"platform/private/paint/A.h", "#include <QWidget>\nQUOVAR_MESSAGE_ENTRY\n", 0},
        {"platform/toolkit/A.h", "#include <QString>\n", 0},
        {"host/ui/A.cpp", "#include \"tests/support/Journal.h\"\n", 1},
        {"host/ui/A.cpp", "#include \"platform/private/peers/B.h\"\n", 1},
        {"host/document/A.cpp", "#include \"host/ui/B.h\"\n", 1},
        {"host/analysis/A.h", "#include \"host/document/DocumentData.h\"\n", 0},
        {"host/document/A.cpp", "#include \"platform/window/Application.h\"\n", 1},
        {"host/files/A.cpp", "    AfxMessageBox(text);\n", 1},
        {"dialogs/loads/A.cpp", "f(\"può\");\n", 1},
        {"dialogs/loads/A.cpp", "f(\"può\"_utf8);\n", 1},
        {"dialogs/loads/A.cpp", "f(\"può \"\n  \"darsi\"_t); // più\n", 0},
        {"host/files/A.cpp", "f('\"', 1'000, \"può\");\n", 1},
        {"host/files/A.cpp", "f(\"\\\"può\"_utf8, QStringLiteral(\"può\"));\n", 0},
    };
    for (const auto& each : cases)
        EXPECT_EQ(Offences(each.path, each.source).size(), each.offences) << each.path << "\n" << each.source;
}

// Calls `look` with the path and the text of every header and source below the folder; how many there are.
template <class Look>
int ForEachSource(const char* folder, Look look) {
    const fs::path root = QUOVAR_SOURCE_DIR;
    int files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
        const string extension = entry.path().extension().string();
        if (!entry.is_regular_file() || (extension != ".h" && extension != ".cpp"))
            continue;
        std::ifstream file(entry.path());
        std::stringstream source;
        source << file.rdbuf();
        look(fs::relative(entry.path(), root).generic_string(), source.str());
        ++files;
    }
    return files;
}

TEST(Layering, SourcesKeepToTheArrows) {
    int files = 0;
    for (const std::string_view layer : layers)
        files += ForEachSource(layer.data(), [](const string& path, const string& source) {
            for (const string& offence : Offences(path, source))
                ADD_FAILURE() << offence;
        });
    EXPECT_GT(files, 60) << "the source tree was not found";
}

// Only the platform's own tests know what is behind the wall.
TEST(Layering, TestsAndBenchmarksStayOutsideTheWall) {
    for (const char* folder : {"tests", "benchmarks"})
        ForEachSource(folder, [](const string& path, const string& source) {
            if (path.starts_with("tests/platform/") || path == "tests/dialogs/LayeringTest.cpp")
                return;
            EXPECT_EQ(source.find("#include \"platform/private/"), string::npos) << path;
        });
}

} // namespace
