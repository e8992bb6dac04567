#include "model/result/DiagramOutline.h"

#include <cmath>
#include <limits>

DiagramOutline::~DiagramOutline() {
    if (m_begun)
        Put(m_latest);
    EndColumn();
}

void DiagramOutline::Start(FinePoint point) {
    m_start = point;
    m_lowest = -std::numeric_limits<double>::infinity();
    m_highest = -m_lowest;
    m_begun = true;
    Put(point);
}

void DiagramOutline::Put(FinePoint point) {
    if (m_points.size() > m_column && std::floor(point.x) != std::floor(m_points[m_column].x))
        EndColumn();
    m_points.push_back(point);
}

// Of many points in one column of pixels, the first, the extremes and the last are what can be seen.
void DiagramOutline::EndColumn() {
    const auto begin = m_points.begin() + static_cast<std::ptrdiff_t>(m_column);
    if (m_points.end() - begin > 4) {
        const auto [low, high] = std::minmax_element(begin, m_points.end(),
                                                     [](const FinePoint& a, const FinePoint& b) { return a.y < b.y; });
        const FinePoint seen[] = {*begin, *std::min(low, high), *std::max(low, high), m_points.back()};
        m_points.erase(std::copy(std::begin(seen), std::end(seen), begin), m_points.end());
    }
    m_column = m_points.size();
}
