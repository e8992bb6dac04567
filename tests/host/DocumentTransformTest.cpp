// Moving, rotating, mirroring and copying the selection: where things end up and what they carry.
#include "host/document/HostDocument.h"
#include "model/element/Setto.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/load/Carico.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace host;

namespace {

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

    HostDocument m_document;
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
    Selection().TraslaSelezione(std::nan(""), 0, 0, 2, UNIONE_TRAVI);
    Selection().RuotaSelezione(1, 1, 1, 1, 1, 1, 90, 2, UNIONE_TRAVI);
    Selection().RuotaSelezione(0, 1, 7, 2, UNIONE_TRAVI);
    EXPECT_EQ(m_document.Undo().UndoCount(), steps);
    Selection().TraslaSelezione(0, 0, 9, 1, UNIONE_NIENTE);
    EXPECT_EQ(m_document.GetIndexTrave(3)->GetBeta(), 15);
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

TEST_F(DocumentTransformTest, MirroredWallsKeepTheirSide) {
    Node(0, 0, 0);
    Node(4, 0, 0);
    Node(4, 0, 3);
    Node(0, 0, 3);
    CSetto* wall = m_document.AddSetto({1, 2, 3, 4});
    CFPoint normal, mirrored;
    wall->GetDir(normal, 2);
    Selection().Add(wall);
    Selection().SpecchiaSelezione(-1, 0, 0, 1);
    ASSERT_EQ(m_document.GetSizeSetti(), 2);
    m_document.GetIndexSetto(1)->GetDir(mirrored, 2);
    EXPECT_NEAR(CFPoint::GetMod(normal, mirrored), 0, 1e-12);
    EXPECT_EQ(m_document.GetIndexSetto(1)->GetIndexNodo(0), Find(-2, 0, 0));
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
