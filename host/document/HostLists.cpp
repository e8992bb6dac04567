#include "host/document/HostLists.h"

#include "host/document/ModelWalks.h"
#include "model/element/Asta.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"

namespace host {

namespace {

constexpr Kind elementKinds[] = {Kind::Beam, Kind::Truss, Kind::Wall, Kind::Slab};

// A walk's position is the number of the next element from 1; null at the end.
POSITION PositionAt(int index, int size) {
    return index < size ? reinterpret_cast<POSITION>(static_cast<std::intptr_t>(index) + 1) : nullptr;
}

template <class T>
T* Next(const HostSelection& selection, Kind kind, POSITION& pos) {
    if (!pos)
        return nullptr;
    const int index = static_cast<int>(reinterpret_cast<std::intptr_t>(pos) - 1);
    pos = PositionAt(index + 1, selection.Size(kind));
    return static_cast<T*>(selection.At(kind, index));
}

template <class T>
T* First(const HostSelection& selection, Kind kind, POSITION& pos) {
    pos = PositionAt(0, selection.Size(kind));
    return Next<T>(selection, kind, pos);
}

} // namespace

CTrave* HostLists::GetIndexTrave(int index) {
    return Data().As<CTrave>(Kind::Beam, index);
}

CAsta* HostLists::GetIndexAsta(int index) {
    return Data().As<CAsta>(Kind::Truss, index);
}

CSetto* HostLists::GetIndexSetto(int index) {
    return Data().As<CSetto>(Kind::Wall, index);
}

CSolaio* HostLists::GetIndexSolaio(int index) {
    return Data().As<CSolaio>(Kind::Slab, index);
}

long HostLists::GetSizeElementi() {
    long size = 0;
    for (const Kind kind : elementKinds)
        size += Data().Size(kind);
    return size;
}

CElemento* HostLists::GetIndexElemento(int index) {
    if (index < 0)
        return nullptr;
    for (const Kind kind : elementKinds) {
        if (index < Data().Size(kind))
            return Data().At(kind, index);
        index -= Data().Size(kind);
    }
    return nullptr;
}

CCasoCarico* HostLists::GetIndexCasoCarico(int index) {
    return Data().As<CCasoCarico>(Kind::LoadCase, index);
}

CCombinazione* HostLists::GetIndexCombinazione(int index) {
    return Data().As<CCombinazione>(Kind::Combination, index);
}

CGruppo* HostLists::GetIndexGruppo(int index) {
    return Data().As<CGruppo>(Kind::Group, index);
}

CMateriale* HostLists::GetIndexMateriale(int index) {
    return Data().As<CMateriale>(Kind::Material, index);
}

CSezione* HostLists::GetIndexSezione(int index) {
    return Data().As<CSezione>(Kind::Section, index);
}

CSpessore* HostLists::GetIndexSpessore(int index) {
    return Data().As<CSpessore>(Kind::Thickness, index);
}

CTrave* HostLists::GetFirstTraveSelect(POSITION& pos) {
    return First<CTrave>(Selection(), Kind::Beam, pos);
}

CTrave* HostLists::GetNextTraveSelect(POSITION& pos) {
    return Next<CTrave>(Selection(), Kind::Beam, pos);
}

CAsta* HostLists::GetFirstAstaSelect(POSITION& pos) {
    return First<CAsta>(Selection(), Kind::Truss, pos);
}

CAsta* HostLists::GetNextAstaSelect(POSITION& pos) {
    return Next<CAsta>(Selection(), Kind::Truss, pos);
}

CSetto* HostLists::GetFirstSettoSelect(POSITION& pos) {
    return First<CSetto>(Selection(), Kind::Wall, pos);
}

CSetto* HostLists::GetNextSettoSelect(POSITION& pos) {
    return Next<CSetto>(Selection(), Kind::Wall, pos);
}

CSolaio* HostLists::GetFirstSolaioSelect(POSITION& pos) {
    return First<CSolaio>(Selection(), Kind::Slab, pos);
}

CSolaio* HostLists::GetNextSolaioSelect(POSITION& pos) {
    return Next<CSolaio>(Selection(), Kind::Slab, pos);
}

CNodo* HostLists::GetFirstNodoSelect(POSITION& pos) {
    return First<CNodo>(Selection(), Kind::Node, pos);
}

void HostLists::SelectById(Kind kind, int id, Adv3dRect* pRect) {
    CElemento* element = Data().Find(kind, id);
    if (!element)
        return;
    Selection().Add(element);
    if (pRect)
        element->UpdateInvalideRect(pRect, 0);
}

void HostLists::SelezionaNodo(int id, CView*) {
    SelectById(Kind::Node, id, nullptr);
}

void HostLists::SelezionaTrave(int id, CView*, Adv3dRect* pRect) {
    SelectById(Kind::Beam, id, pRect);
}

void HostLists::SelezionaAsta(int id, CView*, Adv3dRect* pRect) {
    SelectById(Kind::Truss, id, pRect);
}

void HostLists::SelezionaSetto(int id, CView*, Adv3dRect* pRect) {
    SelectById(Kind::Wall, id, pRect);
}

void HostLists::SelezionaSolaio(int id, CView*, Adv3dRect* pRect) {
    SelectById(Kind::Slab, id, pRect);
}

void HostLists::SelezionaGruppo(int id) {
    auto* group = Data().FindAs<CGruppo>(Kind::Group, id);
    if (!group)
        return;
    std::vector<CElemento*> members;
    ForEachMember(Data(), *group, [&members](CElementoGruppo& member) { members.push_back(&member); });
    Selection().Add(members);
}

void HostLists::SelectAll() {
    std::vector<CElemento*> everything;
    everything.reserve(static_cast<std::size_t>(GetSizeNodi() + GetSizeElementi()));
    for (const Kind kind : allKinds)
        if (IsSelectableKind(kind))
            for (int i = 0; i < Data().Size(kind); ++i)
                everything.push_back(Data().At(kind, i));
    Selection().Add(everything);
}

// One walk that reaches every node that has an element; nodes without any count as structures of their own.
int HostLists::IsUnica() {
    if (Data().Size(Kind::Node) == 0)
        return 1;
    CObArray nodes;
    Selection().SelezionaStruttura(GetIndexNodo(0), &nodes);
    return nodes.GetSize() == Data().Size(Kind::Node);
}

} // namespace host
