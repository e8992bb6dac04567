// The resource chain, the start of modules and the compiler of resource scripts.
#include "platform/resource/Resource.h"
#include "platform/resource/Module.h"
#include "platform/window/Dialog.h"
#include "platform/window/Styles.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>

namespace {

using platform::DialogTemplate;
using platform::MenuTemplate;
using platform::ResourceModule;

constexpr DialogTemplate MakeDialog(int id, const char* caption) {
    return {id, 0, 0, 10, 10, caption, 0, 0, "", 0, 0, {}};
}

constexpr std::array hostDialogs = {MakeDialog(60001, "host"), MakeDialog(60002, "host")};
constexpr std::array firstDialogs = {MakeDialog(60002, "first"), MakeDialog(60003, "first")};
constexpr std::array secondDialogs = {MakeDialog(60003, "second"), MakeDialog(60004, "second")};
constexpr std::array firstMenus = {MenuTemplate{60376, 0, {}}};
constexpr std::array<unsigned char, 1> pictureBytes = {'<'};
constexpr std::array hostIcons = {platform::BitmapResource{60355, pictureBytes}};

constexpr ResourceModule hostModule{"host", hostDialogs, {}, {}, hostIcons};
constexpr ResourceModule firstModule{"First", firstDialogs, firstMenus, {}, {}};
constexpr ResourceModule secondModule{"Second", secondDialogs, {}, {}, {}};

std::string CaptionOf(int id) {
    const DialogTemplate* found = platform::FindDialogTemplate(id);
    return found ? found->caption : "none";
}

// Two modules as a program that is linked with them sees them.
struct TestModule {
    const ResourceModule* resources;
    AFX_EXTENSION_MODULE state{};
    int starts = 0;
    bool refusesLate = false; // after its link was made
};
TestModule g_first{&firstModule}, g_second{&secondModule};

template <TestModule& module>
int Entry(HINSTANCE handle, UINT reason) {
    if (reason == DLL_PROCESS_DETACH) {
        AfxTermExtensionModule(module.state);
        return 1;
    }
    if (!AfxInitExtensionModule(module.state, handle, module.resources))
        return 0;
    ++module.starts;
    new CDynLinkLibrary(module.state);
    if (module.refusesLate)
        module.state = {};
    return !module.refusesLate;
}
constexpr auto firstEntry = &Entry<g_first>, secondEntry = &Entry<g_second>;

class ResourceChain : public testing::Test {
  protected:
    void SetUp() override { platform::SetHostResources(&hostModule); }
    void TearDown() override {
        AfxDetachLinkedModule(firstEntry);
        AfxDetachLinkedModule(secondEntry);
        platform::SetHostResources(nullptr);
        g_second.refusesLate = false;
    }
};

// Catches a search that asks a module before the host, or modules in another order than they were loaded.
TEST_F(ResourceChain, HostFirstThenModulesInLoadOrder) {
    const HINSTANCE first = AfxAttachLinkedModule(firstEntry);
    const HINSTANCE second = AfxAttachLinkedModule(secondEntry);
    ASSERT_TRUE(first && second && first != second);
    const char* const captions[] = {"host", "host", "first", "second", "none"};
    for (int id = 0; id < 5; ++id)
        EXPECT_EQ(CaptionOf(60001 + id), captions[id]);

    // Host resources that come late still go in front.
    platform::SetHostResources(nullptr);
    EXPECT_EQ(CaptionOf(60002), "first");
    platform::SetHostResources(&hostModule);
    EXPECT_EQ(CaptionOf(60002), "host");
}

// Catches a handle that names the wrong module, kinds of resources mixed up, and a null handle for what is missing.
TEST_F(ResourceChain, HandlesNameTheModuleThatHoldsTheResource) {
    const HINSTANCE first = AfxAttachLinkedModule(firstEntry);
    const HINSTANCE host = platform::HostInstance();
    EXPECT_EQ(AfxFindResourceHandle(60376, RT_MENU), first);
    EXPECT_EQ(AfxFindResourceHandle(60376, RT_DIALOG), host);
    EXPECT_EQ(AfxFindResourceHandle(60002, RT_DIALOG), host);
    EXPECT_EQ(AfxFindResourceHandle(60355, RT_GROUP_ICON), host);
    EXPECT_TRUE(platform::FindIcon(host, 60355));
    EXPECT_TRUE(platform::FindMenu(first, 60376));
    EXPECT_FALSE(platform::FindMenu(host, 60376));
    EXPECT_STREQ(platform::FindDialogTemplate(first, 60002)->caption, "first");

    EXPECT_EQ(GetModuleHandle("first.dll"), first);
    EXPECT_EQ(GetModuleHandle("/opt/lib/libFirst.so"), first);
    EXPECT_EQ(GetModuleHandle(nullptr), host);
    EXPECT_EQ(GetModuleHandle("third"), nullptr);
}

// Catches a dialog that takes the host's template of the same number.
TEST_F(ResourceChain, ADialogTakesItsTemplateFromTheModuleThatItNames) {
    struct Colours : CDialog {
        explicit Colours(HINSTANCE module) : CDialog(60002) { m_hTemplateModule = module; }
        CString Caption() {
            Create(60002);
            CString text;
            GetWindowText(text);
            return text;
        }
    };
    const HINSTANCE first = AfxAttachLinkedModule(firstEntry);
    EXPECT_EQ(Colours(first).Caption(), "first");
    EXPECT_EQ(Colours(nullptr).Caption(), "host");
    AfxDetachLinkedModule(firstEntry);
    EXPECT_EQ(Colours(first).DoModal(), -1);
}

// Catches a module that stays in the chain after its end or takes a neighbour's resources along, and a second start of
// a running one, which would put its resources into the chain twice.
TEST_F(ResourceChain, AModuleStartsOnceAndDetachTakesOutOnlyIt) {
    const int before = g_first.starts;
    const HINSTANCE first = AfxAttachLinkedModule(firstEntry);
    EXPECT_EQ(AfxAttachLinkedModule(firstEntry), first);
    EXPECT_EQ(g_first.starts, before + 1);
    AFX_EXTENSION_MODULE again = g_first.state;
    EXPECT_FALSE(AfxInitExtensionModule(again, first, &firstModule));
    AfxAttachLinkedModule(secondEntry);
    EXPECT_TRUE(AfxDetachLinkedModule(firstEntry));
    EXPECT_FALSE(AfxDetachLinkedModule(firstEntry));
    EXPECT_FALSE(g_first.state.bInitialized);
    EXPECT_EQ(CaptionOf(60003), "second");
    EXPECT_EQ(platform::FindMenu(60376), nullptr);
    EXPECT_EQ(CaptionOf(60001), "host");
    EXPECT_TRUE(AfxAttachLinkedModule(firstEntry)); // a detached one may start again
}

// Catches a refusal that is ignored, or that leaves resources of the refusing module behind.
TEST_F(ResourceChain, ARefusedStartLeavesTheChainAsItWas) {
    AFX_EXTENSION_MODULE empty;
    EXPECT_FALSE(AfxInitExtensionModule(empty, nullptr, &firstModule));
    EXPECT_FALSE(AfxInitExtensionModule(empty, &empty, nullptr));
    EXPECT_FALSE(empty.bInitialized);
    { const CDynLinkLibrary harmless(empty); }

    g_first.state = {TRUE, &g_first.state, &firstModule}; // as if it ran already
    EXPECT_EQ(AfxAttachLinkedModule(firstEntry), nullptr);
    EXPECT_EQ(CaptionOf(60003), "none");
    g_first.state = {};

    g_second.refusesLate = true;
    EXPECT_EQ(AfxAttachLinkedModule(secondEntry), nullptr);
    EXPECT_EQ(CaptionOf(60004), "none");
    EXPECT_FALSE(AfxDetachLinkedModule(secondEntry));
    EXPECT_EQ(AfxAttachLinkedModule(nullptr), nullptr);
}

// Catches a loader that crashes on files that are no modules or hands out a handle for them.
TEST_F(ResourceChain, FilesThatAreNoModulesDoNotLoad) {
    for (const char* path : {"", "/nowhere/libMissing.so", "/proc/self/cmdline", "libm.so.6"}) {
        EXPECT_EQ(AfxLoadLibrary(path), nullptr) << path;
        EXPECT_STRNE(AfxGetLoadError(), "") << path;
    }
    EXPECT_EQ(AfxLoadLibrary(nullptr), nullptr);
    EXPECT_FALSE(AfxFreeLibrary(nullptr));
}

// Runs the compiler, which stands beside this program, in a folder of its own.
class Compiler : public testing::Test {
  protected:
    struct Result {
        int status;
        std::string errors;
        std::string output;
    };

