#include "tools/rescompiler/DialogParser.h"

#include "platform/Styles.h"
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
    static constexpr std::array<Statement, 16> statements = {{
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
        {"SCROLLBAR", "ScrollBar", 0, 0, false},
    }};
    std::string word = token.text;
    std::ranges::transform(word, word.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    const auto found = std::ranges::find_if(statements, [&](const Statement& s) { return word == s.word; });
    return token.kind == Token::Kind::Word && found != statements.end() ? &*found : nullptr;
}

Dialog DialogParser::Parse(int id, const Place& place, bool extended) {
    dialog_.id = id;
    dialog_.place = place;
    while (reader_.AcceptWord("DISCARDABLE") || reader_.AcceptWord("MOVEABLE") || reader_.AcceptWord("PURE")) {
    }
    int* const bounds[] = {&dialog_.x, &dialog_.y, &dialog_.cx, &dialog_.cy};
    for (int* bound : bounds) {
        if (bound != bounds[0])
            reader_.ExpectComma();
        *bound = reader_.ExpectNumber();
    }
    if (extended && reader_.AcceptMark(','))
        reader_.ExpectNumber(); // a help number, which nothing uses
    ParseOptions(extended);
    reader_.ExpectBegin();
    while (!reader_.AcceptEnd())
        dialog_.controls.push_back(ParseControl());
    return std::move(dialog_);
}

void DialogParser::ParseOptions(bool extended) {
    while (ParseOption(extended)) {
    }
    if (!styled_)
        dialog_.style |= WS_POPUP | WS_BORDER | WS_SYSMENU;
    if (!dialog_.caption.empty())
        dialog_.style |= WS_CAPTION;
    if (!dialog_.fontFace.empty())
        dialog_.style |= DS_SETFONT;
}

bool DialogParser::ParseOption(bool extended) {
    if (reader_.AcceptWord("STYLE")) {
        dialog_.style = reader_.ExpectStyle(0);
        styled_ = true;
    } else if (reader_.AcceptWord("EXSTYLE")) {
        dialog_.exStyle = reader_.ExpectStyle(0);
    } else if (reader_.AcceptWord("CAPTION")) {
        dialog_.caption = reader_.ExpectText();
    } else if (reader_.AcceptWord("FONT")) {
        ParseFont(extended);
    } else if (reader_.AcceptWord("MENU")) {
        dialog_.menu = reader_.ExpectNumber();
    } else if (reader_.AcceptWord("LANGUAGE")) {
        reader_.ExpectNumber();
        reader_.ExpectComma();
        reader_.ExpectNumber();
    } else {
        return false;
    }
    return true;
}

void DialogParser::ParseFont(bool extended) {
    dialog_.fontPoints = reader_.ExpectNumber();
    reader_.ExpectComma();
    dialog_.fontFace = reader_.ExpectText();
    while (extended && reader_.AcceptMark(','))
        reader_.ExpectNumber(); // weight, slant and character set are the default's
}

Control DialogParser::ParseControl() {
    const Token word = reader_.Take();
    Control control;
    control.place = word.place;
    if (word.kind == Token::Kind::End)
        throw ScriptError(word.place, "dialog " + std::to_string(dialog_.id) + " without END");
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
    const WindowClass windowClass = *FindWindowClass(statement.className);
    control.kind = windowClass.kind;
    control.className = windowClass.name;
    if (statement.hasText) {
        control.text = reader_.ExpectText();
        reader_.ExpectComma();
    }
    control.id = reader_.ExpectNumber();
    reader_.ExpectComma();
    ParseBounds(control);
    control.style = WS_CHILD | WS_VISIBLE | statement.style;
    if (!reader_.AcceptMark(','))
        return;
    control.style = reader_.ExpectStyle(control.style & ~statement.typeMask);
    if ((control.style & statement.typeMask) == 0)
        control.style |= statement.style & statement.typeMask;
    if (reader_.AcceptMark(','))
        control.exStyle = reader_.ExpectStyle(0);
}

void DialogParser::ParseGeneric(Control& control) {
    ParseImageOrText(control);
    reader_.ExpectComma();
    control.id = reader_.ExpectNumber();
    reader_.ExpectComma();
    const Place place = reader_.Peek().place;
    const std::string name = reader_.ExpectText();
    const auto windowClass = FindWindowClass(name);
    if (!windowClass)
        throw ScriptError(place, "unknown class \"" + name + "\"");
    control.kind = windowClass->kind;
    control.className = windowClass->name;
    reader_.ExpectComma();
    control.style = reader_.ExpectStyle(WS_CHILD | WS_VISIBLE);
    reader_.ExpectComma();
    ParseBounds(control);
    if (reader_.AcceptMark(','))
        control.exStyle = reader_.ExpectStyle(0);
}

void DialogParser::ParseIcon(Control& control) {
    control.kind = platform::ControlTemplate::Kind::Static;
    control.className = "Static";
    control.style = WS_CHILD | WS_VISIBLE | SS_ICON;
    ParseImageOrText(control);
    reader_.ExpectComma();
    control.id = reader_.ExpectNumber();
    reader_.ExpectComma();
    ParseBounds(control);
    if (reader_.AcceptMark(','))
        control.style = reader_.ExpectStyle(control.style);
}

void DialogParser::ParseImageOrText(Control& control) {
    if (reader_.AtNumber())
        control.image = reader_.ExpectNumber();
    else
        control.text = reader_.ExpectText();
}

void DialogParser::ParseBounds(Control& control) {
    int* const bounds[] = {&control.x, &control.y, &control.cx, &control.cy};
    for (int* bound : bounds) {
        if (bound != bounds[0])
            reader_.ExpectComma();
        *bound = reader_.ExpectNumber();
    }
}

} // namespace rescompiler
