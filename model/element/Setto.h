// A wall.
#pragma once

#include "model/element/Poligono.h"

class CSetto : public CPoligonoFisico {
    DECLARE_DYNCREATE(CSetto)

    using CPoligonoFisico::operator=;

    CSetto() : CPoligonoFisico(TipoElemento::Setto) {}
    CSetto& operator=(const CSetto& altro) {
        operator=(Source(altro));
        return *this;
    }
    int CheckElemento(CStringArray& messaggi) override;
};
