#include "tools/rescompiler/Writer.h"

#include "tools/rescompiler/CodePage.h"

#include <iomanip>
#include <sstream>

namespace rescompiler {
namespace {

// A C++ literal of the text in the code page. Octal escapes have a fixed length, so that digits may follow them.
std::string Literal(const std::string& text) {
    std::ostringstream literal;
    literal << '"';
    for (const char c : ToCodePage(text).value_or("")) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte >= 0x7f || c == '"' || c == '\\' || c == '?')
            literal << '\\' << std::oct << std::setw(3) << std::setfill('0') << int{byte};
        else
            literal << c;
    }
    literal << '"';
    return literal.str();
}

const char* KindName(platform::ControlTemplate::Kind kind) {
    using Kind = platform::ControlTemplate::Kind;
    switch (kind) {
    case Kind::Button:
        return "Button";
    case Kind::Edit:
        return "Edit";
    case Kind::Static:
        return "Static";
    case Kind::ListBox:
        return "ListBox";
    case Kind::ComboBox:
        return "ComboBox";
    case Kind::Custom:
        break;
    }
    return "Custom";
}

std::string Style(std::uint32_t style) {
    std::ostringstream number;
    number << "0x" << std::hex << style << 'u';
    return number.str();
}

const char* Flag(bool flag) {
    return flag ? "true" : "false";
}

} // namespace

void Writer::Write(const std::string& module) {
    m_out << "// Compiled from resource scripts.\n#include \"platform/resource/Resource.h\"\n\nnamespace {\n"
          << "using Kind = platform::ControlTemplate::Kind;\n";
    for (const Dialog& dialog : m_tables.dialogs)
        WriteControls(dialog);
    for (const Menu& menu : m_tables.menus)
        WriteMenuItems(menu);
    WriteDialogs();
    WriteMenus();
    WritePictures(m_tables.bitmaps, "bitmap");
    WritePictures(m_tables.icons, "icon");
    m_out << "} // namespace\n\nnamespace resources {\nextern const platform::ResourceModule " << module << ";\n"
          << "constinit const platform::ResourceModule " << module << "{\"" << module << "\", "
          << (m_tables.dialogs.empty() ? "{}" : "dialogs") << ", " << (m_tables.menus.empty() ? "{}" : "menus") << ", "
          << (m_tables.bitmaps.empty() ? "{}" : "bitmaps") << ", " << (m_tables.icons.empty() ? "{}" : "icons")
          << "};\n} // namespace resources\n";
}

void Writer::WriteControls(const Dialog& dialog) {
    if (dialog.controls.empty())
        return;
    m_out << "constexpr platform::ControlTemplate controls" << dialog.id << "[] = {\n";
    for (const Control& c : dialog.controls)
        m_out << "    {Kind::" << KindName(c.kind) << ", " << Literal(c.className) << ", " << Literal(c.text) << ", "
              << (c.id == 0xffff ? -1 : c.id) << ", " << c.x << ", " << c.y << ", " << c.cx << ", " << c.cy << ", "
              << Style(c.style) << ", " << Style(c.exStyle) << ", " << c.image << "},\n";
    m_out << "};\n";
}

void Writer::WriteDialogs() {
    if (m_tables.dialogs.empty())
        return;
    m_out << "constexpr platform::DialogTemplate dialogs[] = {\n";
    for (const Dialog& d : m_tables.dialogs) {
        m_out << "    {" << d.id << ", " << d.x << ", " << d.y << ", " << d.cx << ", " << d.cy << ", "
              << Literal(d.caption) << ", " << Style(d.style) << ", " << Style(d.exStyle) << ", " << Literal(d.fontFace)
              << ", " << d.fontPoints << ", " << d.menu << ", ";
        if (d.controls.empty())
            m_out << "{}},\n";
        else
            m_out << "controls" << d.id << "},\n";
    }
    m_out << "};\n";
}

void Writer::WriteMenuItems(const Menu& menu) {
    if (menu.items.empty())
        return;
    m_out << "constexpr platform::MenuItemTemplate items" << menu.id << "[] = {\n";
    for (const MenuItem& item : menu.items)
        m_out << "    {" << item.id << ", " << Literal(item.text) << ", " << Flag(item.separator) << ", "
              << Flag(item.popup) << ", " << item.childCount << ", " << Flag(item.grayed) << ", " << Flag(item.checked)
              << "},\n";
    m_out << "};\n";
}

void Writer::WriteMenus() {
    if (m_tables.menus.empty())
        return;
    m_out << "constexpr platform::MenuTemplate menus[] = {\n";
    for (const Menu& menu : m_tables.menus) {
        m_out << "    {" << menu.id << ", " << menu.itemCount << ", ";
        if (menu.items.empty())
            m_out << "{}},\n";
        else
            m_out << "items" << menu.id << "},\n";
    }
    m_out << "};\n";
}

void Writer::WritePictures(const std::vector<Picture>& pictures, const std::string& name) {
    if (pictures.empty())
        return;
    for (const Picture& picture : pictures) {
        m_out << "constexpr unsigned char " << name << picture.id << "[] = {";
        for (std::size_t i = 0; i < picture.bytes.size(); ++i)
            m_out << (i % 24 == 0 ? "\n    " : "") << int{static_cast<unsigned char>(picture.bytes[i])} << ',';
        m_out << "\n};\n";
    }
    m_out << "constexpr platform::BitmapResource " << name << "s[] = {\n";
    for (const Picture& picture : pictures)
        m_out << "    {" << picture.id << ", " << name << picture.id << "},\n";
    m_out << "};\n";
}

} // namespace rescompiler
