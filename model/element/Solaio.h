// A slab.
#pragma once

#include "model/element/Poligono.h"

class CSolaio : public CPoligonoFisico {
    DECLARE_DYNCREATE(CSolaio)

    using CPoligonoFisico::operator=;

    CSolaio() : CPoligonoFisico(TipoElemento::Solaio) {}
    CSolaio& operator=(const CSolaio& altro) {
        operator=(Source(altro));
        return *this;
    }
    int CheckElemento(CStringArray& messaggi) override;
};
