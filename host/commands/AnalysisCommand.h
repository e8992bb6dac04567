// The analysis, started by the user.
#pragma once

class HostDocument;

// Analyses the document under the wait bar and tells the user why it cannot, or what was left out. True when the
// results are valid now.
bool RunAnalysis(HostDocument& document);
