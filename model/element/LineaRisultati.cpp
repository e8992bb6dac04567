#include "model/element/LineaRisultati.h"

#include "model/entity/Sezione.h"
#include "model/view/ElementoSettings.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CLineaRisultati, CLineaFisica)

CTraveRisultati* CLineaRisultati::GetLineResults() {
    return DYNAMIC_DOWNCAST(CTraveRisultati, static_cast<CObject*>(GetRisultati()));
}

// The internal force that a kind shows, and what it is divided by: 1, or a section property. 0 for a kind, or a stress,
// that the line does not have.
int CLineaRisultati::ForceKind(int tipo, double& divisor) {
    const CSezione* section = GetSezione();
    divisor = 1;
    int base = tipo;
    if (tipo == CElementoSettings::N_A) {
        divisor = section ? section->GetArea() : 0;
        base = CElementoSettings::N;
    } else if (tipo == CElementoSettings::M2_W2) {
        divisor = section ? section->GetW2() : 0;
        base = CElementoSettings::M2;
    } else if (tipo == CElementoSettings::M3_W3) {
        divisor = section ? section->GetW3() : 0;
        base = CElementoSettings::M3;
    }
    return divisor > 0 && CTraveRisultati::Component(base) >= 0 ? base : 0;
}

int CLineaRisultati::GetDiagram(int tipo, std::vector<DiagramStretch>& tratti) {
    double divisor;
    const int kind = ForceKind(tipo, divisor);
    const CTraveRisultati* results = GetLineResults();
    if (!kind || !results)
        return 0;
    tratti = results->GetDiagram(kind);
    for (DiagramStretch& piece : tratti)
        for (double& coefficient : piece.c)
            coefficient /= divisor;
    return 1;
}

int CLineaRisultati::GetRisultato(int tipo, double x, CTraveRisultati::Side lato, double& valore) {
    double divisor;
    const int kind = ForceKind(tipo, divisor);
    const CTraveRisultati* results = GetLineResults();
    if (!kind || !results)
        return 0;
    valore = results->GetInternalForce(kind, x, lato) / divisor;
    return 1;
}

int CLineaRisultati::GetRisultatoNodo(int nodo, int tipo, double& valore) {
    CTraveRisultati* results = GetLineResults();
    double divisor;
    const int kind = ForceKind(tipo, divisor);
    if (!kind || !results || nodo < 0 || nodo > 1)
        return 0;
    valore = results->GetNodeResults(nodo)->GetIndex(CTraveRisultati::Component(kind)) / divisor;
    return 1;
}

int CLineaRisultati::UpdateMinMaxRisultati(int tipo, int& primo, double& minimo, double& massimo) {
    std::vector<DiagramStretch> pieces;
    if (!GetDiagram(tipo, pieces) || pieces.empty())
        return 0;
    const auto widen = [&](double value) {
        minimo = primo ? value : std::min(minimo, value);
        massimo = primo ? value : std::max(massimo, value);
        primo = 0;
    };
    for (const DiagramStretch& piece : pieces) {
        double level[2];
        widen(piece.GetValue(piece.da));
        widen(piece.GetValue(piece.a));
        for (int i = 0, count = piece.GetEnds(level); i < count; ++i)
            widen(piece.GetValue(level[i]));
    }
    return 1;
}
