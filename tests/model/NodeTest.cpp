// What holds a node, what it carries over to a copy, and its units.
#include "tests/model/SmallModel.h"

namespace {

// Faults: components mixed up, an empty restraint taken for one (the check then counts a held node).
TEST(NodeTest, Restraints) {
    CNodo node;
    const CVincolo free;
    node.SetVincolo(&free);
    EXPECT_EQ(node.GetVincolo(), nullptr);
    const CVincolo some(1, 0, 1, 0, 1, 0);
    node.SetVincolo(&some);
    ASSERT_NE(node.GetVincolo(), nullptr);
    CVincolo& v = *node.GetVincolo();
    EXPECT_EQ(v.GetMaschera(), static_cast<unsigned>(CVincolo::Tx | CVincolo::Tz | CVincolo::Ry));
    v.SetFisso(0, 0);
    v.SetFisso(5, 1);
    EXPECT_EQ(v.GetMaschera(), static_cast<unsigned>(CVincolo::Tz | CVincolo::Ry | CVincolo::Rz));
    EXPECT_FALSE(v.IsFisso(6));
    node.SetVincolo(nullptr);
    EXPECT_EQ(node.GetVincolo(), nullptr);
}

// Faults: a rotational stiffness converted as a translational one, a reaction's moment as a force.
TEST(NodeTest, SpringsReactionsAndUnits) {
    CNodo node(CFPoint(1, 2, 3));
    EXPECT_EQ(node.AddMolla(CMolla(CMolla::Traslazionale, 500, CFPoint(0, 0, 1))), 0);
    EXPECT_EQ(node.AddMolla(CMolla(CMolla::Rotazionale, 80, CFPoint(1, 0, 0))), 1);
    const CNodoReazioniVincolari reaction(1, 2, 3, 4, 5, 6);
    EXPECT_EQ(node.GetReazioniVincolari(), nullptr);
    node.SetReazioniVincolari(&reaction);
    node.ChangeLunghezza(Lunghezza::Centimetri);
    node.ChangeForza(Forza::Newton);
    EXPECT_EQ(*node.GetPunto(), CFPoint(100, 200, 300));
    EXPECT_NEAR(node.GetIndexMolla(0)->GetRigidezza().GetValore(), 5000, 1e-9);
    EXPECT_NEAR(node.GetIndexMolla(1)->GetRigidezza().GetValore(), 8e6, 1e-6);
    EXPECT_NEAR(node.GetReazioniVincolari()->GetFz(), 3000, 1e-9);
    EXPECT_NEAR(node.GetReazioniVincolari()->GetMx(), 4e5, 1e-7);
    node.SetReazioniVincolari(nullptr);
    EXPECT_EQ(node.GetReazioniVincolari(), nullptr);
    EXPECT_TRUE(node.EliminaMolla(0));
    EXPECT_FALSE(node.EliminaMolla(1));
    EXPECT_EQ(node.GetIndexMolla(0)->GetTipo(), CMolla::Rotazionale);
}

// Fault: a conversion, or an assignment, that moves the node and leaves the search by position behind.
TEST(NodeTest, TheGridFollows) {
    NodeGrid grid;
    CNodo node(CFPoint(1, 0, 0)), other(CFPoint(7, 7, 7));
    grid.Insert(&node);
    node.ChangeLunghezza(Lunghezza::Millimetri);
    EXPECT_EQ(grid.Find({1000, 0, 0}, nullptr, 1e-5), &node);
    EXPECT_EQ(grid.Find({1, 0, 0}, nullptr, 1e-5), nullptr);
    const CVincolo hinge(7u);
    other.SetVincolo(&hinge);
    node = other;
    EXPECT_EQ(grid.Find({7, 7, 7}, nullptr, 1e-5), &node);
    EXPECT_EQ(node.GetVincolo()->GetMaschera(), 7u);
}

} // namespace
