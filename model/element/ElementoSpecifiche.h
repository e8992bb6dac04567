// Elements with specifications, such as the releases of a beam's ends. The element owns them.
#pragma once

#include "model/element/ElementoCarico.h"
#include "model/element/Specifiche.h"

class CElementoSpecifiche : public CElementoCarico {
    DECLARE_DYNAMIC(CElementoSpecifiche)

    // Takes the object over and gives it a number of its own when its number is 0 or taken. 0 for null.
    virtual int AddSpecifica(CSpecifiche* pSpecifica);
    // Replaces each specification that the array has too, by number, with a copy of the array's; returns how many.
    virtual int AggiornaSpecifiche(CObArray* pSpecifiche);
    virtual CSpecifiche* GetIndexSpecifica(int i); // null outside
    virtual int GetSizeSpecifiche();
    virtual int IsIDSpecifica(int id);
    virtual int EliminaSpecifica(int id); // deletes; 0 when there is none
    virtual int EliminaIndexSpecifica(int i);
    // Puts a specification, taken over, in the i-th place under the given number. 0, and not taken, outside.
    virtual int SetSpecifica(int i, int id, CSpecifiche* pSpecifica);
    virtual int GetIndexIDSpecifiche(int i); // 0 outside

    CElemento& operator=(CElemento& altro) override;
    CElementoSpecifiche& operator=(CElementoSpecifiche& altro) {
        operator=(static_cast<CElemento&>(altro));
        return *this;
    }

  protected:
    using CElementoCarico::CElementoCarico;
};
