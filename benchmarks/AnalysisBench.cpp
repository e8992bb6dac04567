// The whole analysis of a building frame beside the bare factorisation of its stiffness matrix.
#include "benchmarks/Ratios.h"
#include "host/analysis/Analysis.h"
#include "host/analysis/FrameSystem.h"
#include "model/CasoCarico.h"
#include "model/Materiale.h"
#include "model/Sezione.h"
#include "model/Trave.h"

#include <Eigen/SparseCholesky>

#include <cstdio>
#include <cstdlib>

namespace {

// A grid of columns on so many storeys, joined by beams.
class Building {
  public:
    Building(int alongX, int alongY, int storeys) : alongX(alongX), alongY(alongY), storeys(storeys) {}

    DocumentData Build() {
        m_material = Append(Kind::Material, std::make_unique<CMateriale>());
        m_material->SetE(3e7);
        m_material->SetG(1.2e7);
        m_material->SetDensita(2.5);
        m_section = Append(Kind::Section, std::make_unique<CSezione>());
        m_section->SetRettangolo(0.3, 0.5);
        CCasoCarico* loads = Append(Kind::LoadCase, std::make_unique<CCasoCarico>());
        loads->AddCarico(new CCaricoPesoProprio({0, 0, -9.81}));
        auto* floor = new CCaricoUniforme({0, 0, -12}, CCarico::Globale);
        loads->AddCarico(floor);
        for (int z = 0; z <= storeys; ++z)
            for (int y = 0; y < alongY; ++y)
                for (int x = 0; x < alongX; ++x)
                    Place(x, y, z);
        for (int z = 1; z <= storeys; ++z)
            for (int y = 0; y < alongY; ++y)
                for (int x = 0; x < alongX; ++x)
                    Connect(x, y, z, floor);
        return std::move(m_data);
    }

  private:
    template <class T>
    T* Append(Kind kind, std::unique_ptr<T> object) {
        T* added = object.get();
        added->SetID(m_data.NextId(kind));
        std::unique_ptr<CElemento> element = std::move(object);
        m_data.Append(element);
        return added;
    }
    CNodo* At(int x, int y, int z) { return m_data.Node((z * alongY + y) * alongX + x); }
    void Place(int x, int y, int z) {
        const CVincolo fixed(CVincolo::Tutti);
        CNodo* node = Append(Kind::Node, std::make_unique<CNodo>(CFPoint(5.0 * x, 5.0 * y, 3.0 * z)));
        if (z == 0)
            node->SetVincolo(&fixed);
    }
    void Join(CNodo* from, CNodo* to, CCarico* load) {
        auto beam = std::make_unique<CTrave>();
        beam->SetNodi(from, to);
        beam->SetMateriale(m_material->GetID(), m_material);
        beam->SetSezione(m_section->GetID(), m_section);
        if (load)
            beam->AddCarico(load, 0);
        Append(Kind::Beam, std::move(beam));
    }
    void Connect(int x, int y, int z, CCarico* floor) {
        Join(At(x, y, z - 1), At(x, y, z), nullptr);
        if (x > 0)
            Join(At(x - 1, y, z), At(x, y, z), floor);
        if (y > 0)
            Join(At(x, y - 1, z), At(x, y, z), floor);
    }

    int alongX, alongY, storeys;
    DocumentData m_data;
    CMateriale* m_material = nullptr;
    CSezione* m_section = nullptr;
};

// Both of some 20,000 members. The second one is as compact as buildings come: its equations fill the most.
Building slab() {
    return {100, 10, 7};
}
Building cube() {
    return {18, 18, 21};
}

template <Building (*shape)()>
void analyse(benchmark::State& state) {
    DocumentData data = shape().Build();
    for (auto _ : state) {
        const host::AnalysisOutcome outcome = host::Analyse(data);
        if (!outcome.done || outcome.cases.size() != 1) {
            std::fprintf(stderr, "bench: the building was not analysed\n");
            std::exit(1);
        }
        benchmark::DoNotOptimize(outcome.cases.data());
    }
    state.counters["beams"] = data.Size(Kind::Beam);
}

void factor(benchmark::State& state) {
    DocumentData data = slab().Build();
    const host::FrameModel model = host::ReadFrame(data);
    const host::FrameSystem system(model);
    for (auto _ : state) {
        Eigen::SimplicialLDLT<Eigen::SparseMatrix<double>> bare(system.StiffnessMatrix());
        if (bare.info() != Eigen::Success) {
            std::fprintf(stderr, "bench: the stiffness was not factored\n");
            std::exit(1);
        }
        benchmark::DoNotOptimize(bare.vectorD().data());
    }
    state.counters["unknowns"] = system.Unknowns();
}

const bench::Ratio analysis("analysis_20000_beams", analyse<slab>, factor, 2);
const bench::Limit compact("analysis_20000_beams_compact", analyse<cube>, 5000); // the bare factor takes a minute

} // namespace
