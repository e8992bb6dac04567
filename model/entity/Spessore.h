// The thickness of walls and slabs.
#pragma once

#include "model/entity/ElementoStrutturale.h"

class CSpessore : public CElementoStrutturale {
    DECLARE_DYNCREATE(CSpessore)

    using CElementoStrutturale::operator=;

    CSpessore();
    CSpessore(const CSpessore&) = default;
    CSpessore& operator=(const CSpessore& altro) {
        operator=(Source(altro));
        return *this;
    }
    CElemento& operator=(CElemento& altro) override;

    double GetThickness() const { return m_dSpessore; } // length
    void SetThickness(double spessore) { m_dSpessore = spessore; }

    void ChangeLunghezza(Lunghezza lunghezza) override;
    int CheckElemento(CStringArray& messaggi) override;

  private:
    double m_dSpessore = 0;
};
