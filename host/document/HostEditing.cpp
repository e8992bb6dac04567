#include "host/document/HostEditing.h"

#include "host/document/Changes.h"
#include "host/document/ObjectRemoval.h"
#include "host/document/UnitChange.h"
#include "model/element/LineaFisica.h"

#include <cmath>

namespace host {

namespace {

// Changes of one object in a row are one record: the first has what it was.
void RecordBefore(DocumentData& data, HostUndo& undo, CElemento& object, Reach reach) {
    if (auto* last = dynamic_cast<Former*>(undo.Last()); last && &last->Object() == &object)
        return last->Confirm(reach);
    auto former = KeepState(data, object, reach);
    former->Confirm(former->GetReach());
    undo.Record(std::move(former), "Modifica");
}

} // namespace

CElemento* HostEditing::Add(std::unique_ptr<CElemento> object, const char* stepName) {
    Kind kind;
    if (!object || !KindOf(*object, kind))
        return nullptr;
    CElemento* added = object.get();
    added->SetID(Data().NextId(kind));
    added->SetLunghezza(Data().Units().length);
    added->SetForza(Data().Units().force);
    if (!Data().Append(object))
        return nullptr;
    // Consecutive creations are one change: a million nodes need no million records.
    if (auto* creation = dynamic_cast<Creation*>(Undo().Last())) {
        creation->Add(kind);
        return added;
    }
    auto creation = std::make_unique<Creation>(Data());
    creation->Add(kind);
    Undo().Record(std::move(creation), stepName);
    return added;
}

void HostEditing::Modify(CElemento& object, const std::function<void()>& change, Reach reach) {
    UndoStep step(Undo(), "Modifica");
    RecordBefore(Data(), Undo(), object, reach);
    change();
}

void HostEditing::MoveNodes(const std::vector<std::pair<CNodo*, CFPoint>>& places) {
    if (!places.empty())
        Undo().Record(std::make_unique<Movement>(Data(), places), "Muovi");
}

void HostEditing::SetTolerance(double tolerance) {
    if (std::isfinite(tolerance) && tolerance >= 0 && tolerance != Data().Tolerance())
        Undo().Record(std::make_unique<Value<double>>(Data().Tolerance(), tolerance), "Tolleranza");
}

void HostEditing::ChangeUnits(Lunghezza length, Forza force) {
    if (length == Data().Units().length && force == Data().Units().force)
        return;
    Undo().Record(std::make_unique<UnitChange>(Data(), DocumentUnits{length, force}), "Cambia unità di misura"_utf8);
}

void HostEditing::AssegnaBetaSelezione(double beta, int, int) {
    UndoStep step(Undo(), "Angolo beta");
    for (int i = 0; i < Selection().Size(Kind::Beam); ++i) {
        auto* beam = static_cast<CLineaFisica*>(Selection().At(Kind::Beam, i));
        Modify(*beam, [&] { beam->SetBeta(beta); });
    }
}

// The beams that the active view shows; without a view, those that any would show.
void HostEditing::AssegnaBetaVista(double beta, int, int) {
    UndoStep step(Undo(), "Angolo beta");
    Adv3d* vista = GetVista();
    for (int i = 0; i < Data().Size(Kind::Beam); ++i) {
        auto* beam = Data().As<CLineaFisica>(Kind::Beam, i);
        if (vista ? beam->CanDraw(vista) : beam->IsVisible())
            Modify(*beam, [&] { beam->SetBeta(beta); });
    }
}

void HostEditing::Remove(std::vector<CElemento*> objects) {
    RemoveObjects(*this, std::move(objects));
}

void HostEditing::DeleteSelection() {
    Remove(Selection().All());
}

} // namespace host
