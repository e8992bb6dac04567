// Numbers of a text, one after the other: separated by blanks, tabs, commas, semicolons, quotes and line ends of any
// system; "#", "%" or "?" begins a comment.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace host {

// Every failure throws FileError: "Riga 37: atteso il numero del nodo, trovato "abc"." What is expected is given
// with its participle and article ("attesa l'area").
class NumberReader {
  public:
    explicit NumberReader(std::string_view text) : m_text(text) {}

    std::string_view Line(); // the rest of the current line, as it stands

    int Integer(const char* what, int lowest, int highest);
    double Real(const char* what); // finite
    bool Flag(const char* what);   // 0 or 1

    // A count of rows of so many numbers each: more rows than the rest of the text has room for are refused here,
    // before memory is taken for them.
    int Count(const char* what, int numbersPerRow, int highest);

    [[noreturn]] void Fail(const std::string& message) const;

  private:
    bool AtEnd() const { return m_position == m_text.size(); }
    void Step();
    std::string_view Token(const char* what);
    [[noreturn]] void FailAt(int line, const std::string& message) const;

    std::string_view m_text;
    std::size_t m_position = 0;
    int m_line = 1;
    int m_tokenLine = 1;
};

} // namespace host
