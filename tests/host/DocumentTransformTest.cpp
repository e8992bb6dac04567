// Moving, rotating, mirroring and copying the selection: where things end up and what they carry.
#include "host/document/HostDocument.h"
#include "model/element/Asta.h"
#include "model/element/Setto.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/load/Carico.h"
#include "model/view/Adv3dRect.h"
#include "platform/core/Collections.h"
#include "tests/host/Dump.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <utility>

using namespace host;

namespace {

using Lines = std::vector<std::string>;

class DocumentTransformTest : public testing::Test {
  protected:
    CNodo* Node(double x, double y, double z) {
        CFPoint place(x, y, z);
        return m_document.AddNodo(place, nullptr, 1);
    }
    CTrave* Beam(CNodo* a, CNodo* b) { return m_document.AddTrave(a->GetID(), b->GetID(), nullptr); }
    CNodo* Find(double x, double y, double z) {
        CFPoint place(x, y, z);
        return m_document.GetNodo(place, nullptr, 1e-9);
    }
    HostSelection& Selection() { return m_document.Selection(); }
    void SetUp() override {
        m_document.SetRefusalTeller([this](const Refusal& why) { m_refusals.push_back(why.message.ToUtf8()); });
    }
    void TearDown() override { EXPECT_TRUE(m_refusals.empty()) << m_refusals[0]; }
    // What was said since the last time.
    Lines Said() { return std::exchange(m_refusals, {}); }
    // A column with a fixed foot at the origin, selected.
    CTrave* Column() {
        CNodo* foot = Node(0, 0, 0);
        const CVincolo fixed(CVincolo::All);
        m_document.Modify(*foot, [&] { foot->SetRestraint(&fixed); });
        CTrave* column = Beam(foot, Node(0, 0, 3));
        Selection().Add(column);
        return column;
    }

