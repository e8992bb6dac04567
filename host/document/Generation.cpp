#include "host/document/Generation.h"

#include "host/document/TiltedPlane.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

bool IsCount(int count) {
    return count >= 1 && count <= mostGeneratedNodes;
}

// Coordinates so large that neighbours would fall together, or overflow, are no places.
Places Checked(Places places, double tolerance) {
    for (std::size_t i = 0; i < places.size(); ++i)
        if (!places[i].IsFinite() || (i > 0 && !(CFPoint::GetMod(places[i - 1], places[i]) > tolerance)))
            return {};
    return places;
}

bool IsPlane(int plane, double tilt) {
    return plane >= 1 && plane <= 3 && std::isfinite(tilt);
}

} // namespace

Places PlacesOnLine(const CFPoint& start, const CFPoint& towards, double spacing, int count, double tolerance) {
    CFPoint direction = towards - start;
    if (!IsCount(count) || !start.IsFinite() || !towards.IsFinite() || !std::isfinite(spacing) ||
        !direction.Normalize())
        return {};
    // One place needs no spacing, but a spacing that no second node could keep is a mistake all the same.
    if (!(std::fabs(spacing) > tolerance))
        return {};
    Places places;
    places.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        places.push_back(start + direction * (spacing * i));
    return Checked(std::move(places), tolerance);
}

Places PlacesOnSegment(const CFPoint& from, const CFPoint& to, int count, double tolerance) {
    if (!IsCount(count) || !from.IsFinite() || !to.IsFinite() || !(CFPoint::GetMod(from, to) > tolerance))
        return {};
    Places places;
    places.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        places.push_back(i == 0           ? from
                         : i == count - 1 ? to // exactly, without rounding
                                          : from + (to - from) * (static_cast<double>(i) / (count - 1)));
    return Checked(std::move(places), tolerance);
}

Places PlacesOnArc(const CFPoint& from, const CFPoint& through, const CFPoint& to, int count, double tolerance) {
    if (!IsCount(count) || !from.IsFinite() || !through.IsFinite() || !to.IsFinite())
        return {};
    const CFPoint a = through - from, b = to - through, chord = to - from;
    const double lengthA = a.GetMod(), lengthB = b.GetMod(), lengthChord = chord.GetMod();
    const double nearest = std::min({lengthA, lengthB, lengthChord});
    const double farthest = std::max({lengthA, lengthB, lengthChord});
    const CFPoint normal = Cross(a, b);
    const double area = normal.GetMod(); // twice the triangle's
    if (!(nearest > tolerance) || !(area > 1e-9 * farthest * farthest))
        return {};
    // An arc turns by twice the angle that its chords include, and leaves its start beside a chord by the angle that
    // the chord is seen under from the rest of the circle. Measured from the start instead of from the centre, which is
    // far away when the arc is flat.
    const double half = std::atan2(area, Dot(a, b));
    const double first = std::atan2(area, Dot(chord, b)); // half of what it turns up to the second point
    const double diameter = lengthA * lengthB * lengthChord / area;
    const CFPoint along = a * (1 / lengthA);
    const CFPoint aside = Cross(normal * (1 / area), along);
    Places places;
    places.reserve(static_cast<std::size_t>(count) + 2);
    places.push_back(from);
    for (int i = 1; i <= count; ++i) {
        const double turn = half * i / (count + 1.0);
        const CFPoint direction = along * std::cos(turn - first) + aside * std::sin(turn - first);
        places.push_back(from + direction * (diameter * std::sin(turn)));
    }
    places.push_back(to);
    return Checked(std::move(places), tolerance);
}

Places PlacesOnArc(int plane, double tilt, const CFPoint& centre, const CFPoint& start, double angle, int count,
                   double tolerance) {
    if (!IsCount(count) || !centre.IsFinite() || !start.IsFinite() || !(std::fabs(angle) > 0) ||
        std::fabs(angle) > 360 || !IsPlane(plane, tilt))
        return {};
    const CFPoint normal = TiltedPlane(plane - 1, tilt).Normal();
    const CFPoint foot = centre + normal * Dot(start - centre, normal); // on the axis
    const CFPoint radius = start - foot, across = Cross(normal, radius);
    if (!(radius.GetMod() > tolerance))
        return {};
    const int last = std::fabs(angle) == 360 ? count - 1 : count; // a full turn ends where it began
    Places places = {start};
    places.reserve(static_cast<std::size_t>(last) + 1);
    for (int i = 1; i <= last; ++i)
        places.push_back(foot + Turn(angle * i / count).Between(radius, across));
    places = Checked(std::move(places), tolerance);
    if (!places.empty())
        places.erase(places.begin());
    return places;
}

Places PlacesOnCircle(int plane, double tilt, const CFPoint& centre, double radius, int count, double tolerance) {
    if (!IsCount(count) || !centre.IsFinite() || !std::isfinite(radius) || !(radius > tolerance) ||
        !IsPlane(plane, tilt))
        return {};
    const TiltedPlane axes(plane - 1, tilt);
    Places places;
    places.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        places.push_back(centre + Turn(360.0 * i / count).Between(axes.first * radius, axes.second * radius));
    return Checked(std::move(places), tolerance);
}

} // namespace host
