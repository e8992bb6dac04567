// Loads. A load belongs to its load case, which owns it; elements refer to it, and many may refer to the same one.
// Values are in the document's units, in global axes or in the axes of the line that carries the load.
#pragma once

#include "model/element/Elemento.h"

class CLinea;

class CCarico : public CElemento {
    DECLARE_DYNAMIC(CCarico)

    enum Reference { Global = 0, Local = 1 };

    // Of the load case; kept by the case, so it changes with the case's identifier.
    int& GetIDCasoCarico() { return m_nIDCasoCarico; }
    // Loads that were assigned by one command may carry a common number; 0 none.
    int GetSetId() const { return m_nIDInsieme; }
    void SetSetId(int id) { m_nIDInsieme = id; }

    int GetReference() const { return m_nReference; }
    void SetReference(int riferimento) { m_nReference = static_cast<signed char>(riferimento); }

    CElemento& operator=(CElemento& altro) override;

    // Draws the load on the object that refers to it. Neutral for loads without a place.
    virtual void DrawOn(CElemento& elemento, Adv3d& vista, int valori);

  protected:
    explicit CCarico(unsigned tipo) : CElemento(tipo) {}
    CCarico(const CCarico&) = default;

    // The direction of a load's component vector in global axes.
    CFPoint GlobalVector(CElemento& elemento, const CFPoint& vettore) const;
    // `power` of the length unit in a force per length^-power; used by unit changes.
    double LengthFactor(Lunghezza nuova, int power);
    double ForceFactor(Forza nuova);

  private:
    int m_nIDCasoCarico = 0;
    int m_nIDInsieme = 0;
    signed char m_nReference = Global;
};

// Force and moment on a node: force; force*length. Global axes.
class CCaricoNodale : public CCarico {
    DECLARE_DYNCREATE(CCaricoNodale)

    CCaricoNodale();
    CCaricoNodale(CFPoint force, CFPoint moment) : CCaricoNodale() {
        m_force = force;
        m_moment = moment;
    }
    CFPoint& GetForceVector() { return m_force; }
    CFPoint& GetMomentVector() { return m_moment; }

    CElemento& operator=(CElemento& altro) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;
    void ChangeForza(Forza force) override;
    void DrawOn(CElemento& elemento, Adv3d& vista, int valori) override;

  private:
    CFPoint m_force;
    CFPoint m_moment;
};

// Prescribed displacement of a restrained node: length; radians. Global axes.
class CCaricoSpostamento : public CCarico {
    DECLARE_DYNCREATE(CCaricoSpostamento)

    CCaricoSpostamento();
    CCaricoSpostamento(CFPoint spostamento, CFPoint rotazione) : CCaricoSpostamento() {
        m_displacement = spostamento;
        m_rotation = rotazione;
    }
    CFPoint& GetDisplacement() { return m_displacement; }
    CFPoint& GetRotation() { return m_rotation; }

    CElemento& operator=(CElemento& altro) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;
    void DrawOn(CElemento& elemento, Adv3d& vista, int valori) override;

  private:
    CFPoint m_displacement;
    CFPoint m_rotation;
};

// The same force per length over the whole line.
class CCaricoUniforme : public CCarico {
    DECLARE_DYNCREATE(CCaricoUniforme)

    CCaricoUniforme();
    CCaricoUniforme(CFPoint carico, int riferimento) : CCaricoUniforme() {
        m_load = carico;
        SetReference(riferimento);
    }
    CFPoint& GetCarico() { return m_load; }

    CElemento& operator=(CElemento& altro) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;
    void ChangeForza(Forza force) override;
    void DrawOn(CElemento& elemento, Adv3d& vista, int valori) override;

  private:
    CFPoint m_load;
};

// Force per length that varies linearly between two places of the line, on each axis by itself; nothing outside them.
class CCaricoTrapezoidale : public CCarico {
    DECLARE_DYNCREATE(CCaricoTrapezoidale)

    struct Stretch {
        double da = 0; // length from the first node
        double a = 0;
        double inizio = 0; // force/length at `da`
        double fine = 0;   // and at `a`
    };

    CCaricoTrapezoidale();
    Stretch& GetStretch(int asse) { return m_stretches[asse]; } // 0 to 2

    CElemento& operator=(CElemento& altro) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;
    void ChangeForza(Forza force) override;
    void DrawOn(CElemento& elemento, Adv3d& vista, int valori) override;

  private:
    Stretch m_stretches[3];
};

// Force, and moment, at one place of the line.
class CCaricoConcentrato : public CCarico {
    DECLARE_DYNCREATE(CCaricoConcentrato)

    CCaricoConcentrato();
    CCaricoConcentrato(CFPoint force, double distanza, int riferimento) : CCaricoConcentrato() {
        m_force = force;
        m_dDistanza = distanza;
        SetReference(riferimento);
    }
    CFPoint& GetForceVector() { return m_force; }
    CFPoint& GetMomentVector() { return m_moment; }
    double& GetDistance() { return m_dDistanza; } // length from the first node

    CElemento& operator=(CElemento& altro) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;
    void ChangeForza(Forza force) override;
    void DrawOn(CElemento& elemento, Adv3d& vista, int valori) override;

  private:
    CFPoint m_force;
    CFPoint m_moment;
    double m_dDistanza = 0;
};

// A change of temperature: uniform, and linear along the local axes 2 and 3.
class CCaricoTemperatura : public CCarico {
    DECLARE_DYNCREATE(CCaricoTemperatura)

    CCaricoTemperatura();

    double& GetTemperature() { return m_dUniforme; } // degrees, of the axis
    double& GetGradient2() { return m_dGradient2; }  // degrees/length, growing along local axis 2
    double& GetGradient3() { return m_dGradient3; }
    double& GetAlpha() { return m_dAlpha; } // 1/degree; 0 takes the material's

    CElemento& operator=(CElemento& altro) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;
    void DrawOn(CElemento& elemento, Adv3d& vista, int valori) override;

  private:
    double m_dUniforme = 0;
    double m_dGradient2 = 0;
    double m_dGradient3 = 0;
    double m_dAlpha = 0;
};

// Self weight: an acceleration that acts on the mass of every element of the model. No element refers to it.
class CCaricoPesoProprio : public CCarico {
    DECLARE_DYNCREATE(CCaricoPesoProprio)

    CCaricoPesoProprio();
    explicit CCaricoPesoProprio(CFPoint accelerazione) : CCaricoPesoProprio() { m_acceleration = accelerazione; }
    CFPoint& GetAcceleration() { return m_acceleration; } // length/s^2, global axes

    CElemento& operator=(CElemento& altro) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;

  private:
    CFPoint m_acceleration;
};
