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
