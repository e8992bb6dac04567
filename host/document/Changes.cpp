#include "host/document/Changes.h"

#include "host/document/ModelWalks.h"
#include "host/document/StepSummary.h"

namespace host {

void Creation::Add(Kind kind) {
    if (!m_runs.empty() && m_runs.back().kind == kind)
        ++m_runs.back().count;
    else
        m_runs.push_back({kind, 1});
}

void Creation::Undo() {
    for (std::size_t run = m_runs.size(); run-- > 0;)
        for (std::uint32_t i = 0; i < m_runs[run].count; ++i)
            m_objects.push_back(m_data.TakeLast(m_runs[run].kind));
}

void Creation::Redo() {
    while (!m_objects.empty()) {
        m_data.Return(std::move(m_objects.back()));
        m_objects.pop_back();
    }
}

Reach Creation::GetReach() const {
    Reach farthest = Reach::Model;
    for (const Run& run : m_runs)
        farthest = std::max(farthest, ReachOf(run.kind));
    return farthest;
}

void Creation::CountIn(StepSummary& summary) const {
    for (const Run& run : m_runs)
        summary.made[static_cast<std::size_t>(run.kind)] += static_cast<int>(run.count);
}

Removal::Removal(DocumentData& data, Kind kind, std::vector<CElemento*> objects)
    : m_data(data), m_kind(kind), m_objects(std::move(objects)) {
    Redo();
}

void Removal::Undo() {
    m_data.PutBack(m_kind, std::move(m_taken));
    m_taken.clear();
}

void Removal::Redo() {
    m_taken = m_data.Take(m_kind, m_objects);
}

void Removal::CountIn(StepSummary& summary) const {
    summary.removed[static_cast<std::size_t>(m_kind)] += static_cast<int>(m_objects.size());
}

Movement::Movement(DocumentData& data, std::vector<std::pair<CNodo*, CFPoint>> places)
    : m_data(data), m_places(std::move(places)) {
    Swap();
}

void Movement::CountIn(StepSummary& summary) const {
    summary.moved += static_cast<int>(m_places.size());
}

void Movement::Swap() {
    for (auto& [node, place] : m_places) {
        const CFPoint here = *node->GetPunto();
        m_data.MoveNode(*node, place);
        place = here;
    }
}

Former::Former(DocumentData& data, CElemento& object, Reach reach)
    : m_data(data), m_object(object), m_reach(reach), m_id(object.GetID()), m_next(data.NextId(object)) {
}

void Former::Settle() {
    if (m_object.GetID() != m_id && !m_data.Renumber(m_object, m_id))
        m_object.SetID(m_id);
}

void Former::Exchange() {
    const int here = m_object.GetID();
    Swap();
    if (here == m_id)
        return;
    const int next = m_data.NextId(m_object);
    m_object.SetID(m_id);
    m_data.Renumber(m_object, here, m_next);
    m_id = here;
    m_next = next;
}

Attributes::Attributes(DocumentData& data, CElemento& object, Reach reach)
    : Former(data, object, reach), m_other(CopyOf(object)) {
    if (const CElementoProgetto* design = object.GetProgetto())
        m_design = std::make_unique<CElementoProgetto>(*design);
}

bool Attributes::Differs() const {
    return HasOtherDesign() || !IsAsCopied(m_object, *m_other);
}

// A design that was made anew since has nothing to do with the values that are kept.
bool Attributes::HasOtherDesign() const {
    const CElementoProgetto* design = m_object.GetProgetto();
    return design && m_design && design->IsOfSameDesign(*m_design) && !design->HasSameValues(*m_design);
}

unsigned Attributes::GetNews() const {
    Kind kind;
    if (HasOtherDesign() && KindOf(m_object, kind))
        return kind == Kind::Wall ? newsWallDesign : newsBeamDesign;
    return HasNodesOf(m_object, *m_other) ? newsNone : newsLengths;
}

void Attributes::Swap() {
    std::unique_ptr<CElemento> here = CopyOf(m_object);
    RestoreState(m_object, *m_other, m_data);
    // The copy may have been made while the object was selected; the selection itself is restored after the step.
    m_object.SetSelect(0);
    m_other = std::move(here);
    if (HasOtherDesign())
        m_object.GetProgetto()->SwapValues(*m_design);
}

void EntityName::Swap() {
    const CString name = Entity().GetNome();
    const CString type = Entity().GetTipo();
    Entity().SetNome(m_name);
    Entity().SetTipo(m_type);
    m_name = name;
    m_type = type;
}

std::unique_ptr<Former> KeepState(DocumentData& data, CElemento& object, Reach reach) {
    if (auto* loadCase = DYNAMIC_DOWNCAST(CCasoCarico, &object))
        return std::make_unique<EntityName>(data, *loadCase);
    Kind kind;
    if (KindOf(object, kind) && (kind == Kind::Combination || kind == Kind::Group))
        reach = Reach::Model;
    return std::make_unique<Attributes>(data, object, reach);
}

void Grouping::Undo() {
    ForEachMember(m_data, m_group, [this](CElementoGruppo& member) { member.EliminaGruppo(m_group.GetID()); });
}

void Grouping::Redo() {
    ForEachMember(m_data, m_group, [this](CElementoGruppo& member) { member.AddGruppo(m_group.GetID()); });
}

void Disbanding::Undo() {
    std::size_t next = 0;
    ForEachMember(m_data, m_group,
                  [&](CElementoGruppo& member) { member.RestoreGruppo(m_places[next++], m_group.GetID()); });
    m_places = {};
}

void Disbanding::Redo() {
    ForEachMember(m_data, m_group, [this](CElementoGruppo& member) {
        m_places.push_back(member.GetIndexGruppo(m_group.GetID()));
        member.EliminaGruppo(m_group.GetID());
    });
}

Leaving::Leaving(CGruppo& group, const std::vector<CElemento*>& members) : m_group(group) {
    m_members.reserve(members.size());
    for (CElemento* member : members)
        if (group.IsElemento(member->GetTipoElemento(), member->GetID()))
            m_members.push_back({member->GetTipoElemento(), member->GetID(), 0});
    Redo();
}

// The last one to leave comes back first: each finds its place as it left it.
void Leaving::Undo() {
    for (std::size_t i = m_members.size(); i-- > 0;)
        m_group.RestoreElement(m_members[i].place, m_members[i].kind, m_members[i].id);
}

void Leaving::Redo() {
    for (Member& member : m_members) {
        member.place = m_group.GetIndexElemento(member.kind, member.id);
        m_group.RemoveElement(member.kind, member.id);
    }
}

LoadCreation::LoadCreation(CCasoCarico& loadCase, std::unique_ptr<CCarico> load)
    : m_case(loadCase), m_id(loadCase.AddCarico(load.get())) {
    if (m_id != 0)
        load.release();
}

void LoadCreation::Redo() {
    m_case.AddCarico(m_load.get());
    m_load.release();
}

void LoadRemoval::Undo() {
    auto kept = m_case.DetachLoads();
    auto next = kept.begin();
    for (auto& [place, load] : m_out) {
        while (m_case.GetSizeCarichi() < place)
            GiveBack(*next++);
        GiveBack(load);
    }
    while (next != kept.end())
        GiveBack(*next++);
    m_out.clear();
}

void LoadRemoval::Redo() {
    auto all = m_case.DetachLoads();
    for (std::size_t place = 0; place < all.size(); ++place) {
        if (m_numbers.contains(all[place]->GetID()))
            m_out.emplace_back(static_cast<int>(place), std::move(all[place]));
        else
            GiveBack(all[place]);
    }
}

} // namespace host
