// The project that comes with the application: a two-storey building of reinforced concrete.
#pragma once

namespace host {

class HostDocument;

// Replaces the document's content by the example, in metres and kilonewtons.
void BuildExample(HostDocument& document);

} // namespace host
