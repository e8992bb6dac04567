// The analysis, started by the user.
#pragma once

namespace host {

class HostDocument;

// Analyses the document under the wait bar and tells the user why it cannot, or what was left out. True when the
// results are valid now.
bool RunAnalysis(HostDocument& document);

} // namespace host
