// Cuts resource scripts, and the headers that they name, into tokens.
#pragma once

#include <stdexcept>
#include <string>

namespace rescompiler {

struct Place {
    std::string file;
    int line = 0;
};

// A fault in a script. what() is "file:line: message".
class ScriptError : public std::runtime_error {
  public:
    ScriptError(const Place& place, const std::string& message);
};

struct Token {
    enum class Kind { Word, Number, Text, Mark, End };

    Kind kind = Kind::End;
    std::string text; // a Word with its qualifiers; a Text's characters in UTF-8 without quotes, escapes resolved
    long long number = 0;
    Place place;
};

class Scanner {
  public:
    // A script holds nothing that has no meaning. In a header only words, braces and whole numbers have one: the rest
    // becomes marks and texts, whatever it is.
    enum class Language { Script, Header };

    // `file` is the name for messages.
    Scanner(std::string text, std::string file, Language language);

    // The next token, the End token again and again behind the last. A directive is a Mark with its whole line.
    // Throws ScriptError.
    Token Next();

  private:
    bool InHeader() const { return m_language == Language::Header; }
    bool Looking(const char* start) const { return m_text.compare(m_at, 2, start) == 0; }
    bool AtWordStart(std::size_t at) const;
    bool AtWordPart() const;
    void Step();
    void SkipBlanksAndComments();
    void SkipBlockComment();
    void ScanDirective(Token& token);
    void ScanText(Token& token);
    char Escaped();
    void ScanNumber(Token& token);
    void ScanWord(Token& token);
    void ScanMark(Token& token);

    std::string m_text;
    std::size_t m_at = 0;
    Place m_place;
    Language m_language;
};

// The text of a file without a byte order mark. `from` is the place that names it, for the ScriptError of a file that
// cannot be read.
std::string ReadText(const std::string& path, const Place& from);

} // namespace rescompiler
