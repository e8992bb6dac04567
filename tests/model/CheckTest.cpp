// What objects report about themselves: each message from a model that earns it, and a twin that does not.
#include "tests/model/SmallModel.h"

namespace {

TEST(CheckTest, SoundObjectsSayNothing) {
    SmallModel m;
    CNodo &a = m.node(0, 0, 0), &b = m.node(4, 0, 0), &c = m.node(4, 0, 3), &d = m.node(0, 0, 3);
    m.beam(a, b);
    m.line<CAsta>(a, c);
    m.polygon<CSetto>({&a, &b, &c, &d});
    m.polygon<CSolaio>({&a, &b, &c, &d});
    for (const auto& element : m.elements)
        EXPECT_EQ(check(*element), "");
    for (CElemento* other : std::initializer_list<CElemento*>{&a, &b, &c, &d, &m.material, &m.section, &m.thickness})
        EXPECT_EQ(check(*other), "");
}

TEST(CheckTest, Nodes) {
    SmallModel m;
    NodeGrid grid;
    CNodo &a = m.node(0, 0, 0), &b = m.node(1, 0, 0), &c = m.node(1, 0, 1e-6), &lost = m.node(9, 9, 9);
    m.beam(a, b);
    m.beam(a, c);
    for (const auto& node : m.nodes)
        grid.Insert(node.get());
    EXPECT_EQ(check(a), "");
    EXPECT_EQ(check(b), "Il nodo coincide con il nodo n.ro 3.\n");
    EXPECT_EQ(check(c), "Il nodo coincide con il nodo n.ro 2.\n");
    EXPECT_EQ(check(lost), "Il nodo non appartiene a nessun elemento.\n");
    c.SetPunto(CFPoint(1, 0, 1));
    EXPECT_EQ(check(b), "");
}

TEST(CheckTest, Lines) {
    SmallModel m;
    CNodo &a = m.node(0, 0, 0), &b = m.node(1, 0, 0), &same = m.node(0, 0, 1e-9), &c = m.node(0, 2, 0);
    CTrave& beam = m.beam(a, c);
    beam.SetMateriale(0, nullptr);
    EXPECT_EQ(check(beam), "L'elemento non ha un materiale.\n");
    beam.SetMateriale(1, &m.material);
    beam.SetSezione(3, nullptr); // an identifier that was never linked is no section
    EXPECT_EQ(check(beam), "L'elemento non ha una sezione.\n");
    beam.SetSezione(1, &m.section);
    EXPECT_EQ(check(beam), "");

    EXPECT_EQ(check(m.beam(a, same)), "L'elemento ha lunghezza nulla.\n");
    CTrave& first = m.beam(a, b);
    EXPECT_EQ(check(first), "");
    CAsta& second = m.line<CAsta>(b, a); // the other way round, and of another kind
    EXPECT_EQ(check(first), "L'elemento ha gli stessi nodi dell'elemento CAsta n.ro 4.\n");
    EXPECT_EQ(check(second), "L'elemento ha gli stessi nodi dell'elemento CTrave n.ro 3.\n");
    second.SetNodi(&a, nullptr);
    EXPECT_EQ(check(second), "L'elemento non ha due nodi.\n");
    EXPECT_EQ(check(first), "");
}

TEST(CheckTest, WallsAndSlabs) {
    SmallModel m;
    CNodo &a = m.node(0, 0, 0), &b = m.node(4, 0, 0), &c = m.node(4, 0, 3), &d = m.node(0, 0.1, 3),
          &e = m.node(8, 0, 0);
    CSetto& warped = m.polygon<CSetto>({&a, &b, &c, &d});
    EXPECT_EQ(check(warped), "Il setto non è piano.\n");
    d.SetPunto(CFPoint(0, 1e-7, 3)); // rounding is not warping
    EXPECT_EQ(check(warped), "");
    EXPECT_EQ(check(m.polygon<CSolaio>({&a, &b, &e})),
              "Il solaio è degenere: i suoi nodi non formano una superficie.\n");
    EXPECT_EQ(check(m.polygon<CSetto>({&a, &b, &e})), "Il setto ha area nulla.\n");
    EXPECT_EQ(check(m.polygon<CSetto>({&c, &d, &a, &b})),
              "L'elemento ha gli stessi nodi dell'elemento CSetto n.ro 1.\n");

    CSolaio& bare = m.polygon<CSolaio>({&a, &b, &c});
    bare.SetMateriale(0, nullptr);
    bare.SetSpessore(0, nullptr);
    EXPECT_EQ(check(bare), "L'elemento non ha un materiale.\nL'elemento non ha uno spessore.\n");
    bare.SetIDVertice(77, 2);
    EXPECT_EQ(check(bare).substr(0, 21), "Il solaio è degenere");
}

TEST(CheckTest, Entities) {
    SmallModel m;
    m.material.SetE(0);
    m.section = CSezione();
    m.thickness.SetSpessore(-1);
    EXPECT_EQ(check(m.material) + check(m.section) + check(m.thickness),
              "Il modulo elastico non è positivo.\nL'area della sezione non è positiva.\n"
              "Lo spessore non è positivo.\n");
}

} // namespace