    HostDocument m_document;
    Lines m_refusals;
};

// Copying onto what is there: neither nodes nor elements are doubled.
TEST_F(DocumentTransformTest, CopiesMeetWhatIsThere) {
    CNodo* a = Node(0, 0, 0);
    CNodo* b = Node(1, 0, 0);
    CNodo* c = Node(2, 0, 0);
    CTrave* first = Beam(a, b);
    first->SetBeta(15);
    Beam(b, c);
    Selection().Add(first);
    Selection().TraslaSelezione(1, 0, 0, 2, UNIONE_TRAVI);
    EXPECT_EQ(m_document.GetSizeNodi(), 4);
    EXPECT_EQ(m_document.GetSizeTravi(), 3) << "the second place has its beam, and so has each join";
    const std::size_t steps = m_document.Undo().UndoCount();
    for (const int copies : {0, 2})
        Selection().TraslaSelezione(0, 0, 0, copies, UNIONE_TRAVI);
    EXPECT_EQ(m_document.Undo().UndoCount(), steps);
    Selection().TraslaSelezione(0, 0, 9, 1, UNIONE_NIENTE);
    EXPECT_EQ(m_document.GetIndexTrave(3)->GetBeta(), 15);
}

// Catches a copy that takes after the node or element that it met, and one that is counted from where that node lies.
TEST_F(DocumentTransformTest, CopiesTakeAfterTheSelectionNotAfterWhatTheyMeet) {
    CTrave* column = Column();
    column->SetBeta(30);
    CTrave* met = Beam(Node(3.0009, 0, 0), Node(3, 0, 3));
    Selection().TraslaSelezione(3, 0, 0, 4, UNIONE_ASTE);
    EXPECT_EQ(met->GetNodoIniziale()->GetVincolo(), nullptr) << "what was there stays as it was";
    EXPECT_EQ(met->GetBeta(), 0);
    ASSERT_EQ(m_document.GetSizeTravi(), 5);
    EXPECT_EQ(m_document.GetSizeAste(), 8);
    for (int i = 2; i < 5; ++i) {
        CTrave* copy = m_document.GetIndexTrave(i);
        EXPECT_EQ(*copy->GetNodoIniziale()->GetPunto(), CFPoint(3.0 * i, 0, 0));
        EXPECT_NE(copy->GetNodoIniziale()->GetVincolo(), nullptr) << i;
        EXPECT_EQ(copy->GetBeta(), 30);
    }
    EXPECT_EQ(m_document.GetIndexAsta(2)->GetNodoIniziale(), met->GetNodoIniziale()) << "joins go by the copies";
}

// Catches a copy whose own nodes swallow each other, and one that does not find both where they are already.
TEST_F(DocumentTransformTest, NodesThatAreSeparateOnPurposeStaySo) {
    CFPoint joint(4, 0, 0);
    CTrave* first = Beam(Node(2, 0, 0), m_document.AddNodo(joint, nullptr, 0));
    CTrave* second = Beam(m_document.AddNodo(joint, nullptr, 0), Node(6, 0, 0));
    Selection().Add({second, first}); // against the order of the numbers
    for (int round = 0; round < 2; ++round) {
        // The fourth quarter turn comes back to where the selection is.
        Selection().RuotaSelezione(0, 0, 0, 0, 0, 1, 90, 4, UNIONE_NIENTE);
        EXPECT_EQ(m_document.GetSizeNodi(), 16);
        EXPECT_EQ(m_document.GetSizeTravi(), 8);
    }
    // One node alone in the way serves one of the two; what hangs on the other does not come to hang on it.
    Node(4, 0, 5);
    Selection().TraslaSelezione(0, 0, 5, 1, UNIONE_TRAVI);
    EXPECT_EQ(m_document.GetSizeNodi(), 20);
    EXPECT_EQ(m_document.GetSizeTravi(), 8 + 2 + 4);
}

// Twelve times thirty degrees: turns that add up to quarters are as exact as these, whatever they are made of.
TEST_F(DocumentTransformTest, QuarterTurnsLeaveNoDust) {
    CNodo* low = Node(3, 0, 0);
    CNodo* high = Node(3, 0, 3);
    Beam(low, high);
    m_document.SelectAll();
    Selection().RuotaSelezione(0, 0, 0, 0, 0, 1, 30, 12, UNIONE_NIENTE);
    EXPECT_EQ(m_document.GetSizeNodi(), 24);
    EXPECT_EQ(*m_document.GetIndexNodo(2 * 3)->GetPunto(), CFPoint(0, 3, 0));
    Selection().Clear();
    Selection().Add(m_document.GetIndexTrave(0));
    const double angle = 90 * 0.017453292522222223; // as the dialog makes it, with its own pi
    for (int turn = 0; turn < 6; ++turn)
        Selection().RuotaSelezione(std::sin(angle), std::cos(angle), 1, 0, UNIONE_NIENTE);
    EXPECT_EQ(*low->GetPunto(), CFPoint(-3, 0, 0));
    EXPECT_EQ(*high->GetPunto(), CFPoint(-3, 0, -3));
}

// Catches planes that are exchanged, and the point taken for the origin where it was given.
TEST_F(DocumentTransformTest, MirrorsInEachPlaneAndInTheOrigin) {
    Selection().Add(Node(1, 2, 3));
    const CFPoint places[] = {{1, 2, 9}, {7, 2, 3}, {1, 8, 3}, {-1, -2, -3}};
    for (int plane = 0; plane < 4; ++plane) {
        Selection().SpecchiaSelezione(4, 5, 6, plane);
        EXPECT_NE(Find(places[plane].x, places[plane].y, places[plane].z), nullptr) << plane;
    }
}

// Catches springs that stay behind when their node turns, and an undo that forgets them.
TEST_F(DocumentTransformTest, SpringsTurnWithTheirNode) {
    CNodo* foot = Node(1, 0, 0);
    m_document.Modify(*foot, [&] { foot->AddSpring(CMolla(CMolla::Translational, 10, {1, 0, 0})); });
    Selection().Add(foot);
    ExpectExact(
        m_document, [&] { Selection().RuotaSelezione(0, 0, 0, 0, 0, 1, 90, 0, 0); }, [&] { m_document.Undo().Undo(); },
        [&] { m_document.Undo().Redo(); });
    EXPECT_EQ(foot->GetIndexMolla(0)->GetDirection(), CFPoint(0, 1, 0));
}

// Every refusal says why and leaves nothing, however far the command had got.
TEST_F(DocumentTransformTest, RefusalsSayWhyAndLeaveNothing) {
    const auto cycle = [this](const std::vector<double>& steps) {
        Adv3dRect rect;
        CObList objects, copies;
        unsigned count = 0;
        Selection().InizioCicloTraslaSelezione(rect, objects);
        for (const double step : steps)
            Selection().CicloTraslaSelezione(step, 0, 0, UNIONE_TRAVI, count, rect, objects, copies);
        Selection().FineCicloTraslaSelezione(rect, count);
    };
    const std::function<void()> onNothing[] = {
        [&] { Selection().TraslaSelezione(1, 0, 0, 0, 0); },
        [&] { Selection().SpecchiaSelezione(0, 0, 0, 3); },
        [&] { Selection().RuotaSelezione(0, 0, 0, 0, 0, 1, 90, 3, 0); },
        [&] {
            cycle({1, 2});
        },
    };
    for (const auto& command : onNothing) {
        command();
        EXPECT_EQ(Said(), Lines{"Nessun elemento selezionato: il comando non è stato eseguito."});
    }
    cycle({}); // a negative number of copies makes none, and that is all
    Column();
    const std::string before = Dump(m_document.Data());
    const std::size_t steps = m_document.Undo().UndoCount();
    const double nan = std::nan("");
    const char axis[] = "L'asse di rotazione non è valido: il comando non è stato eseguito.";
    const char place[] = "Le coordinate che ne risultano non sono valide: il comando non è stato eseguito.";
    const char many[] = "Troppe copie: il comando non è stato eseguito.";
    const std::pair<const char*, std::function<void()>> refused[] = {
        {axis, [&] { Selection().RuotaSelezione(1, 1, 1, 1, 1, 1, 90, 2, UNIONE_TRAVI); }},
        {axis, [&] { Selection().RuotaSelezione(0, 1, 7, 0, 0); }},
        {"L'angolo di rotazione non è valido: il comando non è stato eseguito.",
         [&] { Selection().RuotaSelezione(0, 0, 0, 0, 0, 1, nan, 0, 0); }},
        {"L'angolo di rotazione non è valido: il comando non è stato eseguito.",
         [&] { Selection().RuotaSelezione(1, 1, 2, 0, 0); }},
        {"Il piano di simmetria non è valido: il comando non è stato eseguito.",
         [&] { Selection().SpecchiaSelezione(0, 0, 0, 4); }},
        {place, [&] { Selection().TraslaSelezione(nan, 0, 0, 2, UNIONE_TRAVI); }},
        {place, [&] { Selection().TraslaSelezione(0, 2e12, 0, 0, 0); }},
        {place, [&] { Selection().SpecchiaSelezione(1e12, 0, 0, 1); }},
        {place,
         [&] {
             cycle({3, 5e11, 6e11});
         }},
        {many, [&] { Selection().TraslaSelezione(1, 0, 0, 10'000'000, 0); }},
        {many, [&] { cycle(std::vector<double>(10'000'000, 1)); }},
    };
    for (const auto& [text, command] : refused) {
        command();
        EXPECT_EQ(Said(), Lines{text});
        EXPECT_EQ(Dump(m_document.Data()), before) << text;
        EXPECT_EQ(m_document.Undo().UndoCount(), steps) << text;
    }
    cycle({3, -3, 6});
    EXPECT_EQ(m_document.GetSizeNodi(), 6) << "the second copy meets the selection itself";
}

TEST_F(DocumentTransformTest, CopiesCarryRestraintsSpringsAndLoads) {
    CNodo* a = Node(0, 0, 0);
    CTrave* beam = Beam(a, Node(5, 0, 0));
    CVincolo fixed(CVincolo::All);
    CCasoCarico* loadCase = m_document.GetIndexCasoCarico(0);
    CCarico* load =
        m_document.AddCarico(*loadCase, std::make_unique<CCaricoUniforme>(CFPoint(0, 2, -3), CCarico::Local));
    m_document.Modify(*a, [&] {
        a->SetRestraint(&fixed);
        a->AddSpring(CMolla(CMolla::Translational, 10, {1, 0, 0}));
    });
    m_document.Modify(*beam, [&] {
        beam->AddCarico(load, 0);
        beam->AddSpecifica(new CSpecificheSvincoliTrave(1, 0, 0, 1, 0));
    });
    Selection().Add(beam);
    Selection().RuotaSelezione(0, 0, 0, 0, 0, 1, 90, 1, UNIONE_NIENTE);
    CNodo* far = Find(0, 5, 0);
    ASSERT_NE(far, nullptr) << "a quarter turn is exact";
    EXPECT_EQ(m_document.GetSizeNodi(), 3) << "the node on the axis is met";
    CTrave* copy = m_document.GetIndexTrave(1);
    EXPECT_EQ(copy->GetNodoIniziale(), a);
    EXPECT_EQ(copy->GetIndexCarico(0), load);
    EXPECT_EQ(copy->GetReleases(1), 4u);
    Selection().TraslaSelezione(0, 0, 10, 1, UNIONE_NIENTE);
    CNodo* above = Find(0, 0, 10);
    ASSERT_NE(above, nullptr);
    ASSERT_NE(above->GetVincolo(), nullptr);
    EXPECT_EQ(above->GetVincolo()->GetMask(), static_cast<unsigned>(CVincolo::All));
    EXPECT_EQ(above->GetSizeMolle(), 1);
    // Mirrored in the X-Z plane, axis 2 points to the other side: so does what acts along it.
    Selection().SpecchiaSelezione(0, -1, 0, 2);
    CTrave* mirrored = m_document.GetIndexTrave(m_document.GetSizeTravi() - 1);
    EXPECT_EQ(mirrored->GetBeta(), 0);
    auto* other = static_cast<CCaricoUniforme*>(mirrored->GetIndexCarico(0));
    ASSERT_NE(other, nullptr);
    EXPECT_EQ(other->GetCarico().y, -2);
    EXPECT_EQ(other->GetCarico().z, -3);
    EXPECT_EQ(loadCase->GetSizeCarichi(), 2);
}

// Axis 3 of each beam goes along with the motion, whatever the direction of the beam before and after.
TEST_F(DocumentTransformTest, LocalAxesTurnWithTheElement) {
    CNodo* a = Node(0, 0, 0);
    CNodo* tops[] = {Node(4, 0, 0), Node(0, 0, 3), Node(1, 2, 3)};
    for (CNodo* top : tops)
        Beam(a, top)->SetBeta(20);
    std::vector<CFPoint> thirds;
    CFPoint one, two, three;
    for (int i = 0; i < 3; ++i) {
        m_document.GetIndexTrave(i)->GetLocalAxes(one, two, three);
        thirds.push_back(three);
    }
    m_document.SelectAll();
    // A third of a turn about the space diagonal: X becomes Y, Y becomes Z, Z becomes X.
    Selection().RuotaSelezione(0, 0, 0, 1, 1, 1, 120, 0, UNIONE_NIENTE);
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(m_document.GetIndexTrave(i)->GetLocalAxes(one, two, three));
        const CFPoint& before = thirds[static_cast<std::size_t>(i)];
        EXPECT_NEAR(CFPoint::GetMod(three, {before.z, before.x, before.y}), 0, 1e-12) << i;
    }
    EXPECT_NE(Find(0, 4, 0), nullptr);
}

