// Results of one line: internal forces that are exact at every place, not only where the analysis stored them. Both
// ends are as stored: where equilibrium leads elsewhere from the first to the second, as with results of a dynamic case
// whose sign was changed at one end, what is missing grows evenly along the line.
//
// Signs, in the line's local axes: N is tension; V2, V3 and T are what the part beyond the place acts with on the part
// before it, along axes 2, 3 and 1; M2 and M3 are positive when they stretch the side that axis 3, or 2, points away
// from. So dM3/dx = -V2, dM2/dx = -V3, and a load along a positive axis makes its V fall.
#pragma once

#include "model/result/DiagramStretch.h"
#include "model/result/ElementoRisultati.h"

#include <vector>

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

    // The place of N, V2, V3, T, M2 or M3 (kinds of CElementoSettings) in a record; -1 for any other kind.
    static int Component(int tipo);

    double GetLunghezzaLinea() const { return m_dLunghezza; } // length unit
    void SetLineLength(double lunghezza) { m_dLunghezza = lunghezza; }

    // The forces that the nodes act with on the ends: three forces and three moments at the first, then at the second,
    // along the positive local axes.
    void GetEndForces(double (&forze)[12]) const;
    void SetEndForces(const double (&forze)[12]);

    void AddCarico(const Distributed& carico) { m_distributed.push_back(carico); }
    void AddCarico(const PointForce& carico) { m_pointForces.push_back(carico); }
    void RemoveCarichi();
    const std::vector<Distributed>& GetDistributed() const { return m_distributed; }
    const std::vector<PointForce>& GetPointForces() const { return m_pointForces; }

    // What the sizes of forces and moments are judged by. A moment counts as a force at the length of its line, and
    // the other way round.
    struct Scale {
        double force = 0;
        double moment = 0;

        void Widen(const Scale& other, double factor = 1);
    };
    // Of the case, when that was told, otherwise of this line alone: the largest on the ends or between them. 0 for a
    // line without length.
    Scale GetScale() const;
    void SetCaseScale(const Scale& scale) { m_caseScale = scale; }

    // Adds another case's results of the same line, times a factor: that is how combinations are made. Loads at one
    // place become one.
    void Sum(const CTraveRisultati& altro, double fattore);

    // N, V2, V3, T, M2 or M3 (kinds of CElementoSettings) at a length x from the first node; 0 for any other kind.
    double GetInternalForce(int tipo, double x, Side lato = After) const;
    // The same along the whole line, stretch after stretch without gaps; neighbours differ where a value jumps. Empty
    // for another kind or a line without length.
    std::vector<DiagramStretch> GetDiagram(int tipo) const;

  private:
    double GetLargestForce() const;
    double GetBalancedForce(int which, double x, Side lato) const;
    double GetGrowth(int which) const;

    double m_dLunghezza = 0;
    Scale m_caseScale;
    std::vector<Distributed> m_distributed;
    std::vector<PointForce> m_pointForces;
};
