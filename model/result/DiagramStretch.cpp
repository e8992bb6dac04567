#include "model/result/DiagramStretch.h"

#include <algorithm>
#include <cmath>

int DiagramStretch::GetEnds(double (&x)[2]) const {
    const double a2 = 3 * c[3], a1 = 2 * c[2], a0 = c[1];
    double roots[2];
    int count = 0;
    if (a2 == 0) {
        if (a1 != 0)
            roots[count++] = -a0 / a1;
    } else {
        const double discriminant = a1 * a1 - 4 * a2 * a0;
        if (discriminant > 0) {
            // The root whose terms add up first, the other one from the product: no cancellation.
            const double q = -(a1 + std::copysign(std::sqrt(discriminant), a1)) / 2;
            roots[count++] = q / a2;
            if (q != 0)
                roots[count++] = a0 / q;
        }
    }
    std::sort(roots, roots + count);
    int inside = 0;
    for (int i = 0; i < count; ++i)
        if (roots[i] > 0 && roots[i] < a - da)
            x[inside++] = da + roots[i];
    return inside;
}

// Between its extremes the diagram goes one way only, so each part holds one zero at most.
int DiagramStretch::GetZeros(double (&x)[3]) const {
    double bounds[4] = {da};
    double level[2];
    int count = 1;
    for (int i = 0, levels = GetEnds(level); i < levels; ++i)
        bounds[count++] = level[i];
    bounds[count++] = a;
    int found = 0;
    const auto add = [&](double place) {
        if (found < 3 && (found == 0 || place > x[found - 1]))
            x[found++] = place;
    };
    if (c[0] == 0 && c[1] == 0 && c[2] == 0 && c[3] == 0)
        return 0;
    for (int i = 0; i + 1 < count; ++i) {
        double low = bounds[i], high = bounds[i + 1];
        const double first = GetValue(low), last = GetValue(high);
        if (first == 0)
            add(low);
        if (first * last < 0) {
            for (double middle = (low + high) / 2; middle > low && middle < high; middle = (low + high) / 2)
                (GetValue(middle) * first > 0 ? low : high) = middle;
            add(low);
        }
        if (last == 0)
            add(bounds[i + 1]);
    }
    return found;
}
