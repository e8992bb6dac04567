// Draws a document through a projection.
#pragma once

class Adv3d;
class CDC;
class CFPoint;

namespace host {

class HostDocument;

// Draws slabs and walls, construction lines, lines, nodes and then what the view's settings show beside them, with the
// loads of the current load case. A stride above 1 leaves out all but every n-th line and node and everything beside
// them: the quick picture while the user turns a large model.
void DrawModel(HostDocument& document, Adv3d& vista, CDC& dc, int stride = 1);

// The box around all nodes; false when there is none.
bool GetBounds(HostDocument& document, CFPoint& minimum, CFPoint& maximum);

} // namespace host
