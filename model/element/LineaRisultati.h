// Lines with results: the part of a line that shows what the analysis found for it.
#pragma once

#include "model/element/LineaFisica.h"
#include "model/result/DiagramStretch.h"
#include "model/result/TraveRisultati.h"

#include <vector>

class CWnd;

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

    // An analysis gives every line results: the pointer lies in the line, not in the record of what few objects have.
    CElementoRisultati* GetRisultati() override { return m_pRisultati; }
    void SetRisultati(CElementoRisultati* pRisultati) override { m_pRisultati = pRisultati; }
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

    CElementoRisultati* m_pRisultati = nullptr;
};
