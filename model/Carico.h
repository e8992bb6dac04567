// Loads. A load belongs to its load case, which owns it; elements refer to it, and many may refer to the same one.
// Values are in the document's units, in global axes or in the axes of the line that carries the load.
#pragma once

#include "model/Elemento.h"

class CLinea;

class CCarico : public CElemento {
    DECLARE_DYNAMIC(CCarico)

    enum Riferimento { Globale = 0, Locale = 1 };

    // Of the load case; kept by the case, so it changes with the case's identifier.
    int& GetIDCasoCarico() { return m_nIDCasoCarico; }
    // Loads that were assigned by one command may carry a common number; 0 none.
    int GetIDInsieme() const { return m_nIDInsieme; }
    void SetIDInsieme(int id) { m_nIDInsieme = id; }

    int GetRiferimento() const { return m_nRiferimento; }
    void SetRiferimento(int riferimento) { m_nRiferimento = static_cast<signed char>(riferimento); }

    CElemento& operator=(CElemento& altro) override;

    // Draws the load on the object that refers to it. Neutral for loads without a place.
    virtual void DrawSu(CElemento& elemento, Adv3d& vista, int valori);
    virtual CString GetDescrizioneCarico(); // "Carico uniforme (0, 0, -5)"

  protected:
    explicit CCarico(unsigned tipo) : CElemento(tipo) {}
    CCarico(const CCarico&) = default;

    // The direction of a load's component vector in global axes.
    CFPoint globalVector(CElemento& elemento, const CFPoint& vettore) const;
    // `power` of the length unit in a force per length^-power; used by unit changes.
    double lengthFactor(Lunghezza nuova, int power);
    double forceFactor(Forza nuova);

  private:
    int m_nIDCasoCarico = 0;
    int m_nIDInsieme = 0;
    signed char m_nRiferimento = Globale;
};

// Force and moment on a node: force; force*length. Global axes.
class CCaricoNodale : public CCarico {
    DECLARE_DYNCREATE(CCaricoNodale)

    CCaricoNodale() : CCarico(TipoElemento::CaricoNodale) {}
    CCaricoNodale(CFPoint forza, CFPoint momento) : CCaricoNodale() {
        m_forza = forza;
        m_momento = momento;
    }
    CFPoint& GetVettoreForza() { return m_forza; }
    CFPoint& GetVettoreMomento() { return m_momento; }

    CElemento& operator=(CElemento& altro) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;
    void ChangeForza(Forza forza) override;
    void DrawSu(CElemento& elemento, Adv3d& vista, int valori) override;
    CString GetDescrizioneCarico() override;

  private:
    CFPoint m_forza;
    CFPoint m_momento;
};

// Prescribed displacement of a restrained node: length; radians. Global axes.
class CCaricoSpostamento : public CCarico {
    DECLARE_DYNCREATE(CCaricoSpostamento)

    CCaricoSpostamento() : CCarico(TipoElemento::CaricoSpostamento) {}
    CCaricoSpostamento(CFPoint spostamento, CFPoint rotazione) : CCaricoSpostamento() {
        m_spostamento = spostamento;
        m_rotazione = rotazione;
    }
    CFPoint& GetSpostamento() { return m_spostamento; }
    CFPoint& GetRotazione() { return m_rotazione; }

    CElemento& operator=(CElemento& altro) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;
    void DrawSu(CElemento& elemento, Adv3d& vista, int valori) override;
    CString GetDescrizioneCarico() override;

  private:
    CFPoint m_spostamento;
    CFPoint m_rotazione;
};

// The same force per length over the whole line.
class CCaricoUniforme : public CCarico {
    DECLARE_DYNCREATE(CCaricoUniforme)

    CCaricoUniforme() : CCarico(TipoElemento::CaricoUniforme) {}
    CCaricoUniforme(CFPoint carico, int riferimento) : CCaricoUniforme() {
        m_carico = carico;
        SetRiferimento(riferimento);
    }
    CFPoint& GetCarico() { return m_carico; }

