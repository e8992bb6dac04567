// Dialog units: 4 by 8 of them are one base unit of 6 by 13 pixels, on every machine.
#pragma once

namespace platform {

constexpr int RoundedDivision(int numerator, int denominator) {
    return (numerator >= 0 ? numerator + denominator / 2 : numerator - denominator / 2) / denominator;
}
constexpr int UnitsToX(int units) {
    return RoundedDivision(units * 6, 4);
}
constexpr int UnitsToY(int units) {
    return RoundedDivision(units * 13, 8);
}

} // namespace platform
