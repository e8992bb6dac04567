// A small model that has one of everything a project can hold.
#pragma once

namespace host {
class HostDocument;
}

// The example with springs, releases, every kind of load, accents in its names, a hidden element and numbers with gaps.
void BuildEverything(host::HostDocument& document);
