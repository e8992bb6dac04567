#include "host/document/ObjectRemoval.h"

#include "host/document/Changes.h"
#include "host/document/HostEditing.h"
#include "host/document/ModelWalks.h"
#include "model/element/LineaFisica.h"
#include "model/element/PoligonoFisico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"

#include <algorithm>
#include <array>
#include <map>

namespace host {

namespace {

constexpr char stepName[] = "Elimina";

// The objects, each once, with the elements that hang on the nodes among them.
std::vector<CElemento*> WithElements(const DocumentData& data, std::vector<CElemento*> objects) {
    for (std::size_t i = 0, count = objects.size(); i < count; ++i) {
        auto* node = DYNAMIC_DOWNCAST(CNodo, objects[i]);
        for (int j = 0; node && j < node->GetSizeElementi(); ++j)
            objects.push_back(node->GetIndexElemento(j));
    }
    std::vector<CElemento*> once;
    once.reserve(objects.size());
    for (CElemento* object : objects) {
        if (object && !object->IsAlready() && data.Contains(*object)) {
            object->SetAlready(1);
            once.push_back(object);
        }
    }
    for (CElemento* object : once)
        object->SetAlready(0);
    return once;
}

// One change for each group, however many leave it.
void LeaveGroups(HostEditing& document, const std::vector<CElemento*>& objects) {
    std::map<int, std::vector<CElemento*>> leaving;
    for (CElemento* object : objects)
        if (auto* member = DYNAMIC_DOWNCAST(CElementoGruppo, object))
            for (int i = 0; i < member->GetSizeGruppi(); ++i)
                leaving[member->GetIDGruppo(i)].push_back(member);
    for (const auto& [id, members] : leaving)
        if (auto* group = document.Data().FindAs<CGruppo>(Kind::Group, id))
            document.Undo().Record(std::make_unique<Leaving>(*group, members), stepName);
}

// The other cases keep their results.
void LetGoCase(HostEditing& document, int id) {
    ForEachCarrier(document.Data(), [&](CElementoCarico& carrier) {
        if (CarriesLoadOf(carrier, id))
            document.Modify(
                carrier, [&] { carrier.RemoveLoadsOfCase(id); }, Reach::Model);
    });
    for (int i = 0; i < document.GetSizeCombinazioni(); ++i) {
        CCombinazione* combination = document.GetIndexCombinazione(i);
        if (combination->IsCDC(id))
            document.Modify(*combination, [&] { combination->EliminaCDC(id); });
    }
}

void LetGoGroup(HostEditing& document, CGruppo& group) {
    document.Undo().Record(std::make_unique<Disbanding>(document.Data(), group), stepName);
}

void LetGoOfLines(HostEditing& document, Kind kind, int id) {
    for (const Kind elements : {Kind::Beam, Kind::Truss}) {
        for (int i = 0; i < document.Data().Size(elements); ++i) {
            auto* line = document.Data().As<CLineaFisica>(elements, i);
            if (kind == Kind::Material && line->GetIDMateriale() == id)
                document.Modify(*line, [&] { line->SetMateriale(0, nullptr); });
            if (kind == Kind::Section && line->GetIDSezione() == id)
                document.Modify(*line, [&] { line->SetSezione(0, nullptr); });
        }
    }
}

void LetGoOfPolygons(HostEditing& document, Kind kind, int id) {
    for (const Kind elements : {Kind::Wall, Kind::Slab}) {
        for (int i = 0; i < document.Data().Size(elements); ++i) {
            auto* polygon = document.Data().As<CPoligonoFisico>(elements, i);
            if (kind == Kind::Material && polygon->GetIDMateriale() == id)
                document.Modify(*polygon, [&] { polygon->SetMateriale(0, nullptr); });
            if (kind == Kind::Thickness && polygon->GetIDSpessore() == id)
                document.Modify(*polygon, [&] { polygon->SetThickness(0, nullptr); });
        }
    }
}

// Everything that refers to the named entity lets it go.
void LetGo(HostEditing& document, Kind kind, CElemento& object) {
    if (kind == Kind::LoadCase) {
        LetGoCase(document, object.GetID());
    } else if (kind == Kind::Group) {
        LetGoGroup(document, static_cast<CGruppo&>(object));
    } else {
        LetGoOfLines(document, kind, object.GetID());
        LetGoOfPolygons(document, kind, object.GetID());
    }
}

void RemoveFromLists(HostEditing& document, const std::vector<CElemento*>& objects) {
    std::array<std::vector<CElemento*>, kindCount> byKind;
    for (CElemento* object : objects) {
        Kind kind;
        KindOf(*object, kind);
        byKind[static_cast<std::size_t>(kind)].push_back(object);
    }
    // Nodes last: while undone, an element must find its nodes.
    std::rotate(byKind.begin(), byKind.begin() + 1, byKind.end());
    for (std::size_t i = 0; i < kindCount; ++i)
        if (!byKind[i].empty())
            document.Undo().Record(std::make_unique<Removal>(document.Data(), static_cast<Kind>((i + 1) % kindCount),
                                                             std::move(byKind[i])),
                                   stepName);
}

// When the current case goes: the first one is shown then.
void LeaveCurrentCase(HostEditing& document, Kind kind, int id) {
    int& current = document.Data().CurrentCase();
    if (id == current && (kind == Kind::LoadCase || kind == Kind::Combination))
        document.Undo().Record(std::make_unique<CurrentCase>(current, 0), stepName);
}

} // namespace

void RemoveObjects(HostEditing& document, std::vector<CElemento*> objects) {
    objects = WithElements(document.Data(), std::move(objects));
    if (objects.empty())
        return;
    UndoStep step(document.Undo(), stepName);
    document.Selection().Remove(objects);
    LeaveGroups(document, objects);
    for (CElemento* object : objects) {
        Kind kind;
        KindOf(*object, kind);
        if (IsSelectableKind(kind))
            continue;
        LetGo(document, kind, *object);
        LeaveCurrentCase(document, kind, object->GetID());
    }
    RemoveFromLists(document, objects);
}

} // namespace host
