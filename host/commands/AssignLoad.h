// The commands that put loads on what is selected and take them off again; each is one undo step.
#pragma once

#include "model/values/FPoint.h"

#include <memory>

class CCarico;
class CCasoCarico;
class QWidget;

namespace host {

class HostDocument;

// Gives the load, in the document's units, to the case; all selected objects that can carry it (nodes, or beams and
// truss members) refer to this one. Returns how many; without any there is no step.
//
// A self weight acts on the whole model and replaces the one that the case has, since two would count the mass twice;
// without acceleration it only takes that away. Returns 1, or 0 when the case stays as it was.
int AssignLoad(HostDocument& document, CCasoCarico& loadCase, std::unique_ptr<CCarico> load);
// Takes the loads of a case off the selected objects. Those that nothing carries any more leave the case. Returns how
// many objects were changed.
int RemoveLoads(HostDocument& document, CCasoCarico& loadCase);
// The acceleration of a case's self weight; 0 when it has none.
CFPoint SelfWeightOf(CCasoCarico& loadCase);

// The same, asked for in a dialog, or for the current load case. A message when it cannot be done.
void RunAssignLoad(HostDocument& document, QWidget& parent);
void RunRemoveLoads(HostDocument& document, QWidget& parent);

} // namespace host
