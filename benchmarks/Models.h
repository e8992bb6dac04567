// Large models to measure on.
#pragma once

#include "host/document/DocumentData.h"

class HostDocument;

namespace bench {

// A cubic grid of nodes, one apart, joined along the first axis by beams with one material and one section: about as
// many beams as nodes.
DocumentData MakeGrid(int nodes);
void FillGrid(HostDocument& document, int nodes);

} // namespace bench