    void SetUp() override {
        std::string name = (std::filesystem::temp_directory_path() / "rescompilerXXXXXX").string();
        m_folder = mkdtemp(name.data());
        Put("a.svg", "<svg/>");
        Put("ids.h", "#pragma once\nenum : int { IDD_ONE = 9001 /* a dialog */, IDC_BACK = -1 };\n");
    }
    void TearDown() override { std::filesystem::remove_all(m_folder); }

    void Put(const std::string& name, const std::string& text) { std::ofstream(m_folder / name) << text; }
    std::string Get(const std::string& name) {
        std::stringstream text;
        text << std::ifstream(m_folder / name).rdbuf();
        return text.str();
    }

    Result Compile(const std::string& script) {
        Put("t.rc", script);
        const auto tool = std::filesystem::read_symlink("/proc/self/exe").parent_path() / "rescompiler";
        const std::string command =
            "cd " + m_folder.string() + " && '" + tool.string() + "' Tables out.cpp out.d . t.rc 2>errors";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, Get("errors"), Get("out.cpp")};
    }

    std::filesystem::path m_folder;
};

std::string Hex(DWORD style) {
    std::ostringstream text;
    text << "0x" << std::hex << style << 'u';
    return text.str();
}

// Catches a lost default style, NOT that clears nothing, a combo box whose type is mixed with the default one, texts
// in the wrong code page, escapes that run into a following digit, and names that are not looked up.
TEST_F(Compiler, WritesWhatTheScriptSays) {
    const Result result = Compile("#include \"ids.h\"\n/* a\n comment */ 7 BITMAP \"a.svg\"\n"
                                  "IDD_ONE DIALOGEX 1, 2, 100, 50, 3\nSTYLE WS_POPUP | WS_CAPTION\n"
                                  "CAPTION \"Perch\u00e9 \"\"9\"\"\"\nFONT 8, \"MS Sans Serif\", 400, 0, 1\nBEGIN\n"
                                  "  LTEXT \"\u00e01\", IDC_BACK, 0, 0, 10, 8, NOT WS_GROUP\n"
                                  "  EDITTEXT 0x10, 0, 10, 10, 8, ES_RIGHT | NOT WS_TABSTOP\n"
                                  "  COMBOBOX 17, 0, 20, 10, 8, CBS_DROPDOWN\n  COMBOBOX 18, 0, 30, 10, 8\n"
                                  "  CONTROL 7, 65535, \"static\", SS_BITMAP, 20, 0, 10, 8\n"
                                  "  CONTROL \"\", 19, \"MSCTLS_UPDOWN32\", UDS_AUTOBUDDY, 40, 0, 10, 8\nEND\n"
                                  "5 MENU { POPUP \"&P\" { MENUITEM \"A\\tF2\", 6, GRAYED MENUITEM SEPARATOR } }\n");
    ASSERT_EQ(result.status, 0) << result.errors;
    const auto has = [&](const std::string& line) {
        EXPECT_NE(result.output.find(line), std::string::npos) << line << "\nnot in\n" << result.output;
    };
    const DWORD shown = WS_CHILD | WS_VISIBLE;
    has("{9001, 1, 2, 100, 50, \"Perch\\351 \\0429\\042\", " + Hex(WS_POPUP | WS_CAPTION | DS_SETFONT));
    has("{Kind::Static, \"Static\", \"\\3401\", -1, 0, 0, 10, 8, " + Hex(shown) + ", 0x0u, 0}");
    has("{Kind::Edit, \"Edit\", \"\", 16, 0, 10, 10, 8, " + Hex(shown | WS_BORDER | ES_RIGHT) + ", 0x0u, 0}");
    has("17, 0, 20, 10, 8, " + Hex(shown | WS_TABSTOP | CBS_DROPDOWN));
    has("18, 0, 30, 10, 8, " + Hex(shown | WS_TABSTOP | CBS_SIMPLE));
    has("{Kind::Static, \"Static\", \"\", -1, 20, 0, 10, 8, " + Hex(shown | SS_BITMAP) + ", 0x0u, 7}");
    has("{Kind::Custom, \"msctls_updown32\", \"\", 19, 40, 0, 10, 8, " + Hex(shown | UDS_AUTOBUDDY));
    has("{0, \"&P\", false, true, 2, false, false}");
    has("{6, \"A\\011F2\", false, false, 0, true, false}");
    has("constexpr unsigned char bitmap7[] = {\n    60,115,118,103,47,62,");
    EXPECT_NE(Get("out.d").find("ids.h"), std::string::npos);
    EXPECT_NE(Get("out.d").find("a.svg"), std::string::npos);
}

