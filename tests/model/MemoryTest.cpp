// A million nodes and a million beams fit in a gibibyte, their search by position and identifier included.
#include "model/index/IdIndex.h"
#include "tests/model/SmallModel.h"

#include <malloc.h>

namespace {

// What every object costs whether it has loads or not: a field too many here is 8 MB in a large model.
static_assert(sizeof(CElemento) <= 24);
static_assert(sizeof(CNodo) <= 112);
static_assert(sizeof(CTrave) <= 88);

TEST(MemoryTest, APairOfNodeAndBeamIsSmall) {
    constexpr int count = 100000;
    CMateriale material;
    CSezione section;
    std::vector<std::unique_ptr<CNodo>> nodes;
    std::vector<std::unique_ptr<CTrave>> beams;
    NodeGrid grid;
    IdIndex<CNodo> byId;
    const auto allocated = [] {
        const struct mallinfo2 now = mallinfo2();
        return now.uordblks + now.hblkhd; // large blocks are mapped by themselves
    };
    const std::size_t before = allocated();
    for (int i = 0; i < count; ++i) {
        nodes.push_back(std::make_unique<CNodo>(CFPoint(i % 100, i / 100 % 100, i / 10000)));
        nodes.back()->SetID(i + 1);
        grid.Insert(nodes.back().get());
        byId.Insert(i + 1, nodes.back().get());
    }
    // Three beams a node in a chain with short cuts: the lists outgrow their inside places.
    for (int i = 0; i < count; ++i) {
        beams.push_back(std::make_unique<CTrave>());
        beams.back()->SetID(i + 1);
        beams.back()->SetMateriale(1, &material);
        beams.back()->SetSezione(1, &section);
        beams.back()->SetNodi(nodes[static_cast<std::size_t>(i)].get(),
                              nodes[static_cast<std::size_t>((i + 1 + i % 5) % count)].get());
    }
    EXPECT_NE(grid.Find({99, 99, 9}, nullptr, 1e-5), nullptr);
    // Results come to every line: what comes to few has a record of its own, which would be more than the line.
    CTraveRisultati results;
    for (auto& beam : beams)
        beam->SetRisultati(&results);
    const double each = static_cast<double>(allocated() - before) / count;
    RecordProperty("bytesPerPair", static_cast<int>(each));
#if !defined(__SANITIZE_ADDRESS__) // the sanitizer's allocator answers for itself
    EXPECT_LE(each, 500) << "bytes for a node and a beam";
    EXPECT_GT(each, sizeof(CNodo) + sizeof(CTrave)) << "the measurement itself failed";
#endif
}

} // namespace
