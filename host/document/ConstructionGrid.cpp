#include "host/document/ConstructionGrid.h"

#include "host/document/DocumentData.h"

#include <cmath>
#include <numbers>

namespace host {

namespace {

// Exact for right angles.
CFPoint Turned(const CFPoint& from, const CFPoint& towards, double degrees) {
    const double angle = std::remainder(degrees, 360);
    const double radians = angle * std::numbers::pi / 180;
    const double cosine = std::fabs(angle) == 90 ? 0 : std::cos(radians);
    const double sine = std::fabs(angle) == 180 ? 0 : std::sin(radians);
    return from * cosine + towards * sine;
}

} // namespace

CFPoint ConstructionGrid::Direction(int i) const {
    const CFPoint axes[] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    const CFPoint& first = axes[plane == 2 ? 1 : 0];
    const CFPoint& flat = axes[plane == 0 ? 1 : 2];
    const CFPoint second = Turned(flat, Cross(first, flat), tilt);
    return i == 0 ? Turned(first, second, lines[0].angle) : Turned(second, first * -1, lines[1].angle);
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
