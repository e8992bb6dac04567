// The commands that give restraints, springs and end releases to what is selected; each is one undo step.
#pragma once

#include "model/element/Vincolo.h"

#include <span>

class CMolla;
class QWidget;

namespace host {

class HostDocument;

// Of a beam: first its first end, then its second, each in the order of CSpecificheSvincoliTrave.
struct EndReleases {
    bool released[2][4] = {};
};

// A support with a name: what it fixes, a combination of CVincolo::Componente.
struct Support {
    const char* name; // of its command
    const char* caption;
    const char* hint;
    unsigned fixed;
};
std::span<const Support> Supports();

// All three return how many objects were changed; without any there is no step.
//
// To the selected nodes; one that fixes nothing takes the restraint away.
int AssignRestraint(HostDocument& document, const CVincolo& restraint);
// To the selected nodes, in place of the springs that they have or, with `keep`, besides them. Null only takes away.
int AssignSpring(HostDocument& document, const CMolla* spring, bool keep);
// To the selected beams, in place of their releases.
int AssignReleases(HostDocument& document, const EndReleases& releases);

// Without a dialog. A message when no node is selected.
void RunAssignSupport(HostDocument& document, unsigned fixed);
// The same, asked for in a dialog that shows what the first selected object has. A message when nothing fits.
void RunAssignRestraint(HostDocument& document, QWidget& parent);
void RunAssignSpring(HostDocument& document, QWidget& parent);
void RunAssignReleases(HostDocument& document, QWidget& parent);

} // namespace host
