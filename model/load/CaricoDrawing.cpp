// How loads look on the object that carries them. Arrows have a fixed size on the screen: a view shows where loads are
// and how they point, and prints their values on request.
#include "model/element/Linea.h"
#include "model/element/Nodo.h"
#include "model/load/Carico.h"
#include "model/view/Adv3d.h"

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

Ends EndsOf(CElemento& elemento) {
    CNodo* const first = elemento.GetIndexNodo(0);
    CNodo* const last = elemento.GetIndexNodo(elemento.GetSize() - 1);
    if (!first || !last)
        return {};
    return {*first->GetPunto(), *last->GetPunto(), true};
}

void Label(Adv3d& vista, const CFPoint& at, double value, COLORREF color) {
    const Adv3d::Punto p = vista.Project(at);
    CString text;
    text.Format("%g", value);
    if (p.visible)
        vista.Text(p.Pixel() + CSize(4, -14), text, color);
}

void ForceArrow(Adv3d& vista, const CFPoint& tip, const CFPoint& force, int values) {
    const double size = force.GetMod();
    if (size == 0)
        return;
    vista.Arrow(tip, force, arrowPixels, loadColor, 1);
    if (values)
        Label(vista, tip - force * (arrowPixels * vista.GetUnitsPerPixel(tip) / size), size, loadColor);
}

// A moment is an arrow with two heads along its axis.
void MomentArrow(Adv3d& vista, const CFPoint& tip, const CFPoint& moment, int values) {
    const double size = moment.GetMod();
    if (size == 0)
        return;
    const double pixel = vista.GetUnitsPerPixel(tip);
    vista.Arrow(tip, moment, arrowPixels, momentColor, 1);
    vista.Arrow(tip - moment * (6 * pixel / size), moment, arrowPixels - 12, momentColor, 1);
    if (values)
        Label(vista, tip - moment * (arrowPixels * pixel / size), size, momentColor);
}

// A comb of arrows between two places of a line, as high as the load at each.
void Comb(Adv3d& vista, const CFPoint& from, const CFPoint& to, const CFPoint& direction, double start, double end,
          int values) {
    const double largest = std::max(std::abs(start), std::abs(end));
    CFPoint unit = direction;
    if (largest == 0 || !unit.Normalize())
        return;
    const CFPoint middle = (from + to) * 0.5;
    const double height = arrowPixels * vista.GetUnitsPerPixel(middle);
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
        Label(vista, top[0], start, loadColor);
        if (end != start)
            Label(vista, top[teeth], end, loadColor);
    }
}

} // namespace

void CCarico::DrawOn(CElemento&, Adv3d&, int) {
}

void CCaricoNodale::DrawOn(CElemento& elemento, Adv3d& vista, int valori) {
    const Ends ends = EndsOf(elemento);
    if (!ends.valid)
        return;
    ForceArrow(vista, ends.from, m_force, valori);
    MomentArrow(vista, ends.from, m_moment, valori);
}

void CCaricoSpostamento::DrawOn(CElemento& elemento, Adv3d& vista, int valori) {
    const Ends ends = EndsOf(elemento);
    const CFPoint& shown = m_displacement.GetMod() > 0 ? m_displacement : m_rotation;
    if (!ends.valid || shown.GetMod() == 0)
        return;
    vista.Arrow(ends.from, shown, arrowPixels, settlementColor, 2);
    if (valori)
        Label(vista, ends.from, shown.GetMod(), settlementColor);
}

void CCaricoUniforme::DrawOn(CElemento& elemento, Adv3d& vista, int valori) {
    const Ends ends = EndsOf(elemento);
    const double size = m_load.GetMod();
    if (ends.valid)
        Comb(vista, ends.from, ends.to, GlobalVector(elemento, m_load), size, size, valori);
}

void CCaricoTrapezoidale::DrawOn(CElemento& elemento, Adv3d& vista, int valori) {
    const Ends ends = EndsOf(elemento);
    CFPoint along = ends.to - ends.from;
    if (!ends.valid || !along.Normalize())
        return;
    static const CFPoint axes[3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    for (int i = 0; i < 3; ++i)
        Comb(vista, ends.from + along * m_stretches[i].da, ends.from + along * m_stretches[i].a,
             GlobalVector(elemento, axes[i]), m_stretches[i].inizio, m_stretches[i].fine, valori);
}

void CCaricoConcentrato::DrawOn(CElemento& elemento, Adv3d& vista, int valori) {
    const Ends ends = EndsOf(elemento);
    CFPoint along = ends.to - ends.from;
    if (!ends.valid || !along.Normalize())
        return;
    const CFPoint at = ends.from + along * m_dDistanza;
    ForceArrow(vista, at, GlobalVector(elemento, m_force), valori);
    MomentArrow(vista, at, GlobalVector(elemento, m_moment), valori);
}

void CCaricoTemperatura::DrawOn(CElemento& elemento, Adv3d& vista, int valori) {
    const Ends ends = EndsOf(elemento);
    const Adv3d::Punto middle = vista.Project((ends.from + ends.to) * 0.5);
    if (!ends.valid || !middle.visible)
        return;
    CString text = "T";
    if (valori)
        text.Format("T %g", m_dUniforme);
    vista.Text(middle.Pixel() + CSize(3, 3), text, temperatureColor);
}
