// Contracts over all dialog templates, menus and pictures of the module at once. A new template is checked without a
// line here.
#include "dialogs/frame/Module.h"
#include "dialogs/generation/DialogDividiLinea.h"
#include "dialogs/generation/DialogGenNodiArco3Punti.h"
#include "dialogs/generation/DialogGenNodiArcoCentro.h"
#include "dialogs/generation/DialogGenNodiLineare.h"
#include "dialogs/loads/DialogCreaCombinazione.h"
#include "dialogs/loads/DialogListaCasiCarico.h"
#include "dialogs/results/DialogDiagrammi.h"
#include "dialogs/selection/DialogCopiaTrasla.h"
#include "platform/drawing/DeviceContext.h"
#include "platform/drawing/Gdi.h"
#include "platform/resource/Module.h"
#include "platform/resource/Resource.h"
#include "platform/resource/Units.h"
#include "platform/window/Dialog.h"
#include "platform/window/Styles.h"
#include "tests/dialogs/TemplateInventory.h"
#include "tests/support/DialogTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace resources {
extern const platform::ResourceModule Quovar_Dialogs;
}

namespace {

using platform::ControlTemplate;
using platform::DialogTemplate;
using Kind = ControlTemplate::Kind;

constexpr int colourTemplate = 251; // the one with another font
using inventory::fileMenu, inventory::scaleMenu;

// Controls that are laid over others while they are shown, and hidden until then.
const std::set<std::pair<int, int>> inPlaceEditors = {{CDialogCopiaTrasla::IDD, CDialogCopiaTrasla::IDC_EDIT_LISTA}};

// Keys that two fixed texts claim: pressed again, the key goes on to the other one.
const std::set<std::pair<int, char>> sharedMnemonics = {{CDialogCreaCombinazione::IDD, 'C'},
                                                        {CDialogDividiLinea::IDD, 'N'},
                                                        {CDialogGenNodiArco3Punti::IDD, 'P'},
                                                        {CDialogGenNodiArcoCentro::IDD, 'P'},
                                                        {CDialogListaCasiCarico::IDD, 'C'}};

DWORD ButtonType(const ControlTemplate& control) {
    return control.style & BS_TYPEMASK;
}
bool IsGroupBox(const ControlTemplate& control) {
    return control.kind == Kind::Button && ButtonType(control) == BS_GROUPBOX;
}
bool IsRadio(const ControlTemplate& control) {
    return control.kind == Kind::Button &&
           (ButtonType(control) == BS_RADIOBUTTON || ButtonType(control) == BS_AUTORADIOBUTTON);
}
bool IsPicture(const ControlTemplate& control) {
    return control.kind == Kind::Static && (control.style & SS_TYPEMASK) == SS_BITMAP;
}
CSize SizeOf(int cx, int cy) { // of dialog units, in pixels
    return {platform::UnitsToX(cx), platform::UnitsToY(cy)};
}
CRect UnitsOf(const ControlTemplate& control) {
    return {control.x, control.y, control.x + control.cx, control.y + control.cy};
}
bool Overlap(const CRect& a, const CRect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}
bool Contains(const CRect& outer, const CRect& inner) {
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}

// A spin that aligns itself takes a strip of the edit before it.
bool IsSpinInItsBuddy(const ControlTemplate& edit, const ControlTemplate& spin) {
    return edit.kind == Kind::Edit && std::string(spin.className) == "msctls_updown32" &&
           (spin.style & (UDS_ALIGNRIGHT | UDS_ALIGNLEFT)) && Contains(UnitsOf(edit), UnitsOf(spin));
}

std::string Where(const DialogTemplate& dialog, const ControlTemplate& control) {
    return std::to_string(dialog.id) + ": control " + std::to_string(control.id) + " \"" + control.text + "\" at " +
           std::to_string(control.x) + "," + std::to_string(control.y);
}

// Text without mnemonic marks, with doubled ones made single.
CString ShownText(const char* text) {
    std::string shown;
    for (const char* c = text; *c; ++c)
        if (*c != '&' || *++c)
            shown += *c;
        else
            break;
    return CString(shown.c_str());
}

// Upper case, 0 for none.
char Mnemonic(const char* text) {
    for (const char* c = text; *c; ++c)
        if (*c == '&' && *++c != '&')
            return static_cast<char>(std::toupper(static_cast<unsigned char>(*c)));
    return 0;
}

// Pixels beside the text that the kind of control needs: the box of a check, the frame of a button or group.
int RoomBesideText(const ControlTemplate& control) {
    if (control.kind != Kind::Button)
        return 0;
    return ButtonType(control) == BS_PUSHBUTTON || ButtonType(control) == BS_DEFPUSHBUTTON ? 8 : 16;
}

// Smallest group box around a control, null for none.
const ControlTemplate* GroupAround(const DialogTemplate& dialog, const ControlTemplate& control) {
    const ControlTemplate* around = nullptr;
    for (const ControlTemplate& box : dialog.controls)
        if (&box != &control && IsGroupBox(box) && Contains(UnitsOf(box), UnitsOf(control)) &&
            (!around || box.cx * box.cy < around->cx * around->cy))
            around = &box;
    return around;
}

class Templates : public testing::Test {
  protected:
    Templates() { AttachDialogModule(); }

