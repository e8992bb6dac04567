// Linear static analysis of space frames: beams and truss members on restraints and springs.
#pragma once

#include "host/analysis/LineResults.h"
#include "host/document/DocumentData.h"
#include "host/document/Refusal.h"

#include <array>
#include <optional>
#include <vector>

class CCombinazione;

namespace host {

// How far beyond an end of its member a load may lie and still belong to it, against the length: coordinates, and what
// is shown of a length, are rounded.
inline constexpr double sameEnd = 1e-6;

// Everything in the document's units and, but for the lines, in global axes.
struct CaseResults {
    struct Reaction {
        int node;                     // index in the document
        std::array<double, 6> values; // forces and moments that the supports, springs included, act with on the node
    };

    int id = 0;                                       // of the load case or combination
    std::vector<std::array<double, 6>> displacements; // by node, in document order; radians for the last three
    LineResults lines;                                // beams, then truss members, in document order
    std::vector<Reaction> reactions;                  // of the nodes with a restraint or a spring
    CTraveRisultati::Scale scale;                     // by the largest force of the case; of a sum, of its summands
};

struct AnalysisOutcome {
    std::optional<Refusal> refusal; // why it is not done
    std::vector<CString> notes;     // what was not considered or is not exact, one Italian sentence each
    std::vector<CaseResults> cases; // one for each load case, in document order
};

// Analyses every load case, under the host's wait bar; changes nothing in the document. Throws std::bad_alloc.
AnalysisOutcome Analyse(DocumentData& data);

// By the largest force of all lines.
CTraveRisultati::Scale ScaleOf(const std::vector<CTraveRisultati>& lines);

// The sum of the combination's cases times their factors. A case without results counts as 0.
CaseResults Combine(CCombinazione& combination, const std::vector<CaseResults>& cases);

} // namespace host
