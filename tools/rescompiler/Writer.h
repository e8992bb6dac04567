// Writes checked tables as a C++ source file.
#pragma once

#include "tools/rescompiler/Tables.h"

#include <ostream>
#include <string>

namespace rescompiler {

class Writer {
  public:
    // The tables must have passed the check and outlive the writer.
    Writer(const Tables& tables, std::ostream& out) : m_tables(tables), m_out(out) {}

    // The source defines `resources::<module>`, a platform::ResourceModule with that name.
    void Write(const std::string& module);

  private:
    void WriteControls(const Dialog& dialog);
    void WriteDialogs();
    void WriteMenuItems(const Menu& menu);
    void WriteMenus();
    void WritePictures(const std::vector<Picture>& pictures, const std::string& name);

    const Tables& m_tables;
    std::ostream& m_out;
};

} // namespace rescompiler
