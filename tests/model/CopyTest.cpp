// Copies for undo: whole, free of pointers, and good for bringing an object back.
#include "model/element/Copy.h"
#include "model/entity/CasoCarico.h"
#include "tests/model/SmallModel.h"

#include <algorithm>
#include <tuple>

namespace {

class Finder : public ModelLookup {
  public:
    Finder(SmallModel& model, CCasoCarico& loadCase) : m_model(model), m_case(loadCase) {}

    CNodo* FindNode(int id) override {
        const auto found = std::ranges::find(m_model.nodes, id, [](const auto& node) { return node->GetID(); });
        return found == m_model.nodes.end() ? nullptr : found->get();
    }
    CMateriale* FindMaterial(int id) override { return id == 1 ? &m_model.material : nullptr; }
    CSezione* FindSection(int id) override { return id == 1 ? &m_model.section : nullptr; }
    CSpessore* FindThickness(int id) override { return id == 1 ? &m_model.thickness : nullptr; }
    CCarico* FindLoad(int idCase, int id) override {
        return idCase == m_case.GetID() ? m_case.GetCarico(id, nullptr) : nullptr;
    }

  private:
    SmallModel& m_model;
    CCasoCarico& m_case;
};

class CopyTest : public testing::Test {
  protected:
    CopyTest() { m_loadCase.SetID(3); }

    CCasoCarico m_loadCase;
    SmallModel m_m;
    Finder m_finder{m_m, m_loadCase};
};

// Faults: a copy that enters the nodes' lists, keeps pointers, forgets a field, or shares what the original owns.
TEST_F(CopyTest, ALineComesBackAfterEverythingElseChanged) {
    CNodo &a = m_m.Node(0, 0, 0), &b = m_m.Node(1, 0, 0), &c = m_m.Node(2, 0, 0);
    auto* load = new CCaricoUniforme(CFPoint(0, 0, -1), CCarico::Global);
    m_loadCase.AddCarico(load);
    CTrave& beam = m_m.Beam(a, b);
    beam.SetBeta(45);
    beam.SetSelect(1);
    beam.AddCarico(load, 1);
    beam.AddGruppo(2);
    beam.AddSpecifica(new CSpecificheSvincoliTrave(0, 0, 0, 0, 1));
    const auto state = [&] {
        return std::tuple(beam.GetNodoIniziale(), beam.GetNodoFinale(), a.GetSizeElementi(), c.GetSizeElementi(),
                          beam.GetBeta(), beam.IsSelect(), beam.GetSezione(), beam.GetIndexCarico(0), beam.IsGruppo(2),
                          beam.GetReleases(0), beam.GetID());
    };
    const auto before = state();

    const std::unique_ptr<CElemento> copy = CopyOf(beam);
    auto* const line = dynamic_cast<CTrave*>(copy.get());
    ASSERT_NE(line, nullptr);
    EXPECT_EQ(state(), before);
    EXPECT_TRUE(!line->GetNodoIniziale() && !line->GetMateriale() && !line->GetIndexCarico(0));
    EXPECT_EQ(line->GetIDNodoFinale(), b.GetID());
    EXPECT_EQ(line->GetID(), beam.GetID());

    beam.SetNodi(&b, &c);
    beam.SetBeta(0);
    beam.SetSelect(0);
    beam.SetSezione(0, nullptr);
    beam.EliminaCarichi();
    beam.EliminaGruppo(2);
    beam.EliminaIndexSpecifica(0);
    beam.SetID(99);
    EXPECT_TRUE(RestoreState(beam, *copy, m_finder));
    EXPECT_EQ(state(), before);
    EXPECT_EQ(beam.GetReleases(0), 8u);
    EXPECT_EQ(line->GetSizeSpecifiche(), 1);
}

// Faults: what cannot be found is passed over in silence, or tears a hole into the rest.
TEST_F(CopyTest, MissingObjectsAreReported) {
    CNodo &a = m_m.Node(0, 0, 0), &b = m_m.Node(1, 0, 0);
    auto* load = new CCaricoNodale;
    const int number = m_loadCase.AddCarico(load);
    CTrave& beam = m_m.Beam(a, b);
    beam.AddCarico(load, 1);
    const std::unique_ptr<CElemento> copy = CopyOf(beam);
    beam.EliminaCarichi();
    m_loadCase.EliminaCarico(number);
    EXPECT_FALSE(RestoreState(beam, *copy, m_finder));
    EXPECT_EQ(beam.GetNodoFinale(), &b);
    EXPECT_EQ(beam.GetSizeCarichi(), 1); // the reference stays, unlinked
    EXPECT_EQ(beam.GetIndexCarico(0), nullptr);

    const std::unique_ptr<CElemento> orphan = CopyOf(beam);
    m_m.nodes.pop_back();
    EXPECT_FALSE(Relink(*orphan, m_finder));
    EXPECT_EQ(orphan->GetIndexNodo(0), nullptr); // no half lines
    EXPECT_EQ(a.GetSizeElementi(), 1);
}

TEST_F(CopyTest, NodesPolygonsAndEntities) {
    NodeGrid grid;
    CNodo &a = m_m.Node(0, 0, 0), &b = m_m.Node(1, 0, 0), &c = m_m.Node(0, 1, 0);
    grid.Insert(&a);
    const CVincolo clamp(63u);
    a.SetRestraint(&clamp);
    a.AddSpring(CMolla(0, 5, CFPoint(1, 0, 0)));
    CSetto& wall = m_m.Polygon<CSetto>({&a, &b, &c});
    const std::unique_ptr<CElemento> node = CopyOf(a), polygon = CopyOf(wall);
    EXPECT_EQ(grid.GetSize(), 1);
    a.SetPoint(CFPoint(5, 5, 5));
    a.SetRestraint(nullptr);
    a.RemoveSprings();
    wall.EliminaVertice(1);
    EXPECT_TRUE(RestoreState(a, *node, m_finder));
    EXPECT_TRUE(RestoreState(wall, *polygon, m_finder));
    EXPECT_EQ(grid.Find({0, 0, 0}, nullptr, 1e-5), &a);
    EXPECT_EQ(a.GetVincolo()->GetMask(), 63u);
    EXPECT_EQ(a.GetSizeMolle(), 1);
    EXPECT_EQ(wall.GetSize(), 3);
    EXPECT_EQ(wall.GetVertice(1), &b);
    EXPECT_EQ(b.GetSizeElementi(), 1);

    m_m.material.SetNome("C25/30");
    const std::unique_ptr<CElemento> material = CopyOf(m_m.material);
    m_m.material.SetE(1);
    m_m.material.SetNome("");
    EXPECT_TRUE(RestoreState(m_m.material, *material, m_finder));
    EXPECT_EQ(m_m.material.GetE(), 3e7);
    EXPECT_STREQ(m_m.material.GetNome(), "C25/30");
}

} // namespace
