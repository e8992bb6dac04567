// Faults that only the tables as a whole show.
#pragma once

#include "tools/rescompiler/Tables.h"

#include <string>
#include <vector>

namespace rescompiler {

class Checker {
  public:
    // Reads the pictures' files into the tables on the way.
    explicit Checker(Tables& tables) : m_tables(tables) {}

    // One message "file:line: message" for each fault; none when the tables may be written.
    std::vector<std::string> Check();

  private:
    template <class Resource>
    void CheckNumbers(const std::vector<Resource>& resources, const char* kind);
    void CheckDialog(const Dialog& dialog);
    void CheckControl(const Dialog& dialog, const Control& control);
    void CheckMenu(const Menu& menu);
    void CheckText(const Place& place, const std::string& text);
    void ReadPicture(Picture& picture);
    bool HasPicture(const Control& control) const;
    void Report(const Place& place, const std::string& message);

    Tables& m_tables;
    std::vector<std::string> m_messages;
};

} // namespace rescompiler
