// The document as the dialogs see it: generation, additions, observers, names, selection, connection.
#include "host/document/HostDocument.h"
#include "model/element/Asta.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Materiale.h"
#include "model/entity/Spessore.h"
#include "tests/host/Dump.h"
#include "tests/host/TestModel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

using namespace host;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

CFPoint At(HostDocument& document, int index) {
    return *document.GetIndexNodo(index)->GetPunto();
}

void ExpectNear(const CFPoint& a, const CFPoint& b, double tolerance = 1e-12) {
    EXPECT_NEAR(a.x, b.x, tolerance);
    EXPECT_NEAR(a.y, b.y, tolerance);
    EXPECT_NEAR(a.z, b.z, tolerance);
}

// Catches a row that counts one too few or too many, or starts one spacing late.
TEST(DocumentGeneration, LinePlacesNodesFromTheStart) {
    HostDocument document;
    EXPECT_NE(document.GenNodiLineare({2, 3, 0}, {2, 7, 0}, 1.5, 3), 0);
    ASSERT_EQ(document.GetSizeNodi(), 3);
    for (int i = 0; i < 3; ++i) {
        ExpectNear(At(document, i), {2, 3 + 1.5 * i, 0});
        EXPECT_EQ(document.GetIndexNodo(i)->GetID(), i + 1);
    }
    EXPECT_EQ(document.Undo().UndoCount(), 1u);
    EXPECT_EQ(document.Undo().UndoName(), "Generazione nodi");
    // What lies there already is met, not doubled.
    EXPECT_NE(document.GenNodiLineare({2, 4.5, 0}, {2, 5, 0}, 1.5, 3), 0);
    EXPECT_EQ(document.GetSizeNodi(), 4);
    // A negative spacing goes the other way.
    EXPECT_NE(document.GenNodiLineare({2, 3, 0}, {2, 7, 0}, -1.5, 3), 0);
    EXPECT_EQ(document.GetSizeNodi(), 6);
    ExpectNear(At(document, 5), {2, 0, 0});
}

// The number is of the nodes strictly between the points, which the picture in the dialog shows; the ends are met.
TEST(DocumentGeneration, SegmentCountsTheNodesBetweenItsEnds) {
    HostDocument document;
    std::vector<std::string> told;
    document.SetTeller([&](const CString& sentence) { told.push_back(sentence.ToUtf8()); });
    EXPECT_NE(document.GenNodi2Punti({0, 0, 0}, {0.3, 0.7, 1.1}, 2), 0);
    ASSERT_EQ(document.GetSizeNodi(), 4);
    ExpectNear(At(document, 1), {0.1, 0.7 / 3, 1.1 / 3});
    EXPECT_TRUE(At(document, 3) == CFPoint(0.3, 0.7, 1.1)) << "the end is exact";
    EXPECT_NE(document.GenNodi2Punti({0, 0, 0}, {2, 0, 0}, 1), 0);
    ASSERT_EQ(document.GetSizeNodi(), 6) << "the first end was there";
    ExpectNear(At(document, 4), {1, 0, 0});
    EXPECT_NE(document.GenNodi2Punti({0, 0, 0}, {2, 0, 0}, 1), 0);
    EXPECT_EQ(told, (std::vector<std::string>{"Generazione nodi: 4 nodi creati.",
                                              "Generazione nodi: 2 nodi creati, 1 già presente.",
                                              "Generazione nodi: 3 nodi già presenti."}));
}

