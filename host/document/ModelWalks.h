// Walks over the objects of a document that belong to another one: what carries loads, the members of a group, the
// elements between nodes.
#pragma once

#include "host/document/DocumentData.h"
#include "model/element/ElementoCarico.h"
#include "model/entity/Gruppo.h"

#include <algorithm>
#include <vector>

namespace host {

// Nodes and elements with loads, kind after kind.
template <class Action>
void ForEachCarrier(const DocumentData& data, const Action& action) {
    for (const Kind kind : allKinds) {
        if (!IsSelectableKind(kind))
            continue;
        for (int i = 0; i < data.Size(kind); ++i) {
            auto* carrier = data.As<CElementoCarico>(kind, i);
            if (carrier->GetSizeCarichi() > 0)
                action(*carrier);
        }
    }
}

// Whether the element carries a load of that case.
inline bool CarriesLoadOf(CElementoCarico& carrier, int caseId) {
    for (int i = 0; i < carrier.GetSizeCarichi(); ++i)
        if (carrier.GetIndexIDCasoCarico(i) == caseId)
            return true;
    return false;
}

// The members that the document still has.
template <class Action>
void ForEachMember(const DocumentData& data, CGruppo& group, const Action& action) {
    for (int i = 0; i < group.GetSizeElementi(); ++i)
        for (const Kind kind : allKinds)
            if (IsSelectableKind(kind) && CodeOf(kind) == group.GetElementKindAt(i))
                if (auto* member = data.FindAs<CElementoGruppo>(kind, group.GetElementIdAt(i)))
                    action(*member);
}

// Whether an element of the kind has these nodes, at least two, and no others.
inline bool HasElement(Kind kind, const std::vector<CNodo*>& nodes) {
    const auto has = [](CElemento& element, CNodo* node) {
        for (int i = 0; i < element.GetSize(); ++i)
            if (element.GetIndexNodo(i) == node)
                return true;
        return false;
    };
    CNodo* fewer = nodes[0]->GetSizeElementi() <= nodes[1]->GetSizeElementi() ? nodes[0] : nodes[1];
    for (int i = 0; i < fewer->GetSizeElementi(); ++i) {
        CElemento* element = fewer->GetIndexElemento(i);
        if (element->GetTipoElemento() == CodeOf(kind) && element->GetSize() == static_cast<int>(nodes.size()) &&
            std::all_of(nodes.begin(), nodes.end(), [&](CNodo* node) { return has(*element, node); }))
            return true;
    }
    return false;
}

} // namespace host
