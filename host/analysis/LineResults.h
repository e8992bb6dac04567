// The lines' results of one load case, packed: with many cases they are most of what an analysis leaves behind.
#pragma once

#include "model/result/TraveRisultati.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace host {

// A hundred bytes a line. Equal loads, as most are, are kept once, and cases of one analysis share what does not depend
// on the case. A line's record is made anew, bit for bit, when it is asked for.
class LineResults {
  public:
    LineResults() = default;
    // Those of `alike`, when given, are of the same lines; they are shared when they prove to be.
    explicit LineResults(const std::vector<CTraveRisultati>& lines, const LineResults* alike = nullptr);

    std::size_t size() const { return m_ends.size(); }
    bool empty() const { return m_ends.empty(); }
    CTraveRisultati operator[](std::size_t index) const;
    // The same in a record that is there already: for many lines, one after the other.
    void Read(std::size_t index, CTraveRisultati& record) const;
    std::vector<CTraveRisultati> All() const;

  private:
    struct Line {
        int id;
        double length;
        bool operator==(const Line&) const = default;
    };
    // Numbers of the loads of each line among those of the case: of line i from m_first[i] on. Empty when no line has
    // any.
    struct Loads {
        std::vector<std::uint32_t> first, numbers;
        bool operator==(const Loads&) const = default;
    };

    std::shared_ptr<const std::vector<Line>> m_lines;
    std::vector<std::array<double, 12>> m_ends; // both records of internal forces
    std::shared_ptr<const Loads> m_onStretches, m_onPoints;
    std::vector<CTraveRisultati::Distributed> m_distributed; // what acts on a whole line ends at infinity
    std::vector<CTraveRisultati::PointForce> m_points;
};

} // namespace host
