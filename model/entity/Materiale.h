// A linear elastic material, in the document's units.
#pragma once

#include "model/entity/ElementoStrutturale.h"

class CMateriale : public CElementoStrutturale {
    DECLARE_DYNCREATE(CMateriale)

    using CElementoStrutturale::operator=;

    CMateriale();
    CMateriale(const CMateriale&) = default;
    CMateriale& operator=(const CMateriale& altro) {
        operator=(Source(altro));
        return *this;
    }
    CElemento& operator=(CElemento& altro) override;

    double GetE() const { return m_dE; } // Young's modulus, force/length^2
    void SetE(double e) { m_dE = e; }
    double GetG() const { return m_dG; } // shear modulus, force/length^2
    void SetG(double g) { m_dG = g; }
    double GetPoisson() const { return m_dPoisson; }
    void SetPoisson(double ni) { m_dPoisson = ni; }
    double GetDensity() const { return m_dDensity; } // mass density, force*s^2/length^4
    void SetDensity(double densita) { m_dDensity = densita; }
    double GetAlpha() const { return m_dAlpha; } // thermal expansion, 1/degree
    void SetAlpha(double alfa) { m_dAlpha = alfa; }
    // Unit weight, force/length^3: the density under standard gravity.

    void ChangeLunghezza(Lunghezza lunghezza) override;
    void ChangeForza(Forza force) override;
    int CheckElemento(CStringArray& messaggi) override;

  private:
    double m_dE = 0;
    double m_dG = 0;
    double m_dPoisson = 0;
    double m_dDensity = 0;
    double m_dAlpha = 0;
};
