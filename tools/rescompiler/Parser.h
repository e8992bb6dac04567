// Reads one script's resources into the tables. A resource whose number is a class's, as CDialogMuovi::IDD, may use the
// names of that class without it.
#pragma once

#include "tools/rescompiler/Tables.h"
#include "tools/rescompiler/TokenReader.h"

namespace rescompiler {

class Parser {
  public:
    // Both must outlive the parser; what the script declares is appended to the tables.
    Parser(const Script& script, Tables& tables) : m_reader(script), m_tables(tables) {}

    // Throws ScriptError at the first fault.
    void Parse();

  private:
    void ParseResource();
    void ParseMenu(int id, const Place& place);
    int ParseMenuItems(Menu& menu);
    void ParseMenuItem(Menu& menu);
    void ParseMenuFlags(MenuItem& item);
    Picture ParsePicture(int id, const Place& place);

    TokenReader m_reader;
    Tables& m_tables;
};

} // namespace rescompiler
