// Files and folders by name, on the disk.
#include "platform/core/Folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

namespace fs = std::filesystem;

class Folder : public testing::Test {
  protected:
    Folder() {
        std::string name = (fs::temp_directory_path() / "folderXXXXXX").string();
        m_root = mkdtemp(name.data());
        m_before = fs::current_path();
        fs::current_path(m_root);
    }
    ~Folder() override {
        fs::current_path(m_before);
        fs::remove_all(m_root);
    }
    void Put(const std::string& name) { std::ofstream(m_root / name) << name; }
    std::string Content(const std::string& name) {
        std::string text;
        std::ifstream(m_root / name) >> text;
        return text;
    }
    // Names one after the other, folders with "/" behind.
    static std::string Listed(const char* folder, const char* mask) {
        std::string all;
        for (const FolderEntry& entry : ListFolder(folder, mask))
            all += entry.name.ToUtf8() + (entry.isFolder ? "/ " : " ");
        return all;
    }

    fs::path m_root, m_before;
};

} // namespace

// Faults: "*.*" that wants a full stop, case that counts, a rest behind the last "*" that is not looked for again.
TEST(FolderMask, FitsNames) {
    struct Case {
        const char *mask, *fitting, *other;
    };
    for (const Case& each :
         {Case{"*.*", "senza", nullptr}, Case{"*.asg", "PONTE.ASG", "ponte.asg.bak"}, Case{"VORM*.*", "vorm", "avorm"},
          Case{"a*b?.c*", "aXbXb1.cc", "ab.c"}, Case{"ponte.*", "ponte.inp", "ponte"}, Case{"", "", "a"}}) {
        EXPECT_TRUE(FitsMask(each.fitting, each.mask)) << each.mask;
        EXPECT_FALSE(each.other && FitsMask(each.other, each.mask)) << each.mask;
    }
    EXPECT_TRUE(FitsMask("\xC8.asg", "\xE8.*")); // letters of the code page
    EXPECT_FALSE(FitsMask("a/b", "a\\b"));
}

TEST_F(Folder, IsListedInOneOrderWithItsDotsFirst) {
    for (const char* name : {"b.asg", "C.ASG", "a", "z.txt", ".nascosto", "più.asg"})
        Put(name);
    fs::create_directory(m_root / "Beta");
    fs::create_directory_symlink("Beta", m_root / "alfa");
    EXPECT_EQ(Listed("", "*.*"), "./ ../ .nascosto a alfa/ b.asg Beta/ C.ASG più.asg z.txt ");
    EXPECT_EQ(Listed(m_root.c_str(), "*.asg"), "b.asg C.ASG più.asg ");
    EXPECT_EQ(Listed("nessuna", "*.*"), "");
}

TEST_F(Folder, IsMadeEnteredAndRemoved) {
    EXPECT_TRUE(MakeFolder("citt\xE0"));
    EXPECT_FALSE(MakeFolder("citt\xE0")); // it is there
    EXPECT_FALSE(MakeFolder("x/y"));
    EXPECT_TRUE(ChangeFolder("citt\xE0"));
    EXPECT_EQ(GetCurrentFolder().ToUtf8(), (fs::canonical(m_root) / "città").string());
    EXPECT_TRUE(ChangeFolder(".."));
    Put("città/f");
    EXPECT_FALSE(RemoveFolder("citt\xE0")); // not empty
    EXPECT_FALSE(RemoveFile("citt\xE0"));
    EXPECT_FALSE(RemoveFolder("citt\xE0/f"));
    EXPECT_TRUE(RemoveFile("citt\xE0/f"));
    EXPECT_TRUE(RemoveFolder("citt\xE0"));
    EXPECT_FALSE(ChangeFolder("citt\xE0"));
}

// Faults: what a link leads to removed with it, the folder that somebody stands in removed by its dots.
TEST_F(Folder, IsRemovedWithEverythingInItAndNothingElse) {
    fs::create_directories(m_root / "via/dentro");
    fs::create_directory(m_root / "resta");
    Put("via/dentro/f");
    Put("resta/f");
    fs::create_directory_symlink("../resta", m_root / "via/legame");
    fs::create_directory_symlink("resta", m_root / "legame");
    for (const char* refused : {"", "/", ".", "..", "via/..", "via/../", "resta/f", "nessuna"})
        EXPECT_FALSE(RemoveFolderTree(refused)) << refused;
    EXPECT_TRUE(RemoveFolderTree("via/"));
    EXPECT_TRUE(RemoveFolderTree("legame/"));
    EXPECT_EQ(Listed("", "*"), "./ ../ resta/ ");
    EXPECT_EQ(Content("resta/f"), "resta/f");
}

TEST_F(Folder, RenamingReplacesNothing) {
    Put("a.asg");
    Put("b.asg");
    EXPECT_FALSE(RenameFile("a.asg", "b.asg"));
    EXPECT_EQ(Content("a.asg") + Content("b.asg"), "a.asgb.asg");
    EXPECT_TRUE(RenameFile("a.asg", "perch\xE9.asg"));
    EXPECT_EQ(Content("perché.asg"), "a.asg");
    EXPECT_FALSE(RenameFile("nessuno", "c"));
}
