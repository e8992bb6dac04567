#include "tools/rescompiler/Checker.h"

#include "platform/window/Styles.h"
#include "tools/rescompiler/CodePage.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>

namespace rescompiler {
namespace {

// The two spellings of the number of a control that no code addresses.
bool IsAnonymous(int id) {
    return id == -1 || id == 0xffff;
}

} // namespace

std::vector<std::string> Checker::Check() {
    CheckNumbers(m_tables.dialogs, "dialog");
    CheckNumbers(m_tables.menus, "menu");
    CheckNumbers(m_tables.bitmaps, "bitmap");
    CheckNumbers(m_tables.icons, "icon");
    for (Picture& picture : m_tables.bitmaps)
        ReadPicture(picture);
    for (Picture& picture : m_tables.icons)
        ReadPicture(picture);
    for (const Dialog& dialog : m_tables.dialogs)
        CheckDialog(dialog);
    for (const Menu& menu : m_tables.menus)
        CheckMenu(menu);
    return std::move(m_messages);
}

template <class Resource>
void Checker::CheckNumbers(const std::vector<Resource>& resources, const char* kind) {
    std::set<int> seen;
    for (const Resource& resource : resources)
        if (!seen.insert(resource.id).second)
            Report(resource.place, std::string(kind) + " " + std::to_string(resource.id) + " is there twice");
}

void Checker::CheckDialog(const Dialog& dialog) {
    CheckText(dialog.place, dialog.caption);
    std::set<int> seen;
    for (const Control& control : dialog.controls) {
        CheckControl(dialog, control);
        if (!IsAnonymous(control.id) && !seen.insert(control.id).second)
            Report(control.place,
                   "control " + std::to_string(control.id) + " is there twice in dialog " + std::to_string(dialog.id));
    }
}

void Checker::CheckControl(const Dialog& dialog, const Control& control) {
    CheckText(control.place, control.text);
    if (control.cx < 0 || control.cy < 0 || control.x < 0 || control.y < 0 || control.x + control.cx > dialog.cx ||
        control.y + control.cy > dialog.cy)
        Report(control.place,
               "control " + std::to_string(control.id) + " reaches out of dialog " + std::to_string(dialog.id));
    if (!HasPicture(control))
        Report(control.place, "bitmap " + std::to_string(control.image) + " is missing");
}

void Checker::CheckMenu(const Menu& menu) {
    for (const MenuItem& item : menu.items)
        CheckText(item.place, item.text);
}

void Checker::CheckText(const Place& place, const std::string& text) {
    if (!ToCodePage(text))
        Report(place, "\"" + text + "\" has characters outside the code page");
}

void Checker::ReadPicture(Picture& picture) {
    std::ifstream stream(picture.file, std::ios::binary);
    picture.bytes.assign(std::istreambuf_iterator<char>(stream), {});
    if (!stream.is_open())
        Report(picture.place, "cannot read " + picture.file);
    else if (picture.bytes.find("<svg") == std::string::npos)
        Report(picture.place, picture.file + " is no SVG picture");
}

// An icon's picture may come from the host, a bitmap's comes with the module.
bool Checker::HasPicture(const Control& control) const {
    const bool bitmap = control.kind == platform::ControlTemplate::Kind::Static &&
                        (control.style & SS_TYPEMASK) == SS_BITMAP && control.image != 0;
    return !bitmap || std::ranges::any_of(m_tables.bitmaps, [&](const Picture& p) { return p.id == control.image; });
}

void Checker::Report(const Place& place, const std::string& message) {
    m_messages.push_back(ScriptError(place, message).what());
}

} // namespace rescompiler
