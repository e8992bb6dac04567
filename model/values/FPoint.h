// A point or vector of space: three doubles in the document's length unit. Polymorphic and passed by value, as the
// interfaces of the application expect.
#pragma once

#include <cmath>

class CFPoint {
  public:
    double x = 0;
    double y = 0;
    double z = 0;

    CFPoint() = default;
    CFPoint(double px, double py, double pz) : x(px), y(py), z(pz) {}
    CFPoint(const CFPoint&) = default;
    CFPoint& operator=(const CFPoint&) = default;
    virtual ~CFPoint() = default;

    // The distance between two points; hypot keeps coordinates of any size from overflowing.
    static double GetMod(CFPoint a, CFPoint b) { return std::hypot(b.x - a.x, b.y - a.y, b.z - a.z); }
    double GetMod() const { return std::hypot(x, y, z); }

    CFPoint& operator+=(const CFPoint& b) {
        x += b.x;
        y += b.y;
        z += b.z;
        return *this;
    }
    CFPoint& operator-=(const CFPoint& b) {
        x -= b.x;
        y -= b.y;
        z -= b.z;
        return *this;
    }
    CFPoint& operator*=(double factor) {
        x *= factor;
        y *= factor;
        z *= factor;
        return *this;
    }

    // All three coordinates are numbers: no infinity, no "not a number".
    bool IsFinite() const { return std::isfinite(x) && std::isfinite(y) && std::isfinite(z); }
    // Makes the length 1 and returns true; a null vector stays as it is.
    bool Normalize() {
        const double length = GetMod();
        if (!(length > 0) || !std::isfinite(length))
            return false;
        x /= length;
        y /= length;
        z /= length;
        return true;
    }
};

inline CFPoint operator+(const CFPoint& a, const CFPoint& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline CFPoint operator-(const CFPoint& a, const CFPoint& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline CFPoint operator-(const CFPoint& a) {
    return {-a.x, -a.y, -a.z};
}
inline CFPoint operator*(const CFPoint& a, double factor) {
    return {a.x * factor, a.y * factor, a.z * factor};
}
inline CFPoint operator*(double factor, const CFPoint& a) {
    return a * factor;
}
inline bool operator==(const CFPoint& a, const CFPoint& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}
inline double Dot(const CFPoint& a, const CFPoint& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline CFPoint Cross(const CFPoint& a, const CFPoint& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
