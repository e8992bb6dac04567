// What dialogs change on load cases and combinations by themselves. They say so with MODIFICA_CASI_CARICO; the document
// then finds out what it was and records it, so that it can be undone like everything else.
#include "host/document/Changes.h"
#include "host/document/HostDocument.h"
#include "model/entity/CasoCarico.h"

namespace host {

void HostDocument::RememberNames() {
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
    m_pendingGroups = m_pendingGroups || groups != m_groups;
    m_groups = std::move(groups);
}

void HostDocument::RecordDirectChanges() {
    // What a command inside a bracket changes, it records itself.
    if (m_undo.IsInBracket())
        return;
    RecordNewNames();
    RecordFilledCase();
}

void HostDocument::RecordNewNames() {
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
void HostDocument::RecordFilledCase() {
    const auto made = std::exchange(m_newCase, {});
    auto* loadCase = m_data.FindAs<CCasoCarico>(Kind::LoadCase, made.id);
    if (!loadCase || made.records != m_undo.RecordCount())
        return;
    static constexpr char stepName[] = "Copia caso di carico";
    m_undo.Rename(stepName);
    std::vector<CElementoCarico*> carriers;
    ForEachCarrier([&](CElementoCarico& carrier) {
        for (int i = 0; i < carrier.GetSizeCarichi(); ++i) {
            if (carrier.GetIndexIDCasoCarico(i) == made.id) {
                carriers.push_back(&carrier);
                break;
            }
        }
    });
    if (!carriers.empty())
        m_undo.Record(std::make_unique<Carrying>(*loadCase, carriers), stepName);
}

} // namespace host
