#include "host/document/Generation.h"

#include <algorithm>
#include <cmath>
#include <numbers>

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

double Radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

struct Axes {
    CFPoint u, v, normal;
};

// The axes of a coordinate plane turned about its first one; false for another number.
bool AxesOf(int plane, double tilt, Axes& axes) {
    if (plane < 1 || plane > 3 || !std::isfinite(tilt))
        return false;
    const CFPoint x(1, 0, 0), y(0, 1, 0), z(0, 0, 1);
    axes.u = plane == 3 ? y : x;
    const CFPoint v = plane == 1 ? y : z;
    const CFPoint normal = Cross(axes.u, v);
    const double angle = Radians(tilt);
    axes.v = v * std::cos(angle) + normal * std::sin(angle);
    axes.normal = Cross(axes.u, axes.v);
    return true;
}

CFPoint OnCircle(const CFPoint& centre, const Axes& axes, double radius, double angle) {
    return centre + axes.u * (radius * std::cos(angle)) + axes.v * (radius * std::sin(angle));
}

// `count` places from one angle over a span, in radians; the last is the end of the span unless the circle closes.
Places Around(const CFPoint& centre, const Axes& axes, double radius, double from, double span, int count,
              double tolerance) {
    const bool closed = std::fabs(span) >= 2 * std::numbers::pi - 1e-12;
    const double step = count == 1 ? 0 : span / (closed ? count : count - 1);
    Places places;
    places.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        places.push_back(OnCircle(centre, axes, radius, from + step * i));
    return Checked(std::move(places), tolerance);
}

// The angle as a turn in the given direction, between 0 and a full one.
double Turn(double angle) {
    const double full = 2 * std::numbers::pi;
    const double turn = std::fmod(angle, full);
    return turn < 0 ? turn + full : turn;
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

Places PlacesOnArc(int plane, const CFPoint& from, const CFPoint& through, const CFPoint& to, int count,
                   double tolerance) {
    Axes axes;
    if (!IsCount(count) || !from.IsFinite() || !through.IsFinite() || !to.IsFinite() || !AxesOf(plane, 0, axes))
        return {};
    if (std::fabs(Dot(through - from, axes.normal)) > tolerance || std::fabs(Dot(to - from, axes.normal)) > tolerance)
        return {};
    // The centre of the circle through three points, from the first one.
    const double bx = Dot(through - from, axes.u), by = Dot(through - from, axes.v);
    const double cx = Dot(to - from, axes.u), cy = Dot(to - from, axes.v);
    const double twice = 2 * (bx * cy - by * cx);
    const double b = bx * bx + by * by, c = cx * cx + cy * cy;
    const double longest = std::max({b, c, (bx - cx) * (bx - cx) + (by - cy) * (by - cy)});
    // Three points in line, or two in one place.
    if (!(std::fabs(twice) > 1e-9 * longest) || std::sqrt(std::min(b, c)) <= tolerance)
        return {};
    const double ux = (cy * b - by * c) / twice, uy = (bx * c - cx * b) / twice;
    const CFPoint centre = from + axes.u * ux + axes.v * uy;
    const double radius = std::hypot(ux, uy);
    const double first = std::atan2(-uy, -ux);
    const double middle = Turn(std::atan2(by - uy, bx - ux) - first);
    const double last = Turn(std::atan2(cy - uy, cx - ux) - first);
    const double span = middle < last ? last : last - 2 * std::numbers::pi;
    Places places = Around(centre, axes, radius, first, span, count, tolerance);
    if (!places.empty()) {
        places.front() = from;
        if (count > 1)
            places.back() = to;
    }
    return places;
}

Places PlacesOnArc(int plane, double tilt, const CFPoint& centre, const CFPoint& start, double angle, int count,
                   double tolerance) {
    Axes axes;
    if (!IsCount(count) || !centre.IsFinite() || !start.IsFinite() || !std::isfinite(angle) || std::fabs(angle) > 360 ||
        angle == 0 || !AxesOf(plane, tilt, axes))
        return {};
    const CFPoint radius = start - centre;
    if (!(radius.GetMod() > tolerance) || std::fabs(Dot(radius, axes.normal)) > tolerance)
        return {};
    const double from = std::atan2(Dot(radius, axes.v), Dot(radius, axes.u));
    Places places = Around(centre, axes, radius.GetMod(), from, Radians(angle), count, tolerance);
    if (!places.empty())
        places.front() = start;
    return places;
}

Places PlacesOnCircle(int plane, double tilt, const CFPoint& centre, double radius, int count, double tolerance) {
    Axes axes;
    if (!IsCount(count) || !centre.IsFinite() || !std::isfinite(radius) || !(radius > tolerance) ||
        !AxesOf(plane, tilt, axes))
        return {};
    return Around(centre, axes, radius, 0, 2 * std::numbers::pi, count, tolerance);
}

Places PlacesInQuadrilateral(const CFPoint (&given)[4], int first, int second, double tolerance) {
    if (first < 1 || second < 1 || first > mostGeneratedNodes || second > mostGeneratedNodes ||
        (first + 1LL) * (second + 1LL) > mostGeneratedNodes)
        return {};
    if (!std::all_of(std::begin(given), std::end(given), [](const CFPoint& corner) { return corner.IsFinite(); }))
        return {};
    // Two neighbours may be one: a triangle. Its point is a single place, to the last bit.
    CFPoint corners[4] = {given[0], given[1], given[2], given[3]};
    int equal = 0;
    for (int i = 0; i < 4; ++i) {
        if (CFPoint::GetMod(given[i], given[(i + 2) % 4]) <= tolerance)
            return {};
        if (CFPoint::GetMod(given[i], given[(i + 1) % 4]) > tolerance)
            continue;
        corners[(i + 1) % 4] = corners[i];
        ++equal;
    }
    if (equal > 1)
        return {};
    Places places;
    places.reserve(static_cast<std::size_t>((first + 1) * (second + 1)));
    for (int j = 0; j <= second; ++j) {
        const double t = static_cast<double>(j) / second;
        const CFPoint left = corners[0] * (1 - t) + corners[3] * t;
        const CFPoint right = corners[1] * (1 - t) + corners[2] * t;
        for (int i = 0; i <= first; ++i) {
            const double s = static_cast<double>(i) / first;
            places.push_back(left * (1 - s) + right * s);
        }
    }
    return places;
}

} // namespace host
