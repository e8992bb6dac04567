// Lines with results: internal forces that are exact at every place, not only where the analysis stored them.
//
// Signs, in the line's local axes: N is tension; V2, V3 and T are what the part beyond the place acts with on the part
// before it, along axes 2, 3 and 1; M2 and M3 are positive when they stretch the side that axis 3, or 2, points away
// from. So dM3/dx = -V2, dM2/dx = -V3, and a load along a positive axis makes its V fall.
#pragma once

#include "model/element/LineaFisica.h"
#include "model/result/ElementoRisultati.h"

#include <vector>

class CWnd;

// A stretch of a diagram: a polynomial of the third degree at most.
struct DiagramStretch {
    double da = 0; // length from the first node
    double a = 0;
    double c[4] = {}; // c0 + c1 s + c2 s^2 + c3 s^3 with s = x - da

    double GetValue(double x) const {
        const double s = x - da;
        return c[0] + s * (c[1] + s * (c[2] + s * c[3]));
    }
    double GetEndValue() const { return IsStraight() ? c[0] + (a - da) * c[1] : GetValue(a); }
    bool IsStraight() const { return c[2] == 0 && c[3] == 0; }
    // Places strictly inside the stretch where the diagram is level, in increasing order; returns how many.
    int GetEnds(double (&x)[2]) const;
    // Places where the diagram crosses or reaches zero, both ends included; none for a diagram that is zero all along.
    int GetZeros(double (&x)[3]) const;
};

// What the analysis found for one line in one load case, or combination: the forces on its two ends and the loads
// between them. The two records of the base are the internal forces at the first and at the second end.
class CTraveRisultati : public CElementoRisultati {
    DECLARE_DYNCREATE(CTraveRisultati)

    // Force per length along the local axes, linear from `da` to `a` (lengths from the first node).
    struct Distributed {
        double da = 0;
        double a = 0;
        double inizio[3] = {};
        double fine[3] = {};
    };
    // Force and moment along, and about, the local axes at one place.
    struct PointForce {
        double x = 0;
        double force[3] = {};
        double moment[3] = {};
    };
    // On which side of a concentrated load a value is taken that jumps there.
    enum Side { Before, After };

    CTraveRisultati() { SetNodeResultCount(2); }

    double GetLunghezzaLinea() const { return m_dLunghezza; } // length unit
    void SetLineLength(double lunghezza) { m_dLunghezza = lunghezza; }

    // The forces that the nodes act with on the ends: three forces and three moments at the first, then at the second,
    // along the positive local axes.
    void GetEndForces(double (&forze)[12]) const;
    void SetEndForces(const double (&forze)[12]);

    void AddCarico(const Distributed& carico) { m_distributed.push_back(carico); }
    void AddCarico(const PointForce& carico) { m_pointForces.push_back(carico); }
    const std::vector<Distributed>& GetDistributed() const { return m_distributed; }
    const std::vector<PointForce>& GetPointForces() const { return m_pointForces; }

    // What the sizes of the forces are to be judged by: the largest on the ends or between them, a moment counting as a
    // force at the length of the line. 0 for a line without length.
    double GetLargestForce() const;

    // Adds another case's results of the same line, times a factor: that is how combinations are made.
    void Sum(const CTraveRisultati& altro, double fattore);

    // N, V2, V3, T, M2 or M3 (kinds of CElementoSettings) at a length x from the first node; 0 for any other kind.
    double GetInternalForce(int tipo, double x, Side lato = After) const;
    // The same along the whole line, stretch after stretch without gaps; neighbours differ where a value jumps. Empty
    // for another kind or a line without length.
    std::vector<DiagramStretch> GetDiagram(int tipo) const;

  private:
    double m_dLunghezza = 0;
    std::vector<Distributed> m_distributed;
    std::vector<PointForce> m_pointForces;
};

// The part of a line that shows results.
class CLineaRisultati : public CLineaFisica {
    DECLARE_DYNAMIC(CLineaRisultati)

    using CLineaFisica::operator=;
    CLineaRisultati& operator=(CLineaRisultati& altro) {
        operator=(static_cast<CElemento&>(altro));
        return *this;
    }

    // Draws the wanted diagrams of the line's results over the window's client area. With `bLettura` the area is drawn
    // anew with a hair line and the values at `punto`, which is in client coordinates of the window's parent; outside
    // the area the line is left out. Without results it draws nothing.
    virtual void DisegnaDiagrammaTrave(CWnd* pWnd, int bN, int bV2, int bV3, int bT, int bM2, int bM3, int bNA,
                                       int bM2W2, int bM3W3, int bLettura, CPoint punto);

    // The results of the load case that is shown; null when there are none. Not owned.
    CTraveRisultati* GetLineResults();
    // Any of the nine kinds, stresses included. 0, and nothing changed, without results, for another kind, or for a
    // stress whose section property (A, W2, W3) is missing or 0.
    int GetDiagram(int tipo, std::vector<DiagramStretch>& tratti);
    int GetRisultato(int tipo, double x, CTraveRisultati::Side lato, double& valore);

    int GetRisultatoNodo(int nodo, int tipo, double& valore) override; // at node 0 or 1 of the line
    // Widens the bounds by the extremes along the whole line; with `primo` non-zero the bounds are set, and it becomes
    // 0.
    int UpdateMinMaxRisultati(int tipo, int& primo, double& minimo, double& massimo) override;

  protected:
    explicit CLineaRisultati(unsigned tipo) : CLineaFisica(tipo) {}

  private:
    int ForceKind(int tipo, double& divisor);
};
