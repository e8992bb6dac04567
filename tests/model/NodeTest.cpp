// What holds a node, what it carries over to a copy, and its units.
#include "tests/model/SmallModel.h"

namespace {

// Faults: components mixed up, an empty restraint taken for one (the check then counts a held node).
TEST(NodeTest, Restraints) {
    CNodo node;
    const CVincolo free;
    node.SetRestraint(&free);
    EXPECT_EQ(node.GetVincolo(), nullptr);
    const CVincolo some(1, 0, 1, 0, 1, 0);
    node.SetRestraint(&some);
    ASSERT_NE(node.GetVincolo(), nullptr);
    CVincolo& v = *node.GetVincolo();
    EXPECT_EQ(v.GetMask(), static_cast<unsigned>(CVincolo::Tx | CVincolo::Tz | CVincolo::Ry));
    v.SetFixed(0, 0);
    v.SetFixed(5, 1);
    EXPECT_EQ(v.GetMask(), static_cast<unsigned>(CVincolo::Tz | CVincolo::Ry | CVincolo::Rz));
    EXPECT_FALSE(v.IsFixed(6));
    node.SetRestraint(nullptr);
    EXPECT_EQ(node.GetVincolo(), nullptr);
}

// Faults: a rotational stiffness converted as a translational one, a reaction's moment as a force.
TEST(NodeTest, SpringsReactionsAndUnits) {
    CNodo node(CFPoint(1, 2, 3));
    EXPECT_EQ(node.AddSpring(CMolla(CMolla::Translational, 500, CFPoint(0, 0, 1))), 0);
    EXPECT_EQ(node.AddSpring(CMolla(CMolla::Rotational, 80, CFPoint(1, 0, 0))), 1);
    const CNodoReazioniVincolari reaction(1, 2, 3, 4, 5, 6);
    EXPECT_EQ(node.GetReazioniVincolari(), nullptr);
    node.SetReactions(&reaction);
    node.ChangeLunghezza(Lunghezza::Centimetres);
    node.ChangeForza(Forza::Newton);
    EXPECT_EQ(*node.GetPunto(), CFPoint(100, 200, 300));
    EXPECT_NEAR(node.GetIndexMolla(0)->GetStiffness().GetValue(), 5000, 1e-9);
    EXPECT_NEAR(node.GetIndexMolla(1)->GetStiffness().GetValue(), 8e6, 1e-6);
    EXPECT_NEAR(node.GetReazioniVincolari()->GetReaction(2), 3000, 1e-9);
    EXPECT_NEAR(node.GetReazioniVincolari()->GetReaction(3), 4e5, 1e-7);
    node.SetReactions(nullptr);
    EXPECT_EQ(node.GetReazioniVincolari(), nullptr);
}

// Fault: a conversion, or an assignment, that moves the node and leaves the search by position behind.
TEST(NodeTest, TheGridFollows) {
    NodeGrid grid;
    CNodo node(CFPoint(1, 0, 0)), other(CFPoint(7, 7, 7));
    grid.Insert(&node);
    node.ChangeLunghezza(Lunghezza::Millimetres);
    EXPECT_EQ(grid.Find({1000, 0, 0}, nullptr, 1e-5), &node);
    EXPECT_EQ(grid.Find({1, 0, 0}, nullptr, 1e-5), nullptr);
    const CVincolo hinge(7u);
    other.SetRestraint(&hinge);
    node = other;
    EXPECT_EQ(grid.Find({7, 7, 7}, nullptr, 1e-5), &node);
    EXPECT_EQ(node.GetVincolo()->GetMask(), 7u);
}

} // namespace
