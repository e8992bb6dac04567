// Small models in a document.
#pragma once

namespace host {
class HostDocument;
}

// The example with springs, releases, every kind of load, accents in its names, a hidden element and numbers with gaps.
void BuildEverything(host::HostDocument& document);

// A sound beam along X, 3 long, with its first node fixed.
void BuildCantilever(host::HostDocument& document);
