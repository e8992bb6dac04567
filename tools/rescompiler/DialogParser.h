// Reads one DIALOG or DIALOGEX resource.
#pragma once

#include "tools/rescompiler/Tables.h"
#include "tools/rescompiler/TokenReader.h"

namespace rescompiler {

class DialogParser {
  public:
    explicit DialogParser(TokenReader& reader) : m_reader(reader) {}

    // The reader stands behind the word DIALOG or DIALOGEX. Throws ScriptError.
    Dialog Parse(int id, const Place& place, bool extended);

  private:
    struct Statement;

    static const Statement* FindStatement(const Token& token);
    void ParseOptions(bool extended);
    bool ParseOption(bool extended);
    void ParseFont(bool extended);
    Control ParseControl();
    void ParseStatement(Control& control, const Statement& statement);
    void ParseGeneric(Control& control);
    void ParseIcon(Control& control);
    void ParseImageOrText(Control& control);
    void ParseBounds(Control& control);

    TokenReader& m_reader;
    Dialog m_dialog;
    bool m_styled = false;
};

} // namespace rescompiler
