// A wall.
#pragma once

#include "model/Poligono.h"

class CSetto : public CPoligonoFisico {
    DECLARE_DYNCREATE(CSetto)

    using CPoligonoFisico::operator=;

    CSetto() : CPoligonoFisico(TipoElemento::Setto) {}
    CSetto& operator=(const CSetto& altro) {
        operator=(source(altro));
        return *this;
    }
    int CheckElemento(CStringArray& messaggi) override;
};
