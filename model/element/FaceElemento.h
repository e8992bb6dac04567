// One filled face of an element, already projected, waiting to be drawn in order of depth.
#pragma once

#include "platform/core/Geometry.h"

#include <vector>

class CElemento;

struct FaceElemento {
    CElemento* element = nullptr; // not owned
    std::vector<CPoint> corners;  // pixels
    double depth = 0;             // of the middle, larger is nearer
    COLORREF fill = 0;
    COLORREF edge = 0;
};
