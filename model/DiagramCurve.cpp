#include "model/DiagramCurve.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// Values that differ by less than this part of the largest one are the same: sums of loads leave such differences.
constexpr double sameValue = 1e-9;

double valueAt(const TrattoDiagramma& piece, double x) {
    const double s = x - piece.da;
    return piece.c[0] + s * (piece.c[1] + s * (piece.c[2] + s * piece.c[3]));
}

bool isStraight(const TrattoDiagramma& piece) {
    return piece.c[2] == 0 && piece.c[3] == 0;
}

} // namespace

DiagramCurve::DiagramCurve(std::vector<TrattoDiagramma> pieces) : m_pieces(std::move(pieces)) {
    std::erase_if(m_pieces, [](const TrattoDiagramma& piece) { return !(piece.a > piece.da); });
    findTurns();
}

bool DiagramCurve::same(double a, double b) const {
    return std::abs(a - b) <= sameValue * (m_maximum - m_minimum);
}

const TrattoDiagramma& DiagramCurve::pieceAt(double x, int side) const {
    const auto ends = [side](double place, const TrattoDiagramma& piece) {
        return side < 0 ? place <= piece.a : place < piece.a;
    };
    const auto found = std::upper_bound(m_pieces.begin(), m_pieces.end(), x, ends);
    return found == m_pieces.end() ? m_pieces.back() : *found;
}

double DiagramCurve::Value(double x, int side) const {
    if (m_pieces.empty())
        return 0;
    const TrattoDiagramma& piece = pieceAt(x, side);
    return valueAt(piece, std::clamp(x, piece.da, piece.a));
}

void DiagramCurve::findTurns() {
    m_turns.reserve(m_pieces.size() + 1);
    const auto add = [this](double x, double value) {
        m_turns.push_back({x, value});
        m_minimum = std::min(m_minimum, value);
        m_maximum = std::max(m_maximum, value);
    };
    for (const TrattoDiagramma& piece : m_pieces) {
        if (m_turns.empty() || m_turns.back().value != piece.c[0])
            add(piece.da, piece.c[0]);
        double places[2];
        const int count = isStraight(piece) ? 0 : piece.GetEstremi(places);
        for (int i = 0; i < count; ++i)
            add(places[i], valueAt(piece, places[i]));
        add(piece.a, valueAt(piece, piece.a));
    }
}

bool DiagramCurve::FindJump(double from, double to, double& place) const {
    for (std::size_t i = 1; i < m_pieces.size() && m_pieces[i].da <= to; ++i) {
        const double at = m_pieces[i].da;
        if (at < from || same(m_pieces[i].c[0], valueAt(m_pieces[i - 1], at)))
            continue;
        place = at;
        return true;
    }
    return false;
}

std::vector<DiagramCurve::Point> DiagramCurve::Peaks() const {
    const std::vector<Point>& all = m_turns;
    std::vector<Point> peaks;
    // Equal neighbours are the two ends of a level stretch, which is named once.
    const auto add = [&](const Point& point) {
        if (peaks.empty() || !same(peaks.back().value, point.value))
            peaks.push_back(point);
    };
    bool rising = false, moved = false;
    for (std::size_t i = 0; i + 1 < all.size(); ++i) {
        if (i == 0)
            add(all[0]);
        if (same(all[i].value, all[i + 1].value))
            continue;
        const bool up = all[i + 1].value > all[i].value, jump = all[i].x == all[i + 1].x;
        if (jump || (moved && up != rising))
            add(all[i]);
        if (jump)
            add(all[i + 1]);
        rising = up;
        moved = true;
    }
    if (peaks.size() > 1 && same(peaks.back().value, all.back().value))
        peaks.pop_back();
    if (!all.empty())
        peaks.push_back(all.back());
    return peaks;
}

void DiagramCurve::Sample(double step, std::vector<Point>& points) const {
    points.clear();
    const auto add = [&points](double x, double value) {
        if (points.empty() || points.back().value != value || points.back().x != x)
            points.push_back({x, value});
    };
    for (const TrattoDiagramma& piece : m_pieces) {
        const double length = piece.a - piece.da;
        const int parts = isStraight(piece) ? 1 : std::max(1, static_cast<int>(std::ceil(length / step)));
        add(piece.da, piece.c[0]);
        for (int i = 1; i <= parts; ++i) {
            const double x = i == parts ? piece.a : piece.da + length * i / parts;
            add(x, valueAt(piece, x));
        }
    }
}
