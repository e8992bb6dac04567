// How loads look on the object that carries them. Arrows have a fixed size on the screen: a view shows where loads are
// and how they point, and prints their values on request.
#include "model/Adv3d.h"
#include "model/Carico.h"
#include "model/Linea.h"
#include "model/Nodo.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr COLORREF loadColor = RGB(200, 90, 0);
constexpr COLORREF momentColor = RGB(150, 0, 150);
constexpr COLORREF settlementColor = RGB(0, 120, 140);
constexpr COLORREF temperatureColor = RGB(190, 0, 60);
constexpr double arrowPixels = 34;

struct Ends {
    CFPoint from, to;
    bool valid = false;
};

Ends endsOf(CElemento& elemento) {
    CNodo* const first = elemento.GetIndexNodo(0);
    CNodo* const last = elemento.GetIndexNodo(elemento.GetSize() - 1);
    if (!first || !last)
        return {};
    return {*first->GetPunto(), *last->GetPunto(), true};
}

void label(Adv3d& vista, const CFPoint& at, double value, COLORREF color) {
    const Adv3d::Punto p = vista.Project(at);
    CString text;
    text.Format("%g", value);
    if (p.visible)
        vista.Text(p.pixel() + CSize(4, -14), text, color);
}

void forceArrow(Adv3d& vista, const CFPoint& tip, const CFPoint& force, int values) {
    const double size = force.GetMod();
    if (size == 0)
        return;
    vista.Arrow(tip, force, arrowPixels, loadColor, 1);
    if (values)
        label(vista, tip - force * (arrowPixels * vista.GetUnitaPerPixel(tip) / size), size, loadColor);
}

// A moment is an arrow with two heads along its axis.
void momentArrow(Adv3d& vista, const CFPoint& tip, const CFPoint& moment, int values) {
    const double size = moment.GetMod();
    if (size == 0)
        return;
    const double pixel = vista.GetUnitaPerPixel(tip);
    vista.Arrow(tip, moment, arrowPixels, momentColor, 1);
    vista.Arrow(tip - moment * (6 * pixel / size), moment, arrowPixels - 12, momentColor, 1);
    if (values)
        label(vista, tip - moment * (arrowPixels * pixel / size), size, momentColor);
}

// A comb of arrows between two places of a line, as high as the load at each.
void comb(Adv3d& vista, const CFPoint& from, const CFPoint& to, const CFPoint& direction, double start, double end,
          int values) {
    const double largest = std::max(std::abs(start), std::abs(end));
    CFPoint unit = direction;
    if (largest == 0 || !unit.Normalize())
        return;
    const CFPoint middle = (from + to) * 0.5;
    const double height = arrowPixels * vista.GetUnitaPerPixel(middle);
    constexpr int teeth = 6;
    CFPoint top[teeth + 1];
    for (int i = 0; i <= teeth; ++i) {
        const double t = static_cast<double>(i) / teeth;
        const double share = (start + (end - start) * t) / largest;
        const CFPoint foot = from + (to - from) * t;
        top[i] = foot - unit * (height * share);
        if (std::abs(share) > 0.05)
            vista.Arrow(foot, unit * share, arrowPixels * std::abs(share), loadColor, 1);
    }
    vista.Polyline(top, teeth + 1, loadColor, 1);
    if (values) {
        label(vista, top[0], start, loadColor);
        if (end != start)
            label(vista, top[teeth], end, loadColor);
    }
}

} // namespace

void CCarico::DrawSu(CElemento&, Adv3d&, int) {
}

void CCaricoNodale::DrawSu(CElemento& elemento, Adv3d& vista, int valori) {
    const Ends ends = endsOf(elemento);
    if (!ends.valid)
        return;
    forceArrow(vista, ends.from, m_forza, valori);
    momentArrow(vista, ends.from, m_momento, valori);
}

void CCaricoSpostamento::DrawSu(CElemento& elemento, Adv3d& vista, int valori) {
    const Ends ends = endsOf(elemento);
    const CFPoint& shown = m_spostamento.GetMod() > 0 ? m_spostamento : m_rotazione;
    if (!ends.valid || shown.GetMod() == 0)
        return;
    vista.Arrow(ends.from, shown, arrowPixels, settlementColor, 2);
    if (valori)
        label(vista, ends.from, shown.GetMod(), settlementColor);
}

void CCaricoUniforme::DrawSu(CElemento& elemento, Adv3d& vista, int valori) {
    const Ends ends = endsOf(elemento);
    const double size = m_carico.GetMod();
    if (ends.valid)
        comb(vista, ends.from, ends.to, globalVector(elemento, m_carico), size, size, valori);
}

void CCaricoTrapezoidale::DrawSu(CElemento& elemento, Adv3d& vista, int valori) {
    const Ends ends = endsOf(elemento);
    CFPoint along = ends.to - ends.from;
    if (!ends.valid || !along.Normalize())
        return;
    static const CFPoint axes[3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    for (int i = 0; i < 3; ++i)
        comb(vista, ends.from + along * m_tratti[i].da, ends.from + along * m_tratti[i].a,
             globalVector(elemento, axes[i]), m_tratti[i].inizio, m_tratti[i].fine, valori);
}

void CCaricoConcentrato::DrawSu(CElemento& elemento, Adv3d& vista, int valori) {
    const Ends ends = endsOf(elemento);
    CFPoint along = ends.to - ends.from;
    if (!ends.valid || !along.Normalize())
        return;
    const CFPoint at = ends.from + along * m_dDistanza;
    forceArrow(vista, at, globalVector(elemento, m_forza), valori);
    momentArrow(vista, at, globalVector(elemento, m_momento), valori);
}

void CCaricoTemperatura::DrawSu(CElemento& elemento, Adv3d& vista, int valori) {
    const Ends ends = endsOf(elemento);
    const Adv3d::Punto middle = vista.Project((ends.from + ends.to) * 0.5);
    if (!ends.valid || !middle.visible)
        return;
    CString text = "T";
    if (valori)
        text.Format("T %g", m_dUniforme);
    vista.Text(middle.pixel() + CSize(3, 3), text, temperatureColor);
}
