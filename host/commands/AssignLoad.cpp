#include "host/commands/AssignLoad.h"

#include "host/commands/AssignLoadDialog.h"
#include "host/document/Changes.h"
#include "host/document/HostDocument.h"
#include "model/element/TipoElemento.h"
#include "model/entity/CasoCarico.h"
#include "platform/window/Application.h"

#include <unordered_set>
#include <vector>

namespace host {

namespace {

using Numbers = std::unordered_set<int>;

constexpr char assignName[] = "Assegna Carico";
constexpr char removeName[] = "Elimina Carichi";

void DiscardLoads(HostDocument& document, CCasoCarico& loadCase, Numbers numbers) {
    if (!numbers.empty())
        document.Undo().Record(std::make_unique<LoadRemoval>(loadCase, std::move(numbers)), removeName);
}

bool CanCarry(CElemento& element, CCarico& load) {
    Kind kind;
    if (!KindOf(element, kind))
        return false;
    const unsigned type = load.GetTipoElemento();
    const bool forNodes = type == TipoElemento::CaricoNodale || type == TipoElemento::CaricoSpostamento;
    return forNodes ? kind == Kind::Node : IsLineKind(kind);
}

bool IsSelfWeight(CCarico& load) {
    return load.GetTipoElemento() == TipoElemento::CaricoPesoProprio;
}

template <class Action>
void ForEachSelfWeight(CCasoCarico& loadCase, const Action& action) {
    for (int i = 0; i < loadCase.GetSizeCarichi(); ++i)
        if (CCarico* load = loadCase.GetIndexCarico(i); IsSelfWeight(*load))
            action(static_cast<CCaricoPesoProprio&>(*load));
}

int AssignSelfWeight(HostDocument& document, CCasoCarico& loadCase, std::unique_ptr<CCarico> load) {
    Numbers former;
    ForEachSelfWeight(loadCase, [&](CCaricoPesoProprio& weight) { former.insert(weight.GetID()); });
    const bool isNone = static_cast<CCaricoPesoProprio&>(*load).GetAcceleration() == CFPoint();
    if (isNone && former.empty())
        return 0;
    const UndoStep step(document.Undo(), assignName);
    DiscardLoads(document, loadCase, std::move(former));
    if (!isNone)
        document.AddCarico(loadCase, std::move(load));
    return 1;
}

Numbers LoadsOf(CElementoCarico& carrier, int caseId) {
    Numbers loads;
    for (int i = 0; i < carrier.GetSizeCarichi(); ++i)
        if (carrier.GetIndexIDCasoCarico(i) == caseId)
            loads.insert(carrier.GetIndexIDCarico(i));
    return loads;
}

// One walk along the model, however many loads there are.
void DiscardUncarried(HostDocument& document, CCasoCarico& loadCase, Numbers candidates) {
    for (const Kind kind : allKinds) {
        for (int i = 0; IsSelectableKind(kind) && i < document.Data().Size(kind); ++i)
            for (const int carried : LoadsOf(*document.Data().As<CElementoCarico>(kind, i), loadCase.GetID()))
                candidates.erase(carried);
    }
    DiscardLoads(document, loadCase, std::move(candidates));
}

} // namespace

CFPoint SelfWeightOf(CCasoCarico& loadCase) {
    CFPoint sum;
    ForEachSelfWeight(loadCase, [&](CCaricoPesoProprio& weight) { sum += weight.GetAcceleration(); });
    return sum;
}

int AssignLoad(HostDocument& document, CCasoCarico& loadCase, std::unique_ptr<CCarico> load) {
    if (IsSelfWeight(*load))
        return AssignSelfWeight(document, loadCase, std::move(load));
    std::vector<CElementoCarico*> carriers;
    for (CElemento* element : document.Selection().All())
        if (CanCarry(*element, *load))
            carriers.push_back(static_cast<CElementoCarico*>(element));
    if (carriers.empty())
        return 0;
    const UndoStep step(document.Undo(), assignName);
    CCarico* shared = document.AddCarico(loadCase, std::move(load));
    for (CElementoCarico* carrier : carriers)
        document.Modify(*carrier, [&] { carrier->AddCarico(shared, 0); });
    return static_cast<int>(carriers.size());
}

int RemoveLoads(HostDocument& document, CCasoCarico& loadCase) {
    const UndoStep step(document.Undo(), removeName);
    const int id = loadCase.GetID();
    Numbers removed;
    int count = 0;
    for (CElemento* element : document.Selection().All()) {
        auto* carrier = static_cast<CElementoCarico*>(element);
        const Numbers its = LoadsOf(*carrier, id);
        if (its.empty())
            continue;
        removed.insert(its.begin(), its.end());
        document.Modify(*carrier, [&] { carrier->RemoveLoadsOfCase(id); });
        ++count;
    }
    if (count > 0)
        DiscardUncarried(document, loadCase, std::move(removed));
    return count;
}

void RunAssignLoad(HostDocument& document, QWidget& parent) {
    if (document.GetSizeCasiCarico() == 0) {
        AfxMessageBox("Creare prima un caso di carico.");
        return;
    }
    if (LoadChoice chosen = AskLoad(parent, document); chosen.load)
        AssignLoad(document, *chosen.loadCase, std::move(chosen.load));
}

void RunRemoveLoads(HostDocument& document, QWidget&) {
    CCasoCarico* loadCase = document.GetSelectCasoCarico();
    if (!loadCase)
        AfxMessageBox("Scegliere prima il caso di carico di cui eliminare i carichi."); // a combination is shown
    else if (RemoveLoads(document, *loadCase) == 0)
        AfxMessageBox("Gli oggetti selezionati non hanno carichi nel caso \"" + loadCase->GetNome() + "\".");
}

} // namespace host
