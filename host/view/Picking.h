// Which objects lie under the pointer. All tests are linear in the number of objects: 100,000 take a few milliseconds.
#pragma once

#include "platform/core/Geometry.h"

#include <vector>

class Adv3d;
class CElemento;
class CNodo;

namespace host {

class HostDocument;

// The kinds of object that the user may select.
struct KindFilter {
    bool nodes = true;
    bool beams = true;
    bool trusses = true;
    bool walls = true;
    bool slabs = true;

    bool AllElements() const { return beams && trusses && walls && slabs; }
};

inline constexpr int pickRadius = 12; // pixels, of a node or a crossing around the pointer
// What becomes of the objects that are selected already.
enum class SelectMode { Replace, Add, Toggle };

// Points are pixels of the view. Objects that the view does not show are never hit.

// The visible node nearest to the point, at most `radius` pixels away; of several at one place, the one nearest to the
// eye. Null when there is none.
CNodo* NearestNode(HostDocument& document, Adv3d& vista, CPoint at, int radius);

// The object of the wanted kinds under the point: nodes before lines before planes, then the nearest to the eye.
CElemento* ObjectAt(HostDocument& document, Adv3d& vista, CPoint at, const KindFilter& filter);

// The objects of the wanted kinds that lie wholly in the rectangle of two opposite corners, in document order.
std::vector<CElemento*> ObjectsIn(HostDocument& document, Adv3d& vista, CPoint a, CPoint b, const KindFilter& filter);

} // namespace host
