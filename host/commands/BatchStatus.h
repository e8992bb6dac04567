// The exit status of every batch mode.
#pragma once

namespace host {

enum BatchStatus {
    nothingFound = 0, // done, and nothing is wrong with the model
    found = 1,        // the model has faults, which were printed
    notDone = 2,      // the file cannot be read, or what was asked for cannot be carried out or written
};

} // namespace host