    std::span<const DialogTemplate> m_dialogs = resources::Quovar_Dialogs.dialogs;
};

// Catches a caption with other blanks, a lost picture, another font, and a template that the chain does not find.
TEST_F(Templates, FixedPropertiesAreKept) {
    const std::map<int, std::string> captions = inventory::Captions();
    ASSERT_EQ(captions.size(), 88u);
    for (const DialogTemplate& dialog : m_dialogs) {
        ASSERT_TRUE(captions.contains(dialog.id)) << "no template has the number " << dialog.id;
        EXPECT_EQ(platform::FindDialogTemplate(dialog.id), &dialog);
        EXPECT_EQ(dialog.caption, captions.at(dialog.id));
        EXPECT_STREQ(dialog.fontFace, dialog.id == colourTemplate ? "Helv" : "MS Sans Serif") << dialog.id;
        EXPECT_EQ(dialog.fontPoints, 8) << dialog.id;
        const auto picture = std::ranges::find_if(dialog.controls, IsPicture);
        const bool found = picture != dialog.controls.end();
        const auto fixed = inventory::pictures.find(dialog.id);
        EXPECT_EQ(found ? picture->image : 0, fixed == inventory::pictures.end() ? 0 : fixed->second) << dialog.id;
        if (found) {
            EXPECT_EQ(CPoint(picture->x, picture->y), CPoint(7, 7)) << dialog.id;
            EXPECT_EQ(CSize(picture->cx, picture->cy), CSize(84, 64)) << dialog.id;
        }
    }
}

// Catches controls over each other, and a group box that cuts through one.
TEST_F(Templates, NoTwoControlsOverlap) {
    for (const DialogTemplate& dialog : m_dialogs)
        for (std::size_t i = 0; i < dialog.controls.size(); ++i)
            for (std::size_t j = i + 1; j < dialog.controls.size(); ++j) {
                const ControlTemplate& a = dialog.controls[i];
                const ControlTemplate& b = dialog.controls[j];
                if (inPlaceEditors.contains({dialog.id, a.id}) || inPlaceEditors.contains({dialog.id, b.id}))
                    continue;
                const bool nested = (IsGroupBox(a) && Contains(UnitsOf(a), UnitsOf(b))) ||
                                    (IsGroupBox(b) && Contains(UnitsOf(b), UnitsOf(a))) ||
                                    (j == i + 1 && IsSpinInItsBuddy(a, b));
                EXPECT_TRUE(nested || !Overlap(UnitsOf(a), UnitsOf(b)))
                    << Where(dialog, a) << " and " << Where(dialog, b);
            }
}

// Catches two texts that claim one key, and an editor that shows before its time.
TEST_F(Templates, MnemonicsAreUnique) {
    for (const DialogTemplate& dialog : m_dialogs) {
        std::set<char> taken;
        for (const ControlTemplate& control : dialog.controls) {
            if (const char key = Mnemonic(control.text)) {
                EXPECT_TRUE(taken.insert(key).second || sharedMnemonics.contains({dialog.id, key}))
                    << Where(dialog, control);
            }
            if (inPlaceEditors.contains({dialog.id, control.id})) {
                EXPECT_EQ(control.style & WS_VISIBLE, 0u) << Where(dialog, control);
            }
        }
    }
}

// Catches a focus that jumps back: inside one group box, and among the controls outside all of them, the next tab stop
// stands lower or wholly to the right.
TEST_F(Templates, FocusFollowsReadingOrder) {
    for (const DialogTemplate& dialog : m_dialogs) {
        std::map<const ControlTemplate*, const ControlTemplate*> last;
        for (const ControlTemplate& control : dialog.controls) {
            if (!(control.style & WS_TABSTOP))
                continue;
            const ControlTemplate*& before = last[GroupAround(dialog, control)];
            if (before) {
                EXPECT_TRUE(control.y >= before->y + before->cy || control.x >= before->x + before->cx)
                    << Where(dialog, control) << " after " << Where(dialog, *before);
            }
            before = &control;
        }
    }
}

// Catches a radio group that swallows the next control or cannot be reached, two default buttons, and a spin that
// takes a wrong control for its buddy.
TEST_F(Templates, GroupsAndBuddiesAreClosed) {
    for (const DialogTemplate& dialog : m_dialogs) {
        int defaults = 0;
        const ControlTemplate* before = nullptr;
        for (const ControlTemplate& control : dialog.controls) {
            if (IsRadio(control) && (!before || !IsRadio(*before))) {
                EXPECT_EQ(control.style & (WS_GROUP | WS_TABSTOP), WS_GROUP | WS_TABSTOP) << Where(dialog, control);
            }
            if (before && IsRadio(*before) && !IsRadio(control)) {
                EXPECT_TRUE(control.style & WS_GROUP) << Where(dialog, control);
            }
            if (std::string(control.className) == "msctls_updown32" && (control.style & UDS_AUTOBUDDY)) {
                EXPECT_TRUE(before && before->kind == Kind::Edit) << Where(dialog, control);
            }
            defaults += control.kind == Kind::Button && ButtonType(control) == BS_DEFPUSHBUTTON;
            before = &control;
        }
        EXPECT_LE(defaults, 1) << dialog.id;
    }
}

// Catches a control that the window layer does not make, or makes with another text or outside the dialog, and a label
// cut at its right edge, in the font that the user sees.
TEST_F(Templates, OpenWithEveryControlAndRoomForItsText) {
    for (const DialogTemplate& source : m_dialogs) {
        CDialog dialog;
        ASSERT_TRUE(dialog.Create(source.id));
        CClientDC device(&dialog);
        CFont font;
        font.CreatePointFont(source.fontPoints * 10, source.fontFace);
        CFont* previous = device.SelectObject(&font);
        CRect client;
        dialog.GetClientRect(client);
        EXPECT_EQ(client.Size(), SizeOf(source.cx, source.cy)) << source.id;
        for (const ControlTemplate& control : source.controls) {
            const CSize room = SizeOf(control.cx, control.cy);
            const CSize text = device.GetTextExtent(ShownText(control.text));
            EXPECT_LE(text.cx + RoomBesideText(control), room.cx) << Where(source, control);
            EXPECT_TRUE(text.cy <= room.cy || !*control.text) << Where(source, control);
            if (control.id == -1)
                continue;
            const CWnd* window = dialog.GetDlgItem(control.id);
            ASSERT_TRUE(window) << Where(source, control);
            CRect bounds;
            window->GetWindowRect(bounds);
            dialog.ScreenToClient(bounds);
            EXPECT_TRUE(Contains(client, bounds)) << Where(source, control);
            if (control.kind == Kind::Button || control.kind == Kind::Static) {
                EXPECT_STREQ(window->GetWindowText(), control.text);
            }
        }
        device.SelectObject(previous);
        dialog.DestroyWindow();
    }
}

// Catches a picture that cannot be drawn.
TEST_F(Templates, PicturesAreReadable) {
    for (const platform::BitmapResource& picture : resources::Quovar_Dialogs.bitmaps) {
        CBitmap bitmap;
        EXPECT_TRUE(bitmap.LoadBitmap(picture.id)) << picture.id;
    }
}

// Catches a command number that differs from what host and dialogs share: a wrong number in a header is as wrong in the
// script, so the numbers stand here once more.
TEST_F(Templates, MenusHaveTheSharedCommands) {
    using Numbers = std::vector<int>;
    const auto numbers = [](int menu) {
        Numbers found;
        for (const platform::MenuItemTemplate& item : platform::FindMenu(menu)->items)
            if (!item.separator && !item.popup)
                found.push_back(item.id);
        return found;
    };
    EXPECT_EQ(numbers(scaleMenu), (Numbers{40001, 40005, 40003, 40004}));
    EXPECT_EQ(numbers(CDialogDiagrammi::IDR_MENU_DIAGRAMMI),
              (Numbers{33110, 33111, 33112, 33113, 33114, 33115, 40006, 40007, 40008, 33117, 33119}));
    EXPECT_EQ(numbers(fileMenu), (Numbers{57600, 33163, 33158, 33162, 33159}));
}

// Takes the linked module out for a test that starts it another way.
class ModuleStart : public testing::Test {
  protected:
    ModuleStart() {
        AttachDialogModule();
        AfxDetachLinkedModule(&QuovarModuleEntry);
    }
    ~ModuleStart() override { AfxAttachLinkedModule(&QuovarModuleEntry); }

