// The document's lists as the dialogs walk them.
#include "host/document/HostDocument.h"

#include "dialogs/frame/host/QuovarView.h"
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

CTrave* HostDocument::GetIndexTrave(int index) {
    return m_data.As<CTrave>(Kind::Beam, index);
}

CAsta* HostDocument::GetIndexAsta(int index) {
    return m_data.As<CAsta>(Kind::Truss, index);
}

CSetto* HostDocument::GetIndexSetto(int index) {
    return m_data.As<CSetto>(Kind::Wall, index);
}

CSolaio* HostDocument::GetIndexSolaio(int index) {
    return m_data.As<CSolaio>(Kind::Slab, index);
}

long HostDocument::GetSizeElementi() {
    long size = 0;
    for (const Kind kind : elementKinds)
        size += m_data.Size(kind);
    return size;
}

CElemento* HostDocument::GetIndexElemento(int index) {
    if (index < 0)
        return nullptr;
    for (const Kind kind : elementKinds) {
        if (index < m_data.Size(kind))
            return m_data.At(kind, index);
        index -= m_data.Size(kind);
    }
    return nullptr;
}

CCasoCarico* HostDocument::GetIndexCasoCarico(int index) {
    return m_data.As<CCasoCarico>(Kind::LoadCase, index);
}

CCombinazione* HostDocument::GetIndexCombinazione(int index) {
    return m_data.As<CCombinazione>(Kind::Combination, index);
}

CGruppo* HostDocument::GetIndexGruppo(int index) {
    return m_data.As<CGruppo>(Kind::Group, index);
}

CMateriale* HostDocument::GetIndexMateriale(int index) {
    return m_data.As<CMateriale>(Kind::Material, index);
}

CSezione* HostDocument::GetIndexSezione(int index) {
    return m_data.As<CSezione>(Kind::Section, index);
}

CSpessore* HostDocument::GetIndexSpessore(int index) {
    return m_data.As<CSpessore>(Kind::Thickness, index);
}

CTrave* HostDocument::GetFirstTraveSelect(POSITION& pos) {
    return First<CTrave>(m_selection, Kind::Beam, pos);
}

CTrave* HostDocument::GetNextTraveSelect(POSITION& pos) {
    return Next<CTrave>(m_selection, Kind::Beam, pos);
}

CAsta* HostDocument::GetFirstAstaSelect(POSITION& pos) {
    return First<CAsta>(m_selection, Kind::Truss, pos);
}

CAsta* HostDocument::GetNextAstaSelect(POSITION& pos) {
    return Next<CAsta>(m_selection, Kind::Truss, pos);
}

CSetto* HostDocument::GetFirstSettoSelect(POSITION& pos) {
    return First<CSetto>(m_selection, Kind::Wall, pos);
}

CSetto* HostDocument::GetNextSettoSelect(POSITION& pos) {
    return Next<CSetto>(m_selection, Kind::Wall, pos);
}

CSolaio* HostDocument::GetFirstSolaioSelect(POSITION& pos) {
    return First<CSolaio>(m_selection, Kind::Slab, pos);
}

CSolaio* HostDocument::GetNextSolaioSelect(POSITION& pos) {
    return Next<CSolaio>(m_selection, Kind::Slab, pos);
}

CNodo* HostDocument::GetFirstNodoSelect(POSITION& pos) {
    return First<CNodo>(m_selection, Kind::Node, pos);
}

void HostDocument::SelectById(Kind kind, int id, Adv3dRect* pRect) {
    CElemento* element = m_data.Find(kind, id);
    if (!element)
        return;
    m_selection.Add(element);
    if (pRect)
        element->UpdateInvalideRect(pRect, 0);
}

void HostDocument::SelezionaNodo(int id, CView*) {
    SelectById(Kind::Node, id, nullptr);
}

void HostDocument::SelezionaTrave(int id, CView*, Adv3dRect* pRect) {
    SelectById(Kind::Beam, id, pRect);
}

void HostDocument::SelezionaAsta(int id, CView*, Adv3dRect* pRect) {
    SelectById(Kind::Truss, id, pRect);
}

void HostDocument::SelezionaSetto(int id, CView*, Adv3dRect* pRect) {
    SelectById(Kind::Wall, id, pRect);
}

void HostDocument::SelezionaSolaio(int id, CView*, Adv3dRect* pRect) {
    SelectById(Kind::Slab, id, pRect);
}

void HostDocument::SelezionaGruppo(int id) {
    auto* group = m_data.FindAs<CGruppo>(Kind::Group, id);
    if (!group)
        return;
    std::vector<CElemento*> members;
    for (int i = 0; i < group->GetSizeElementi(); ++i)
        for (const Kind kind : allKinds)
            if (IsSelectableKind(kind) && CodeOf(kind) == group->GetElementKindAt(i))
                members.push_back(m_data.Find(kind, group->GetElementIdAt(i)));
    m_selection.Add(members);
}

void HostDocument::SelectAll() {
    std::vector<CElemento*> everything;
    everything.reserve(static_cast<std::size_t>(GetSizeNodi() + GetSizeElementi()));
    for (const Kind kind : allKinds)
        if (IsSelectableKind(kind))
            for (int i = 0; i < m_data.Size(kind); ++i)
                everything.push_back(m_data.At(kind, i));
    m_selection.Add(everything);
}

Adv3d* HostDocument::GetVista() {
    return m_activeView ? m_activeView->GetVista() : nullptr;
}

CQuovarView* HostDocument::GetViewStructure() {
    return m_activeView;
}

} // namespace host
