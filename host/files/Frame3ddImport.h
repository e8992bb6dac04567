// Import of ".3dd" text models of space frames: nodes, restraints, beams with materials and sections, load cases.
#pragma once

#include "host/document/DocumentData.h"

#include <string>
#include <string_view>
#include <vector>

namespace host {

// Node and element numbers stay those of the file; equal sections and equal materials become one. The units are those
// that the title names in brackets, "(kips,in)"; newtons and millimetres when it names none. Shear areas are taken only
// when the file asks for shear deformation. `notes`, unless null, receives what the model asks for and this program
// leaves out, in Italian. Throws FileError; the path is as the system spells it.
DocumentData ImportFrame3dd(const std::string& path, std::vector<CString>* notes = nullptr);
DocumentData ImportFrame3ddText(std::string_view text, std::vector<CString>* notes = nullptr);

} // namespace host
