#include "model/result/DiagramCurve.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

DiagramCurve::DiagramCurve(std::vector<DiagramStretch> pieces) : m_pieces(std::move(pieces)) {
    std::erase_if(m_pieces, [](const DiagramStretch& piece) { return !(piece.a > piece.da); });
    FindTurns();
}

const DiagramStretch& DiagramCurve::PieceAt(double x, int side) const {
    const auto ends = [side](double place, const DiagramStretch& piece) {
        return side < 0 ? place <= piece.a : place < piece.a;
    };
    const auto found = std::upper_bound(m_pieces.begin(), m_pieces.end(), x, ends);
    return found == m_pieces.end() ? m_pieces.back() : *found;
}

double DiagramCurve::Value(double x, int side) const {
    if (m_pieces.empty())
        return 0;
    const DiagramStretch& piece = PieceAt(x, side);
    return piece.GetValue(std::clamp(x, piece.da, piece.a));
}

// A stretch that goes on the way of the one before leaves no turn between them.
void DiagramCurve::AddTurn(double x, double value) {
    const std::size_t count = m_turns.size();
    if (count > 1) {
        const Point &before = m_turns[count - 2], &last = m_turns[count - 1];
        const bool jump = before.x == last.x || last.x == x;
        if (!jump && (last.value - before.value) * (value - last.value) > 0)
            m_turns.pop_back();
    }
    m_turns.push_back({x, value});
    m_minimum = std::min(m_minimum, value);
    m_maximum = std::max(m_maximum, value);
}

void DiagramCurve::FindTurns() {
    for (const DiagramStretch& piece : m_pieces) {
        if (m_turns.empty() || !Same(m_turns.back().value, piece.c[0]))
            AddTurn(piece.da, piece.c[0]);
        double places[2];
        const int count = piece.IsStraight() ? 0 : piece.GetEnds(places);
        for (int i = 0; i < count; ++i)
            AddTurn(places[i], piece.GetValue(places[i]));
        AddTurn(piece.a, piece.GetEndValue());
    }
}

bool DiagramCurve::FindJump(double from, double to, double& place) const {
    const auto before = [](const DiagramStretch& piece, double x) { return piece.da < x; };
    auto piece = std::lower_bound(m_pieces.begin(), m_pieces.end(), from, before);
    for (; piece != m_pieces.end() && piece->da <= to; ++piece) {
        if (piece == m_pieces.begin() || Same(piece->c[0], std::prev(piece)->GetValue(piece->da)))
            continue;
        place = piece->da;
        return true;
    }
    return false;
}

std::vector<DiagramCurve::Point> DiagramCurve::Peaks() const {
    const std::vector<Point>& all = m_turns;
    std::vector<Point> peaks;
    // Equal neighbours are the two ends of a level stretch, which is named once.
    const auto add = [&](const Point& point) {
        if (peaks.empty() || !Same(peaks.back().value, point.value))
            peaks.push_back(point);
    };
    bool rising = false, moved = false;
    for (std::size_t i = 0; i + 1 < all.size(); ++i) {
        if (i == 0)
            add(all[0]);
        if (Same(all[i].value, all[i + 1].value))
            continue;
        const bool up = all[i + 1].value > all[i].value, jump = all[i].x == all[i + 1].x;
        if (jump || (moved && up != rising))
            add(all[i]);
        if (jump)
            add(all[i + 1]);
        rising = up;
        moved = true;
    }
    if (peaks.size() > 1 && Same(peaks.back().value, all.back().value))
        peaks.pop_back();
    if (!all.empty())
        peaks.push_back(all.back());
    return peaks;
}
