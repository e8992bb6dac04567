// A truss member: axial force only.
#pragma once

#include "model/element/LineaRisultati.h"

class CAsta : public CLineaRisultati {
    DECLARE_DYNCREATE(CAsta)

    CAsta();
    CAsta& operator=(const CAsta& altro) {
        operator=(Source(altro));
        return *this;
    }
    using CLineaRisultati::operator=;
};
