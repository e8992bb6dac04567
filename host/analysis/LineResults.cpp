#include "host/analysis/LineResults.h"

#include <algorithm>
#include <limits>
#include <string>
#include <unordered_map>

namespace host {

namespace {

constexpr double wholeLine = std::numeric_limits<double>::infinity();

// Numbers equal loads alike, by their bytes: the record must come back as it was, negative zeros included.
template <class Load>
class Numbers {
  public:
    explicit Numbers(std::vector<Load>& loads) : m_loads(loads) {}

    std::uint32_t Of(const Load& load) {
        static_assert(sizeof(Load) % sizeof(double) == 0, "padding would tell equal loads apart");
        const std::string bytes(reinterpret_cast<const char*>(&load), sizeof load);
        const auto [found, isNew] = m_numbers.emplace(bytes, static_cast<std::uint32_t>(m_loads.size()));
        if (isNew)
            m_loads.push_back(load);
        return found->second;
    }

  private:
    std::vector<Load>& m_loads;
    std::unordered_map<std::string, std::uint32_t> m_numbers;
};

// The other one instead, when it says the same.
template <class T>
std::shared_ptr<const T> Share(T mine, const std::shared_ptr<const T>& other) {
    return other && *other == mine ? other : std::make_shared<const T>(std::move(mine));
}

} // namespace

LineResults::LineResults(const std::vector<CTraveRisultati>& lines, const LineResults* alike) {
    std::vector<Line> known;
    known.reserve(lines.size());
    m_ends.resize(lines.size());
    Numbers distributed(m_distributed);
    Numbers points(m_points);
    Loads onStretches, onPoints;
    const auto enter = [&lines](Loads& its, std::size_t i, std::uint32_t number) {
        its.first.resize(lines.size() + 1);
        its.numbers.push_back(number);
        its.first[i + 1] = static_cast<std::uint32_t>(its.numbers.size());
    };
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const CTraveRisultati& line = lines[i];
        known.push_back({line.GetID(), line.GetLunghezzaLinea()});
        for (std::size_t k = 0; k < 12; ++k)
            m_ends[i][k] = line.GetNodeResults(k < 6 ? 0 : 1)->GetIndex(static_cast<int>(k % 6));
        for (CTraveRisultati::Distributed load : line.GetDistributed()) {
            if (load.a == line.GetLunghezzaLinea())
                load.a = wholeLine;
            enter(onStretches, i, distributed.Of(load));
        }
        for (const CTraveRisultati::PointForce& load : line.GetPointForces())
            enter(onPoints, i, points.Of(load));
    }
    for (Loads* its : {&onStretches, &onPoints}) {
        for (std::size_t i = 1; i < its->first.size(); ++i) // lines without loads end where the one before does
            its->first[i] = std::max(its->first[i], its->first[i - 1]);
        its->numbers.shrink_to_fit();
    }
    m_lines = Share(std::move(known), alike ? alike->m_lines : nullptr);
    m_onStretches = Share(std::move(onStretches), alike ? alike->m_onStretches : nullptr);
    m_onPoints = Share(std::move(onPoints), alike ? alike->m_onPoints : nullptr);
}

CTraveRisultati LineResults::operator[](std::size_t index) const {
    CTraveRisultati record;
    Read(index, record);
    return record;
}

void LineResults::Read(std::size_t index, CTraveRisultati& record) const {
    const Line& line = (*m_lines)[index];
    record.RemoveCarichi();
    record.SetID(line.id);
    record.SetLineLength(line.length);
    for (std::size_t k = 0; k < 12; ++k)
        record.GetNodeResults(k < 6 ? 0 : 1)->GetIndex(static_cast<int>(k % 6)) = m_ends[index][k];
    const auto each = [index](const Loads& its, const auto& action) {
        if (!its.first.empty())
            for (std::uint32_t at = its.first[index]; at < its.first[index + 1]; ++at)
                action(its.numbers[at]);
    };
    each(*m_onStretches, [&](std::uint32_t number) {
        CTraveRisultati::Distributed load = m_distributed[number];
        if (load.a == wholeLine)
            load.a = line.length;
        record.AddCarico(load);
    });
    each(*m_onPoints, [&](std::uint32_t number) { record.AddCarico(m_points[number]); });
}

std::vector<CTraveRisultati> LineResults::All() const {
    std::vector<CTraveRisultati> all;
    all.reserve(size());
    for (std::size_t i = 0; i < size(); ++i)
        all.push_back((*this)[i]);
    return all;
}

} // namespace host
