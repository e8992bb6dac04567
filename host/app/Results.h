// The analysis without windows, for batches.
#pragma once

#include "host/commands/BatchStatus.h"

#include <string>

namespace host {

// Analyses a project or a text model and prints the results of every load case, then of every combination, as CSV on
// the standard output; see host/analysis/ResultsCsv.h. What the analysis leaves out goes to the error stream, and why a
// structure cannot be analysed, which is a fault of the model. The path is as the system spells it.
BatchStatus PrintResults(const std::string& path);

} // namespace host
