// What few elements have. One record on demand keeps the million ordinary ones small.
#pragma once

#include "model/element/Specifiche.h"

#include <memory>
#include <vector>

class CCarico;
class CElementoProgetto;
class CElementoRisultati;
class CElementoSettings;
class CElementoVerifica;

struct ElementExtras {
    struct Load {
        CCarico* load; // owned by its load case; null until it is linked again
        int caseId;
        int loadId;
    };

    CElementoRisultati* results = nullptr; // these four are not owned
    CElementoProgetto* design = nullptr;
    CElementoVerifica* check = nullptr;
    CElementoSettings* settings = nullptr;
    unsigned concreteId = 0;
    std::vector<int> groups;
    std::vector<int> views;
    std::vector<Load> loads;
    std::vector<std::unique_ptr<CSpecifiche>> specifications;
};
