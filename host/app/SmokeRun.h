// The trial run: the application on the example model, a command by keyboard, undo, redo, save.
#pragma once

namespace host {

class Workspace;

// 0 when everything went as it should; otherwise 1, and what failed on the error stream.
int RunSmoke(Workspace& workspace);

} // namespace host
