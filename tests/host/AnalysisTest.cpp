// The analysis beside closed forms, to nine digits.
#include "host/analysis/Analysis.h"
#include "model/entity/Combinazione.h"
#include "tests/host/AnalysisModel.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace host;

namespace {

using Model = AnalysisModel;
constexpr double L = 4;
constexpr unsigned all = CVincolo::All;
enum Component { UX, UY, UZ, RX, RY, RZ };
constexpr int N = CElementoSettings::N, V2 = CElementoSettings::V2, V3 = CElementoSettings::V3,
              T = CElementoSettings::T, M2 = CElementoSettings::M2, M3 = CElementoSettings::M3;

CCaricoTrapezoidale Trapezoid(int axis, double from, double to, double first, double last) {
    CCaricoTrapezoidale load;
    load.GetStretch(axis) = {from, to, first, last};
    return load;
}

CCaricoTemperatura Heat(double uniform, double gradient2, double gradient3) {
    CCaricoTemperatura load;
    load.GetTemperature() = uniform;
    load.GetGradient2() = gradient2;
    load.GetGradient3() = gradient3;
    return load;
}

// Both ends fixed, along X: axis 2 is Y, axis 3 is Z.
struct FixedBeam : Model {
    CNodo* first = Node(0, 0, 0, all);
    CNodo* last = Node(L, 0, 0, all);
    CTrave* beam = Beam(first, last);
};

// Every component of a tip load, in three directions of the member and with the section turned. Catches inertias taken
// for each other, a beta that turns the wrong way, and transposed axes.
TEST(Analysis, CantileverDeflectsAndTwists) {
    const CFPoint directions[] = {{1, 0, 0}, {0, 0, 1}, {2.0 / 3, -1.0 / 3, 2.0 / 3}};
    for (const CFPoint& direction : directions) {
        for (const double beta : {0.0, 35.0}) {
            Model model;
            CNodo* root = model.Node(1, 2, 3, all);
            const CFPoint place = CFPoint(1, 2, 3) + L * direction;
            CNodo* tip = model.Node(place.x, place.y, place.z);
            CTrave* beam = model.Beam(root, tip);
            model.document.Modify(*beam, [&] { beam->SetBeta(beta); });
            CFPoint x, y, z;
            ASSERT_TRUE(beam->GetLocalAxes(x, y, z));
            const double f[] = {70, 3, -2}, m[] = {1.5, 0.7, -0.4};
            model.Force(tip, f[0] * x + f[1] * y + f[2] * z, m[0] * x + m[1] * y + m[2] * z);
            model.Run();
            const CFPoint moved(model.Moved(tip, UX), model.Moved(tip, UY), model.Moved(tip, UZ));
            const CFPoint turned(model.Moved(tip, RX), model.Moved(tip, RY), model.Moved(tip, RZ));
            const double b3 = Model::E * Model::I3, b2 = Model::E * Model::I2;
            ExpectClose(Dot(moved, x), f[0] * L / (Model::E * Model::A));
            ExpectClose(Dot(moved, y), f[1] * L * L * L / (3 * b3) + m[2] * L * L / (2 * b3));
            ExpectClose(Dot(moved, z), f[2] * L * L * L / (3 * b2) - m[1] * L * L / (2 * b2));
            ExpectClose(Dot(turned, x), m[0] * L / (Model::G * Model::J));
            ExpectClose(Dot(turned, y), -f[2] * L * L / (2 * b2) + m[1] * L / b2);
            ExpectClose(Dot(turned, z), f[1] * L * L / (2 * b3) + m[2] * L / b3);
            ExpectClose(model.Force(beam, N, 0), f[0]);
            ExpectClose(model.Force(beam, V2, 0), f[1]);
            ExpectClose(model.Force(beam, V3, L), f[2]);
            ExpectClose(model.Force(beam, T, 1), m[0]);
            ExpectClose(model.Force(beam, M3, 0), m[2] + f[1] * L);
            ExpectClose(model.Force(beam, M2, 0), -m[1] + f[2] * L);
        }
    }
}

// Loads along 2 bend about 3 and loads along 3 about 2, alike but for the sign of the moment as a vector: the stretched
// side decides. Catches a fixed-end moment of the wrong sign in one of the two planes.
TEST(Analysis, FixedBeamUnderDistributedLoads) {
    const double w = -6;
    for (const int axis : {1, 2}) {
        const int shear = axis == 1 ? V2 : V3, moment = axis == 1 ? M3 : M2;
        {
            FixedBeam m;
            m.On(m.beam, CCaricoUniforme(axis == 1 ? CFPoint(0, w, 0) : CFPoint(0, 0, w), CCarico::Local));
            m.Run();
            ExpectClose(m.Force(m.beam, shear, 0), w * L / 2);
            ExpectClose(m.Force(m.beam, moment, 0), w * L * L / 12);
            ExpectClose(m.Force(m.beam, moment, L / 2), -w * L * L / 24);
            ExpectClose(m.Force(m.beam, moment, L), w * L * L / 12);
            ExpectClose(m.Reaction(m.first, axis), -w * L / 2);
        }
        {
            FixedBeam m; // a triangle from 0 to w
            m.On(m.beam, Trapezoid(axis, 0, L, 0, w));
            m.Run();
            ExpectClose(m.Force(m.beam, shear, 0), 3 * w * L / 20);
            ExpectClose(m.Force(m.beam, shear, L), -7 * w * L / 20);
            ExpectClose(m.Force(m.beam, moment, 0), w * L * L / 30);
            ExpectClose(m.Force(m.beam, moment, L), w * L * L / 20);
            const double x = 1.3;
            ExpectClose(m.Force(m.beam, moment, x), w * L * L / 30 - 3 * w * L / 20 * x + w * x * x * x / (6 * L));
        }
        {
            FixedBeam m; // uniform over the first part only
            const double a = 1.5;
            m.On(m.beam, Trapezoid(axis, 0, a, w, w));
            m.Run();
            ExpectClose(m.Force(m.beam, moment, 0), w * a * a / (12 * L * L) * (6 * L * L - 8 * a * L + 3 * a * a));
            ExpectClose(m.Force(m.beam, moment, L), w * a * a * a / (12 * L * L) * (4 * L - 3 * a));
            ExpectClose(m.Force(m.beam, shear, a), m.Force(m.beam, shear, L));
        }
    }
}

TEST(Analysis, FixedBeamUnderPointLoadsAndAlongItsAxis) {
    const double p = 9, a = 1.5, b = L - a;
    for (const int axis : {1, 2}) {
        const int shear = axis == 1 ? V2 : V3, moment = axis == 1 ? M3 : M2;
        FixedBeam m;
        m.On(m.beam, CCaricoConcentrato(axis == 1 ? CFPoint(0, -p, 0) : CFPoint(0, 0, -p), a, CCarico::Local));
        m.Run();
        ExpectClose(m.Force(m.beam, moment, 0), -p * a * b * b / (L * L));
        ExpectClose(m.Force(m.beam, moment, L), -p * a * a * b / (L * L));
        ExpectClose(m.Force(m.beam, moment, a), 2 * p * a * a * b * b / (L * L * L));
        const double left = p * b * b * (3 * a + b) / (L * L * L);
        ExpectClose(m.Force(m.beam, shear, a, CTraveRisultati::Before), -left);
        ExpectClose(m.Force(m.beam, shear, a, CTraveRisultati::After), p - left);
        FixedBeam turned;
        CCaricoConcentrato couple({}, a, CCarico::Local);
        couple.GetMomentVector() = axis == 1 ? CFPoint(0, 0, p) : CFPoint(0, -p, 0);
        turned.On(turned.beam, couple);
        turned.Run();
        const double first = p * b * (2 * a - b) / (L * L);
        ExpectClose(turned.Force(turned.beam, moment, 0), -first);
        ExpectClose(turned.Force(turned.beam, moment, a, CTraveRisultati::After) -
                        turned.Force(turned.beam, moment, a, CTraveRisultati::Before),
                    -p);
        ExpectClose(turned.Force(turned.beam, shear, 0), -6 * p * a * b / (L * L * L));
    }
    FixedBeam m;
    m.On(m.beam, CCaricoConcentrato({p, 0, 0}, a, CCarico::Local));
    CCaricoConcentrato twist({}, a, CCarico::Local);
    twist.GetMomentVector() = {p, 0, 0};
    m.On(m.beam, twist);
    m.On(m.beam, Trapezoid(0, 0, L, 0, 3));
    m.Run();
    ExpectClose(m.Force(m.beam, N, 0), p * b / L + 3 * L / 6);
    ExpectClose(m.Force(m.beam, N, L), -p * a / L - 3 * L / 3);
    ExpectClose(m.Force(m.beam, T, 0), p * b / L);
    ExpectClose(m.Force(m.beam, T, L), -p * a / L);
}

// A change of temperature strains a free member and stresses a held one. Catches the gradient's sign in either plane.
TEST(Analysis, Temperature) {
    FixedBeam held;
    held.On(held.beam, Heat(30, 20, -10));
    held.Run();
    ExpectClose(held.Force(held.beam, N, 1), -Model::E * Model::A * Model::alpha * 30);
    ExpectClose(held.Force(held.beam, M3, 2), Model::E * Model::I3 * Model::alpha * 20);
    ExpectClose(held.Force(held.beam, M2, 2), Model::E * Model::I2 * Model::alpha * -10);
    Model free;
    CNodo* tip = free.Node(L, 0, 0);
    CTrave* beam = free.Beam(free.Node(0, 0, 0, all), tip);
    CCaricoTemperatura own = Heat(30, 20, -10);
    own.GetAlpha() = 2e-5; // instead of the material's
    free.On(beam, own);
    EXPECT_TRUE(free.document.RunAnalysis().notes.empty()) << "no force is left to compare rounding with";
    free.Run();
    ExpectClose(free.Moved(tip, UX), 2e-5 * 30 * L);
    ExpectClose(free.Moved(tip, UY), -2e-5 * 20 * L * L / 2); // away from the warmer side
    ExpectClose(free.Moved(tip, UZ), 2e-5 * 10 * L * L / 2);
    ExpectClose(free.Force(beam, M3, 0), 0, 1);
}

TEST(Analysis, Settlement) {
    FixedBeam m;
    m.On(m.last, CCaricoSpostamento({0.001, -0.01, 0}, {0, 0, 0.002}));
    m.Run();
    const double b = Model::E * Model::I3;
    ExpectClose(m.Force(m.beam, N, 0), Model::E * Model::A * 0.001 / L);
    ExpectClose(m.Force(m.beam, M3, 0), -6 * b * 0.01 / (L * L) - 2 * b * 0.002 / L);
    ExpectClose(m.Force(m.beam, M3, L), 6 * b * 0.01 / (L * L) + 4 * b * 0.002 / L);
    ExpectClose(m.Moved(m.last, UY), -0.01);
}

// A portal under equal loads at both corners: the beam bends with a hinge's moment at its middle, so half of it is a
// system of three equations that needs no matrix.
TEST(Analysis, Portal) {
    const double h = 3, half = 2.5, p = 12;
    Model m;
    CNodo* corner[2];
    for (int i = 0; i < 2; ++i) {
        const double x = i * 2 * half;
        corner[i] = m.Node(x, 0, h);
        m.Beam(m.Node(x, 0, 0, all), corner[i]);
        m.Force(corner[i], {p, 0, 0});
    }
    CTrave* beam = m.Beam(corner[0], corner[1]);
    m.Run();
    // Columns bend about their axis 2 (Y) as the beam does. Unknowns of the left corner: sway u, rotation r about Y and
    // lift v, without the sway by elimination.
    const double c = Model::E * Model::I2, bar = Model::E * Model::A / h, beamStiffness = 3 * c / half;
    // Lift: bar v + beamStiffness/half (v/half - r) = 0, the beam's rotation against its chord being r - v/half.
    const double liftPerTurn = beamStiffness / half / (bar + beamStiffness / (half * half));
    const double beamMoment = beamStiffness * (1 - liftPerTurn / half);
    // Sway: 12 c/h^3 u - 6 c/h^2 r = p; rotation: -6 c/h^2 u + 4 c/h r + beamMoment r = 0.
    const double a11 = 12 * c / (h * h * h), a12 = -6 * c / (h * h), a22 = 4 * c / h + beamMoment;
    const double r = -a12 * p / (a11 * a22 - a12 * a12), u = p * a22 / (a11 * a22 - a12 * a12);
    for (CNodo* each : corner) {
        ExpectClose(m.Moved(each, UX), u);
        ExpectClose(m.Moved(each, RY), r);
    }
    ExpectClose(std::abs(m.Moved(corner[0], UZ)), liftPerTurn * r);
    ExpectClose(std::abs(m.Force(beam, M2, 0)), beamMoment * r);
    ExpectClose(m.Force(beam, M2, half), 0, p * h);
    ExpectClose(m.Force(beam, N, half), 0, p);
}

// Rotations that no truss member takes part in are no mechanism. Catches a bar that bends, and loads across a bar that
// do not reach its ends.
TEST(Analysis, SpaceTruss) {
    Model m;
    CNodo* top = m.Node(0, 0, 4);
    const CFPoint feet[] = {{3, 0, 0}, {-1.5, 2, 0}, {-1.5, -2, 0}};
    CAsta* bars[3];
    for (int i = 0; i < 3; ++i)
        bars[i] = m.Truss(m.Node(feet[i].x, feet[i].y, feet[i].z, 7), top);
    m.Force(top, {0, 6, -90});
    m.On(bars[0], CCaricoUniforme({0, 0, -2}, CCarico::Global));
    m.Run();
    // Half of the bar's own load, 2 * 5 m, arrives at the top.
    const double down = 90 + 5;
    // Equilibrium by symmetry: along x 3 S1/5 = 2 * 1.5 S2/l, down 4 S1/5 + 8 S2/l; the side load splits.
    const double l = std::hypot(1.5, 2, 4);
    const double first = -down / 3 / 4 * 5, others = -down / 3 / 4 * l, side = 6 * l / 4;
    ExpectClose(m.Force(bars[1], N, 1), others - side, down);
    ExpectClose(m.Force(bars[2], N, 1), others + side, down);
    ExpectClose(m.Force(bars[0], N, 2.5), first, down);
    ExpectClose(m.Force(bars[0], M2, 2.5), 2 * 3 * 5.0 / 8); // the load's part across a bar of 3 m on plan
    ExpectClose(m.Moved(top, UY), (side * l / (Model::E * Model::A) * 2) * l / 4);
    EXPECT_EQ(m.Moved(top, RX), 0);
}

// Catches a release of the wrong end or axis, and loads that are not condensed with the stiffness.
TEST(Analysis, Releases) {
    const double w = -5;
    FixedBeam m;
    m.Release(m.beam, 1, 0, 0, 1, 0);
    m.On(m.beam, CCaricoUniforme({0, 4, w}, CCarico::Local));
    m.Run();
    ExpectClose(m.Force(m.beam, M2, 0), w * L * L / 8);
    ExpectClose(m.Force(m.beam, V3, 0), 5 * w * L / 8);
    EXPECT_EQ(m.beam->GetRisultati()->GetNodeResults(1)->GetM2(), 0) << "released: exactly nothing";
    ExpectClose(m.Force(m.beam, M3, 0), 4 * L * L / 12);
    FixedBeam both;
    both.Release(both.beam, 0, 0, 1, 1, 1);
    both.Release(both.beam, 1, 1, 0, 1, 1);
    both.On(both.beam, CCaricoUniforme({3, 4, w}, CCarico::Local));
    both.On(both.beam, Heat(50, 10, 10));
    both.Run();
    ExpectClose(both.Force(both.beam, M2, L / 2), -w * L * L / 8);
    ExpectClose(both.Force(both.beam, M3, L / 2), -4 * L * L / 8);
    ExpectClose(both.Force(both.beam, N, 0), 3 * L);
    // Two beams joined by a hinge: the node between them turns for nobody.
    Model hinged;
    CNodo* middle = hinged.Node(L, 0, 0);
    CTrave* left = hinged.Beam(hinged.Node(0, 0, 0, all), middle);
    CTrave* right = hinged.Beam(middle, hinged.Node(2 * L, 0, 0, all));
    for (CTrave* each : {left, right})
        hinged.Release(each, each == left, 0, 0, 1, 1);
    hinged.Force(middle, {0, 0, -10});
    hinged.Run();
    ExpectClose(hinged.Moved(middle, UZ), -5 * L * L * L / (3 * Model::E * Model::I2));
    ExpectClose(hinged.Force(left, M2, 0), -5 * L);
}

// Catches a shear area used for the other axis, and fixed-end forces of a beam rigid in shear.
TEST(Analysis, ShearDeformation) {
    Model m;
    m.document.Modify(*m.section, [&] {
        m.section->SetArea2(0.006);
        m.section->SetArea3(0.0005);
    });
    CNodo* tip = m.Node(L, 0, 0);
    m.Beam(m.Node(0, 0, 0, all), tip);
    m.Force(tip, {0, 10, 20});
    m.Run();
    ExpectClose(m.Moved(tip, UY), 10 * (L * L * L / (3 * Model::E * Model::I3) + L / (Model::G * 0.006)));
    ExpectClose(m.Moved(tip, UZ), 20 * (L * L * L / (3 * Model::E * Model::I2) + L / (Model::G * 0.0005)));
    FixedBeam held;
    held.document.Modify(*held.section, [&] { held.section->SetArea3(0.0005); });
    const double p = 8, a = 1, b = L - a;
    held.On(held.beam, CCaricoConcentrato({0, 0, -p}, a, CCarico::Local));
    held.Run();
    const double phi = 12 * Model::E * Model::I2 / (Model::G * 0.0005 * L * L);
    ExpectClose(held.Force(held.beam, M2, 0), -p * a * b / L * (b / L + phi / 2) / (1 + phi));
    ExpectClose(held.Force(held.beam, M2, L), -p * a * b / L * (a / L + phi / 2) / (1 + phi));
}

// Springs count in units of their own, work along any direction, and what they carry is a reaction.
TEST(Analysis, Springs) {
    Model m;
    CNodo* tip = m.Node(L, 0, 0);
    m.Beam(m.Node(0, 0, 0, CVincolo::Tx | CVincolo::Ty | CVincolo::Tz | CVincolo::Rx), tip);
    m.document.Modify(*tip, [&] {
        tip->AddSpring(CMolla(CMolla::Translational, 50, {0, 0, 3}, Lunghezza::Millimetres, Forza::Newton));
        tip->AddSpring(CMolla(CMolla::Translational, 100, {0, 2, 0}));
        tip->AddSpring(CMolla(CMolla::Rotational, 40, {1, 0, 0}));
    });
    m.Force(tip, {0, 3, -6}, {0, 0, 0});
    m.Run();
    ExpectClose(m.Moved(tip, UZ), -6.0 / 50); // 50 N/mm are 50 kN/m
    ExpectClose(m.Moved(tip, UY), 3.0 / 100);
    ExpectClose(m.Reaction(tip, UZ), 6);
    ExpectClose(m.Reaction(tip, UY), -3);
    EXPECT_EQ(m.Reaction(tip, UX), 0);
}

TEST(Analysis, SelfWeightAndCombination) {
    FixedBeam m;
    m.document.AddCarico(*m.firstCase, std::make_unique<CCaricoPesoProprio>(CFPoint(0, 0, -10)));
    CCasoCarico* second = m.document.CreaCasoCarico();
    m.On(m.beam, CCaricoConcentrato({0, 0, -7}, L / 2, CCarico::Local), second);
    auto combination = std::make_unique<CCombinazione>();
    combination->AddCDC(m.firstCase->GetID(), 1.5);
    combination->AddCDC(second->GetID(), -2);
    CCombinazione* both = m.document.AddNew(std::move(combination));
    m.Run();
    const double w = -Model::density * Model::A * 10;
    ExpectClose(m.Force(m.beam, M2, L / 2), -w * L * L / 24);
    ExpectClose(m.Reaction(m.last, UZ), -w * L / 2);
    ASSERT_TRUE(m.document.SelectCasoCarico(both->GetID()));
    ExpectClose(m.Force(m.beam, M2, L / 2), 1.5 * -w * L * L / 24 - 2 * 7 * L / 8);
    ExpectClose(m.Force(m.beam, V3, L / 2, CTraveRisultati::After) -
                    m.Force(m.beam, V3, L / 2, CTraveRisultati::Before),
                -2 * 7);
    ExpectClose(m.Reaction(m.last, UZ), 1.5 * -w * L / 2 - 2 * 3.5);
}

// The diagram's stretches join up, reach the second end's force, and slope as equilibrium asks. Catches a load that is
// integrated from the wrong place, on a member with all of them at once.
TEST(Analysis, DiagramsAreExactBetweenTheEnds) {
    FixedBeam m;
    m.On(m.beam, CCaricoUniforme({1, 2, -3}, CCarico::Global));
    for (const int axis : {0, 1, 2})
        m.On(m.beam, Trapezoid(axis, 0.5 + 0.3 * axis, 2.5, 4, -6));
    CCaricoConcentrato point({5, -6, 7}, 1.7, CCarico::Local);
    point.GetMomentVector() = {0.3, 0.2, -0.1};
    m.On(m.beam, point);
    m.Run();
    for (const int kind : {N, V2, V3, T, M2, M3}) {
        SCOPED_TRACE(kind);
        std::vector<DiagramStretch> pieces;
        ASSERT_TRUE(m.beam->GetDiagram(kind, pieces));
        ASSERT_FALSE(pieces.empty());
        EXPECT_EQ(pieces.front().da, 0);
        EXPECT_EQ(pieces.back().a, L);
        double end;
        ASSERT_TRUE(m.beam->GetRisultatoNodo(1, kind, end));
        ExpectClose(pieces.back().GetValue(L), end, 10);
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            const DiagramStretch& piece = pieces[i];
            EXPECT_EQ(piece.da, i == 0 ? 0 : pieces[i - 1].a);
            const double middle = (piece.da + piece.a) / 2;
            for (const double x : {piece.da, middle})
                ExpectClose(piece.GetValue(x), m.Force(m.beam, kind, x), 10);
            if (kind == M2 || kind == M3) {
                const double slope =
                    piece.c[1] + (middle - piece.da) * (2 * piece.c[2] + 3 * piece.c[3] * (middle - piece.da));
                ExpectClose(-slope, m.Force(m.beam, kind == M2 ? V3 : V2, middle), 10);
            }
        }
    }
}

TEST(Analysis, DiagramExtremes) {
    const DiagramStretch cubic{1, 5, {-6, 11, -6, 1}};
    double level[2];
    ASSERT_EQ(cubic.GetEnds(level), 2);
    EXPECT_NEAR(level[0], 3 - 1 / std::sqrt(3.0), 1e-12);
    EXPECT_NEAR(level[1], 3 + 1 / std::sqrt(3.0), 1e-12);
}

} // namespace
