// The example project as a file.
#pragma once

#include <string>

namespace host {

// The path is as the system spells it. 0 on success; otherwise 1 and a message on the error stream.
int WriteExample(const std::string& path);

} // namespace host
