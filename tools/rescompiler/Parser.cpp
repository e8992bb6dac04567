#include "tools/rescompiler/Parser.h"

#include "tools/rescompiler/DialogParser.h"

#include <filesystem>

namespace rescompiler {

void Parser::Parse() {
    while (!reader_.AtEnd()) {
        if (reader_.AcceptWord("LANGUAGE")) { // one language serves the whole module
            reader_.ExpectNumber();
            reader_.ExpectComma();
            reader_.ExpectNumber();
        } else {
            ParseResource();
        }
    }
}

void Parser::ParseResource() {
    const Place place = reader_.Peek().place;
    const int id = reader_.ExpectNumber();
    if (id <= 0 || id > 0xffff)
        throw ScriptError(place, "a resource's number lies between 1 and 65535");
    if (reader_.AcceptWord("DIALOG"))
        tables_.dialogs.push_back(DialogParser(reader_).Parse(id, place, false));
    else if (reader_.AcceptWord("DIALOGEX"))
        tables_.dialogs.push_back(DialogParser(reader_).Parse(id, place, true));
    else if (reader_.AcceptWord("MENU"))
        ParseMenu(id, place);
    else if (reader_.AcceptWord("BITMAP"))
        tables_.bitmaps.push_back(ParsePicture(id, place));
    else if (reader_.AcceptWord("ICON"))
        tables_.icons.push_back(ParsePicture(id, place));
    else
        throw ScriptError(place, "unknown kind of resource \"" + reader_.Peek().text + "\"");
}

void Parser::ParseMenu(int id, const Place& place) {
    reader_.AcceptWord("DISCARDABLE");
    Menu menu;
    menu.place = place;
    menu.id = id;
    menu.itemCount = ParseMenuItems(menu);
    tables_.menus.push_back(std::move(menu));
}

// Returns the number of items between BEGIN and END, those inside pop-ups not counted.
int Parser::ParseMenuItems(Menu& menu) {
    reader_.ExpectBegin();
    int count = 0;
    for (; !reader_.AcceptEnd(); ++count)
        ParseMenuItem(menu);
    return count;
}

void Parser::ParseMenuItem(Menu& menu) {
    const Token word = reader_.Take();
    MenuItem item;
    item.place = word.place;
    if (word.text == "POPUP") {
        item.popup = true;
        item.text = reader_.ExpectText();
        ParseMenuFlags(item);
        const std::size_t at = menu.items.size();
        menu.items.push_back(item);
        const int count = ParseMenuItems(menu); // may move the items
        menu.items[at].childCount = count;
        return;
    }
    if (word.text != "MENUITEM")
        throw ScriptError(word.place, "expected POPUP or MENUITEM instead of \"" + word.text + "\"");
    if (reader_.AcceptWord("SEPARATOR")) {
        item.separator = true;
    } else {
        item.text = reader_.ExpectText();
        reader_.ExpectComma();
        item.id = reader_.ExpectNumber();
        ParseMenuFlags(item);
    }
    menu.items.push_back(item);
}

void Parser::ParseMenuFlags(MenuItem& item) {
    while (reader_.AcceptMark(',')) {
        const Place place = reader_.Peek().place;
        if (reader_.AcceptWord("GRAYED") || reader_.AcceptWord("INACTIVE"))
            item.grayed = true;
        else if (reader_.AcceptWord("CHECKED"))
            item.checked = true;
        else
            throw ScriptError(place, "unknown menu flag " + reader_.Peek().text);
    }
}

Picture Parser::ParsePicture(int id, const Place& place) {
    while (reader_.AcceptWord("DISCARDABLE") || reader_.AcceptWord("MOVEABLE") || reader_.AcceptWord("PURE")) {
    }
    Picture picture;
    picture.place = place;
    picture.id = id;
    picture.file = (std::filesystem::path(place.file).parent_path() / reader_.ExpectText()).string();
    return picture;
}

} // namespace rescompiler
