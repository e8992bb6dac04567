// The project that comes with the application: a two-storey building of reinforced concrete.
#pragma once

class HostDocument;

// Replaces the document's content by the example, in metres and kilonewtons.
void BuildExample(HostDocument& document);
