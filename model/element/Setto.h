// A wall.
#pragma once

#include "model/element/PoligonoFisico.h"

class CSetto : public CPoligonoFisico {
    DECLARE_DYNCREATE(CSetto)

    using CPoligonoFisico::operator=;

    CSetto();
    CSetto& operator=(const CSetto& altro) {
        operator=(Source(altro));
        return *this;
    }
    int CheckElemento(CStringArray& messaggi) override;
};
