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
// `plane` is 1 for X-Y, 2 for X-Z, 3 for Y-Z; the three points have the same distance from it.
Places PlacesOnArc(int plane, const CFPoint& from, const CFPoint& through, const CFPoint& to, int count,
                   double tolerance);
// Angles in degrees. The plane is turned by `tilt` about its first axis; a positive `angle` turns the plane's first
// axis towards its second. 360 degrees are a full circle, whose end is not given twice.
Places PlacesOnArc(int plane, double tilt, const CFPoint& centre, const CFPoint& start, double angle, int count,
                   double tolerance);
Places PlacesOnCircle(int plane, double tilt, const CFPoint& centre, double radius, int count, double tolerance);
// (first + 1) * (second + 1) places, the first side running fastest, between the corners in their order around. Where
// two neighbouring corners are one, all places of that side are.
Places PlacesInQuadrilateral(const CFPoint (&corners)[4], int first, int second, double tolerance);

} // namespace host
