// What a user assigns to nodes and beams. Each function shows a modal dialog with the values given and returns what the
// user confirms; empty when the user cancels.
#pragma once

#include "host/commands/Assign.h"
#include "model/element/Molla.h"

#include <optional>

class QWidget;

namespace host {

struct SpringChoice {
    std::optional<CMolla> spring; // empty: none, the present ones go
    bool keep = false;            // the present ones
};

std::optional<CVincolo> AskRestraint(QWidget& parent, const CVincolo& present);
// The stiffness is in the given units.
std::optional<SpringChoice> AskSpring(QWidget& parent, const CMolla& present, Lunghezza length, Forza force);
std::optional<EndReleases> AskReleases(QWidget& parent, const EndReleases& present);

} // namespace host
