// The model check from the command line.
#pragma once

#include "host/commands/BatchStatus.h"

#include <cstdio>

class QString;

namespace host {

class Workspace;

// Opens a project or a text model, checks it through the check window and prints that window's rows, one a line, UTF-8.
// Returns the process's exit status: whatever the list says beyond its headings was found. A file that cannot be read
// is told in a message.
BatchStatus PrintCheck(Workspace& workspace, const QString& path, std::FILE* out = stdout);

} // namespace host
