// Small frames to analyse, built in a few lines.
#pragma once

#include "host/document/HostDocument.h"
#include "model/element/Asta.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/load/Carico.h"
#include "model/view/ElementoSettings.h"

// One material and one section, one load case; E = 2e8, G = 8e7, alpha = 1.2e-5, density 8; A = 0.01, J = 3e-5,
// I2 = 2e-5, I3 = 5e-5, no shear areas. Numbers count from 1 in the order of the calls.
class AnalysisModel {
  public:
    AnalysisModel();

    CNodo* Node(double x, double y, double z, unsigned fixed = 0);
    CTrave* Beam(CNodo* from, CNodo* to);
    CAsta* Truss(CNodo* from, CNodo* to);
    void Release(CTrave* beam, int end, int n, int t, int m2, int m3);
    // A load of the first case, or of another one.
    template <class Load>
    Load* On(CElementoCarico* carrier, const Load& load, CCasoCarico* loadCase = nullptr) {
        CCasoCarico* its = loadCase ? loadCase : firstCase;
        auto copy = std::make_unique<Load>();
        *static_cast<CElemento*>(copy.get()) = const_cast<Load&>(load);
        CCarico* added = document.AddCarico(*its, std::move(copy));
        document.Modify(*carrier, [&] { carrier->AddCarico(added, 0); });
        return static_cast<Load*>(added);
    }
    void Force(CNodo* node, CFPoint force, CFPoint moment = {}) { On(node, CCaricoNodale(force, moment)); }

    // Fails the test when the analysis is refused.
    const host::CaseResults& Run();
    CString Refusal(); // its message; empty when the analysis was carried out

    // Component 0 to 5 of a node's displacement, and of its support's reaction, in the first case.
    double Moved(CNodo* node, int component);
    double Reaction(CNodo* node, int component);
    // An internal force of a line in the case that is shown.
    double Force(CLineaRisultati* line, int kind, double x, CTraveRisultati::Side side = CTraveRisultati::After);

    host::HostDocument document;
    CMateriale* material;
    CSezione* section;
    CCasoCarico* firstCase;

    static constexpr double E = 2e8, G = 8e7, alpha = 1.2e-5, density = 8;
    static constexpr double A = 0.01, J = 3e-5, I2 = 2e-5, I3 = 5e-5;
};

// The value agrees to nine digits; near zero, against the scale of the problem.
void ExpectClose(double value, double expected, double scale = 0);
