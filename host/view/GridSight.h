// What a view shows of a grid of construction lines: only what is in sight, thinned where it gets dense, so that the
// cost depends on the window and not on the grid.
#pragma once

#include "host/document/ConstructionGrid.h"
#include "model/values/FPoint.h"
#include "platform/core/Geometry.h"

#include <optional>
#include <vector>

class Adv3d;

namespace host {

class GridSight {
  public:
    // The grid in the unit of the projection, which outlives this and does not move meanwhile.
    GridSight(const ConstructionGrid& grid, const Adv3d& vista);

    // On the projection's device context.
    void Draw(Adv3d& vista) const;
    // The crossing of drawn lines that is nearest to the pixel, at most `radius` pixels away.
    std::optional<CFPoint> Nearest(CPoint at, double radius) const;

  private:
    // A place of the plane by its lengths along the two directions.
    struct Place {
        double a, b;
    };
    // A number for each place, linear in it.
    struct Field {
        double constant, a, b;
        double operator()(const Place& place) const { return constant + a * place.a + b * place.b; }
    };
    // The lines across one direction that are drawn: the multiples of the stride from first to last, if any.
    struct Drawn {
        int first = 0, last = -1;
        int stride = 1;
    };

    Field Along(const CFPoint& axis) const;
    void CutAway(const Field& kept); // keeps where the field is positive
    void CutToViewport();
    void Thin(int i);
    double Gap(int i, const Place& place) const; // pixels between neighbours of the lines across direction i
    bool SpanOf(int i, double across, double& from, double& to) const;
    bool Pierced(CPoint at, Place& place) const;
    // The drawn lines across direction i that pass within the radius of a place, perhaps with some more.
    Drawn Around(int i, const Place& place, double radius) const;

    const ConstructionGrid m_grid;
    const Adv3d& m_vista;
    double m_originX, m_originY;  // pixel of the projection's target
    Field m_right, m_up;          // of a place on the screen, length units from the target
    Field m_size;                 // length units that a pixel covers there
    std::vector<Place> m_visible; // corners of what is in sight, a convex polygon
    Drawn m_drawn[2];
};

} // namespace host
