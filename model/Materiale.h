// A linear elastic material, in the document's units.
#pragma once

#include "model/ElementoStrutturale.h"

class CMateriale : public CElementoStrutturale {
    DECLARE_DYNCREATE(CMateriale)

    using CElementoStrutturale::operator=;

    CMateriale() : CElementoStrutturale(TipoElemento::Materiale) {}
    CMateriale(const CMateriale&) = default;
    CMateriale& operator=(const CMateriale& altro) {
        operator=(source(altro));
        return *this;
    }
    CElemento& operator=(CElemento& altro) override;

    double GetE() const { return m_dE; } // Young's modulus, force/length^2
    void SetE(double e) { m_dE = e; }
    double GetG() const { return m_dG; } // shear modulus, force/length^2
    void SetG(double g) { m_dG = g; }
    double GetPoisson() const { return m_dPoisson; }
    void SetPoisson(double ni) { m_dPoisson = ni; }
    double GetDensita() const { return m_dDensita; } // mass density, force*s^2/length^4
    void SetDensita(double densita) { m_dDensita = densita; }
    double GetAlfa() const { return m_dAlfa; } // thermal expansion, 1/degree
    void SetAlfa(double alfa) { m_dAlfa = alfa; }
    // Unit weight, force/length^3: the density under standard gravity.
    double GetPesoSpecifico() { return m_dDensita * CGrandezza::_Gravita(GetLunghezza()); }
    void SetPesoSpecifico(double peso) { m_dDensita = peso / CGrandezza::_Gravita(GetLunghezza()); }

    void ChangeLunghezza(Lunghezza lunghezza) override;
    void ChangeForza(Forza forza) override;
    int CheckElemento(CStringArray& messaggi) override;

  private:
    double m_dE = 0;
    double m_dG = 0;
    double m_dPoisson = 0;
    double m_dDensita = 0;
    double m_dAlfa = 0;
};
