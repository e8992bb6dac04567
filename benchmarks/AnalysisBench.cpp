// The whole analysis of a building frame beside the bare factorisation of its stiffness matrix.
#include "benchmarks/Ratios.h"
#include "host/analysis/Analysis.h"
#include "host/analysis/FrameSystem.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"

#include <Eigen/SparseCholesky>

#include <cstdio>
#include <cstdlib>

using namespace host;

namespace {

// A grid of columns on so many storeys, joined by beams.
class Building {
  public:
    Building(int alongX, int alongY, int storeys) : m_alongX(alongX), m_alongY(alongY), m_storeys(storeys) {}

    DocumentData Build() {
        m_material = m_data.AppendNew(Kind::Material, std::make_unique<CMateriale>());
        m_material->SetE(3e7);
        m_material->SetG(1.2e7);
        m_material->SetDensity(2.5);
        m_section = m_data.AppendNew(Kind::Section, std::make_unique<CSezione>());
        m_section->SetRectangle(0.3, 0.5);
        CCasoCarico* loads = m_data.AppendNew(Kind::LoadCase, std::make_unique<CCasoCarico>());
        loads->AddCarico(new CCaricoPesoProprio({0, 0, -9.81}));
        auto* floor = new CCaricoUniforme({0, 0, -12}, CCarico::Global);
        loads->AddCarico(floor);
        for (int z = 0; z <= m_storeys; ++z)
            for (int y = 0; y < m_alongY; ++y)
                for (int x = 0; x < m_alongX; ++x)
                    Place(x, y, z);
        for (int z = 1; z <= m_storeys; ++z)
            for (int y = 0; y < m_alongY; ++y)
                for (int x = 0; x < m_alongX; ++x)
                    Connect(x, y, z, floor);
        return std::move(m_data);
    }

  private:
    CNodo* At(int x, int y, int z) { return m_data.Node((z * m_alongY + y) * m_alongX + x); }
    void Place(int x, int y, int z) {
        const CVincolo fixed(CVincolo::All);
        CNodo* node = m_data.AppendNew(Kind::Node, std::make_unique<CNodo>(CFPoint(5.0 * x, 5.0 * y, 3.0 * z)));
        if (z == 0)
            node->SetRestraint(&fixed);
    }
    void Join(CNodo* from, CNodo* to, CCarico* load) {
        auto beam = std::make_unique<CTrave>();
        beam->SetNodi(from, to);
        beam->SetMateriale(m_material->GetID(), m_material);
        beam->SetSezione(m_section->GetID(), m_section);
        if (load)
            beam->AddCarico(load, 0);
        m_data.AppendNew(Kind::Beam, std::move(beam));
    }
    void Connect(int x, int y, int z, CCarico* floor) {
        Join(At(x, y, z - 1), At(x, y, z), nullptr);
        if (x > 0)
            Join(At(x - 1, y, z), At(x, y, z), floor);
        if (y > 0)
            Join(At(x, y - 1, z), At(x, y, z), floor);
    }

    int m_alongX, m_alongY, m_storeys;
    DocumentData m_data;
    CMateriale* m_material = nullptr;
    CSezione* m_section = nullptr;
};

// Both of some 20,000 members. The second one is as compact as buildings come: its equations fill the most.
Building Slab() {
    return {100, 10, 7};
}
Building cube() {
    return {18, 18, 21};
}

template <Building (*shape)()>
void Analyse(benchmark::State& state) {
    DocumentData data = Slab().Build();
    for (auto _ : state) {
        const host::AnalysisOutcome outcome = host::Analyse(data);
        if (outcome.refusal || outcome.cases.size() != 1) {
            std::fprintf(stderr, "bench: the building was not analysed\n");
            std::exit(1);
        }
        benchmark::DoNotOptimize(outcome.cases.data());
    }
    state.counters["beams"] = data.Size(Kind::Beam);
}

void Factor(benchmark::State& state) {
    DocumentData data = Slab().Build();
    const host::FrameModel model = host::ReadFrame(data);
    const host::FrameSystem system(model);
    for (auto _ : state) {
        Eigen::SimplicialLDLT<SparseMatrix> bare(system.StiffnessMatrix());
        if (bare.info() != Eigen::Success) {
            std::fprintf(stderr, "bench: the stiffness was not factored\n");
            std::exit(1);
        }
        benchmark::DoNotOptimize(bare.vectorD().data());
    }
    state.counters["unknowns"] = system.Unknowns();
}

const bench::Ratio analysis("analysis_20000_beams", Analyse<Slab>, Factor, 2);
const bench::Limit compact("analysis_20000_beams_compact", Analyse<cube>, 5000); // the bare factor takes a minute

} // namespace
