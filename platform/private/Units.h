// Dialog units: 4 by 8 of them are one base unit of 6 by 13 pixels, on every machine.
#pragma once

namespace platform {

constexpr int roundedDivision(int numerator, int denominator) {
    return (numerator >= 0 ? numerator + denominator / 2 : numerator - denominator / 2) / denominator;
}
constexpr int unitsToX(int units) {
    return roundedDivision(units * 6, 4);
}
constexpr int unitsToY(int units) {
    return roundedDivision(units * 13, 8);
}

} // namespace platform
