// Names of styles, standard controls and window classes that every script knows.
#pragma once

#include "platform/resource/ControlClasses.h"

#include <cstdint>
#include <optional>
#include <string>

namespace rescompiler {

// Value of a style or language name; nothing when there is no such name.
std::optional<std::uint32_t> StyleValue(const std::string& name);

// Number of a control that every dialog may have: IDOK, IDCANCEL, ..., IDC_STATIC; nothing for another name.
std::optional<int> StandardId(const std::string& name);

// Class of that name without regard to case; nothing for one that the window layer does not make.
std::optional<platform::ControlClass> FindWindowClass(const std::string& name);

} // namespace rescompiler
