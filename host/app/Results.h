// The analysis without windows, for batches.
#pragma once

#include <string>

namespace host {

// Analyses a project or a text model and prints the results of every load case, then of every combination, as CSV on
// the standard output; see host/analysis/ResultsCsv.h. What the analysis leaves out goes to the error stream. Returns
// the process's exit status: 0; 1 when the structure cannot be analysed; 2 when the file cannot be read. The path is as
// the system spells it.
int PrintResults(const std::string& path);

} // namespace host
