#include "tools/rescompiler/DialogParser.h"

#include "platform/window/Styles.h"
#include "tools/rescompiler/Symbols.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace rescompiler {

// A control statement with a class and styles of its own.
struct DialogParser::Statement {
    const char* word;
    const char* className;
    std::uint32_t style;    // besides child and visible
    std::uint32_t typeMask; // an explicit style with any of these bits takes the place of the statement's own
    bool hasText;
};

const DialogParser::Statement* DialogParser::FindStatement(const Token& token) {
    static constexpr std::array<Statement, 15> statements = {{
        {"LTEXT", "Static", SS_LEFT | WS_GROUP, 0, true},
        {"CTEXT", "Static", SS_CENTER | WS_GROUP, 0, true},
        {"RTEXT", "Static", SS_RIGHT | WS_GROUP, 0, true},
        {"EDITTEXT", "Edit", ES_LEFT | WS_BORDER | WS_TABSTOP, 0, false},
        {"PUSHBUTTON", "Button", BS_PUSHBUTTON | WS_TABSTOP, 0, true},
        {"DEFPUSHBUTTON", "Button", BS_DEFPUSHBUTTON | WS_TABSTOP, 0, true},
        {"CHECKBOX", "Button", BS_CHECKBOX | WS_TABSTOP, 0, true},
        {"AUTOCHECKBOX", "Button", BS_AUTOCHECKBOX | WS_TABSTOP, 0, true},
        {"STATE3", "Button", BS_3STATE | WS_TABSTOP, 0, true},
        {"AUTO3STATE", "Button", BS_AUTO3STATE | WS_TABSTOP, 0, true},
        {"RADIOBUTTON", "Button", BS_RADIOBUTTON, 0, true},
        {"AUTORADIOBUTTON", "Button", BS_AUTORADIOBUTTON, 0, true},
        {"GROUPBOX", "Button", BS_GROUPBOX, 0, true},
        {"LISTBOX", "ListBox", LBS_NOTIFY | WS_BORDER, 0, false},
        {"COMBOBOX", "ComboBox", CBS_SIMPLE | WS_TABSTOP, CBS_DROPDOWNLIST, false},
    }};
    std::string word = token.text;
    std::ranges::transform(word, word.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    const auto found = std::ranges::find_if(statements, [&](const Statement& s) { return word == s.word; });
    return token.kind == Token::Kind::Word && found != statements.end() ? &*found : nullptr;
}

Dialog DialogParser::Parse(int id, const Place& place, bool extended) {
    m_dialog.id = id;
    m_dialog.place = place;
    while (m_reader.AcceptWord("DISCARDABLE") || m_reader.AcceptWord("MOVEABLE") || m_reader.AcceptWord("PURE")) {
    }
    int* const bounds[] = {&m_dialog.x, &m_dialog.y, &m_dialog.cx, &m_dialog.cy};
    for (int* bound : bounds) {
        if (bound != bounds[0])
            m_reader.ExpectComma();
        *bound = m_reader.ExpectNumber();
    }
    if (extended && m_reader.AcceptMark(','))
        m_reader.ExpectNumber(); // a help number, which nothing uses
    ParseOptions(extended);
    m_reader.ExpectBegin();
    while (!m_reader.AcceptEnd())
        m_dialog.controls.push_back(ParseControl());
    return std::move(m_dialog);
}

void DialogParser::ParseOptions(bool extended) {
    while (ParseOption(extended)) {
    }
    if (!m_styled)
        m_dialog.style |= WS_POPUP | WS_BORDER | WS_SYSMENU;
    if (!m_dialog.caption.empty())
        m_dialog.style |= WS_CAPTION;
    if (!m_dialog.fontFace.empty())
        m_dialog.style |= DS_SETFONT;
}

bool DialogParser::ParseOption(bool extended) {
    if (m_reader.AcceptWord("STYLE")) {
        m_dialog.style = m_reader.ExpectStyle(0);
        m_styled = true;
    } else if (m_reader.AcceptWord("EXSTYLE")) {
        m_dialog.exStyle = m_reader.ExpectStyle(0);
    } else if (m_reader.AcceptWord("CAPTION")) {
        m_dialog.caption = m_reader.ExpectText();
    } else if (m_reader.AcceptWord("FONT")) {
        ParseFont(extended);
    } else if (m_reader.AcceptWord("MENU")) {
        m_dialog.menu = m_reader.ExpectNumber();
    } else if (m_reader.AcceptWord("LANGUAGE")) {
        m_reader.ExpectNumber();
        m_reader.ExpectComma();
        m_reader.ExpectNumber();
    } else {
        return false;
    }
    return true;
}

void DialogParser::ParseFont(bool extended) {
    m_dialog.fontPoints = m_reader.ExpectNumber();
    m_reader.ExpectComma();
    m_dialog.fontFace = m_reader.ExpectText();
    while (extended && m_reader.AcceptMark(','))
        m_reader.ExpectNumber(); // weight, slant and character set are the default's
}

Control DialogParser::ParseControl() {
    const Token word = m_reader.Take();
    Control control;
    control.place = word.place;
    if (word.kind == Token::Kind::End)
        throw ScriptError(word.place, "dialog " + std::to_string(m_dialog.id) + " without END");
    if (const Statement* statement = FindStatement(word))
        ParseStatement(control, *statement);
    else if (word.text == "CONTROL")
        ParseGeneric(control);
    else if (word.text == "ICON")
        ParseIcon(control);
    else
        throw ScriptError(word.place, "unknown control " + word.text);
    return control;
}

void DialogParser::ParseStatement(Control& control, const Statement& statement) {
    const platform::ControlClass windowClass = *FindWindowClass(statement.className);
    control.kind = windowClass.kind;
    control.className = windowClass.name;
    if (statement.hasText) {
        control.text = m_reader.ExpectText();
        m_reader.ExpectComma();
    }
    control.id = m_reader.ExpectNumber();
    m_reader.ExpectComma();
    ParseBounds(control);
    control.style = WS_CHILD | WS_VISIBLE | statement.style;
    if (!m_reader.AcceptMark(','))
        return;
    control.style = m_reader.ExpectStyle(control.style & ~statement.typeMask);
    if ((control.style & statement.typeMask) == 0)
        control.style |= statement.style & statement.typeMask;
    if (m_reader.AcceptMark(','))
        control.exStyle = m_reader.ExpectStyle(0);
}

void DialogParser::ParseGeneric(Control& control) {
    ParseImageOrText(control);
    m_reader.ExpectComma();
    control.id = m_reader.ExpectNumber();
    m_reader.ExpectComma();
    const Place place = m_reader.Peek().place;
    const std::string name = m_reader.ExpectText();
    const auto windowClass = FindWindowClass(name);
    if (!windowClass)
        throw ScriptError(place, "unknown class \"" + name + "\"");
    control.kind = windowClass->kind;
    control.className = windowClass->name;
    m_reader.ExpectComma();
    control.style = m_reader.ExpectStyle(WS_CHILD | WS_VISIBLE);
    m_reader.ExpectComma();
    ParseBounds(control);
    if (m_reader.AcceptMark(','))
        control.exStyle = m_reader.ExpectStyle(0);
}

void DialogParser::ParseIcon(Control& control) {
    control.kind = platform::ControlTemplate::Kind::Static;
    control.className = "Static";
    control.style = WS_CHILD | WS_VISIBLE | SS_ICON;
    ParseImageOrText(control);
    m_reader.ExpectComma();
    control.id = m_reader.ExpectNumber();
    m_reader.ExpectComma();
    ParseBounds(control);
    if (m_reader.AcceptMark(','))
        control.style = m_reader.ExpectStyle(control.style);
}

void DialogParser::ParseImageOrText(Control& control) {
    if (m_reader.AtText())
        control.text = m_reader.ExpectText();
    else
        control.image = m_reader.ExpectNumber();
}

void DialogParser::ParseBounds(Control& control) {
    int* const bounds[] = {&control.x, &control.y, &control.cx, &control.cy};
    for (int* bound : bounds) {
        if (bound != bounds[0])
            m_reader.ExpectComma();
        *bound = m_reader.ExpectNumber();
    }
}

} // namespace rescompiler
