// Where the generation commands put their nodes. All of them answer with an empty list for parameters that make no
// sense: a count below 1 or above the limit, numbers that are not finite, places nearer to each other than the
// tolerance.
#pragma once

#include "model/values/FPoint.h"

#include <vector>

namespace host {

inline constexpr int mostGeneratedNodes = 1'000'000;

using Places = std::vector<CFPoint>;

// A negative spacing leads away from `towards`.
Places PlacesOnLine(const CFPoint& start, const CFPoint& towards, double spacing, int count, double tolerance);
// Both ends included; one place alone is the first end.
Places PlacesOnSegment(const CFPoint& from, const CFPoint& to, int count, double tolerance);
// Both ends and `count` places between them, equally spaced on the arc. Empty also for points in one line.
Places PlacesOnArc(const CFPoint& from, const CFPoint& through, const CFPoint& to, int count, double tolerance);
// `plane` is 1 for X-Y, 2 for X-Z, 3 for Y-Z, turned by `tilt` about its first axis. Angles are in degrees; a positive
// `angle` turns the plane's first axis towards its second. The start turns about the axis through the centre, and is
// not among the places; the last one is at the end of the angle, but for a full circle, which ends at the start.
Places PlacesOnArc(int plane, double tilt, const CFPoint& centre, const CFPoint& start, double angle, int count,
                   double tolerance);
// The first lies on the plane's first axis.
Places PlacesOnCircle(int plane, double tilt, const CFPoint& centre, double radius, int count, double tolerance);

} // namespace host
