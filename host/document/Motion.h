// A motion of space: translation, rotation or mirroring, without change of size.
#pragma once

#include "model/values/FPoint.h"

namespace host {

class Motion {
  public:
    static Motion Translation(const CFPoint& vector);
    // About an axis through a point; `axis` is a unit vector. Sine and cosine within `snap` of a quarter turn's are
    // these: columns that turn must stay upright, and a copy round a corner must meet the node that is there.
    static Motion Rotation(const CFPoint& point, const CFPoint& axis, double radians, double snap);
    // In the plane through the point with the given unit normal, or in the point itself.
    static Motion Reflection(const CFPoint& point, const CFPoint& normal);
    static Motion Inversion(const CFPoint& point);

    CFPoint Place(const CFPoint& place) const;
    CFPoint Direction(const CFPoint& direction) const;
    bool Turns() const { return m_turns; }     // more than a translation
    bool Mirrors() const { return m_mirrors; } // a right hand becomes a left one

  private:
    CFPoint m_columns[3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}; // images of the axes
    CFPoint m_fixed;                                          // the place that turning leaves where it is
    CFPoint m_shift;
    bool m_turns = false;
    bool m_mirrors = false;
};

} // namespace host
