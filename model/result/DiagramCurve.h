// One quantity along a line, with what its diagram needs to know of it.
#pragma once

#include "model/result/DiagramStretch.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

class DiagramCurve {
  public:
    struct Point {
        double x;
        double value;
    };

    DiagramCurve() = default;
    // Stretches in order along the line, each beginning where the one before ends; those of no length are left out.
    explicit DiagramCurve(std::vector<DiagramStretch> pieces);

    bool IsEmpty() const { return m_pieces.empty(); }

    // Where the curve jumps, `side` below 0 gives the value before the jump, otherwise the one after it. Outside the
    // line the value of its end; 0 while empty.
    double Value(double x, int side = 1) const;

    // The first jump in [from, to]: its place, and true; false when there is none.
    bool FindJump(double from, double to, double& place) const;

    // Both ends, and between them every local extreme and both values of every jump, in order along the line.
    std::vector<Point> Peaks() const;

    // The smallest and the largest value, 0 included; and the larger of both sizes.
    double Minimum() const { return m_minimum; }
    double Maximum() const { return m_maximum; }
    double Largest() const { return m_maximum > -m_minimum ? m_maximum : -m_minimum; }

    // Calls `take(x, value)` for points that straight strokes join to the curve, at most `step` apart where it is bent.
    // Both values of a jump are there, one after the other.
    template <class Take>
    void Sample(double step, Take take) const;

  private:
    void FindTurns();
    const DiagramStretch& PieceAt(double x, int side) const;

    // Values that differ by a small part of the range are the same: sums of loads, and records joined by lines, leave
    // such differences.
    bool Same(double a, double b) const { return std::abs(a - b) <= sameValue * (m_maximum - m_minimum); }
    void AddTurn(double x, double value);

    static constexpr double sameValue = 1e-9;

    std::vector<DiagramStretch> m_pieces;
    // Where the curve begins, ends, jumps or turns, and maybe others: between two neighbours it goes one way.
    std::vector<Point> m_turns;
    double m_minimum = 0;
    double m_maximum = 0;
};

template <class Take>
void DiagramCurve::Sample(double step, Take take) const {
    const double small = sameValue * (m_maximum - m_minimum);
    double last = std::numeric_limits<double>::infinity();
    for (const DiagramStretch& piece : m_pieces) {
        if (std::abs(piece.c[0] - last) > small)
            take(piece.da, piece.c[0]);
        if (!piece.IsStraight()) {
            const double length = piece.a - piece.da;
            const int parts = std::max(1, static_cast<int>(std::ceil(length / step)));
            for (int i = 1; i < parts; ++i) {
                const double x = piece.da + length * i / parts;
                take(x, piece.GetValue(x));
            }
        }
        last = piece.GetEndValue();
        take(piece.a, last);
    }
}
