// Results as text for other programs.
#pragma once

#include "host/analysis/Analysis.h"

#include <cstdio>

namespace host {

// Three tables with a heading each, blank lines between: displacements of the nodes; forces on the two ends of each
// line, in its local axes; reactions of the supports. Numbers in full precision, in the document's units.
void WriteResults(const DocumentData& data, const std::vector<const CaseResults*>& cases, std::FILE* out);

} // namespace host
