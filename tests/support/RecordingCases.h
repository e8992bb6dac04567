// Load cases, combinations and groups of a recording document. Changes are recorded and carried out; queries are not
// recorded.
#pragma once

#include "tests/support/RecordingGeneration.h"

#include <functional>

class CException;

class RecordingCases : public RecordingGeneration {
  public:
    using RecordingGeneration::RecordingGeneration;

    CException* addingThrows = nullptr; // by AddCombinazione
    CCombinazione* currentCombination = nullptr;
    CCasoCarico* currentCase = nullptr;
    std::function<void()> onGroupGone; // before EliminaGruppo returns

    CCasoCarico* GetCasoCarico(CString nome) override { return ByName(casi, nome); }
    CCasoCarico* GetCasoCarico(int id, int* pIndex) override { return ById(casi, id, pIndex); }
    CCombinazione* GetCombinazione(CString nome) override { return ByName(combinazioni, nome); }
    CCombinazione* GetCombinazione(int id, int* pIndex) override { return ById(combinazioni, id, pIndex); }
    CCasoCarico* GetSelectCasoCarico() override { return currentCase; }
    CCombinazione* GetSelectCombinazione() override { return currentCombination; }

    // This host's rule: no full stop.
    int IsValidoCasoCaricoNome(CString nome) override { return nome.FindOneOf(".") < 0; }
    CElemento* IsCasoCaricoNome(CElementoStrutturale& entita, CElementoStrutturale** pOther) override;
    CElemento* IsCasoCaricoNome(CString nome) override;
    int IsCasoCaricoSismicoDinamico(CString nome) override;

    int SelectCasoCarico(int id) override;
    int SelectIndexCasoCarico(int index) override;
    int EliminaCasoCarico(int id) override;
    int AddCombinazione(CCombinazione* pCombinazione, CCombinazione** pOut) override;
    void ModificaCombinazione(int id, CCombinazione& valori) override;

    int EliminaGruppo(int index) override;
    void SelezionaGruppo(int id) override { m_journal.Add("SelezionaGruppo", id); }

  private:
    template <class T>
    static T* ByName(const List<T>& list, const CString& name) {
        for (const auto& entity : list)
            if (entity && entity->GetNome() == name)
                return entity.get();
        return nullptr;
    }
};
