// Turns by degrees, and the coordinate planes that the user tilts.
#pragma once

#include "model/values/FPoint.h"

namespace host {

// Exact at quarter turns: a coordinate that is 0 there is no rounding.
struct Turn {
    explicit Turn(double degrees);
    // From one vector towards another, which is as long and stands across it.
    CFPoint Between(const CFPoint& from, const CFPoint& towards) const { return from * cosine + towards * sine; }

    double sine, cosine;
};

// A coordinate plane turned about its first axis: X-Y, X-Z or Y-Z, of which the first turns towards the second.
struct TiltedPlane {
    // 0 X-Y, 1 X-Z, 2 Y-Z; degrees.
    TiltedPlane(int plane, double tilt);
    CFPoint Normal() const { return Cross(first, second); }

    CFPoint first, second; // unit vectors
};

} // namespace host