// Two dialogs with one name for different numbers, among what else a header holds.
const char* const dialogsHeader = R"(#include "other.h"
namespace inner { enum : int { IDC_X = 66 }; }
template <class T> class CBase;
class MARK CFirst final : public CBase<CFirst> { // IDC_X = 1,
  public:
    enum : unsigned { IDD = 9011 };
    enum : int { IDC_X = 1'119, IDC_Y, IDC_Z = IDC_X + 2, IDC_MASK = 1 << 3, IDC_NEXT };
    enum class Kind : int { Beam, Truss = 0x7, Wall };
    void Set(class CSecond& second, const char* text = "};", char c = '"') { enum { IDC_LOCAL = 5 }; }
    int m_count{1};
};
struct CSecond { enum { IDD = 9012, IDC_X = 20u - 1, IDC_ONLY = CFirst::IDC_Y + 100 }; };
)";

// Catches a name that is taken from another class than the dialog's, a value that is counted or added up wrongly, a
// header that the next build does not look at, and an output written anew though it says the same.
TEST_F(Compiler, NamesAreThoseOfTheDialogsClass) {
    Put("dialogs.h", dialogsHeader);
    const std::string head = "#include \"dialogs.h\"\n#define IDB_ONE 7\n";
    const std::pair<const char*, const char*> names[] = {
        {"IDC_X", "1119"},    {"IDC_Y", "1120"},      {"IDC_Z", "1121"},        {"IDC_X + 5 - 1", "1123"},
        {"Kind::Wall", "8"},  {"inner::IDC_X", "66"}, {"CSecond::IDC_X", "19"}, {"CSecond::IDC_ONLY", "1220"},
        {"IDC_STATIC", "-1"}, {"IDCANCEL", "2"},      {"IDB_ONE", "7"},
    };
    std::string script = head + "CFirst::IDD DIALOG 0, 0, 9, 9 {\n";
    for (const auto& [name, number] : names)
        script += "EDITTEXT " + std::string(name) + ", 0, 0, 9, 8\n";
    script += "}\nCSecond::IDD MENU { MENUITEM \"X\", IDC_X }\n";
    const Result result = Compile(script);
    EXPECT_EQ(result.errors, "");
    for (const auto& [name, number] : names)
        EXPECT_NE(result.output.find("\"\", " + std::string(number) + ", 0, 0, 9, 8"), std::string::npos) << name;
    EXPECT_NE(result.output.find("{19, \"X\""), std::string::npos) << "the menu's class is another";
    EXPECT_NE(Get("out.d").find("dialogs.h"), std::string::npos);
    const auto written = std::filesystem::last_write_time(m_folder / "out.cpp");
    Compile(script);
    EXPECT_EQ(std::filesystem::last_write_time(m_folder / "out.cpp"), written);

    const std::pair<const char*, const char*> faults[] = {
        {"IDC_ONLY", "IDC_ONLY is a name of CSecond"},   {"IDC_LOCAL", "unknown name IDC_LOCAL"},
        {"IDC_MASK", "unknown name IDC_MASK"},           {"IDC_NEXT", "unknown name IDC_NEXT"},
        {"CThird::IDC_X", "unknown name CThird::IDC_X"},
    };
    for (const auto& [name, message] : faults)
        EXPECT_EQ(Compile(head + "CFirst::IDD DIALOG 0, 0, 9, 9 {\nEDITTEXT " + name + ", 0, 0, 9, 8 }").errors,
                  "t.rc:4: " + std::string(message) + "\n");
    EXPECT_EQ(Compile(head + "CFirst::IDD DIALOG 0, 0, 9, 9 {}\nIDC_X MENU {}").errors,
              "t.rc:4: IDC_X is a name of CFirst\n")
        << "the class's names end with its dialog";
}

