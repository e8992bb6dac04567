#include "host/document/TiltedPlane.h"

#include <cmath>
#include <numbers>

namespace host {

Turn::Turn(double degrees) {
    const double turn = std::remainder(degrees, 360);
    const double quarters = std::nearbyint(turn / 90);
    const double rest = (turn - 90 * quarters) * std::numbers::pi / 180;
    sine = std::sin(rest);
    cosine = std::cos(rest);
    for (int i = static_cast<int>(quarters) & 3; i > 0; --i) {
        const double former = sine;
        sine = cosine;
        cosine = -former;
    }
}

TiltedPlane::TiltedPlane(int plane, double tilt) {
    const CFPoint x(1, 0, 0), y(0, 1, 0), z(0, 0, 1);
    first = plane == 2 ? y : x;
    const CFPoint flat = plane == 0 ? y : z;
    second = Turn(tilt).Between(flat, Cross(first, flat));
}

} // namespace host
