// Large models to measure on.
#pragma once

#include "host/document/DocumentData.h"

namespace host {
class HostDocument;
}

namespace bench {

// A cubic grid of nodes, one apart, joined along the first axis by beams with one material and one section: about as
// many beams as nodes.
host::DocumentData MakeGrid(int nodes);
void FillGrid(host::HostDocument& document, int nodes);

} // namespace bench