// Catches a broken script that compiles, or a message without its place.
TEST_F(Compiler, FaultsEndTheBuildWithTheirPlace) {
    Put("bad.h", "enum { IDC_X = 1 };\nenum { IDC_X = 2 };\n");
    EXPECT_NE(Compile("").output, ""); // a stale one, for the first fault to take away
    const std::pair<const char*, const char*> inDialogs[] = {
        {"LTEXT \"a\", 5, 0, 0, 9, 8\nLTEXT \"b\", 5, 9, 0, 9, 8", "t.rc:5: control 5 is there twice in dialog 9001"},
        {"EDITTEXT 5, 95, 0, 6, 8", "t.rc:4: control 5 reaches out of dialog 9001"},
        {"EDITTEXT 5, 9, 0, 6, 8, ES_LEFTISH", "t.rc:4: unknown style ES_LEFTISH"},
        {"CONTROL \"\", 5, \"Dial\", 0, 0, 0, 6, 8", "t.rc:4: unknown class \"Dial\""},
        {"CONTROL 8, 5, \"Static\", SS_BITMAP, 0, 0, 6, 8", "t.rc:4: bitmap 8 is missing"},
        {"LTEXT \"\u0416\", 5, 0, 0, 9, 8", "t.rc:4: \"\u0416\" has characters outside the code page"},
        // The window layer makes no scroll bar of its own: the dialog would open without it.
        {"SCROLLBAR 5, 0, 0, 9, 8", "t.rc:4: unknown control SCROLLBAR"},
        {"CONTROL \"\", 5, \"ScrollBar\", 0, 0, 0, 6, 8", "t.rc:4: unknown class \"ScrollBar\""},
        {"KNOB 5, 0, 0, 9, 8", "t.rc:4: unknown control KNOB"},
        {"EDITTEXT IDC_NONE, 0, 0, 9, 8", "t.rc:4: unknown name IDC_NONE"},
        {"LTEXT \"a, 5, 0, 0, 9, 8", "t.rc:4: text without closing quote"},
        {"EDITTEXT 5, 0, 0, 9", "t.rc:5: expected a comma instead of \"END\""},
    };
    const std::pair<const char*, const char*> outside[] = {
        {"7 BITMAP \"b.svg\"", "t.rc:1: cannot read b.svg"},
        {"7 BITMAP \"ids.h\"", "t.rc:1: ids.h is no SVG picture"},
        {"1 DIALOG 0,0,9,9 {}\n1 DIALOG 0,0,9,9 {}", "t.rc:2: dialog 1 is there twice"},
        {"1 DIALOG 0, 0, 9, 9\nBEGIN\n", "t.rc:2: dialog 1 without END"},
        {"1 CURSOR \"c\"", "t.rc:1: unknown kind of resource \"CURSOR\""},
        {"#define IDC_X (1", "t.rc:1: IDC_X is not defined as a number"},
        {"#include \"bad.h\"", "bad.h:2: IDC_X is defined twice"},
        {"#include \"none.h\"", "t.rc:1: cannot read none.h"},
    };
    const auto expectFault = [this](const std::string& script, const char* message) {
        const Result result = Compile(script);
        EXPECT_EQ(result.status, 1) << script;
        EXPECT_EQ(result.errors, std::string(message) + "\n");
        EXPECT_EQ(result.output, "") << "an output was left for " << script;
    };
    for (const auto& [controls, message] : inDialogs)
        expectFault("9001 DIALOG 0, 0, 100, 50\nCAPTION \"C\"\nBEGIN\n" + std::string(controls) + "\nEND\n", message);
    for (const auto& [script, message] : outside)
        expectFault(script, message);
}

} // namespace
