// The packed results of the lines.
#include "host/analysis/LineResults.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <malloc.h>

using namespace host;

namespace {

CTraveRisultati Record(int id, double length) {
    CTraveRisultati record;
    record.SetID(id);
    record.SetLineLength(length);
    for (int i = 0; i < 12; ++i)
        record.GetNodeResults(i / 6)->GetIndex(i % 6) = std::sin(id + i);
    return record;
}

CTraveRisultati::Distributed Uniform(double from, double to, double value) {
    return {from, to, {0, -0.0, value}, {0, -0.0, value}};
}

void ExpectSame(const CTraveRisultati& a, const CTraveRisultati& b) {
    EXPECT_EQ(a.GetID(), b.GetID());
    EXPECT_EQ(a.GetLunghezzaLinea(), b.GetLunghezzaLinea());
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(a.GetNodeResults(i / 6)->GetIndex(i % 6), b.GetNodeResults(i / 6)->GetIndex(i % 6));
    ASSERT_EQ(a.GetDistributed().size(), b.GetDistributed().size());
    for (std::size_t i = 0; i < a.GetDistributed().size(); ++i)
        EXPECT_EQ(std::memcmp(&a.GetDistributed()[i], &b.GetDistributed()[i], sizeof a.GetDistributed()[i]), 0);
    ASSERT_EQ(a.GetPointForces().size(), b.GetPointForces().size());
    for (std::size_t i = 0; i < a.GetPointForces().size(); ++i)
        EXPECT_EQ(std::memcmp(&a.GetPointForces()[i], &b.GetPointForces()[i], sizeof a.GetPointForces()[i]), 0);
}

// Catches loads of a neighbour, or of the length of another line.
TEST(LineResults, RecordsComeBackBitForBit) {
    std::vector<CTraveRisultati> records;
    for (int i = 0; i < 6; ++i)
        records.push_back(Record(10 + i, 3 + i % 2));
    records[1].AddCarico(Uniform(0, 4, -5));
    records[1].AddCarico(Uniform(1, 3, -5));
    records[2].AddCarico(Uniform(0, 3, -5));
    records[2].AddCarico(CTraveRisultati::PointForce{1.5, {1, 2, 3}, {4, 5, 6}});
    records[4].AddCarico(CTraveRisultati::PointForce{1.5, {1, 2, 3}, {4, 5, 6}});
    records[4].AddCarico(CTraveRisultati::PointForce{2, {0, 0, -0.0}, {}});
    const LineResults first(std::vector<CTraveRisultati>{}), packed(records), shared(records, &packed);
    EXPECT_TRUE(first.All().empty());
    for (const LineResults* results : {&packed, &shared})
        for (std::size_t i = 0; i < records.size(); ++i)
            ExpectSame((*results)[i], records[i]);
}

// The results of a hundred thousand lines with twenty cases fit in 300 MB.
TEST(LineResults, AreSmall) {
    constexpr int lines = 20'000, cases = 5;
    const auto allocated = [] {
        const struct mallinfo2 now = mallinfo2();
        return now.uordblks + now.hblkhd;
    };
    std::vector<CTraveRisultati> records;
    for (int i = 0; i < lines; ++i) {
        records.push_back(Record(i + 1, 3 + i % 7));
        records.back().AddCarico(Uniform(0, 3 + i % 7, -1 - i % 50));
    }
    const std::size_t before = allocated();
    std::vector<LineResults> results;
    for (int i = 0; i < cases; ++i)
        results.emplace_back(records, i > 0 ? &results.front() : nullptr);
    const double each = static_cast<double>(allocated() - before) / (lines * cases);
    RecordProperty("bytesPerLineAndCase", static_cast<int>(each));
#if !defined(__SANITIZE_ADDRESS__) // the sanitizer's allocator answers for itself
    EXPECT_LE(each, 112);
    EXPECT_GE(each, 96) << "the measurement itself failed";
#endif
}

} // namespace
