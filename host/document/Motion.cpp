#include "host/document/Motion.h"

#include <cmath>

namespace host {

namespace {

const CFPoint axes[3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};

} // namespace

Motion Motion::Translation(const CFPoint& vector) {
    Motion motion;
    motion.m_shift = vector;
    return motion;
}

Motion Motion::Rotation(const CFPoint& point, const CFPoint& axis, double radians, double snap) {
    double sine = std::sin(radians), cosine = std::cos(radians);
    if (std::fabs(sine) < snap || std::fabs(cosine) < snap) {
        sine = std::round(sine);
        cosine = std::round(cosine);
    }
    Motion motion;
    motion.m_turns = true;
    motion.m_fixed = point;
    for (int i = 0; i < 3; ++i)
        motion.m_columns[i] =
            axes[i] * cosine + Cross(axis, axes[i]) * sine + axis * (Dot(axis, axes[i]) * (1 - cosine));
    return motion;
}

Motion Motion::Reflection(const CFPoint& point, const CFPoint& normal) {
    Motion motion;
    motion.m_turns = motion.m_mirrors = true;
    motion.m_fixed = point;
    for (int i = 0; i < 3; ++i)
        motion.m_columns[i] = axes[i] - normal * (2 * Dot(normal, axes[i]));
    return motion;
}

Motion Motion::Inversion(const CFPoint& point) {
    Motion motion;
    motion.m_turns = motion.m_mirrors = true;
    motion.m_fixed = point;
    for (int i = 0; i < 3; ++i)
        motion.m_columns[i] = -axes[i];
    return motion;
}

CFPoint Motion::Direction(const CFPoint& direction) const {
    return m_columns[0] * direction.x + m_columns[1] * direction.y + m_columns[2] * direction.z;
}

CFPoint Motion::Place(const CFPoint& place) const {
    // A translation must not round through a subtraction of its own.
    return m_turns ? Direction(place - m_fixed) + m_fixed : place + m_shift;
}

} // namespace host
