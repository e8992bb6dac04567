// A beam: hands forces and moments over at both ends, unless released.
#pragma once

#include "model/element/LineaRisultati.h"

class CTrave : public CLineaRisultati {
    DECLARE_DYNCREATE(CTrave)

    CTrave();
    CTrave& operator=(const CTrave& altro) {
        operator=(Source(altro));
        return *this;
    }
    using CLineaRisultati::operator=;

    // The release of one end (0 first, else second), taken together from all its specifications: bit i is release i of
    // CSpecificheSvincoliTrave.
    unsigned GetReleases(int estremo);
};
