// Copies for undo: whole, free of pointers, and good for bringing an object back.
#include "model/CasoCarico.h"
#include "model/Copia.h"
#include "tests/model/SmallModel.h"

#include <algorithm>
#include <tuple>

namespace {

class Finder : public CercaModello {
  public:
    Finder(SmallModel& model, CCasoCarico& loadCase) : m_model(model), m_case(loadCase) {}

    CNodo* CercaNodo(int id) override {
        const auto found = std::ranges::find(m_model.nodes, id, [](const auto& node) { return node->GetID(); });
        return found == m_model.nodes.end() ? nullptr : found->get();
    }
    CMateriale* CercaMateriale(int id) override { return id == 1 ? &m_model.material : nullptr; }
    CSezione* CercaSezione(int id) override { return id == 1 ? &m_model.section : nullptr; }
    CSpessore* CercaSpessore(int id) override { return id == 1 ? &m_model.thickness : nullptr; }
    CCarico* CercaCarico(int idCase, int id) override {
        return idCase == m_case.GetID() ? m_case.GetCarico(id, nullptr) : nullptr;
    }

  private:
    SmallModel& m_model;
    CCasoCarico& m_case;
};

class CopyTest : public testing::Test {
  protected:
    CopyTest() { loadCase.SetID(3); }

    CCasoCarico loadCase;
    SmallModel m;
    Finder finder{m, loadCase};
};

// Faults: a copy that enters the nodes' lists, keeps pointers, forgets a field, or shares what the original owns.
TEST_F(CopyTest, ALineComesBackAfterEverythingElseChanged) {
    CNodo &a = m.node(0, 0, 0), &b = m.node(1, 0, 0), &c = m.node(2, 0, 0);
    auto* load = new CCaricoUniforme(CFPoint(0, 0, -1), CCarico::Globale);
    loadCase.AddCarico(load);
    CTrave& beam = m.beam(a, b);
    beam.SetBeta(45);
    beam.SetSelect(1);
    beam.AddCarico(load, 1);
    beam.AddGruppo(2);
    beam.AddSpecifica(new CSpecificheSvincoliTrave(0, 0, 0, 0, 1));
    const auto state = [&] {
        return std::tuple(beam.GetNodoIniziale(), beam.GetNodoFinale(), a.GetSizeElementi(), c.GetSizeElementi(),
                          beam.GetBeta(), beam.IsSelect(), beam.GetSezione(), beam.GetIndexCarico(0), beam.IsGruppo(2),
                          beam.GetSvincoli(0), beam.GetID());
    };
    const auto before = state();

    const std::unique_ptr<CElemento> copy = CreaCopia(beam);
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
    EXPECT_TRUE(RipristinaStato(beam, *copy, finder));
    EXPECT_EQ(state(), before);
    EXPECT_EQ(beam.GetSvincoli(0), 8u);
    EXPECT_EQ(line->GetSizeSpecifiche(), 1);
}

// Faults: what cannot be found is passed over in silence, or tears a hole into the rest.
TEST_F(CopyTest, MissingObjectsAreReported) {
    CNodo &a = m.node(0, 0, 0), &b = m.node(1, 0, 0);
    auto* load = new CCaricoNodale;
    const int number = loadCase.AddCarico(load);
    CTrave& beam = m.beam(a, b);
    beam.AddCarico(load, 1);
    const std::unique_ptr<CElemento> copy = CreaCopia(beam);
    beam.EliminaCarichi();
    loadCase.EliminaCarico(number);
    EXPECT_FALSE(RipristinaStato(beam, *copy, finder));
    EXPECT_EQ(beam.GetNodoFinale(), &b);
    EXPECT_EQ(beam.GetSizeCarichi(), 1); // the reference stays, unlinked
    EXPECT_EQ(beam.GetIndexCarico(0), nullptr);

    const std::unique_ptr<CElemento> orphan = CreaCopia(beam);
    m.nodes.pop_back();
    EXPECT_FALSE(Ricollega(*orphan, finder));
    EXPECT_EQ(orphan->GetIndexNodo(0), nullptr); // no half lines
    EXPECT_EQ(a.GetSizeElementi(), 1);
}

TEST_F(CopyTest, NodesPolygonsAndEntities) {
    NodeGrid grid;
    CNodo &a = m.node(0, 0, 0), &b = m.node(1, 0, 0), &c = m.node(0, 1, 0);
    grid.Insert(&a);
    const CVincolo clamp(63u);
    a.SetVincolo(&clamp);
    a.AddMolla(CMolla(0, 5, CFPoint(1, 0, 0)));
    CSetto& wall = m.polygon<CSetto>({&a, &b, &c});
    const std::unique_ptr<CElemento> node = CreaCopia(a), polygon = CreaCopia(wall);
    EXPECT_EQ(grid.GetSize(), 1);
    a.SetPunto(CFPoint(5, 5, 5));
    a.SetVincolo(nullptr);
    a.EliminaMolle();
    wall.EliminaVertice(1);
    EXPECT_TRUE(RipristinaStato(a, *node, finder));
    EXPECT_TRUE(RipristinaStato(wall, *polygon, finder));
    EXPECT_EQ(grid.Find({0, 0, 0}, nullptr, 1e-5), &a);
    EXPECT_EQ(a.GetVincolo()->GetMaschera(), 63u);
    EXPECT_EQ(a.GetSizeMolle(), 1);
    EXPECT_EQ(wall.GetSize(), 3);
    EXPECT_EQ(wall.GetVertice(1), &b);
    EXPECT_EQ(b.GetSizeElementi(), 1);

    m.material.SetNome("C25/30");
    const std::unique_ptr<CElemento> material = CreaCopia(m.material);
    m.material.SetE(1);
    m.material.SetNome("");
    EXPECT_TRUE(RipristinaStato(m.material, *material, finder));
    EXPECT_EQ(m.material.GetE(), 3e7);
    EXPECT_STREQ(m.material.GetNome(), "C25/30");
}

} // namespace
