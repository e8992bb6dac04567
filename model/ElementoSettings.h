// How one view shows one kind of object.
#pragma once

#include "platform/Object.h"

#include <vector>

class CElementoSettings : public CObject {
    DECLARE_DYNCREATE(CElementoSettings)

    // What may be shown beside the object itself; bits of the flags.
    enum Voce : unsigned {
        Oggetto = 1,
        Identificatore = 2,
        Carichi = 4,
        ValoriCarichi = 8,
        Vincoli = 16,
        Molle = 32,
        Specifiche = 64,
        Materiale = 128,
        Sezione = 256,
        Facce = 512,
        AssiLocali = 1024,
    };

    // Result kinds of beams, as dialogs and files number them.
    enum Risultato { M2 = 32, N = 42, V2 = 43, V3 = 44, T = 45, M3 = 46, N_A = 47, M2_W2 = 48, M3_W3 = 49 };

    CElementoSettings() = default; // the object, its loads, restraints, springs, specifications and faces

    int IsVoce(unsigned voce) const { return (m_nVoci & voce) != 0; }
    void SetVoce(unsigned voce, int mostra) { m_nVoci = mostra ? m_nVoci | voce : m_nVoci & ~voce; }

    COLORREF GetColore() const { return m_colore; }
    void SetColore(COLORREF colore) { m_colore = colore; }
    int GetSpessoreLinea() const { return m_nSpessoreLinea; } // pixels
    void SetSpessoreLinea(int pixel) { m_nSpessoreLinea = pixel < 1 ? 1 : pixel; }

    int IsRisultato(int tipo) const; // non-zero when that result kind is displayed
    void SetRisultato(int tipo, int mostra);
    int GetSizeRisultati() const { return static_cast<int>(m_risultati.size()); }
    int GetRisultato(int i) const;       // the i-th displayed kind, in the order switched on; 0 when none
    double GetRisultatoMin(int i) const; // bounds of the colouring of the i-th displayed kind; 0 when none
    double GetRisultatoMax(int i) const;
    void SetLimitiRisultato(int i, double minimo, double massimo);

    double GetLimiteMinProgetto() const { return m_dMinProgetto; }
    double GetLimiteMaxProgetto() const { return m_dMaxProgetto; }
    void SetLimitiProgetto(double minimo, double massimo) {
        m_dMinProgetto = minimo;
        m_dMaxProgetto = massimo;
    }

  private:
    struct Shown {
        int kind;
        double minimum;
        double maximum;
    };
    const Shown* shown(int i) const;

    unsigned m_nVoci = Oggetto | Carichi | Vincoli | Molle | Specifiche | Facce;
    COLORREF m_colore = RGB(40, 70, 140);
    int m_nSpessoreLinea = 1;
    std::vector<Shown> m_risultati;
    double m_dMinProgetto = 0;
    double m_dMaxProgetto = 0;
};
