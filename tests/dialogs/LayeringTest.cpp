// The arrows between the folders, checked over the sources: host -> dialogs -> model -> platform -> toolkit.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

// Folders whose headers a file of this path may include: its own and those below it.
std::vector<std::string> AllowedFor(const std::string& path) {
    static const std::vector<std::string> layers{"platform/", "model/", "dialogs/", "host/"};
    const auto own = std::ranges::find_if(layers, [&](const auto& folder) { return path.starts_with(folder); });
    return own == layers.end() ? std::vector<std::string>() : std::vector(layers.begin(), own + 1);
}

bool MayNameToolkit(const std::string& path) {
    const bool publicHeader = path.starts_with("platform/") && path.ends_with(".h") &&
                              !path.starts_with("platform/private/") && !path.starts_with("platform/toolkit/");
    return path.starts_with("host/") || (path.starts_with("platform/") && !publicHeader);
}

// One text for each offence of a source file; paths are relative to the source tree.
std::vector<std::string> Offences(const std::string& path, const std::string& source) {
    static const std::regex include("^\\s*#\\s*include\\s*([\"<])([^\">]+)[\">]");
    static const std::regex toolkitName("\\b(Qt\\b|Q(?!UOVAR)[A-Z][A-Za-z]+)");
    std::vector<std::string> offences;
    const auto allowed = AllowedFor(path);
    std::istringstream lines(source);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        const std::string where = path + ":" + std::to_string(number) + ": ";
        if (!MayNameToolkit(path) && std::regex_search(line, toolkitName))
            offences.push_back(where + "names the toolkit: " + line);
        if (path.starts_with("host/document/") && line.find("AfxMessageBox") != std::string::npos)
            offences.push_back(where + "tells the user: " + line);
        std::smatch match;
        if (!std::regex_search(line, match, include) || match[1] != "\"")
            continue;
        const std::string target = match[2];
        if (path.starts_with("host/document/") && target == "platform/window/Application.h")
            offences.push_back(where + "includes the message boxes: a refusal below the windows is a value");
        if (std::none_of(allowed.begin(), allowed.end(),
                         [&](const auto& folder) { return target.starts_with(folder); }))
            offences.push_back(where + "may not include " + target);
        if (target.starts_with("platform/private/") && !MayNameToolkit(path))
            offences.push_back(where + "includes a private header: " + target);
    }
    return offences;
}

TEST(Layering, CheckerSeesOffences) {
    EXPECT_EQ(Offences("dialogs/frame/A.cpp", "#include \"host/ui/B.h\"\n").size(), 1u);
    EXPECT_EQ(Offences("dialogs/loads/A.cpp", "#include \"platform/private/B.h\"\n").size(), 1u);
    EXPECT_EQ(Offences("model/A.cpp", "#include \"dialogs/frame/host/QuovarDoc.h\"\n").size(), 1u);
    EXPECT_EQ(Offences("model/A.cpp", "QString text;\n").size(), 1u);
    EXPECT_EQ(Offences("platform/A.h", "#include <QWidget>\n").size(), 1u);
    EXPECT_EQ(Offences("platform/A.cpp", "#include \"model/Nodo.h\"\n").size(), 1u);
    EXPECT_EQ(Offences("host/A.cpp", "#include \"tests/support/Journal.h\"\n").size(), 1u);
    EXPECT_EQ(Offences("host/document/A.cpp", "#include \"platform/window/Application.h\"\n").size(), 1u);
    EXPECT_EQ(Offences("host/document/A.cpp", "    AfxMessageBox(text);\n").size(), 1u);
    EXPECT_TRUE(Offences("platform/private/A.h", "#include <QWidget>\nQUOVAR_MESSAGE_ENTRY\n").empty());
    EXPECT_TRUE(Offences("dialogs/frame/A.h", "class CQuovarDoc; // Quovar\n#include \"model/FPoint.h\"\n").empty());
}

TEST(Layering, SourcesKeepToTheArrows) {
    const fs::path root = QUOVAR_SOURCE_DIR;
    int files = 0;
    for (const char* folder : {"platform", "model", "dialogs", "host"}) {
        for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
            const std::string extension = entry.path().extension().string();
            if (!entry.is_regular_file() || (extension != ".h" && extension != ".cpp"))
                continue;
            std::ifstream file(entry.path());
            std::stringstream source;
            source << file.rdbuf();
            for (const std::string& offence : Offences(fs::relative(entry.path(), root).generic_string(), source.str()))
                ADD_FAILURE() << offence;
            ++files;
        }
    }
    EXPECT_GT(files, 60) << "the source tree was not found";
}

} // namespace
