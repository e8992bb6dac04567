#include "dialogs/frame/common/ElementSelection.h"

#include "dialogs/frame/host/DocumentSelected.h"
#include "model/element/Asta.h"
#include "model/element/Nodo.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"

ElementKind KindOf(const CElemento& element) {
    if (element.IsKindOf(RUNTIME_CLASS(CNodo)))
        return ElementKind::Node;
    if (element.IsKindOf(RUNTIME_CLASS(CAsta)))
        return ElementKind::Truss;
    if (element.IsKindOf(RUNTIME_CLASS(CTrave)))
        return ElementKind::Beam;
    if (element.IsKindOf(RUNTIME_CLASS(CSetto)))
        return ElementKind::Wall;
    return element.IsKindOf(RUNTIME_CLASS(CSolaio)) ? ElementKind::Slab : ElementKind::None;
}

void SelectByKind(DocumentSelected& elements, ElementKind kind, int id, Adv3dRect* rect) {
    switch (kind) {
    case ElementKind::None:
        break;
    case ElementKind::Node:
        elements.SelezionaNodo(id, nullptr);
        break;
    case ElementKind::Truss:
        elements.SelezionaAsta(id, nullptr, rect);
        break;
    case ElementKind::Beam:
        elements.SelezionaTrave(id, nullptr, rect);
        break;
    case ElementKind::Wall:
        elements.SelezionaSetto(id, nullptr, rect);
        break;
    case ElementKind::Slab:
        elements.SelezionaSolaio(id, nullptr, rect);
        break;
    }
}
