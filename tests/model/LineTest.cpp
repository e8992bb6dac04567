// Lines: their axes, what lies where, their releases, their attributes.
#include "tests/model/SmallModel.h"

#include <cmath>

namespace {

void ExpectPoint(const CFPoint& got, const CFPoint& wanted) {
    EXPECT_NEAR(got.x, wanted.x, 1e-12);
    EXPECT_NEAR(got.y, wanted.y, 1e-12);
    EXPECT_NEAR(got.z, wanted.z, 1e-12);
}

// Faults: axis 3 of a horizontal beam pointing down (every diagram on the wrong side), a left-handed triad, a column's
// axes left to rounding, beta turning the wrong way.
TEST(LineTest, LocalAxes) {
    struct Case {
        CFPoint from, to;
        double beta;
        CFPoint axes[3];
    };
    const double half = std::sqrt(0.5);
    const Case cases[] = {
        {{0, 0, 0}, {5, 0, 0}, 0, {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
        {{0, 0, 0}, {0, 5, 0}, 0, {{0, 1, 0}, {-1, 0, 0}, {0, 0, 1}}},
        {{0, 0, 0}, {0, 0, 5}, 0, {{0, 0, 1}, {0, 1, 0}, {-1, 0, 0}}},
        {{0, 0, 5}, {0, 0, 0}, 0, {{0, 0, -1}, {0, 1, 0}, {1, 0, 0}}},
        {{0, 0, 0}, {5, 0, 0}, 90, {{1, 0, 0}, {0, 0, 1}, {0, -1, 0}}},
        {{0, 0, 0}, {2, 0, 2}, 0, {{half, 0, half}, {0, 1, 0}, {-half, 0, half}}},
    };
    for (const Case& c : cases) {
        SmallModel m;
        CTrave& beam = m.Beam(m.Node(c.from.x, c.from.y, c.from.z), m.Node(c.to.x, c.to.y, c.to.z));
        beam.SetBeta(c.beta);
        CFPoint axis;
        for (int i = 0; i < 3; ++i) {
            ASSERT_TRUE(beam.GetDir(axis, i));
            ExpectPoint(axis, c.axes[i]);
        }
        EXPECT_FALSE(beam.GetDir(axis, 3));
    }
}

// Fault: a column that leans by what a place is rounded to, in any direction, turns its section with the lean. Axis 1
// still runs from node to node.
TEST(LineTest, AColumnOutOfPlumbKeepsItsSection) {
    for (const CFPoint& lean : {CFPoint(1e-10, 0, 0), CFPoint(-3e-6, 2e-6, 0), CFPoint(0, -4e-6, 0)}) {
        CFPoint axes[3];
        ASSERT_TRUE(CLinea::_GetLocalAxes({1e3, 0, 0}, CFPoint(1e3, 0, 3) + lean, 0, axes[0], axes[1], axes[2]));
        EXPECT_NEAR(axes[1].y, 1, 1e-9);
        EXPECT_NEAR(axes[2].x, -1, 1e-9);
        EXPECT_NEAR(axes[0].x * 3, lean.x, 1e-12);
        EXPECT_NEAR(Dot(axes[0], axes[1]), 0, 1e-15);
    }
}

// Fault: a division by the length of a line that has none.
TEST(LineTest, ALineWithoutLengthHasNoDirection) {
    SmallModel m;
    CTrave& point = m.Beam(m.Node(1, 1, 1), m.Node(1, 1, 1));
    CTrave empty;
    for (CTrave* line : {&point, &empty}) {
        CFPoint axis(9, 9, 9);
        EXPECT_FALSE(line->GetDir(axis, 0));
        EXPECT_EQ(axis, CFPoint(9, 9, 9));
        EXPECT_EQ(line->GetLunghezzaLinea(), 0);
        EXPECT_FALSE(line->IsParallelo(CFPoint(1, 0, 0)));
    }
    EXPECT_FALSE(empty.IsInRange(CFPoint(-9, -9, -9), CFPoint(9, 9, 9)));
}

TEST(LineTest, RangeAndParallel) {
    SmallModel m;
    CTrave& beam = m.Beam(m.Node(0, 0, 0), m.Node(3, 4, 0));
    EXPECT_DOUBLE_EQ(beam.GetLunghezzaLinea(), 5);
    EXPECT_TRUE(beam.IsInRange(CFPoint(3, 4, 0), CFPoint(0, 0, 0)));    // corners in any order, limits included
    EXPECT_FALSE(beam.IsInRange(CFPoint(0, 0, 0), CFPoint(2.9, 4, 0))); // one end outside
    EXPECT_TRUE(beam.IsParallelo(CFPoint(-6, -8, 0)));
    EXPECT_FALSE(beam.IsParallelo(CFPoint(3, 4.1, 0)));
    EXPECT_FALSE(beam.IsParallelo(CFPoint()));
}

// Faults: the ends mixed up, a second specification hiding the first, ownership lost (leaks show under the sanitizer).
TEST(LineTest, ReleasesOfBothEnds) {
    SmallModel m;
    CTrave& beam = m.Beam(m.Node(0, 0, 0), m.Node(5, 0, 0));
    EXPECT_EQ(beam.GetReleases(0), 0u);
    EXPECT_FALSE(beam.AddSpecifica(nullptr));
    beam.AddSpecifica(new CSpecificheSvincoliTrave(0, 0, 0, 1, 0));
    beam.AddSpecifica(new CSpecificheSvincoliTrave(0, 0, 1, 0, 0));
    beam.AddSpecifica(new CSpecificheSvincoliTrave(1, 1, 0, 0, 1));
    EXPECT_EQ(beam.GetReleases(0), 1u << CSpecificheSvincoliTrave::M2 | 1u << CSpecificheSvincoliTrave::T);
    EXPECT_EQ(beam.GetReleases(1), 1u << CSpecificheSvincoliTrave::N | 1u << CSpecificheSvincoliTrave::M3);
    EXPECT_EQ(beam.GetIndexSpecifica(3), nullptr);

    const int id = beam.GetIndexIDSpecifiche(1);
    EXPECT_TRUE(beam.EliminaSpecifica(id));
    EXPECT_FALSE(beam.EliminaSpecifica(id));
    EXPECT_EQ(beam.GetReleases(0), 1u << CSpecificheSvincoliTrave::M2);

    CSpecificheSvincoliTrave changed(1, 0, 0, 0, 0);
    changed.SetID(beam.GetIndexIDSpecifiche(1));
    CObArray array;
    array.Add(&changed);
    EXPECT_EQ(beam.AggiornaSpecifiche(&array), 1);
    EXPECT_EQ(beam.GetReleases(1), 0u);
    EXPECT_TRUE(beam.SetSpecifica(0, 9, new CSpecificheSvincoliTrave(0, 1, 1, 1, 1)));
    EXPECT_EQ(beam.GetReleases(0), 15u);
    EXPECT_TRUE(beam.EliminaIndexSpecifica(0));
    EXPECT_EQ(beam.GetReleases(0), 0u);
}

// Faults: assigning by the wrong static type copies the node pointers too, and both lines then leave the lists for one.
TEST(LineTest, AssignmentTakesAttributesAndNotNodes) {
    SmallModel m;
    CNodo &a = m.Node(0, 0, 0), &b = m.Node(1, 0, 0), &c = m.Node(2, 0, 0), &d = m.Node(3, 0, 0);
    CTrave& from = m.Beam(a, b);
    from.SetBeta(30);
    from.AddGruppo(4);
    from.AddSpecifica(new CSpecificheSvincoliTrave(1, 0, 0, 1, 0));
    from.SetSelect(1);
    from.SetVisible(0);
    for (int way = 0; way < 3; ++way) {
        CTrave& to = m.Beam(c, d);
        const int id = to.GetID();
        to.SetMateriale(0, nullptr);
        if (way == 0)
            to = from;
        else if (way == 1)
            static_cast<CLinea&>(to) = static_cast<CLinea&>(from);
        else
            static_cast<CElemento&>(to) = static_cast<CElemento&>(from);
        EXPECT_EQ(to.GetNodoIniziale(), &c);
        EXPECT_EQ(to.GetID(), id);
        EXPECT_EQ(to.GetBeta(), 30);
        EXPECT_EQ(to.GetMateriale(), &m.material);
        EXPECT_TRUE(to.IsGruppo(4));
        EXPECT_EQ(to.GetReleases(1), 4u);
        EXPECT_FALSE(to.IsSelect() || to.IsVisible());
    }
    EXPECT_EQ(a.GetSizeElementi(), 1);

    // A truss member takes what both kinds have.
    CAsta& member = m.Line<CAsta>(c, d);
    member.SetSezione(0, nullptr);
    EXPECT_TRUE(member.AssegnaAttributi(&from));
    EXPECT_EQ(member.GetSezione(), &m.section);
    EXPECT_FALSE(member.AssegnaAttributi(&a) || member.AssegnaAttributi(nullptr));
}

// Faults: group 0-based positions, a group entered twice, views and groups in one list.
TEST(LineTest, GroupsAndViews) {
    CTrave beam;
    EXPECT_FALSE(beam.EliminaGruppo(3));
    EXPECT_TRUE(beam.AddGruppo(3));
    EXPECT_FALSE(beam.AddGruppo(3));
    EXPECT_TRUE(beam.AddGruppo(8));
    EXPECT_EQ(beam.GetIndexGruppo(8), 1);
    EXPECT_EQ(beam.GetIDGruppo(2), 0);
    EXPECT_FALSE(beam.IsVista(3));
    EXPECT_TRUE(beam.EliminaGruppo(3));
    EXPECT_FALSE(beam.IsGruppo(3));
    EXPECT_EQ(beam.GetIndexGruppo(3), -1);
    EXPECT_EQ(beam.GetSizeGruppi(), 1);
}

} // namespace
