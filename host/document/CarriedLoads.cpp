#include "host/document/CarriedLoads.h"

#include "host/document/Changes.h"
#include "host/document/HostEditing.h"

namespace host {

LoadNumbers LoadsOf(CElementoCarico& carrier, int caseId) {
    LoadNumbers loads;
    for (int i = 0; i < carrier.GetSizeCarichi(); ++i)
        if (carrier.GetIndexIDCasoCarico(i) == caseId)
            loads.insert(carrier.GetIndexIDCarico(i));
    return loads;
}

void DiscardLoads(HostEditing& document, CCasoCarico& loadCase, LoadNumbers numbers, const char* stepName) {
    if (!numbers.empty())
        document.Undo().Record(std::make_unique<LoadRemoval>(loadCase, std::move(numbers)), stepName);
}

void DiscardUncarried(HostEditing& document, CCasoCarico& loadCase, LoadNumbers candidates, const char* stepName) {
    for (const Kind kind : allKinds) {
        for (int i = 0; IsSelectableKind(kind) && i < document.Data().Size(kind); ++i)
            for (const int carried : LoadsOf(*document.Data().As<CElementoCarico>(kind, i), loadCase.GetID()))
                candidates.erase(carried);
    }
    DiscardLoads(document, loadCase, std::move(candidates), stepName);
}

} // namespace host
