// A stretch of a diagram: a polynomial of the third degree at most.
#pragma once

struct DiagramStretch {
    double da = 0; // length from the first node
    double a = 0;
    double c[4] = {}; // c0 + c1 s + c2 s^2 + c3 s^3 with s = x - da

    double GetValue(double x) const {
        const double s = x - da;
        return c[0] + s * (c[1] + s * (c[2] + s * c[3]));
    }
    double GetEndValue() const { return IsStraight() ? c[0] + (a - da) * c[1] : GetValue(a); }
    bool IsStraight() const { return c[2] == 0 && c[3] == 0; }
    // Places strictly inside the stretch where the diagram is level, in increasing order; returns how many.
    int GetEnds(double (&x)[2]) const;
};
