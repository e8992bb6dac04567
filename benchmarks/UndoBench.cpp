// A step that gives each beam a load of its own, undone and redone: its growth with the number of beams.
#include "benchmarks/Models.h"
#include "benchmarks/Ratios.h"
#include "host/document/HostDocument.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"

#include <memory>

using namespace host;

namespace {

void LoadEachBeam(HostDocument& document) {
    const UndoStep step(document.Undo(), "Carichi");
    CCasoCarico& loadCase = *document.CreaCasoCarico();
    for (int i = 0; i < document.GetSizeTravi(); ++i) {
        CCarico* load =
            document.AddCarico(loadCase, std::make_unique<CCaricoUniforme>(CFPoint(0, 0, -1), CCarico::Global));
        CTrave& beam = *document.GetIndexTrave(i);
        document.Modify(beam, [&] { beam.AddCarico(load, 0); });
    }
}

void UndoAndRedo(benchmark::State& state) {
    HostDocument document;
    bench::FillGrid(document, static_cast<int>(state.range(0)));
    LoadEachBeam(document);
    for (auto _ : state) {
        document.Undo().Undo();
        document.Undo().Redo();
    }
    if (document.GetIndexTrave(0)->GetSizeCarichi() != 1)
        state.SkipWithError("the loads have not come back");
}

const bench::Growth loads("undo_and_redo_of_loads_growth", UndoAndRedo, 10'000, 100'000, 10, 2);

} // namespace
