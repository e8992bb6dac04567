// Load cases, combinations and groups of the document.
#include "host/document/Changes.h"
#include "host/document/HostDocument.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "platform/window/Application.h"

namespace host {

namespace {

constexpr int longestName = 64;

// Few enough for a walk: a model has hundreds at most.
CElementoStrutturale* FindName(const DocumentData& data, Kind kind, const CString& name) {
    for (int i = 0; i < data.Size(kind); ++i) {
        auto* entity = data.As<CElementoStrutturale>(kind, i);
        if (entity->GetNome() == name)
            return entity;
    }
    return nullptr;
}

} // namespace

CCasoCarico* HostDocument::GetCasoCarico(CString nome) {
    return static_cast<CCasoCarico*>(FindName(m_data, Kind::LoadCase, nome));
}

CCasoCarico* HostDocument::GetCasoCarico(int id, int* pIndex) {
    auto* found = m_data.FindAs<CCasoCarico>(Kind::LoadCase, id);
    if (found && pIndex)
        *pIndex = m_data.IndexOf(Kind::LoadCase, id);
    return found;
}

CCombinazione* HostDocument::GetCombinazione(CString nome) {
    return static_cast<CCombinazione*>(FindName(m_data, Kind::Combination, nome));
}

CCombinazione* HostDocument::GetCombinazione(int id, int* pIndex) {
    auto* found = m_data.FindAs<CCombinazione>(Kind::Combination, id);
    if (found && pIndex)
        *pIndex = m_data.IndexOf(Kind::Combination, id);
    return found;
}

int HostDocument::IsValidoCasoCaricoNome(CString nome) {
    return nome.GetLength() <= longestName && nome.GetAt(0) != ' ' && nome.FindOneOf(".`![]") < 0;
}

CElemento* HostDocument::IsCasoCaricoNome(CString nome) {
    if (CElemento* found = GetCasoCarico(nome))
        return found;
    return GetCombinazione(nome);
}

CElemento* HostDocument::IsCasoCaricoNome(CElementoStrutturale& entita, CElementoStrutturale** pOther) {
    const CString name = entita.GetNome();
    for (const Kind kind : {Kind::LoadCase, Kind::Combination}) {
        for (int i = 0; i < m_data.Size(kind); ++i) {
            auto* other = m_data.As<CElementoStrutturale>(kind, i);
            if (other == &entita || other->GetNome() != name)
                continue;
            if (pOther)
                *pOther = other;
            return other;
        }
    }
    return nullptr;
}

// A dynamic seismic case says so in its type text.
int HostDocument::IsCasoCaricoSismicoDinamico(CString nome) {
    CCasoCarico* found = GetCasoCarico(nome);
    return found && found->GetTipo().CompareNoCase(dynamicSeismicCase) == 0;
}

int HostDocument::SelectCasoCarico(int id) {
    if (!m_data.Find(Kind::LoadCase, id) && !m_data.Find(Kind::Combination, id))
        return 0;
    m_announcedCase = id; // below
    if (m_data.CurrentCase() != id)
        m_undo.Record(std::make_unique<CurrentCase>(m_data.CurrentCase(), id), "Seleziona caso di carico");
    // The current one too: its results may be others now.
    ShowCurrentCase();
    return 1;
}

int HostDocument::SelectIndexCasoCarico(int index) {
    CCasoCarico* loadCase = GetIndexCasoCarico(index);
    return loadCase ? SelectCasoCarico(loadCase->GetID()) : 0;
}

CCasoCarico* HostDocument::GetSelectCasoCarico() {
    return m_data.FindAs<CCasoCarico>(Kind::LoadCase, m_data.CurrentCase());
}

CCombinazione* HostDocument::GetSelectCombinazione() {
    return m_data.FindAs<CCombinazione>(Kind::Combination, m_data.CurrentCase());
}

CElementoStrutturale* HostDocument::GetCurrentCase() {
    if (CCasoCarico* loadCase = GetSelectCasoCarico())
        return loadCase;
    return GetSelectCombinazione();
}

CCasoCarico* HostDocument::CreaCasoCarico(const CString& name) {
    CString free = name;
    for (int number = m_data.NextId(Kind::LoadCase); free.IsEmpty() || IsCasoCaricoNome(free); ++number) {
        if (!name.IsEmpty())
            return nullptr;
        free.Format("Caso %d", number);
    }
    SharedStep step(m_undo, "Crea caso di carico");
    auto loadCase = std::make_unique<CCasoCarico>();
    loadCase->SetNome(free);
    CCasoCarico* added = AddNew(std::move(loadCase));
    if (added)
        m_newCase = {added->GetID(), m_undo.RecordCount()};
    return added;
}

int HostDocument::EliminaCasoCarico(int id) {
    CElemento* loadCase = m_data.Find(Kind::LoadCase, id);
    if (!loadCase)
        return 0;
    SharedStep step(m_undo, "Elimina caso di carico"); // a dialog deletes all that are selected one by one
    Remove({loadCase});
    return 1;
}

int HostDocument::AddCombinazione(CCombinazione* pCombinazione, CCombinazione** pOut) {
    if (!pCombinazione || IsCasoCaricoNome(*pCombinazione, nullptr) || m_data.NextId(Kind::Combination) == 0)
        return 0;
    SharedStep step(m_undo, "Crea combinazione"); // and selects it next
    CCombinazione* added = AddNew(std::unique_ptr<CCombinazione>(pCombinazione));
    if (pOut)
        *pOut = added;
    return added != nullptr;
}

void HostDocument::ModificaCombinazione(int id, CCombinazione& valori) {
    auto* combination = m_data.FindAs<CCombinazione>(Kind::Combination, id);
    if (!combination || combination == &valori)
        return;
    // A name that the rule forbids, or that another one bears, could not be read back from the project.
    const CString former = combination->GetNome();
    const CString wanted = valori.GetNome();
    const CElemento* other = IsCasoCaricoNome(wanted);
    const bool refused = wanted != former && ((other && other != combination) || !IsValidoCasoCaricoNome(wanted));
    {
        UndoStep step(m_undo, "Modifica combinazione");
        Modify(*combination, [&] {
            *combination = valori;
            combination->SetID(id);
            if (refused)
                combination->SetNome(former);
        });
    }
    if (refused)
        AfxMessageBox("Il nome \"" + wanted + "\" non è ammesso o è già usato: la combinazione conserva il nome \""_t +
                      former + "\".");
}

CCarico* HostDocument::AddCarico(CCasoCarico& loadCase, std::unique_ptr<CCarico> load) {
    if (!load)
        return nullptr;
    UndoStep step(m_undo, "Aggiungi carico");
    load->SetLunghezza(m_data.Units().length);
    load->SetForza(m_data.Units().force);
    auto change = std::make_unique<LoadMembership>(loadCase, std::move(load));
    CCarico* added = change->Load();
    m_undo.Record(std::move(change), "Aggiungi carico");
    return added;
}

void HostDocument::EliminaCarico(CCasoCarico& loadCase, int loadId) {
    if (!loadCase.GetCarico(loadId, nullptr))
        return;
    UndoStep step(m_undo, "Elimina carico");
    ForEachCarrier([&](CElementoCarico& carrier) {
        if (carrier.IsCarico(loadCase.GetID(), loadId, nullptr))
            Modify(carrier, [&] { carrier.EliminaCarico(loadCase.GetID(), loadId); });
    });
    m_undo.Record(std::make_unique<LoadMembership>(loadCase, loadId), "Elimina carico");
}

void HostDocument::ForEachCarrier(const std::function<void(CElementoCarico&)>& action) {
    for (const Kind kind : allKinds) {
        if (!IsSelectableKind(kind))
            continue;
        for (int i = 0; i < m_data.Size(kind); ++i) {
            auto* carrier = m_data.As<CElementoCarico>(kind, i);
            if (carrier->GetSizeCarichi() > 0)
                action(*carrier);
        }
    }
}

CGruppo* HostDocument::GetGroup(const CString& name) {
    return static_cast<CGruppo*>(FindName(m_data, Kind::Group, name));
}

CGruppo* HostDocument::CreateGroup(const CString& name) {
    UndoStep step(m_undo, "Crea gruppo");
    auto group = std::make_unique<CGruppo>();
    group->SetNome(name);
    for (CElemento* element : m_selection.All())
        group->AddElemento(element->GetTipoElemento(), element->GetID());
    CGruppo* added = AddNew(std::move(group));
    if (added)
        m_undo.Record(std::make_unique<Grouping>(m_data, *added), "Crea gruppo");
    return added;
}

int HostDocument::EliminaGruppo(int index) {
    CGruppo* group = GetIndexGruppo(index);
    if (!group)
        return 0;
    SharedStep step(m_undo, "Elimina gruppo");
    Remove({group});
    return 1;
}

} // namespace host
