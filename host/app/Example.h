// The example project as a file.
#pragma once

#include "host/commands/BatchStatus.h"

#include <string>

namespace host {

// The path is as the system spells it. When it cannot be written, a message goes to the error stream.
BatchStatus WriteExample(const std::string& path);

} // namespace host