    CElemento& operator=(CElemento& altro) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;
    void ChangeForza(Forza forza) override;
    void DrawSu(CElemento& elemento, Adv3d& vista, int valori) override;
    CString GetDescrizioneCarico() override;

  private:
    CFPoint m_carico;
};

// Force per length that varies linearly between two places of the line, on each axis by itself; nothing outside them.
class CCaricoTrapezoidale : public CCarico {
    DECLARE_DYNCREATE(CCaricoTrapezoidale)

    struct Tratto {
        double da = 0; // length from the first node
        double a = 0;
        double inizio = 0; // force/length at `da`
        double fine = 0;   // and at `a`
    };

    CCaricoTrapezoidale() : CCarico(TipoElemento::CaricoTrapezoidale) { SetRiferimento(Locale); }
    Tratto& GetTratto(int asse) { return m_tratti[asse]; } // 0 to 2

    CElemento& operator=(CElemento& altro) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;
    void ChangeForza(Forza forza) override;
    void DrawSu(CElemento& elemento, Adv3d& vista, int valori) override;
    CString GetDescrizioneCarico() override;

  private:
    Tratto m_tratti[3];
};

// Force, and moment, at one place of the line.
class CCaricoConcentrato : public CCarico {
    DECLARE_DYNCREATE(CCaricoConcentrato)

    CCaricoConcentrato() : CCarico(TipoElemento::CaricoConcentrato) {}
    CCaricoConcentrato(CFPoint forza, double distanza, int riferimento) : CCaricoConcentrato() {
        m_forza = forza;
        m_dDistanza = distanza;
        SetRiferimento(riferimento);
    }
    CFPoint& GetVettoreForza() { return m_forza; }
    CFPoint& GetVettoreMomento() { return m_momento; }
    double& GetDistanza() { return m_dDistanza; } // length from the first node

    CElemento& operator=(CElemento& altro) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;
    void ChangeForza(Forza forza) override;
    void DrawSu(CElemento& elemento, Adv3d& vista, int valori) override;
    CString GetDescrizioneCarico() override;

  private:
    CFPoint m_forza;
    CFPoint m_momento;
    double m_dDistanza = 0;
};

// A change of temperature: uniform, and linear along the local axes 2 and 3.
class CCaricoTemperatura : public CCarico {
    DECLARE_DYNCREATE(CCaricoTemperatura)

    CCaricoTemperatura() : CCarico(TipoElemento::CaricoTemperatura) { SetRiferimento(Locale); }

    double& GetTemperatura() { return m_dUniforme; }  // degrees, of the axis
    double& GetGradiente2() { return m_dGradiente2; } // degrees/length, growing along local axis 2
    double& GetGradiente3() { return m_dGradiente3; }
    double& GetAlfa() { return m_dAlfa; } // 1/degree; 0 takes the material's

    CElemento& operator=(CElemento& altro) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;
    void DrawSu(CElemento& elemento, Adv3d& vista, int valori) override;
    CString GetDescrizioneCarico() override;

  private:
    double m_dUniforme = 0;
    double m_dGradiente2 = 0;
    double m_dGradiente3 = 0;
    double m_dAlfa = 0;
};

// Self weight: an acceleration that acts on the mass of every element of the model. No element refers to it.
class CCaricoPesoProprio : public CCarico {
    DECLARE_DYNCREATE(CCaricoPesoProprio)

    CCaricoPesoProprio() : CCarico(TipoElemento::CaricoPesoProprio) {}
    explicit CCaricoPesoProprio(CFPoint accelerazione) : CCaricoPesoProprio() { m_accelerazione = accelerazione; }
    CFPoint& GetAccelerazione() { return m_accelerazione; } // length/s^2, global axes

    CElemento& operator=(CElemento& altro) override;
    void ChangeLunghezza(Lunghezza lunghezza) override;
    CString GetDescrizioneCarico() override;

  private:
    CFPoint m_accelerazione;
};
