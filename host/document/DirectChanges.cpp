#include "host/document/DirectChanges.h"

#include "host/document/Changes.h"
#include "host/document/ModelWalks.h"
#include "model/entity/CasoCarico.h"

namespace host {

bool DirectChanges::Remember() {
    m_names.clear();
    for (const Kind kind : {Kind::LoadCase, Kind::Combination})
        for (int i = 0; i < m_data.Size(kind); ++i) {
            auto* entity = m_data.As<CElementoStrutturale>(kind, i);
            m_names.emplace(entity->GetID(), entity->GetNome());
        }
    std::vector<std::pair<int, CString>> groups;
    groups.reserve(static_cast<std::size_t>(m_data.Size(Kind::Group)));
    for (int i = 0; i < m_data.Size(Kind::Group); ++i) {
        auto* group = m_data.As<CElementoStrutturale>(Kind::Group, i);
        groups.emplace_back(group->GetID(), group->GetNome());
    }
    return std::exchange(m_groups, std::move(groups)) != m_groups;
}

void DirectChanges::CaseMade(int id) {
    m_newCase = {id, m_undo.RecordCount()};
}

void DirectChanges::Record() {
    if (m_undo.IsInBracket())
        return;
    RecordNewNames();
    RecordFilledCase();
}

void DirectChanges::RecordNewNames() {
    std::vector<std::unique_ptr<Change>> changes;
    for (const Kind kind : {Kind::LoadCase, Kind::Combination})
        for (int i = 0; i < m_data.Size(kind); ++i) {
            auto* entity = m_data.As<CElementoStrutturale>(kind, i);
            const auto known = m_names.find(entity->GetID());
            if (known != m_names.end() && known->second != entity->GetNome())
                changes.push_back(std::make_unique<EntityName>(*entity, known->second));
        }
    if (changes.empty())
        return;
    UndoStep step(m_undo, "Rinomina caso di carico");
    for (auto& change : changes)
        m_undo.Record(std::move(change), "");
}

// The case made last, when nothing was recorded since: a dialog has filled it with copies of another's loads.
void DirectChanges::RecordFilledCase() {
    const auto made = std::exchange(m_newCase, {});
    auto* loadCase = m_data.FindAs<CCasoCarico>(Kind::LoadCase, made.id);
    if (!loadCase || made.records != m_undo.RecordCount())
        return;
    static constexpr char stepName[] = "Copia caso di carico";
    m_undo.Rename(stepName);
    std::vector<CElementoCarico*> carriers;
    ForEachCarrier(m_data, [&](CElementoCarico& carrier) {
        if (CarriesLoadOf(carrier, made.id))
            carriers.push_back(&carrier);
    });
    if (!carriers.empty())
        m_undo.Record(std::make_unique<Carrying>(*loadCase, carriers), stepName);
}

} // namespace host
