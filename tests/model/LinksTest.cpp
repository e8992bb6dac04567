// Who meets where: the elements at a node, and what happens when either side goes.
#include "tests/model/SmallModel.h"

#include <algorithm>
#include <set>

namespace {

std::set<CElemento*> At(CNodo& node) {
    std::set<CElemento*> found;
    for (int i = 0; i < node.GetSizeElementi(); ++i)
        found.insert(node.GetIndexElemento(i));
    EXPECT_EQ(static_cast<int>(found.size()), node.GetSizeElementi()) << "an element is listed twice";
    EXPECT_EQ(node.GetIndexElemento(-1), nullptr);
    EXPECT_EQ(node.GetIndexElemento(node.GetSizeElementi()), nullptr);
    return found;
}

using Elements = std::set<CElemento*>;

// Faults: the old node keeps the line, the new one does not get it: the search for structures then walks through thin
// air.
TEST(LinksTest, ALineFollowsItsNodes) {
    SmallModel m;
    CNodo &a = m.Node(0, 0, 0), &b = m.Node(6, 0, 0), &c = m.Node(2, 0, 0);
    CTrave& beam = m.Beam(a, b);
    EXPECT_TRUE(beam.SetNodi(&a, &c)); // as the division of a line does
    EXPECT_EQ(At(a), Elements{&beam});
    EXPECT_EQ(At(b), Elements{});
    EXPECT_EQ(At(c), Elements{&beam});
    EXPECT_EQ(beam.GetIDNodoFinale(), c.GetID());

    EXPECT_FALSE(beam.SetNodi(&a, &a));
    EXPECT_EQ(At(a), Elements{&beam});
    EXPECT_EQ(At(c), Elements{});
    EXPECT_FALSE(beam.SetNodi(nullptr, nullptr));
    EXPECT_EQ(At(a), Elements{});
    EXPECT_EQ(beam.GetNodoIniziale(), nullptr);
}

// Faults: a pointer to a dead node or element left behind, whichever goes first; crashes show under the sanitizer.
TEST(LinksTest, EitherSideMayGoFirst) {
    auto a = std::make_unique<CNodo>(CFPoint(0, 0, 0));
    auto b = std::make_unique<CNodo>(CFPoint(1, 0, 0));
    a->SetID(7);
    auto kept = std::make_unique<CTrave>();
    kept->SetNodi(a.get(), b.get());
    {
        CAsta gone;
        gone.SetNodi(b.get(), a.get());
        EXPECT_EQ(a->GetSizeElementi(), 2);
    }
    EXPECT_EQ(At(*a), Elements{kept.get()});

    a.reset();
    EXPECT_EQ(kept->GetNodoIniziale(), nullptr);
    EXPECT_EQ(kept->GetIDNodoIniziale(), 7); // undo links the node of this number again
    EXPECT_EQ(kept->GetNodoFinale(), b.get());
    EXPECT_EQ(kept->GetLunghezzaLinea(), 0);
    kept.reset();
    EXPECT_EQ(b->GetSizeElementi(), 0);
}

// Fault: an element that waits in the undo store is still found at its nodes.
TEST(LinksTest, AnElementOutOfTheModelIsNotListed) {
    SmallModel m;
    CNodo &a = m.Node(0, 0, 0), &b = m.Node(1, 0, 0), &c = m.Node(1, 1, 0);
    CTrave& beam = m.Beam(a, b);
    CSolaio& slab = m.Polygon<CSolaio>({&a, &b, &c});
    beam.StaccaNodi();
    slab.StaccaNodi();
    EXPECT_EQ(At(b), Elements{});
    EXPECT_EQ(beam.GetNodoFinale(), &b);
    beam.LinkNodes();
    beam.LinkNodes(); // twice changes nothing
    slab.LinkNodes();
    EXPECT_EQ(At(b), (Elements{&beam, &slab}));
}

// Faults: the list's growth past its inside places, removal from the middle, the merge of nodes leaving one out.
TEST(LinksTest, ManyElementsMeetAtANode) {
    SmallModel m;
    CNodo &hub = m.Node(0, 0, 0), &other = m.Node(0, 0, 1);
    std::vector<CTrave*> beams;
    for (int i = 0; i < 20; ++i)
        beams.push_back(&m.Beam(hub, m.Node(i + 1, 0, 0)));
    for (int i : {10, 0, 19})
        beams[static_cast<std::size_t>(i)]->SetNodi(nullptr, nullptr);
    EXPECT_EQ(At(hub).size(), 17u);
    EXPECT_EQ(At(hub).count(beams[10]), 0u);

    for (CTrave* beam : beams)
        beam->UpdateVertex(&hub, &other);
    EXPECT_EQ(hub.GetSizeElementi(), 0);
    EXPECT_EQ(At(other).size(), 17u);
    EXPECT_EQ(beams[5]->GetIDNodoIniziale(), other.GetID());
    EXPECT_EQ(beams[5]->UpdateVertex(&hub, &other), 0);
}

// Faults: a dialog's own polygon shows up as an element of the model; a wall does not.
TEST(LinksTest, OnlyPolygonsOfTheModelEnterTheirNodes) {
    SmallModel m;
    CNodo &a = m.Node(0, 0, 0), &b = m.Node(1, 0, 0), &c = m.Node(0, 1, 0), &d = m.Node(5, 5, 0);
    {
        CPoligono plane;
        EXPECT_TRUE(plane.AggiungiVertice(&a));
        EXPECT_TRUE(plane.AggiungiVertice(&b));
        EXPECT_FALSE(plane.AggiungiVertice(&a)); // a plane through the same node twice is none
        EXPECT_FALSE(plane.AggiungiVertice(nullptr));
        EXPECT_EQ(plane.GetSize(), 2);
        EXPECT_EQ(At(a), Elements{});
    }
    CSetto& wall = m.Polygon<CSetto>({&a, &b, &c});
    EXPECT_EQ(At(a), Elements{&wall});
    wall.SetVertice(&d, 0);
    EXPECT_EQ(At(a), Elements{});
    EXPECT_EQ(At(d), Elements{&wall});
    EXPECT_EQ(wall.GetIndexVertice(a.GetID()), -1);
    wall.EliminaVertice(0);
    EXPECT_EQ(At(d), Elements{});
    EXPECT_EQ(wall.GetSize(), 2);
    EXPECT_EQ(wall.GetIDVertice(0), b.GetID());

    const int id = c.GetID();
    m.nodes.erase(std::find_if(m.nodes.begin(), m.nodes.end(), [&](const auto& n) { return n.get() == &c; }));
    EXPECT_EQ(wall.GetVertice(1), nullptr);
    EXPECT_EQ(wall.GetIDVertice(1), id);
}

} // namespace
