// How one view shows one kind of object.
#pragma once

#include "platform/core/Object.h"

#include <vector>

class CElementoSettings : public CObject {
    DECLARE_DYNCREATE(CElementoSettings)

    // What may be shown beside the object itself; bits of the flags.
    enum Item : unsigned {
        Object = 1,
        Identifier = 2,
        Carichi = 4,
        ValoriCarichi = 8,
        Restraints = 16,
        Springs = 32,
        Specifiche = 64,
        Materiale = 128,
        Sezione = 256,
        Faces = 512,
        LocalAxes = 1024,
    };

    // Result kinds of beams, as dialogs and files number them.
    enum Risultato { M2 = 32, N = 42, V2 = 43, V3 = 44, T = 45, M3 = 46, N_A = 47, M2_W2 = 48, M3_W3 = 49 };

    CElementoSettings() = default; // the object, its loads, restraints, springs, specifications and faces

    int IsItem(unsigned voce) const { return (m_nItems & voce) != 0; }
    void SetItem(unsigned voce, int mostra) { m_nItems = mostra ? m_nItems | voce : m_nItems & ~voce; }

    COLORREF GetColor() const { return m_color; }
    void SetColor(COLORREF colore) { m_color = colore; }

    int IsRisultato(int tipo) const; // non-zero when that result kind is displayed
    void SetRisultato(int tipo, int mostra);
    int GetResultCount() const { return static_cast<int>(m_results.size()); }
    int GetRisultato(int i) const;       // the i-th displayed kind, in the order switched on; 0 when none
    double GetRisultatoMin(int i) const; // bounds of the colouring of the i-th displayed kind; 0 when none
    double GetRisultatoMax(int i) const;
    void SetResultLimits(int i, double minimo, double massimo);

    double GetLimiteMinProgetto() const { return m_dMinDesign; }
    double GetLimiteMaxProgetto() const { return m_dMaxDesign; }
    void SetDesignLimits(double minimo, double massimo) {
        m_dMinDesign = minimo;
        m_dMaxDesign = massimo;
    }

  private:
    struct Shown {
        int kind;
        double minimum;
        double maximum;
    };
    const Shown* ShownAt(int i) const;

    unsigned m_nItems = Object | Carichi | Restraints | Springs | Specifiche | Faces;
    COLORREF m_color = RGB(40, 70, 140);
    std::vector<Shown> m_results;
    double m_dMinDesign = 0;
    double m_dMaxDesign = 0;
};
