#include "tools/rescompiler/Parser.h"

#include "tools/rescompiler/DialogParser.h"

#include <filesystem>

namespace rescompiler {

void Parser::Parse() {
    while (!m_reader.AtEnd()) {
        if (m_reader.AcceptWord("LANGUAGE")) { // one language serves the whole module
            m_reader.ExpectNumber();
            m_reader.ExpectComma();
            m_reader.ExpectNumber();
        } else {
            ParseResource();
        }
    }
}

void Parser::ParseResource() {
    const Token first = m_reader.Peek();
    const Place& place = first.place;
    m_reader.SetScope("");
    const int id = m_reader.ExpectNumber();
    m_reader.SetScope(first.kind == Token::Kind::Word ? NameTable::ScopeOf(first.text) : "");
    if (id <= 0 || id > 0xffff)
        throw ScriptError(place, "a resource's number lies between 1 and 65535");
    if (m_reader.AcceptWord("DIALOG"))
        m_tables.dialogs.push_back(DialogParser(m_reader).Parse(id, place, false));
    else if (m_reader.AcceptWord("DIALOGEX"))
        m_tables.dialogs.push_back(DialogParser(m_reader).Parse(id, place, true));
    else if (m_reader.AcceptWord("MENU"))
        ParseMenu(id, place);
    else if (m_reader.AcceptWord("BITMAP"))
        m_tables.bitmaps.push_back(ParsePicture(id, place));
    else if (m_reader.AcceptWord("ICON"))
        m_tables.icons.push_back(ParsePicture(id, place));
    else
        throw ScriptError(place, "unknown kind of resource \"" + m_reader.Peek().text + "\"");
}

void Parser::ParseMenu(int id, const Place& place) {
    m_reader.AcceptWord("DISCARDABLE");
    Menu menu;
    menu.place = place;
    menu.id = id;
    menu.itemCount = ParseMenuItems(menu);
    m_tables.menus.push_back(std::move(menu));
}

// Returns the number of items between BEGIN and END, those inside pop-ups not counted.
int Parser::ParseMenuItems(Menu& menu) {
    m_reader.ExpectBegin();
    int count = 0;
    for (; !m_reader.AcceptEnd(); ++count)
        ParseMenuItem(menu);
    return count;
}

void Parser::ParseMenuItem(Menu& menu) {
    const Token word = m_reader.Take();
    MenuItem item;
    item.place = word.place;
    if (word.text == "POPUP") {
        item.popup = true;
        item.text = m_reader.ExpectText();
        ParseMenuFlags(item);
        const std::size_t at = menu.items.size();
        menu.items.push_back(item);
        const int count = ParseMenuItems(menu); // may move the items
        menu.items[at].childCount = count;
        return;
    }
    if (word.text != "MENUITEM")
        throw ScriptError(word.place, "expected POPUP or MENUITEM instead of \"" + word.text + "\"");
    if (m_reader.AcceptWord("SEPARATOR")) {
        item.separator = true;
    } else {
        item.text = m_reader.ExpectText();
        m_reader.ExpectComma();
        item.id = m_reader.ExpectNumber();
        ParseMenuFlags(item);
    }
    menu.items.push_back(item);
}

void Parser::ParseMenuFlags(MenuItem& item) {
    while (m_reader.AcceptMark(',')) {
        const Place place = m_reader.Peek().place;
        if (m_reader.AcceptWord("GRAYED") || m_reader.AcceptWord("INACTIVE"))
            item.grayed = true;
        else if (m_reader.AcceptWord("CHECKED"))
            item.checked = true;
        else
            throw ScriptError(place, "unknown menu flag " + m_reader.Peek().text);
    }
}

Picture Parser::ParsePicture(int id, const Place& place) {
    while (m_reader.AcceptWord("DISCARDABLE") || m_reader.AcceptWord("MOVEABLE") || m_reader.AcceptWord("PURE")) {
    }
    Picture picture;
    picture.place = place;
    picture.id = id;
    picture.file = (std::filesystem::path(place.file).parent_path() / m_reader.ExpectText()).string();
    return picture;
}

} // namespace rescompiler
