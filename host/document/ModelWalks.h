// Walks over the objects of a document that belong to another one: what carries loads, the members of a group.
#pragma once

#include "host/document/DocumentData.h"
#include "model/element/ElementoCarico.h"
#include "model/entity/Gruppo.h"

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

} // namespace host
