// Load cases, combinations and groups of the document; see DocumentCases and DocumentGroups.
#pragma once

#include "host/document/HostGeneration.h"
#include "platform/core/String.h"

#include <memory>

class CCarico;

namespace host {

// The type text of a dynamic seismic load case.
inline constexpr char dynamicSeismicCase[] = "Sismico dinamico";

class HostCases : public HostGeneration {
  public:
    CCasoCarico* GetCasoCarico(CString nome) override;
    CCasoCarico* GetCasoCarico(int id, int* pIndex) override;
    CCombinazione* GetCombinazione(CString nome) override;
    CCombinazione* GetCombinazione(int id, int* pIndex) override;
    CCasoCarico* GetSelectCasoCarico() override;
    CCombinazione* GetSelectCombinazione() override;
    CElementoStrutturale* GetCurrentCase(); // load case or combination; null when there is none

    int IsValidoCasoCaricoNome(CString nome) override;
    CElemento* IsCasoCaricoNome(CElementoStrutturale& entita, CElementoStrutturale** pOther) override;
    CElemento* IsCasoCaricoNome(CString nome) override;
    int IsCasoCaricoSismicoDinamico(CString nome) override;

    int SelectCasoCarico(int id) override;
    int SelectIndexCasoCarico(int index) override;
    int EliminaCasoCarico(int id) override;
    // A load case named "Caso n", or as told: null when the name is not free. Whoever fills it and hangs its loads on
    // elements says MODIFICA_CASI_CARICO afterwards; that belongs to the same step.
    CCasoCarico* CreaCasoCarico(const CString& name = CString());
    int AddCombinazione(CCombinazione* pCombinazione, CCombinazione** pOut) override;
    // A name that cannot be borne is refused; everything else changes.
    void ModificaCombinazione(int id, CCombinazione& valori) override;

    // Gives the load to the case; elements are then made to refer to it with Modify. Null for a null load.
    CCarico* AddCarico(CCasoCarico& loadCase, std::unique_ptr<CCarico> load);

    // A group of what is selected.
    CGruppo* CreateGroup(const CString& name);
    CGruppo* GetGroup(const CString& name); // null when there is none
    int EliminaGruppo(int index) override;

  protected:
    using HostGeneration::HostGeneration;
};

} // namespace host
