// The part of the document that finds, selects, changes and deletes load cases and combinations.
#pragma once

#include "platform/core/String.h"

class CCasoCarico;
class CCombinazione;
class CElemento;
class CElementoStrutturale;

class DocumentCases {
  public:
    virtual CCasoCarico* GetCasoCarico(CString nome) = 0;
    // pIndex, unless null, receives the index of the case found.
    virtual CCasoCarico* GetCasoCarico(int id, int* pIndex) = 0;
    virtual CCombinazione* GetCombinazione(CString nome) = 0;
    virtual CCombinazione* GetCombinazione(int id, int* pIndex) = 0;
    // The current one; null when a combination, or a load case, is the current one instead.
    virtual CCasoCarico* GetSelectCasoCarico() = 0;
    virtual CCombinazione* GetSelectCombinazione() = 0;

    // Non-zero when the text may be the name of a load case: no leading space, at most 64 characters, none of . ` ! [ ]
    virtual int IsValidoCasoCaricoNome(CString nome) = 0;
    // Another load case or combination that bears the entity's name; pOther is null or receives it.
    virtual CElemento* IsCasoCaricoNome(CElementoStrutturale& entita, CElementoStrutturale** pOther) = 0;
    virtual CElemento* IsCasoCaricoNome(CString nome) = 0;
    virtual int IsCasoCaricoSismicoDinamico(CString nome) = 0;

    // Makes the load case or combination with that identifier, or the load case at that index, the current one; 0 when
    // there is none.
    virtual int SelectCasoCarico(int id) = 0;
    virtual int SelectIndexCasoCarico(int index) = 0;
    virtual int EliminaCasoCarico(int id) = 0;
    // Non-zero when the document has taken the combination, which then belongs to it; pOut is null or receives it.
    virtual int AddCombinazione(CCombinazione* pCombinazione, CCombinazione** pOut) = 0;
    // Gives the combination with that identifier the contents of the argument.
    virtual void ModificaCombinazione(int id, CCombinazione& valori) = 0;

  protected:
    ~DocumentCases() = default;
};
