// The version of the application and of what it writes into project files: the build's, told nowhere else.
#pragma once

namespace host {

extern const char* const applicationVersion; // "0.1.0"

} // namespace host