// Parameters that cannot be used leave no trace: no node, no step.
TEST(DocumentGeneration, NonsenseIsRejected) {
    HostDocument document;
    const CFPoint o(0, 0, 0), x(1, 0, 0), y(0, 1, 0);
    EXPECT_EQ(document.GenNodiLineare(o, x, 1, 0), 0);
    EXPECT_EQ(document.GenNodiLineare(o, x, 1, -5), 0);
    EXPECT_EQ(document.GenNodiLineare(o, x, 1, 2'000'000'000), 0);
    EXPECT_EQ(document.GenNodiLineare(o, o, 1, 5), 0);
    EXPECT_EQ(document.GenNodiLineare(o, x, 0, 5), 0);
    EXPECT_EQ(document.GenNodiLineare(o, x, 1e-9, 5), 0) << "nodes within the tolerance of each other";
    EXPECT_EQ(document.GenNodiLineare(o, x, std::nan(""), 5), 0);
    EXPECT_EQ(document.GenNodiLineare({infinity, 0, 0}, x, 1, 5), 0);
    EXPECT_EQ(document.GenNodiLineare(o, x, 1e308, 5), 0);
    EXPECT_EQ(document.GenNodi2Punti(x, x, 5), 0);
    EXPECT_EQ(document.GenNodi2Punti(o, x, 500'000), 0) << "closer than the tolerance";
    EXPECT_EQ(document.GenNodi2Punti(o, x, 2'147'483'647), 0);
    EXPECT_EQ(document.GenNodi2Punti(o, x, -1), 0);
    EXPECT_EQ(document.GenNodiArco3Punti(1, o, x, {2, 0, 0}, 5), 0) << "three points in line";
    EXPECT_EQ(document.GenNodiArco3Punti(1, o, x, o, 5), 0);
    EXPECT_EQ(document.GenNodiArco3Punti(1, o, {1e308, 0, 0}, {0, 1e308, 0}, 5), 0);
    EXPECT_EQ(document.GenNodiArcoCerchio(1, 0, o, {0, 0, 5}, 90, 5), 0) << "a start on the axis";
    for (const double angle : {0.0, 360.5, -361.0, 1e-7, std::nan("")})
        EXPECT_EQ(document.GenNodiArcoCerchio(1, 0, o, x, angle, 5), 0) << angle;
    EXPECT_EQ(document.GenNodiArcoCerchio(1, 0, o, x, 360, 1), 0) << "nothing but the start";
    EXPECT_EQ(document.GenNodiArcoCerchio(0, 0, o, x, 90, 5), 0);
    for (const double radius : {0.0, -2.0, infinity, 1e308})
        EXPECT_EQ(document.GenNodiCerchio(1, 0, 5, o, radius), 0) << radius;
    EXPECT_EQ(document.GenNodiCerchio(1, infinity, 5, o, 1), 0);
    EXPECT_EQ(document.GenNodiCerchio(1, 0, 2'000'000'000, o, 1), 0);
    EXPECT_EQ(document.Mesh4Punti(o, x, {1, 1, 0}, y, 0, 3), 0);
    EXPECT_EQ(document.Mesh4Punti(o, x, o, y, 3, 3), 0);
    EXPECT_EQ(document.Mesh4Punti(o, o, x, x, 3, 3), 0);
    EXPECT_EQ(document.Mesh4Punti(o, x, {1, 1, 0}, y, 100'000, 100'000), 0);
    EXPECT_EQ(document.Mesh4Punti(o, x, {1, 1, 0}, y, 2'000'000'000, 2'000'000'000), 0);
    EXPECT_EQ(document.Mesh4Punti(o, x, {1, 1, 0}, y, 600, 1), 0) << "a node within the tolerance of two";
    EXPECT_EQ(document.Mesh4Punti(o, {1, -0.00045, 0}, {2, 0, 0}, {1, 0.00045, 0}, 1, 1), 0) << "across a diagonal";
    EXPECT_EQ(document.Mesh4Punti(o, x, y, {1, 1, 0}, 3, 3), 0) << "sides that cross";
    EXPECT_EQ(document.Mesh4Punti(o, {4, 0, 0}, {1, 1, 0}, {0, 4, 0}, 3, 3), 0) << "concave";
    EXPECT_EQ(document.Mesh4Punti(o, x, {2, 0, 0}, {3, 0, 0}, 3, 3), 0) << "in line";
    EXPECT_EQ(document.Mesh4Punti(o, x, {1, infinity, 0}, y, 3, 3), 0);
    EXPECT_EQ(document.GetSizeNodi(), 0);
    EXPECT_EQ(document.Undo().UndoCount(), 0u);
    EXPECT_FALSE(document.IsModified());
}

// Nodes on a curve, checked by what a circle is: their distance from its centre and the angle from one to the next.
struct Curve {
    CFPoint centre, normal; // of length 1
    double radius;
    double height = 0; // of the curve above the centre
    void Expect(const CFPoint& from, const CFPoint& to, double degrees) const {
        for (const CFPoint& point : {from, to}) {
            EXPECT_NEAR(Dot(point - centre, normal), height, 1e-9 * radius);
            EXPECT_NEAR(CFPoint::GetMod(centre + normal * height, point), radius, 1e-9 * radius);
        }
        const CFPoint a = from - centre, b = to - centre;
        const double turned =
            std::atan2(Dot(Cross(a, b), normal), Dot(a, b) - height * height) * 180 / std::numbers::pi;
        EXPECT_NEAR(std::remainder(turned - degrees, 360), 0, 1e-7);
    }
};

// Catches an arc that runs the long way round, counts its ends among the nodes, or leans on the plane of the dialog.
TEST(DocumentGeneration, ArcGoesOverTheSecondPoint) {
    const double tilt = 0.3;
    const CFPoint u(1, 0, 0), v(0, std::cos(tilt), std::sin(tilt)), centre(10, -20, 5);
    const Curve curve{centre, Cross(u, v), 4};
    const auto at = [&](double degrees) {
        const double angle = degrees * std::numbers::pi / 180;
        return centre + u * (4 * std::cos(angle)) + v * (4 * std::sin(angle));
    };
    for (const double end : {300.0, -75.0, 359.0}) { // the second point is early on a long way, or on the other side
        HostDocument document;
        EXPECT_NE(document.GenNodiArco3Punti(7, at(0), at(end / 5), at(end), 9), 0);
        ASSERT_EQ(document.GetSizeNodi(), 11);
        EXPECT_TRUE(At(document, 0) == at(0) && At(document, 10) == at(end)) << "the ends are exact";
        for (int i = 1; i < 11; ++i)
            curve.Expect(At(document, i - 1), At(document, i), end / 10);
        EXPECT_NE(document.GenNodiArco3Punti(1, at(0), at(end / 5), at(end), 4), 0);
        EXPECT_EQ(document.GetSizeNodi(), 11) << "of ten parts every second is there, and the ends";
    }
    // A flat arc is a parabola, as near as this; counted from its centre, a million away, it would lose six digits.
    HostDocument flat;
    EXPECT_NE(flat.GenNodiArco3Punti(1, {0, 0, 0}, {5, 1.25e-5, 0}, {10, 0, 0}, 3), 0);
    EXPECT_NEAR(At(flat, 1).y, 0.75 * 1.25e-5, 1e-14);
    EXPECT_NEAR(At(flat, 2).y, 1.25e-5, 1e-14);
}

// Catches a turn the other way, a start that is drawn into the plane, a doubled end and a plane that tilts wrongly.
TEST(DocumentGeneration, ArcTurnsTheStartAboutTheAxis) {
    const CFPoint centre(1, 2, 3);
    const CFPoint normals[] = {{0, 0, 1}, {0, -1, 0}, {1, 0, 0}}, firsts[] = {{1, 0, 0}, {1, 0, 0}, {0, 1, 0}};
    for (int plane = 1; plane <= 3; ++plane) {
        const double tilt = 25 * std::numbers::pi / 180;
        const CFPoint u = firsts[plane - 1], n = normals[plane - 1];
        const CFPoint normal = n * std::cos(tilt) + Cross(u, n) * std::sin(tilt);
        const CFPoint start = centre + u * 2 + normal * 1.5; // outside the plane
        for (const double angle : {70.0, -200.0, 360.0, -360.0}) {
            HostDocument document;
            EXPECT_NE(document.GenNodiArcoCerchio(plane, 25, centre, start, angle, 6), 0);
            ASSERT_EQ(document.GetSizeNodi(), std::fabs(angle) == 360 ? 5 : 6);
            for (int i = 0; i < document.GetSizeNodi(); ++i)
                Curve{centre, normal, 2, 1.5}.Expect(start, At(document, i), angle * (i + 1) / 6);
        }
    }
    HostDocument quarter;
    EXPECT_NE(quarter.GenNodiArcoCerchio(1, 90, {0, 0, 0}, {2, 0, 0}, 90, 1), 0);
    EXPECT_TRUE(At(quarter, 0) == CFPoint(0, 0, 2)) << "X-Y turned about X by 90 degrees is X-Z, to the last bit";
}

TEST(DocumentGeneration, CircleStartsOnTheFirstAxis) {
    HostDocument circle;
    EXPECT_NE(circle.GenNodiCerchio(3, 0, 4, {7, 1, 1}, 2), 0);
    ASSERT_EQ(circle.GetSizeNodi(), 4) << "the first place is not made again at the end";
    EXPECT_TRUE(At(circle, 0) == CFPoint(7, 3, 1));
    EXPECT_TRUE(At(circle, 1) == CFPoint(7, 1, 3));
    EXPECT_NE(circle.GenNodiCerchio(3, 180, 3, {7, 1, 1}, 2), 0); // turned over
    ExpectNear(At(circle, 4), {7, 0, 1 - std::sqrt(3.0)});
}

// The normal of a wall, by Newell's sum: another way than the mesher's.
CFPoint NormalOf(CSetto& wall) {
    CFPoint sum;
    for (int i = 0; i < wall.GetSize(); ++i)
        sum += Cross(*wall.GetVertice(i)->GetPunto(), *wall.GetVertice((i + 1) % wall.GetSize())->GetPunto());
    return sum;
}

// Catches doubled nodes and elements, a numbering along the other side, walls without material and normals that differ.
TEST(DocumentGeneration, MeshMeetsItsNeighbour) {
    HostDocument document;
    auto* concrete = document.AddNew(std::make_unique<CMateriale>());
    auto* thickness = document.AddNew(std::make_unique<CSpessore>());
    EXPECT_NE(document.Mesh4Punti({0, 0, 0}, {4, 0, 0}, {4, 2, 1}, {0, 2, 0}, 4, 2), 0); // not in one plane
    EXPECT_EQ(document.GetSizeNodi(), 15);
    ASSERT_EQ(document.GetSizeSetti(), 8);
    ExpectNear(At(document, 1), {1, 0, 0});
    ExpectNear(At(document, 8), {3, 1, 0.375}); // bilinear
    EXPECT_NE(document.Mesh4Punti({4, 0, 0}, {8, 0, 0}, {8, 2, 0}, {4, 2, 1}, 4, 2), 0);
    EXPECT_EQ(document.GetSizeNodi(), 27) << "the common side has one row of nodes";
    EXPECT_TRUE(document.IsUnica());
    for (int i = 0; i < document.GetSizeSetti(); ++i) {
        CSetto* wall = document.GetIndexSetto(i);
        EXPECT_GT(NormalOf(*wall).z, 0) << i;
        EXPECT_TRUE(wall->GetMateriale() == concrete && wall->GetThickness() == thickness) << i;
    }
    const std::string before = Dump(document.Data());
    const std::size_t steps = document.Undo().UndoCount();
    EXPECT_NE(document.Mesh4Punti({4, 2, 1}, {0, 2, 0}, {0, 0, 0}, {4, 0, 0}, 4, 2), 0); // the first, from elsewhere
    EXPECT_EQ(Dump(document.Data()), before);
    EXPECT_EQ(document.Undo().UndoCount(), steps) << "nothing to undo";
}

// Two corners in one place make a triangle. Catches elements with a node twice, and nodes in one place.
TEST(DocumentGeneration, MeshOfThreePoints) {
    const CFPoint corners[] = {{0.1, 0.2, 0}, {4, 0, 0}, {4, 3, 0}};
    for (int equal = 0; equal < 4; ++equal) {
        HostDocument document;
        CFPoint at[4];
        for (int i = 0; i < 4; ++i)
            at[(equal + i) % 4] = corners[i % 3];
        ASSERT_NE(document.Mesh4Punti(at[0], at[1], at[2], at[3], 2, 3), 0);
        EXPECT_EQ(document.GetSizeNodi(), equal % 2 ? 1 + 3 * 3 : 1 + 2 * 4);
        ASSERT_EQ(document.GetSizeSetti(), 6);
        double area = 0;
        for (int i = 0; i < 6; ++i) {
            EXPECT_GT(NormalOf(*document.GetIndexSetto(i)).z, 0) << i;
            area += NormalOf(*document.GetIndexSetto(i)).z / 2;
        }
        EXPECT_NEAR(area, (3.9 * 2.8 + 0.2 * 3.9) / 2, 1e-12);
    }
}

// A user who breaks off gets back what was there, with what could be redone. Catches a mesh that stays half, and
// numbers that are used up.
TEST(DocumentGeneration, MeshThatIsBrokenOffLeavesNothing) {
    HostDocument document;
    BuildEverything(document);
    document.Undo().Clear();
    document.GenNodiCerchio(1, 0, 4, {0, 0, 50}, 2);
    document.Undo().Undo();
    const std::string before = Dump(document.Data());
    for (const int until : {0, 5, 30}) { // the first node, another, an element
        int asked = 0;
        document.SetBreakAsker([&] { return asked++ == until; });
        EXPECT_EQ(document.Mesh4Punti({0, 0, 30}, {4, 0, 30}, {4, 4, 30}, {0, 4, 30}, 3, 4), 0);
        EXPECT_EQ(asked, until + 1);
        EXPECT_EQ(Dump(document.Data()), before);
        EXPECT_FALSE(document.Undo().CanUndo());
        EXPECT_TRUE(document.Undo().CanRedo());
    }
}

TEST(Document, AddingRefusesWhatCannotBe) {
    HostDocument document;
    CFPoint a(0, 0, 0), b(100, 0, 0), close(100, 0, 0.0009), nowhere(std::nan(""), 0, 0);
    CNodo* first = document.AddNodo(a, nullptr, 1);
    CNodo* second = document.AddNodo(b, nullptr, 1);
    EXPECT_EQ(document.AddNodo(b, nullptr, 1), second);
    EXPECT_EQ(document.AddNodo(close, nullptr, 1), second) << "a beam divided there would not be joined to it";
    EXPECT_EQ(document.AddNodo(nowhere, nullptr, 1), nullptr);
    EXPECT_EQ(document.AddTrave(1, 1, nullptr), nullptr);
    EXPECT_EQ(document.AddTrave(1, 99, nullptr), nullptr);
    EXPECT_EQ(document.AddAsta(0, -1, nullptr), nullptr);
    EXPECT_EQ(document.AddSetto({1, 2}), nullptr);
    EXPECT_EQ(document.AddSolaio({1, 2, 1}), nullptr);
    CTrave* beam = document.AddTrave(first->GetID(), second->GetID(), nullptr);
    ASSERT_NE(beam, nullptr);
    EXPECT_EQ(first->GetSizeElementi(), 1);
    CFPoint near(100, 0.0004, 0);
    EXPECT_EQ(document.GetNodo(near, nullptr, 0.001), second);
    EXPECT_EQ(document.GetNodo(near, second, 0.001), nullptr);
    EXPECT_EQ(document.GetNodo(near, nullptr, 0.0001), nullptr);
}

struct Listener : DocumentObserver {
    void OnDocumentUpdate(CView*, long hint, CObject*) override {
        hints.push_back(hint);
        if (onUpdate)
            onUpdate();
    }
    std::vector<long> hints;
    std::function<void()> onUpdate;
};

// A view that closes another while both are told must not be told through a dangling pointer.
TEST(Document, ObserversMayLeaveDuringTheCall) {
    HostDocument document;
    Listener first, second, third;
    for (Listener* listener : {&first, &second, &third})
        document.AddObserver(listener);
    document.AddObserver(&third); // twice is once
    first.onUpdate = [&] {
        document.RemoveObserver(&first);
        document.RemoveObserver(&second);
    };
    document.UpdateAllViews(nullptr, 97);
    document.UpdateAllViews(nullptr, 98);
    EXPECT_EQ(first.hints, (std::vector<long>{97}));
    EXPECT_TRUE(second.hints.empty());
    EXPECT_EQ(third.hints, (std::vector<long>{97, 98}));
}

TEST(Document, SelectionTellsEachKindOnce) {
    HostDocument document;
    BuildEverything(document);
    Listener listener;
    document.AddObserver(&listener);
    bool scheduled = false;
    document.SetIdleScheduler([&] { scheduled = true; });
    for (int i = 0; i < document.GetSizeTravi(); ++i)
        document.SelezionaTrave(document.GetIndexTrave(i)->GetID(), nullptr, nullptr);
    document.SelezionaTrave(99999, nullptr, nullptr);
    document.SelezionaNodo(1, nullptr);
    EXPECT_TRUE(listener.hints.empty());
    ASSERT_TRUE(scheduled);
    document.Idle();
    EXPECT_EQ(listener.hints,
              (std::vector<long>{MODIFICA_SELEZIONE_NODI, MODIFICA_SELEZIONE_TRAVI, MODIFICA_SELEZIONE_FINE}));
    EXPECT_EQ(document.GetSizeTraviSelect(), document.GetSizeTravi());
    EXPECT_EQ(document.GetListaSelezione()->GetCount(), document.GetSizeTravi() + 1);

    int walked = 0;
    POSITION pos;
    for (CTrave* beam = document.GetFirstTraveSelect(pos); beam; beam = document.GetNextTraveSelect(pos))
        EXPECT_EQ(beam, document.GetIndexTrave(walked++));
    EXPECT_EQ(walked, document.GetSizeTravi());
    EXPECT_EQ(document.GetNextTraveSelect(pos), nullptr);
    EXPECT_EQ(document.GetFirstAstaSelect(pos), nullptr);

    document.Selection().Remove(document.GetIndexTrave(0));
    document.SelezionaTrave(document.GetIndexTrave(0)->GetID(), nullptr, nullptr);
    EXPECT_EQ(document.GetFirstTraveSelect(pos), document.GetIndexTrave(1)) << "the order is that of selecting";
    document.Selection().Deseleziona(nullptr);
    EXPECT_FALSE(document.GetIndexTrave(0)->IsSelect());
    EXPECT_EQ(document.GetListaSelezione()->GetCount(), 0);
}

TEST(Document, NamesOfCasesFollowTheRule) {
    HostDocument document;
    BuildEverything(document);
    EXPECT_TRUE(document.IsValidoCasoCaricoNome("Neve - 1000 m"));
    EXPECT_TRUE(document.IsValidoCasoCaricoNome(CString('\xe8', 64))) << "letters, not the bytes of a file";
    EXPECT_FALSE(document.IsValidoCasoCaricoNome(CString('a', 65)));
    EXPECT_FALSE(document.IsValidoCasoCaricoNome(" a"));
    for (const char* name : {"a.b", "a`b", "a!b", "a[b", "a]b"})
        EXPECT_FALSE(document.IsValidoCasoCaricoNome(name)) << name;
    EXPECT_EQ(document.IsCasoCaricoNome("SLU"), document.GetIndexCombinazione(0));
    EXPECT_EQ(document.IsCasoCaricoNome("slu"), nullptr);
    EXPECT_EQ(document.IsCasoCaricoNome(*document.GetIndexCasoCarico(0), nullptr), nullptr) << "not by itself";
    CCombinazione twin;
    twin.SetNome("Permanenti");
    CElementoStrutturale* other = nullptr;
    EXPECT_EQ(document.IsCasoCaricoNome(twin, &other), document.GetIndexCasoCarico(0));
    EXPECT_EQ(other, document.GetIndexCasoCarico(0));
    EXPECT_EQ(document.AddCombinazione(&twin, nullptr), 0) << "refused: it stays the caller's";
    int index = -1;
    EXPECT_EQ(document.GetCasoCarico(2, &index), document.GetIndexCasoCarico(1));
    EXPECT_EQ(index, 1);
    EXPECT_EQ(document.SelectCasoCarico(3), 1) << "combinations and cases share their numbers";
    EXPECT_EQ(document.GetSelectCombinazione(), document.GetIndexCombinazione(0));
    EXPECT_EQ(document.GetSelectCasoCarico(), nullptr);
    EXPECT_EQ(document.SelectCasoCarico(77), 0);
}

TEST(Document, StructuresAreWhatIsConnected) {
    HostDocument document;
    BuildEverything(document);
    EXPECT_FALSE(document.IsUnica()) << "one node stands alone";
    CObArray nodes;
    document.m_pSelezione->SelezionaStruttura(document.GetIndexNodo(4), &nodes);
    EXPECT_EQ(nodes.GetSize(), document.GetSizeNodi() - 1);
    EXPECT_EQ(nodes[0], document.GetIndexNodo(4));
    nodes.RemoveAll();
    document.m_pSelezione->SelezionaStruttura(document.GetIndexNodo(document.GetSizeNodi() - 1), &nodes);
    EXPECT_EQ(nodes.GetSize(), 1);
    nodes.RemoveAll(); // the marks of the first walk must be gone
    document.m_pSelezione->SelezionaStruttura(document.GetIndexNodo(0), &nodes);
    EXPECT_EQ(nodes.GetSize(), document.GetSizeNodi() - 1);
}

} // namespace
