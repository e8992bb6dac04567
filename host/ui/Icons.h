// The pictures of the tool bar.
#pragma once

#include <QIcon>

namespace host {

// By name ("nodi", "travi", "xy", "quovar", ...); an empty icon for an unknown name. Sharp at every scale.
QIcon ToolIcon(const char* name);

} // namespace host
