#include "tests/support/RecordingCases.h"

#include "platform/core/Exception.h"

#include <utility>

int RecordingCases::SelectCasoCarico(int id) {
    m_journal.Add("SelectCasoCarico", id);
    currentCase = ById(casi, id);
    currentCombination = currentCase ? nullptr : ById(combinazioni, id);
    return currentCase || currentCombination;
}

int RecordingCases::EliminaGruppo(int index) {
    m_journal.Add("EliminaGruppo", index);
    if (!At(gruppi, index))
        return 0;
    gruppi.erase(gruppi.begin() + index);
    if (onGroupGone)
        onGroupGone();
    return 1;
}
int RecordingCases::AddCombinazione(CCombinazione* pCombinazione, CCombinazione** pOut) {
    m_journal.Add("AddCombinazione", pCombinazione->GetNome());
    if (addingThrows)
        throw std::exchange(addingThrows, nullptr);
    if (!generated)
        return 0;
    pCombinazione->SetID(100 + Size(combinazioni));
    combinazioni.emplace_back(pCombinazione);
    if (pOut)
        *pOut = pCombinazione;
    return 1;
}
void RecordingCases::ModificaCombinazione(int id, CCombinazione& valori) {
    m_journal.Add("ModificaCombinazione", id, valori.GetNome());
    if (CCombinazione* combination = ById(combinazioni, id)) {
        *combination = valori;
        combination->SetID(id);
    }
}
CElemento* RecordingCases::IsCasoCaricoNome(CElementoStrutturale& entita, CElementoStrutturale** pOther) {
    CElementoStrutturale* other = nullptr;
    for (const auto& entity : casi)
        if (entity.get() != &entita && entity->GetNome() == entita.GetNome())
            other = entity.get();
    for (const auto& entity : combinazioni)
        if (entity.get() != &entita && entity->GetNome() == entita.GetNome())
            other = entity.get();
    if (pOther)
        *pOther = other;
    return other;
}
CElemento* RecordingCases::IsCasoCaricoNome(CString nome) {
    if (CElemento* found = ByName(casi, nome))
        return found;
    return ByName(combinazioni, nome);
}
int RecordingCases::EliminaCasoCarico(int id) {
    m_journal.Add("EliminaCasoCarico", id);
    return static_cast<int>(std::erase_if(casi, [id](const auto& entity) { return entity && entity->GetID() == id; }));
}
int RecordingCases::SelectIndexCasoCarico(int index) {
    m_journal.Add("SelectIndexCasoCarico", index);
    currentCase = At(casi, index);
    return currentCase != nullptr;
}
int RecordingCases::IsCasoCaricoSismicoDinamico(CString nome) {
    CCasoCarico* found = ByName(casi, nome);
    return found && found->GetTipo() == "Sismico dinamico";
}
