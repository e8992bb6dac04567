#include "tools/rescompiler/Symbols.h"

#include "platform/window/Messages.h"
#include "platform/window/Styles.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <unordered_map>
#include <utility>

namespace rescompiler {
namespace {

// The window layer's own constants, so that a script and a control can never disagree on a bit.
const std::unordered_map<std::string, std::uint32_t>& Styles() {
    static const std::unordered_map<std::string, std::uint32_t> styles = {
        {"WS_OVERLAPPED", WS_OVERLAPPED},
        {"WS_POPUP", WS_POPUP},
        {"WS_CHILD", WS_CHILD},
        {"WS_MINIMIZE", WS_MINIMIZE},
        {"WS_VISIBLE", WS_VISIBLE},
        {"WS_DISABLED", WS_DISABLED},
        {"WS_CLIPSIBLINGS", WS_CLIPSIBLINGS},
        {"WS_CLIPCHILDREN", WS_CLIPCHILDREN},
        {"WS_MAXIMIZE", WS_MAXIMIZE},
        {"WS_CAPTION", WS_CAPTION},
        {"WS_BORDER", WS_BORDER},
        {"WS_DLGFRAME", WS_DLGFRAME},
        {"WS_VSCROLL", WS_VSCROLL},
        {"WS_HSCROLL", WS_HSCROLL},
        {"WS_SYSMENU", WS_SYSMENU},
        {"WS_THICKFRAME", WS_THICKFRAME},
        {"WS_GROUP", WS_GROUP},
        {"WS_TABSTOP", WS_TABSTOP},
        {"WS_MINIMIZEBOX", WS_MINIMIZEBOX},
        {"WS_MAXIMIZEBOX", WS_MAXIMIZEBOX},
        {"WS_EX_CLIENTEDGE", WS_EX_CLIENTEDGE},
        {"WS_EX_STATICEDGE", WS_EX_STATICEDGE},
        {"WS_EX_TOOLWINDOW", WS_EX_TOOLWINDOW},
        {"DS_ABSALIGN", DS_ABSALIGN},
        {"DS_SETFONT", DS_SETFONT},
        {"DS_MODALFRAME", DS_MODALFRAME},
        {"DS_CONTROL", DS_CONTROL},
        {"DS_CENTER", DS_CENTER},
        {"BS_PUSHBUTTON", BS_PUSHBUTTON},
        {"BS_DEFPUSHBUTTON", BS_DEFPUSHBUTTON},
        {"BS_CHECKBOX", BS_CHECKBOX},
        {"BS_AUTOCHECKBOX", BS_AUTOCHECKBOX},
        {"BS_RADIOBUTTON", BS_RADIOBUTTON},
        {"BS_3STATE", BS_3STATE},
        {"BS_AUTO3STATE", BS_AUTO3STATE},
        {"BS_GROUPBOX", BS_GROUPBOX},
        {"BS_AUTORADIOBUTTON", BS_AUTORADIOBUTTON},
        {"BS_OWNERDRAW", BS_OWNERDRAW},
        {"BS_LEFTTEXT", BS_LEFTTEXT},
        {"BS_ICON", BS_ICON},
        {"BS_BITMAP", BS_BITMAP},
        {"BS_PUSHLIKE", BS_PUSHLIKE},
        {"BS_MULTILINE", BS_MULTILINE},
        {"BS_NOTIFY", BS_NOTIFY},
        {"BS_FLAT", BS_FLAT},
        {"ES_LEFT", ES_LEFT},
        {"ES_CENTER", ES_CENTER},
        {"ES_RIGHT", ES_RIGHT},
        {"ES_MULTILINE", ES_MULTILINE},
        {"ES_UPPERCASE", ES_UPPERCASE},
        {"ES_LOWERCASE", ES_LOWERCASE},
        {"ES_PASSWORD", ES_PASSWORD},
        {"ES_AUTOVSCROLL", ES_AUTOVSCROLL},
        {"ES_AUTOHSCROLL", ES_AUTOHSCROLL},
        {"ES_NOHIDESEL", ES_NOHIDESEL},
        {"ES_READONLY", ES_READONLY},
        {"ES_WANTRETURN", ES_WANTRETURN},
        {"ES_NUMBER", ES_NUMBER},
        {"SS_LEFT", SS_LEFT},
        {"SS_CENTER", SS_CENTER},
        {"SS_RIGHT", SS_RIGHT},
        {"SS_ICON", SS_ICON},
        {"SS_BLACKRECT", SS_BLACKRECT},
        {"SS_GRAYRECT", SS_GRAYRECT},
        {"SS_WHITERECT", SS_WHITERECT},
        {"SS_BLACKFRAME", SS_BLACKFRAME},
        {"SS_GRAYFRAME", SS_GRAYFRAME},
        {"SS_WHITEFRAME", SS_WHITEFRAME},
        {"SS_SIMPLE", SS_SIMPLE},
        {"SS_LEFTNOWORDWRAP", SS_LEFTNOWORDWRAP},
        {"SS_OWNERDRAW", SS_OWNERDRAW},
        {"SS_BITMAP", SS_BITMAP},
        {"SS_ETCHEDHORZ", SS_ETCHEDHORZ},
        {"SS_ETCHEDVERT", SS_ETCHEDVERT},
        {"SS_ETCHEDFRAME", SS_ETCHEDFRAME},
        {"SS_NOPREFIX", SS_NOPREFIX},
        {"SS_NOTIFY", SS_NOTIFY},
        {"SS_CENTERIMAGE", SS_CENTERIMAGE},
        {"SS_SUNKEN", SS_SUNKEN},
        {"LBS_NOTIFY", LBS_NOTIFY},
        {"LBS_SORT", LBS_SORT},
        {"LBS_NOREDRAW", LBS_NOREDRAW},
        {"LBS_MULTIPLESEL", LBS_MULTIPLESEL},
        {"LBS_NOINTEGRALHEIGHT", LBS_NOINTEGRALHEIGHT},
        {"LBS_MULTICOLUMN", LBS_MULTICOLUMN},
        {"LBS_WANTKEYBOARDINPUT", LBS_WANTKEYBOARDINPUT},
        {"LBS_EXTENDEDSEL", LBS_EXTENDEDSEL},
        {"LBS_NOSEL", LBS_NOSEL},
        {"CBS_SIMPLE", CBS_SIMPLE},
        {"CBS_DROPDOWN", CBS_DROPDOWN},
        {"CBS_DROPDOWNLIST", CBS_DROPDOWNLIST},
        {"CBS_AUTOHSCROLL", CBS_AUTOHSCROLL},
        {"CBS_SORT", CBS_SORT},
        {"CBS_HASSTRINGS", CBS_HASSTRINGS},
        {"CBS_NOINTEGRALHEIGHT", CBS_NOINTEGRALHEIGHT},
        {"UDS_WRAP", UDS_WRAP},
        {"UDS_SETBUDDYINT", UDS_SETBUDDYINT},
        {"UDS_ALIGNRIGHT", UDS_ALIGNRIGHT},
        {"UDS_ALIGNLEFT", UDS_ALIGNLEFT},
        {"UDS_AUTOBUDDY", UDS_AUTOBUDDY},
        {"UDS_ARROWKEYS", UDS_ARROWKEYS},
        {"UDS_HORZ", UDS_HORZ},
        {"UDS_NOTHOUSANDS", UDS_NOTHOUSANDS},
        {"TVS_HASBUTTONS", TVS_HASBUTTONS},
        {"TVS_HASLINES", TVS_HASLINES},
        {"TVS_LINESATROOT", TVS_LINESATROOT},
        {"TVS_DISABLEDRAGDROP", TVS_DISABLEDRAGDROP},
        {"TVS_SHOWSELALWAYS", TVS_SHOWSELALWAYS},
        {"TVS_CHECKBOXES", TVS_CHECKBOXES},
        {"LVS_ICON", LVS_ICON},
        {"LVS_REPORT", LVS_REPORT},
        {"LVS_SMALLICON", LVS_SMALLICON},
        {"LVS_LIST", LVS_LIST},
        {"LVS_SINGLESEL", LVS_SINGLESEL},
        {"LVS_SHOWSELALWAYS", LVS_SHOWSELALWAYS},
        {"LVS_SORTASCENDING", LVS_SORTASCENDING},
        {"LVS_NOCOLUMNHEADER", LVS_NOCOLUMNHEADER},
        // Sets of styles, styles without effect here that scripts carry, and the language of the texts.
        {"WS_OVERLAPPEDWINDOW", WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX},
        {"WS_POPUPWINDOW", WS_POPUP | WS_BORDER | WS_SYSMENU},
        {"WS_EX_TRANSPARENT", 0x20},
        {"WS_EX_CONTROLPARENT", 0x10000},
        {"WS_EX_CONTEXTHELP", 0x400},
        {"DS_3DLOOK", 0x04},
        {"DS_CONTEXTHELP", 0x2000},
        {"LBS_STANDARD", LBS_NOTIFY | LBS_SORT | WS_VSCROLL | WS_BORDER},
        {"LANG_ITALIAN", 0x10},
        {"SUBLANG_ITALIAN", 0x01},
    };
    return styles;
}

constexpr std::array<std::pair<const char*, int>, 8> standardIds = {{
    {"IDOK", IDOK},
    {"IDCANCEL", IDCANCEL},
    {"IDABORT", IDABORT},
    {"IDRETRY", IDRETRY},
    {"IDIGNORE", IDIGNORE},
    {"IDYES", IDYES},
    {"IDNO", IDNO},
    {"IDC_STATIC", IDC_STATIC},
}};

bool SameName(const std::string& left, const std::string& right) {
    return std::ranges::equal(left, right,
                              [](unsigned char a, unsigned char b) { return std::tolower(a) == std::tolower(b); });
}

} // namespace

std::optional<std::uint32_t> StyleValue(const std::string& name) {
    const auto found = Styles().find(name);
    return found == Styles().end() ? std::nullopt : std::optional(found->second);
}

std::optional<int> StandardId(const std::string& name) {
    const auto found = std::ranges::find_if(standardIds, [&](const auto& id) { return name == id.first; });
    return found == standardIds.end() ? std::nullopt : std::optional(found->second);
}

std::optional<platform::ControlClass> FindWindowClass(const std::string& name) {
    const auto found = std::ranges::find_if(platform::controlClasses,
                                            [&](const platform::ControlClass& c) { return SameName(c.name, name); });
    return found == platform::controlClasses.end() ? std::nullopt : std::optional(*found);
}

} // namespace rescompiler
