#include "host/document/HostCases.h"

#include "host/document/Changes.h"
#include "host/document/ModelWalks.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"

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

CCasoCarico* HostCases::GetCasoCarico(CString nome) {
    return static_cast<CCasoCarico*>(FindName(Data(), Kind::LoadCase, nome));
}

CCasoCarico* HostCases::GetCasoCarico(int id, int* pIndex) {
    auto* found = Data().FindAs<CCasoCarico>(Kind::LoadCase, id);
    if (found && pIndex)
        *pIndex = Data().IndexOf(Kind::LoadCase, id);
    return found;
}

CCombinazione* HostCases::GetCombinazione(CString nome) {
    return static_cast<CCombinazione*>(FindName(Data(), Kind::Combination, nome));
}

CCombinazione* HostCases::GetCombinazione(int id, int* pIndex) {
    auto* found = Data().FindAs<CCombinazione>(Kind::Combination, id);
    if (found && pIndex)
        *pIndex = Data().IndexOf(Kind::Combination, id);
    return found;
}

int HostCases::IsValidoCasoCaricoNome(CString nome) {
    return nome.GetLength() <= longestName && nome.GetAt(0) != ' ' && nome.FindOneOf(".`![]") < 0;
}

CElemento* HostCases::IsCasoCaricoNome(CString nome) {
    if (CElemento* found = GetCasoCarico(nome))
        return found;
    return GetCombinazione(nome);
}

CElemento* HostCases::IsCasoCaricoNome(CElementoStrutturale& entita, CElementoStrutturale** pOther) {
    const CString name = entita.GetNome();
    for (const Kind kind : {Kind::LoadCase, Kind::Combination}) {
        for (int i = 0; i < Data().Size(kind); ++i) {
            auto* other = Data().As<CElementoStrutturale>(kind, i);
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
int HostCases::IsCasoCaricoSismicoDinamico(CString nome) {
    CCasoCarico* found = GetCasoCarico(nome);
    return found && found->GetTipo().CompareNoCase(dynamicSeismicCase) == 0;
}

int HostCases::SelectCasoCarico(int id) {
    if (!Data().Find(Kind::LoadCase, id) && !Data().Find(Kind::Combination, id))
        return 0;
    Notices().AnnounceCase(id); // below
    if (Data().CurrentCase() != id)
        Undo().Record(std::make_unique<CurrentCase>(Data().CurrentCase(), id), "Seleziona caso di carico");
    // The current one too: its results may be others now.
    Notices().ShowCurrentCase();
    return 1;
}

int HostCases::SelectIndexCasoCarico(int index) {
    CCasoCarico* loadCase = GetIndexCasoCarico(index);
    return loadCase ? SelectCasoCarico(loadCase->GetID()) : 0;
}

CCasoCarico* HostCases::GetSelectCasoCarico() {
    return Data().FindAs<CCasoCarico>(Kind::LoadCase, Data().CurrentCase());
}

CCombinazione* HostCases::GetSelectCombinazione() {
    return Data().FindAs<CCombinazione>(Kind::Combination, Data().CurrentCase());
}

CElementoStrutturale* HostCases::GetCurrentCase() {
    if (CCasoCarico* loadCase = GetSelectCasoCarico())
        return loadCase;
    return GetSelectCombinazione();
}

CCasoCarico* HostCases::CreaCasoCarico(const CString& name) {
    CString free = name;
    for (int number = Data().NextId(Kind::LoadCase); free.IsEmpty() || IsCasoCaricoNome(free); ++number) {
        if (!name.IsEmpty())
            return nullptr;
        free.Format("Caso %d", number);
    }
    SharedStep step(Undo(), "Crea caso di carico");
    auto loadCase = std::make_unique<CCasoCarico>();
    loadCase->SetNome(free);
    CCasoCarico* added = AddNew(std::move(loadCase));
    if (added)
        Direct().CaseMade();
    return added;
}

int HostCases::EliminaCasoCarico(int id) {
    CElemento* loadCase = Data().Find(Kind::LoadCase, id);
    if (!loadCase)
        return 0;
    SharedStep step(Undo(), "Elimina caso di carico"); // a dialog deletes all that are selected one by one
    Remove({loadCase});
    return 1;
}

int HostCases::AddCombinazione(CCombinazione* pCombinazione, CCombinazione** pOut) {
    if (!pCombinazione || IsCasoCaricoNome(*pCombinazione, nullptr) || Data().NextId(Kind::Combination) == 0)
        return 0;
    SharedStep step(Undo(), "Crea combinazione"); // and selects it next
    CCombinazione* added = AddNew(std::unique_ptr<CCombinazione>(pCombinazione));
    if (pOut)
        *pOut = added;
    return added != nullptr;
}

void HostCases::ModificaCombinazione(int id, CCombinazione& valori) {
    auto* combination = Data().FindAs<CCombinazione>(Kind::Combination, id);
    if (!combination || combination == &valori)
        return;
    // A name that the rule forbids, or that another one bears, could not be read back from the project.
    const CString former = combination->GetNome();
    const CString wanted = valori.GetNome();
    const CElemento* other = IsCasoCaricoNome(wanted);
    const bool refused = wanted != former && ((other && other != combination) || !IsValidoCasoCaricoNome(wanted));
    {
        UndoStep step(Undo(), "Modifica combinazione");
        Modify(*combination, [&] {
            *combination = valori;
            combination->SetID(id);
            if (refused)
                combination->SetNome(former);
        });
    }
    if (refused)
        Refuse(Refusal("Il nome \"%s\" non è ammesso o è già usato: la combinazione conserva il nome \"%s\"."_t, wanted,
                       former));
}

CCarico* HostCases::AddCarico(CCasoCarico& loadCase, std::unique_ptr<CCarico> load) {
    if (!load)
        return nullptr;
    UndoStep step(Undo(), "Aggiungi carico");
    load->SetLunghezza(Data().Units().length);
    load->SetForza(Data().Units().force);
    auto change = std::make_unique<LoadCreation>(loadCase, std::move(load));
    CCarico* added = change->Load();
    Undo().Record(std::move(change), "Aggiungi carico");
    return added;
}

CGruppo* HostCases::GetGroup(const CString& name) {
    return static_cast<CGruppo*>(FindName(Data(), Kind::Group, name));
}

CGruppo* HostCases::CreateGroup(const CString& name) {
    UndoStep step(Undo(), "Crea gruppo");
    auto group = std::make_unique<CGruppo>();
    group->SetNome(name);
    for (CElemento* element : Selection().All())
        group->AddElemento(element->GetTipoElemento(), element->GetID());
    CGruppo* added = AddNew(std::move(group));
    if (added)
        Undo().Record(std::make_unique<Grouping>(Data(), *added), "Crea gruppo");
    return added;
}

int HostCases::EliminaGruppo(int index) {
    CGruppo* group = GetIndexGruppo(index);
    if (!group)
        return 0;
    SharedStep step(Undo(), "Elimina gruppo");
    Remove({group});
    return 1;
}

} // namespace host
