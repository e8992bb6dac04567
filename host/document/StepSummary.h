// What a step of undo did, and how it is told to the user.
#pragma once

#include "host/document/DocumentData.h"

namespace host {

using KindCounts = std::array<int, kindCount>;

struct StepSummary {
    CString name;         // of the step
    KindCounts made = {}; // each object once
    KindCounts removed = {};
    KindCounts changed = {};
    KindCounts present = {}; // were to be made and were there already
    int moved = 0;           // nodes
};

// One sentence in Italian: "Generazione nodi: 24 nodi creati, 3 già presenti."
CString Sentence(const StepSummary& summary);
// "3 nodi, 1 trave"; empty without any.
CString CountText(const KindCounts& counts);

} // namespace host
