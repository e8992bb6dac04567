// Finding by position and by identifier.
#include "model/index/NodeGrid.h"
#include "model/index/IdIndex.h"
#include "tests/model/SmallModel.h"

#include <cmath>
#include <random>
#include <set>

namespace {

// Faults: a neighbour cell forgotten (a node across a cell's border is missed), the limit excluded, the nearest not
// taken.
TEST(NodeGridTest, FindsTheNearestWithinTheTolerance) {
    SmallModel m;
    NodeGrid grid;
    CNodo &a = m.Node(0, 0, 0), &b = m.Node(1, 0, 0), &c = m.Node(1.25, 0, 0);
    for (const auto& node : m.nodes)
        ASSERT_TRUE(grid.Insert(node.get()));
    EXPECT_FALSE(grid.Insert(&a));

    EXPECT_EQ(grid.Find({-1e-5, 0, 0}, nullptr, 1e-5), &a);
    EXPECT_EQ(grid.Find({0, 0, 0.0000101}, nullptr, 1e-5), nullptr);
    EXPECT_EQ(grid.Find({0, 0, 0}, &a, 1), &b);
    EXPECT_EQ(grid.Find({1.2, 0, 0}, nullptr, 0.5), &c);
    EXPECT_EQ(grid.Find({0.5, 0, 0}, nullptr, 100), &a); // equally near: the lower number
    EXPECT_EQ(grid.Find({1, 0, 0}, nullptr, 0), &b);
    EXPECT_EQ(grid.Find({1, 0, 0}, nullptr, -1), nullptr);
    EXPECT_EQ(grid.Find({std::nan(""), 0, 0}, nullptr, 1), nullptr);
    EXPECT_EQ(grid.Find({1, 0, 0}, nullptr, std::nan("")), nullptr);
}

// The grid must agree with a plain search for any tolerance, while nodes come, move and go.
TEST(NodeGridTest, AgreesWithAPlainSearch) {
    SmallModel m;
    NodeGrid grid;
    std::mt19937 random(4711);
    std::uniform_real_distribution<double> coordinate(-3, 3);
    const auto anywhere = [&] { return CFPoint(coordinate(random), coordinate(random), coordinate(random)); };
    for (int i = 0; i < 300; ++i)
        grid.Insert(&m.Node(coordinate(random), coordinate(random), coordinate(random)));

    std::set<CNodo*> inside;
    for (const auto& node : m.nodes)
        inside.insert(node.get());
    const double tolerances[] = {1e-5, 0.01, 0.3, 1, 2.9, 100, 0.02, 7};
    for (int round = 0; round < 4000; ++round) {
        CNodo& changed = *m.nodes[random() % m.nodes.size()];
        if (round % 3 == 0) {
            changed.SetPoint(round % 2 ? anywhere() : *m.nodes[random() % m.nodes.size()]->GetPunto());
        } else if (round % 3 == 1 && inside.erase(&changed)) {
            ASSERT_TRUE(grid.Remove(&changed));
        } else if (grid.Insert(&changed)) {
            ASSERT_TRUE(inside.insert(&changed).second);
        }
        const CFPoint target = round % 2 ? anywhere() : *changed.GetPunto();
        const double tolerance = tolerances[round % 8];
        const CNodo* best = nullptr;
        double nearest = tolerance;
        for (CNodo* node : inside) {
            const double distance = (*node->GetPunto() - target).GetMod();
            if (node != &changed && distance <= nearest && (!best || distance < nearest)) {
                best = node;
                nearest = distance;
            }
        }
        CNodo* const found = grid.Find(target, &changed, tolerance);
        ASSERT_EQ(found != nullptr, best != nullptr) << "round " << round;
        if (found) {
            ASSERT_TRUE(inside.count(found)) << "round " << round;
            ASSERT_EQ((*found->GetPunto() - target).GetMod(), nearest) << "round " << round;
        }
    }
}

// Faults: a node that died is still found; coordinates without a cell; one that turns into no number.
TEST(NodeGridTest, ForgetsNodesAndEndures) {
    NodeGrid grid;
    {
        CNodo gone(CFPoint(1, 2, 3));
        grid.Insert(&gone);
        EXPECT_EQ(grid.Find({1, 2, 3}, nullptr, 1e-5), &gone);
    }
    EXPECT_EQ(grid.Find({1, 2, 3}, nullptr, 1e-5), nullptr);
    EXPECT_EQ(grid.GetSize(), 0);

    CNodo far(CFPoint(1e18, -1e300, 1e-300)), wild(CFPoint(std::nan(""), 0, 0));
    EXPECT_TRUE(grid.Insert(&far));
    EXPECT_FALSE(grid.Insert(&wild));
    EXPECT_EQ(grid.Find({1e18, -1e300, 0}, nullptr, 1e-5), &far);
    far.SetPoint(CFPoint(0, INFINITY, 0));
    EXPECT_EQ(grid.GetSize(), 0);
    far.SetPoint(CFPoint(0, 0, 0));
    EXPECT_TRUE(grid.Insert(&far));
    {
        NodeGrid brief;
        EXPECT_FALSE(brief.Insert(&far));
        EXPECT_FALSE(brief.Remove(&far));
        brief.Insert(&wild);
    }
    grid.Clear();
    NodeGrid next;
    EXPECT_TRUE(next.Insert(&far)); // both grids let their nodes go
}

// Faults: a wild number that makes the table as large as itself; a number given again while undo still holds its
// bearer.
TEST(IdIndexTest, FindsDenseAndWildNumbers) {
    IdIndex<int> index;
    int a = 0, b = 0, c = 0;
    EXPECT_TRUE(index.Insert(1, &a));
    EXPECT_TRUE(index.Insert(2147483646, &b));
    EXPECT_FALSE(index.Insert(1, &c));
    EXPECT_FALSE(index.Insert(0, &c));
    EXPECT_FALSE(index.Insert(-5, &c));
    EXPECT_FALSE(index.Insert(3, nullptr));
    EXPECT_EQ(index.Find(1), &a);
    EXPECT_EQ(index.Find(2147483646), &b);
    EXPECT_TRUE(!index.Find(2) && !index.Find(-1));
    EXPECT_TRUE(index.Remove(2147483646));
    EXPECT_FALSE(index.Remove(2147483646));

    // A number that was wild when it came is dense later on: it must not be taken twice.
    IdIndex<int> growing;
    growing.Insert(5000, &a);
    for (int id = 1; id < 5000; ++id)
        growing.Insert(id, &b);
    EXPECT_EQ(growing.Find(5000), &a);
    EXPECT_FALSE(growing.Insert(5000, &c));
    EXPECT_TRUE(growing.Remove(5000));
    EXPECT_EQ(growing.Find(5000), nullptr);
}

} // namespace