// Catches a mirrored wall that shows its other side, exchanges its axes 1 and 2, or is loaded the wrong way.
TEST_F(DocumentTransformTest, MirroredWallsKeepTheirAxes) {
    for (const CFPoint& place : {CFPoint(0, 0, 0), CFPoint(4, 0, 0), CFPoint(4, 1, 3), CFPoint(0, 1, 3)})
        Node(place.x, place.y, place.z);
    CSetto* wall = m_document.AddSetto({1, 2, 3, 4});
    CCarico* load = m_document.AddCarico(*m_document.GetIndexCasoCarico(0),
                                         std::make_unique<CCaricoUniforme>(CFPoint(1, 2, 3), CCarico::Local));
    m_document.Modify(*wall, [&] { wall->AddCarico(load, 0); });
    Selection().Add(wall);
    Selection().SpecchiaSelezione(0, -1, 0, 2);
    ASSERT_EQ(m_document.GetSizeSetti(), 2);
    CSetto* copy = m_document.GetIndexSetto(1);
    CFPoint sum, mirroredSum; // the load in global axes
    const CFPoint& value = static_cast<CCaricoUniforme*>(copy->GetIndexCarico(0))->GetCarico();
    const double before[] = {1, 2, 3}, after[] = {value.x, value.y, value.z};
    for (int i = 0; i < 3; ++i) {
        CFPoint axis, its;
        wall->GetDir(axis, i);
        copy->GetDir(its, i);
        const CFPoint mirrored(axis.x, -axis.y, axis.z);
        EXPECT_NEAR(Dot(its, mirrored), i == 0 ? -1 : 1, 1e-12) << i;
        sum += mirrored * before[i];
        mirroredSum += its * after[i];
    }
    EXPECT_NEAR(CFPoint::GetMod(sum, mirroredSum), 0, 1e-12);
}

