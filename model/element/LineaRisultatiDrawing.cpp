// The diagrams of a line's results.
#include "model/element/LineaRisultati.h"
#include "model/entity/Sezione.h"
#include "model/result/DiagramSheet.h"
#include "model/result/TraveRisultati.h"
#include "model/view/ElementoSettings.h"
#include "platform/drawing/DeviceContext.h"
#include "platform/window/Window.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace {

// In the order of the flags.
struct Quantity {
    int kind;
    int lengthPower;                     // of its unit force * length^power
    int record;                          // the section records' index of the force that it comes from
    double (CSezione::*divisor)() const; // null for forces
};
const Quantity quantities[] = {
    {CElementoSettings::N, 0, 0, nullptr},
    {CElementoSettings::V2, 0, 1, nullptr},
    {CElementoSettings::V3, 0, 2, nullptr},
    {CElementoSettings::T, 1, 3, nullptr},
    {CElementoSettings::M2, 1, 4, nullptr},
    {CElementoSettings::M3, 1, 5, nullptr},
    {CElementoSettings::N_A, -2, 0, &CSezione::GetArea},
    {CElementoSettings::M2_W2, -2, 4, &CSezione::GetW2},
    {CElementoSettings::M3_W3, -2, 5, &CSezione::GetW3},
};

// 0 when the section lacks what the force is divided by.
double DivisorOf(CLineaRisultati& line, const Quantity& quantity) {
    const CSezione* section = line.GetSezione();
    const double divisor = !quantity.divisor ? 1 : section ? (section->*quantity.divisor)() : 0;
    return divisor > 0 ? divisor : 0;
}

// Records of sections at equal distances, joined by straight lines: all that is known of results that were read back.
std::vector<DiagramStretch> JoinRecords(CLineaRisultati& line, const Quantity& quantity, double divisor) {
    std::vector<DiagramStretch> pieces;
    const CElementoRisultati& records = *line.GetRisultati();
    const int last = records.GetNodeResultCount() - 1;
    pieces.reserve(static_cast<std::size_t>(last));
    const double step = line.GetLunghezzaLinea() / last, perStep = 1 / step;
    const double factor = 1 / divisor;
    double before = factor * records.GetNodeResults(0)->GetIndex(quantity.record);
    for (int i = 0; i < last; ++i) {
        const double after = factor * records.GetNodeResults(i + 1)->GetIndex(quantity.record);
        pieces.push_back({step * i, step * (i + 1), {before, (after - before) * perStep, 0, 0}});
        before = after;
    }
    return pieces;
}

CTraveRisultati::Scale ScaleOf(CLineaRisultati& line) {
    if (const CTraveRisultati* results = line.GetLineResults())
        return results->GetScale();
    const CElementoRisultati& records = *line.GetRisultati();
    double force = 0, moment = 0;
    for (int i = 0; i < records.GetNodeResultCount(); ++i) {
        const CNodoRisultati& record = *records.GetNodeResults(i);
        for (int k = 0; k < 3; ++k) {
            force = std::max(force, std::abs(record.GetIndex(k)));
            moment = std::max(moment, std::abs(record.GetIndex(k + 3)));
        }
    }
    const double length = line.GetLunghezzaLinea();
    return {std::max(force, moment / length), std::max(moment, force * length)};
}

// Empty when the section lacks what the force is divided by.
DiagramCurve CurveOf(CLineaRisultati& line, const Quantity& quantity, const CTraveRisultati::Scale& scale) {
    const double divisor = DivisorOf(line, quantity), length = line.GetLunghezzaLinea();
    std::vector<DiagramStretch> pieces;
    if (divisor == 0)
        return {};
    if (line.GetLineResults())
        line.GetDiagram(quantity.kind, pieces);
    else
        pieces = JoinRecords(line, quantity, divisor);
    DiagramCurve curve(std::move(pieces));
    // What the solution of the equations leaves of a force that is not there would fill its panel like any other: below
    // a billionth of the largest one of the case it is none.
    constexpr double noise = 1e-9;
    const double smallest = noise * (quantity.record < 3 ? scale.force : scale.moment) / divisor;
    return curve.Largest() > smallest ? curve : DiagramCurve({{0, length, {}}});
}

std::vector<Diagram> DiagramsOf(CLineaRisultati& line, const int (&wanted)[9]) {
    std::vector<Diagram> diagrams;
    const CTraveRisultati::Scale scale = ScaleOf(line);
    for (int i = 0; i < 9; ++i)
        if (wanted[i]) {
            const Quantity& each = quantities[i];
            const CGrandezza unit(0, each.lengthPower, 1, line.GetLunghezza(), line.GetForza());
            diagrams.push_back({each.kind, unit.GetUnitText(), CurveOf(line, each, scale)});
        }
    return diagrams;
}

bool HasResults(CLineaRisultati& line) {
    CElementoRisultati* results = line.GetRisultati();
    return results && results->GetNodeResultCount() >= 2 && line.GetLunghezzaLinea() > 0;
}

} // namespace

void CLineaRisultati::DisegnaDiagrammaTrave(CWnd* pWnd, int bN, int bV2, int bV3, int bT, int bM2, int bM3, int bNA,
                                            int bM2W2, int bM3W3, int bLettura, CPoint punto) {
    if (!pWnd || !pWnd->GetSafeHwnd() || !HasResults(*this))
        return;
    const int wanted[9] = {bN, bV2, bV3, bT, bM2, bM3, bNA, bM2W2, bM3W3};
    const std::vector<Diagram> diagrams = DiagramsOf(*this, wanted);
    const DiagramLine line{GetLunghezzaLinea(), CGrandezza::_GetStringLunghezza(GetLunghezza()), GetIDNodoIniziale(),
                           GetIDNodoFinale()};
    CRect area;
    pWnd->GetClientRect(area);
    CClientDC dc(pWnd);
    if (bLettura) // the hair line drawn before goes with the picture that it lies on
        dc.FillSolidRect(area, RGB(255, 255, 255));
    DiagramSheet sheet(dc, area, diagrams, line);
    sheet.Draw();
    if (!bLettura)
        return;
    if (const CWnd* parent = pWnd->GetParent()) {
        parent->ClientToScreen(punto);
        pWnd->ScreenToClient(punto);
    }
    sheet.DrawReading(punto);
}
