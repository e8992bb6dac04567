// A host operation whose failure the dialog itself tells the user.
#pragma once

#include "platform/core/Exception.h"
#include "platform/window/Application.h"

// Runs the operation. An exception of the framework's that leaves it is reported and ended here; false then. Whatever
// the operation made must be owned by the time it throws.
template <class Operation>
bool RunReporting(Operation&& operation) {
    try {
        operation();
        return true;
    } catch (CException* exception) {
        exception->ReportError(MB_OK, 0);
        exception->Delete();
        return false;
    }
}
