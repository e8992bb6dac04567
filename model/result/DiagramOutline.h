// The outline of a curve with no more points than can be seen, however many there are.
#pragma once

#include "platform/core/Geometry.h"

#include <algorithm>
#include <vector>

class DiagramOutline {
  public:
    // Appends to `points`, which outlives the outline and is complete when that ends. `closeEnough`: how far the
    // strokes may pass from the points left out, pixels.
    DiagramOutline(std::vector<FinePoint>& points, double closeEnough)
        : m_points(points), m_allowed(closeEnough), m_column(points.size()) {}
    ~DiagramOutline();
    DiagramOutline(const DiagramOutline&) = delete;
    DiagramOutline& operator=(const DiagramOutline&) = delete;

    // Pixels, from left to right. Two points at one x make a jump.
    void Add(FinePoint point) {
        if (m_begun && point.x > m_latest.x) {
            double run = 1 / (point.x - m_start.x), slope = (point.y - m_start.y) * run;
            if (slope < m_lowest || slope > m_highest) {
                Start(m_latest);
                run = 1 / (point.x - m_start.x);
                slope = (point.y - m_start.y) * run;
            }
            m_lowest = std::max(m_lowest, slope - m_allowed * run);
            m_highest = std::min(m_highest, slope + m_allowed * run);
        } else {
            if (m_begun)
                Put(m_latest);
            Start(point);
        }
        m_latest = point;
    }

  private:
    void Start(FinePoint point);
    void Put(FinePoint point);
    void EndColumn();

    std::vector<FinePoint>& m_points;
    double m_allowed;
    // The stroke that is open: every slope between these two, seen from its start, passes its points closely enough.
    bool m_begun = false;
    FinePoint m_start, m_latest;
    double m_lowest = 0, m_highest = 0;
    std::size_t m_column; // where the points of the latest column of pixels begin
};
