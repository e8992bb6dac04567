// What objects report about themselves: each message from a model that earns it, and a twin that does not.
#include "tests/model/SmallModel.h"

namespace {

TEST(CheckTest, SoundObjectsSayNothing) {
    SmallModel m;
    CNodo &a = m.Node(0, 0, 0), &b = m.Node(4, 0, 0), &c = m.Node(4, 0, 3), &d = m.Node(0, 0, 3);
    m.Beam(a, b);
    m.Line<CAsta>(a, c);
    m.Polygon<CSetto>({&a, &b, &c, &d});
    m.Polygon<CSolaio>({&a, &b, &c, &d});
    for (const auto& element : m.elements)
        EXPECT_EQ(Check(*element), "");
    for (CElemento* other : std::initializer_list<CElemento*>{&a, &b, &c, &d, &m.material, &m.section, &m.thickness})
        EXPECT_EQ(Check(*other), "");
}

TEST(CheckTest, Nodes) {
    SmallModel m;
    NodeGrid grid;
    CNodo &a = m.Node(0, 0, 0), &b = m.Node(1, 0, 0), &c = m.Node(1, 0, 1e-6), &lost = m.Node(9, 9, 9);
    m.Beam(a, b);
    m.Beam(a, c);
    for (const auto& node : m.nodes)
        grid.Insert(node.get());
    EXPECT_EQ(Check(a), "");
    EXPECT_EQ(Check(b), "Il nodo coincide con il nodo n.ro 3.\n");
    EXPECT_EQ(Check(c), "Il nodo coincide con il nodo n.ro 2.\n");
    EXPECT_EQ(Check(lost), "Il nodo non appartiene a nessun elemento.\n");
    c.SetPoint(CFPoint(1, 0, 1));
    EXPECT_EQ(Check(b), "");
}

TEST(CheckTest, Lines) {
    SmallModel m;
    CNodo &a = m.Node(0, 0, 0), &b = m.Node(1, 0, 0), &same = m.Node(0, 0, 1e-9), &c = m.Node(0, 2, 0);
    CTrave& beam = m.Beam(a, c);
    beam.SetMateriale(0, nullptr);
    EXPECT_EQ(Check(beam), "L'elemento non ha un materiale.\n");
    beam.SetMateriale(1, &m.material);
    beam.SetSezione(3, nullptr); // an identifier that was never linked is no section
    EXPECT_EQ(Check(beam), "L'elemento non ha una sezione.\n");
    beam.SetSezione(1, &m.section);
    EXPECT_EQ(Check(beam), "");

    EXPECT_EQ(Check(m.Beam(a, same)), "L'elemento ha lunghezza nulla.\n");
    CTrave& first = m.Beam(a, b);
    EXPECT_EQ(Check(first), "");
    CAsta& second = m.Line<CAsta>(b, a); // the other way round, and of another kind
    EXPECT_EQ(Check(first), "L'elemento ha gli stessi nodi dell'elemento CAsta n.ro 4.\n");
    EXPECT_EQ(Check(second), "L'elemento ha gli stessi nodi dell'elemento CTrave n.ro 3.\n");
    second.SetNodi(&a, nullptr);
    EXPECT_EQ(Check(second), "L'elemento non ha due nodi.\n");
    EXPECT_EQ(Check(first), "");
}

TEST(CheckTest, WallsAndSlabs) {
    SmallModel m;
    CNodo &a = m.Node(0, 0, 0), &b = m.Node(4, 0, 0), &c = m.Node(4, 0, 3), &d = m.Node(0, 0.1, 3),
          &e = m.Node(8, 0, 0);
    CSetto& warped = m.Polygon<CSetto>({&a, &b, &c, &d});
    EXPECT_EQ(Check(warped), "Il setto non è piano.\n");
    d.SetPoint(CFPoint(0, 1e-7, 3)); // rounding is not warping
    EXPECT_EQ(Check(warped), "");
    EXPECT_EQ(Check(m.Polygon<CSolaio>({&a, &b, &e})),
              "Il solaio è degenere: i suoi nodi non formano una superficie.\n");
    EXPECT_EQ(Check(m.Polygon<CSetto>({&a, &b, &e})), "Il setto ha area nulla.\n");
    EXPECT_EQ(Check(m.Polygon<CSetto>({&c, &d, &a, &b})),
              "L'elemento ha gli stessi nodi dell'elemento CSetto n.ro 1.\n");
    CNodo &f = m.Node(4, 0, 6), &g = m.Node(2, 0, 8);
    EXPECT_EQ(Check(m.Polygon<CSetto>({&a, &b, &f, &g, &d})), "Il setto non ha 3 o 4 nodi.\n");

    CSolaio& bare = m.Polygon<CSolaio>({&a, &b, &c});
    bare.SetMateriale(0, nullptr);
    bare.SetThickness(0, nullptr);
    EXPECT_EQ(Check(bare), "L'elemento non ha un materiale.\nL'elemento non ha uno spessore.\n");
    bare.SetIDVertice(77, 2);
    EXPECT_EQ(Check(bare).substr(0, 21), "Il solaio è degenere");
}

TEST(CheckTest, Entities) {
    SmallModel m;
    m.material.SetE(0);
    m.section = CSezione();
    m.thickness.SetThickness(-1);
    EXPECT_EQ(Check(m.material) + Check(m.section) + Check(m.thickness),
              "Il modulo elastico non è positivo.\nL'area della sezione non è positiva.\n"
              "Lo spessore non è positivo.\n");
}

} // namespace