TEST_F(DocumentTransformTest, MovingTakesTheNodesOfElementsAlongOnce) {
    CNodo* a = Node(0, 0, 0);
    CNodo* b = Node(5, 0, 0);
    CNodo* c = Node(5, 5, 0);
    Selection().Add(Beam(a, b));
    Selection().Add(Beam(b, c));
    Selection().Add(b);
    Selection().TraslaSelezione(1, 2, 3, 0, 0);
    EXPECT_EQ(Find(6, 2, 3), b) << "moved once, though three selected objects have it";
    EXPECT_EQ(Find(5, 0, 0), nullptr);
    EXPECT_EQ(m_document.GetSizeNodi(), 3);
    m_document.Undo().Undo();
    EXPECT_EQ(Find(5, 0, 0), b) << "the search by position follows";
}

TEST_F(DocumentTransformTest, SelectionByPlaneAndRange) {
    for (const CFPoint& place : {CFPoint(0, 0, 0), CFPoint(5, 0, 0), CFPoint(5, 5, 0), CFPoint(5, 5, 5)})
        Node(place.x, place.y, place.z);
    m_document.AddTrave(1, 2, nullptr);
    m_document.AddTrave(3, 4, nullptr);
    m_document.AddAsta(2, 3, nullptr);
    Selection().SelezionaElementiRange({-1, -1, -1}, {6, 6, 1}, 0, 1, 1, 1, 1);
    EXPECT_EQ(Selection().Size(Kind::Beam), 1);
    EXPECT_EQ(Selection().Size(Kind::Truss), 1);
    EXPECT_EQ(Selection().Size(Kind::Node), 0);
    Selection().Clear();
    // The ground floor: the points are all 0, only the dialog's kind tells the axis. Bounds may be reversed.
    Selection().SetRangeAxis([] { return 2; });
    Selection().SelezionaElementiRange({}, {}, 1, 0, 0, 0, 0);
    EXPECT_EQ(Selection().Size(Kind::Node), 3);
    Selection().SelezionaElementiRange({0, 0, 5.0005}, {0, 0, 4.9}, 1, 0, 1, 0, 0);
    EXPECT_EQ(Selection().Size(Kind::Node), 4);
    EXPECT_EQ(Selection().Size(Kind::Beam), 0);
    Selection().SelezionaElementiRange({0, 0, 6}, {0, 0, 5.0005}, 0, 0, 1, 0, 0);
    EXPECT_EQ(Selection().Size(Kind::Beam), 0);
    Selection().Clear();
    CPoligono ground;
    for (int i = 0; i < 3; ++i)
        ground.AggiungiVertice(m_document.GetIndexNodo(i));
    Selection().SelezionaElementiPiano(&ground);
    EXPECT_EQ(Selection().All().size(), 2u);
    Selection().Clear();
    m_document.SelectAll();
    Node(0, 0, 2);
    Node(1, 0, 2);
    Node(0, 1, 2);
    CPoligono above;
    for (int i = 4; i < 7; ++i)
        above.AggiungiVertice(m_document.GetIndexNodo(i));
    Selection().IntersezioneLineePiano(&above);
    EXPECT_NE(Find(5, 5, 2), nullptr);
    EXPECT_EQ(m_document.GetSizeNodi(), 8);
}

} // namespace