    const std::string m_library =
        (std::filesystem::read_symlink("/proc/self/exe").parent_path() / "libQuovar_Dialogs.so").string();
};

// Catches a module that loads without its resources, starts at each load, or leaves them behind at its end.
TEST_F(ModuleStart, LoadedByPathItJoinsTheChainUntilItIsFreed) {
    EXPECT_EQ(platform::FindDialogTemplate(CDialogGenNodiLineare::IDD), nullptr);
    const HINSTANCE module = AfxLoadLibrary(m_library.c_str());
    ASSERT_TRUE(module) << AfxGetLoadError();
    EXPECT_TRUE(platform::FindDialogTemplate(CDialogGenNodiLineare::IDD));
    EXPECT_EQ(AfxFindResourceHandle(fileMenu, RT_MENU), module);
    EXPECT_EQ(GetModuleHandle("Quovar_Dialogs.dll"), module);

    EXPECT_EQ(AfxLoadLibrary(m_library.c_str()), module);
    EXPECT_TRUE(AfxFreeLibrary(module));
    EXPECT_TRUE(platform::FindDialogTemplate(CDialogGenNodiLineare::IDD));
    EXPECT_TRUE(AfxFreeLibrary(module));
    EXPECT_EQ(platform::FindDialogTemplate(CDialogGenNodiLineare::IDD), nullptr);
    EXPECT_FALSE(AfxFreeLibrary(module));
}

// Catches a failed start that is taken for a load: the state is in use already, so the initialisation fails.
TEST_F(ModuleStart, AFailedStartMakesLoadingFail) {
    const HINSTANCE linked = AfxAttachLinkedModule(&QuovarModuleEntry);
    ASSERT_TRUE(linked);
    EXPECT_EQ(AfxLoadLibrary(m_library.c_str()), nullptr);
    EXPECT_NE(std::string(AfxGetLoadError()).find("refused to start"), std::string::npos);
    EXPECT_EQ(AfxFindResourceHandle(CDialogGenNodiLineare::IDD, RT_DIALOG), linked); // the running one is untouched

    AfxDetachLinkedModule(&QuovarModuleEntry);
    EXPECT_EQ(QuovarModuleEntry(nullptr, DLL_PROCESS_ATTACH), 0);
    EXPECT_EQ(platform::FindDialogTemplate(CDialogGenNodiLineare::IDD), nullptr);
    EXPECT_EQ(QuovarModuleEntry(nullptr, DLL_THREAD_ATTACH), 1); // other notifications do nothing
    EXPECT_EQ(QuovarModuleEntry(nullptr, DLL_PROCESS_DETACH), 1);
}

} // namespace
