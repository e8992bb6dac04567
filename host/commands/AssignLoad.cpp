#include "host/commands/AssignLoad.h"

#include "host/commands/AssignLoadDialog.h"
#include "host/document/CarriedLoads.h"
#include "host/document/HostDocument.h"
#include "model/element/TipoElemento.h"
#include "model/entity/CasoCarico.h"
#include "platform/window/Application.h"

#include <vector>

namespace host {

namespace {

constexpr char assignName[] = "Assegna Carico";
constexpr char removeName[] = "Elimina Carichi";

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
    LoadNumbers former;
    ForEachSelfWeight(loadCase, [&](CCaricoPesoProprio& weight) { former.insert(weight.GetID()); });
    const bool isNone = static_cast<CCaricoPesoProprio&>(*load).GetAcceleration() == CFPoint();
    if (isNone && former.empty())
        return 0;
    const UndoStep step(document.Undo(), assignName);
    DiscardLoads(document, loadCase, std::move(former), removeName);
    if (!isNone)
        document.AddCarico(loadCase, std::move(load));
    return 1;
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
    LoadNumbers removed;
    int count = 0;
    for (CElemento* element : document.Selection().All()) {
        auto* carrier = static_cast<CElementoCarico*>(element);
        const LoadNumbers its = LoadsOf(*carrier, id);
        if (its.empty())
            continue;
        removed.insert(its.begin(), its.end());
        document.Modify(*carrier, [&] { carrier->RemoveLoadsOfCase(id); });
        ++count;
    }
    if (count > 0)
        DiscardUncarried(document, loadCase, std::move(removed), removeName);
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
