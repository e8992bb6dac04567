// A slab.
#pragma once

#include "model/element/PoligonoFisico.h"

class CSolaio : public CPoligonoFisico {
    DECLARE_DYNCREATE(CSolaio)

    using CPoligonoFisico::operator=;

    CSolaio();
    CSolaio& operator=(const CSolaio& altro) {
        operator=(Source(altro));
        return *this;
    }
    int CheckElemento(CStringArray& messaggi) override;
};
