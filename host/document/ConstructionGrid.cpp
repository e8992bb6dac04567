#include "host/document/ConstructionGrid.h"

#include "host/document/DocumentData.h"
#include "host/document/TiltedPlane.h"

#include <cmath>

namespace host {

CFPoint ConstructionGrid::Direction(int i) const {
    const TiltedPlane axes(plane, tilt);
    const Turn turn(lines[i].angle);
    return i == 0 ? turn.Between(axes.first, axes.second) : turn.Between(axes.second, axes.first * -1);
}

bool ConstructionGrid::IsUsable() const {
    constexpr double leastSine = 1e-6;
    if (plane < 0 || plane > 2 || !std::isfinite(tilt) || !IsUsablePlace(origin))
        return false;
    for (const Lines& each : lines)
        if (!std::isfinite(each.spacing) || !std::isfinite(each.angle))
            return false;
    for (const int i : {lines[0].First(), lines[0].Last()})
        for (const int j : {lines[1].First(), lines[1].Last()})
            if (!IsUsablePlace(Crossing(i, j)))
                return false;
    return Cross(Direction(0), Direction(1)).GetMod() > leastSine;
}

ConstructionGrid ConstructionGrid::In(Lunghezza unit) const {
    ConstructionGrid grid = *this;
    if (unit == length)
        return grid;
    const double factor = CGrandezza::_LengthFactor(length, unit);
    grid.length = unit;
    grid.origin *= factor;
    for (Lines& each : grid.lines)
        each.spacing *= factor;
    return grid;
}

} // namespace host
