// The model check from the command line.
#pragma once

#include <cstdio>

class QString;

namespace host {

class Workspace;

// Opens a project or a text model, checks it through the check window and prints that window's rows, one a line, UTF-8.
// Returns the process's exit status: 0 when the model is free of faults of its own nodes and elements (the list ends
// with the closing row), 1 when it is not or the check cannot be carried out, 2, after a message, when the file cannot
// be read.
int PrintCheck(Workspace& workspace, const QString& path, std::FILE* out = stdout);

} // namespace host
