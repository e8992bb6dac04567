// A grid of construction lines on a plane: two directions from an origin, with lines across each of them.
#pragma once

#include "model/values/FPoint.h"
#include "model/values/Units.h"

namespace host {

struct ConstructionGrid {
    // Lines that stand `spacing` apart along a direction and run along the other one, on both sides of the origin,
    // through which one goes. A negative number of them counts as none, a spacing of 0 leaves that one.
    struct Lines {
        int negative = 0;
        int positive = 10;
        double spacing = 1;
        double angle = 0; // degrees, of the direction: from the plane's first axis to its second

        int First() const { return spacing == 0 || negative < 0 ? 0 : -negative; }
        int Last() const { return spacing == 0 || positive < 0 ? 0 : positive; }
        bool operator==(const Lines&) const = default;
    };

    bool shown = false;
    int plane = 0;   // 0 X-Y, 1 X-Z, 2 Y-Z
    double tilt = 0; // degrees, of the plane about its first axis
    CFPoint origin;
    Lines lines[2]; // across the plane's first axis and its second, each turned by its own angle
    // Of origin and spacings, whatever the document's unit is by now: numbers that were typed stay what they were.
    Lunghezza length = Lunghezza::Metres;

    bool operator==(const ConstructionGrid&) const = default;
    CFPoint Direction(int i) const; // of lines[i], a unit vector
    CFPoint Crossing(int i, int j) const { return At(i * lines[0].spacing, j * lines[1].spacing); }
    CFPoint At(double a, double b) const { return origin + Direction(0) * a + Direction(1) * b; }
    // Whether all crossings are places that a node may have, and the directions not one.
    bool IsUsable() const;
    ConstructionGrid In(Lunghezza unit) const;
};

} // namespace host
