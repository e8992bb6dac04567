// A truss member: axial force only.
#pragma once

#include "model/result/LineaRisultati.h"

class CAsta : public CLineaRisultati {
    DECLARE_DYNCREATE(CAsta)

    CAsta() : CLineaRisultati(TipoElemento::Asta) {}
    CAsta& operator=(const CAsta& altro) {
        operator=(Source(altro));
        return *this;
    }
    using CLineaRisultati::operator=;
};
