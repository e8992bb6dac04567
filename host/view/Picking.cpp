#include "host/view/Picking.h"

#include "host/document/HostDocument.h"
#include "model/element/Asta.h"
#include "model/element/Nodo.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "model/view/Adv3d.h"

#include <cmath>

namespace host {

namespace {

// Calls action(element) for each element of the wanted kinds.
template <class Action>
void ForLines(HostDocument& document, const KindFilter& filter, const Action& action) {
    if (filter.beams)
        for (int i = 0; i < document.GetSizeTravi(); ++i)
            action(document.GetIndexTrave(i));
    if (filter.trusses)
        for (int i = 0; i < document.GetSizeAste(); ++i)
            action(document.GetIndexAsta(i));
}

template <class Action>
void ForPlanes(HostDocument& document, const KindFilter& filter, const Action& action) {
    if (filter.walls)
        for (int i = 0; i < document.GetSizeSetti(); ++i)
            action(document.GetIndexSetto(i));
    if (filter.slabs)
        for (int i = 0; i < document.GetSizeSolai(); ++i)
            action(document.GetIndexSolaio(i));
}

// Keeps the hit that is nearest to the eye.
class Nearest {
  public:
    Nearest(Adv3d& vista, CPoint at) : m_projection(vista), m_at(at) {}

    void operator()(CElemento* element) {
        if (!element->CanDraw(&m_projection) || !element->PtIn(m_at, &m_projection))
            return;
        const double depth = element->GetProfonditaVista(&m_projection);
        if (!found || depth > m_depth) {
            found = element;
            m_depth = depth;
        }
    }
    CElemento* found = nullptr;

  private:
    Adv3d& m_projection;
    CPoint m_at;
    double m_depth = 0;
};

} // namespace

CNodo* NearestNode(HostDocument& document, Adv3d& vista, CPoint at, int radius) {
    CNodo* best = nullptr;
    double bestDistance = radius;
    double bestDepth = 0;
    for (int i = 0; i < document.GetSizeNodi(); ++i) {
        CNodo* node = document.GetIndexNodo(i);
        const Adv3d::Punto seen = vista.Project(*node->GetPunto());
        if (!seen.visible)
            continue;
        const double distance = std::hypot(seen.x - at.x, seen.y - at.y);
        // Within a pixel the eye decides: nodes behind each other are one spot on the screen.
        const bool nearer = best
                                ? distance < bestDistance - 1 || (distance < bestDistance + 1 && seen.depth > bestDepth)
                                : distance <= radius;
        if (nearer && distance <= radius && node->CanDraw(&vista)) {
            best = node;
            bestDistance = distance;
            bestDepth = seen.depth;
        }
    }
    return best;
}

CElemento* ObjectAt(HostDocument& document, Adv3d& vista, CPoint at, const KindFilter& filter) {
    constexpr int nodeReach = 5;
    if (filter.nodes)
        if (CNodo* node = NearestNode(document, vista, at, nodeReach))
            return node;
    Nearest line(vista, at);
    ForLines(document, filter, [&line](CElemento* element) { line(element); });
    if (line.found)
        return line.found;
    Nearest plane(vista, at);
    ForPlanes(document, filter, [&plane](CElemento* element) { plane(element); });
    return plane.found;
}

std::vector<CElemento*> ObjectsIn(HostDocument& document, Adv3d& vista, CPoint a, CPoint b, const KindFilter& filter) {
    std::vector<CElemento*> found;
    const auto take = [&](CElemento* element) {
        if (element->CanDraw(&vista) && element->IsInRect(a, b, &vista))
            found.push_back(element);
    };
    if (filter.nodes)
        for (int i = 0; i < document.GetSizeNodi(); ++i)
            take(document.GetIndexNodo(i));
    ForLines(document, filter, take);
    ForPlanes(document, filter, take);
    return found;
}

} // namespace host
