// The classes of controls that the window layer makes. The compiler of resource scripts refuses all others: a control
// that nobody can make would be missing from its dialog.
#pragma once

#include "platform/resource/Resource.h"

#include <array>

namespace platform {

struct ControlClass {
    ControlTemplate::Kind kind;
    const char* name; // not case sensitive
};

inline constexpr std::array<ControlClass, 8> controlClasses = {{
    {ControlTemplate::Kind::Static, "Static"},
    {ControlTemplate::Kind::Edit, "Edit"},
    {ControlTemplate::Kind::Button, "Button"},
    {ControlTemplate::Kind::ListBox, "ListBox"},
    {ControlTemplate::Kind::ComboBox, "ComboBox"},
    {ControlTemplate::Kind::Custom, "msctls_updown32"},
    {ControlTemplate::Kind::Custom, "SysTreeView32"},
    {ControlTemplate::Kind::Custom, "SysListView32"},
}};

} // namespace platform
