// Conversion of script texts to the code page of the window layer.
#pragma once

#include <optional>
#include <string>

namespace rescompiler {

// UTF-8 to Windows-1252; nothing when the text is not UTF-8 or has a character that the page lacks.
std::optional<std::string> ToCodePage(const std::string& utf8);

} // namespace rescompiler
