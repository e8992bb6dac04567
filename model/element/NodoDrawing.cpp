// How a node looks, and where the mouse touches it.
#include "model/element/Nodo.h"
#include "model/view/Adv3d.h"
#include "model/view/Adv3dRect.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int nodeHalf = 2;    // half the side of a node's square, pixels
constexpr int touchPixels = 5; // how far from a node a click still means it
constexpr COLORREF restraintColor = RGB(0, 130, 60);
constexpr COLORREF springColor = RGB(110, 60, 160);

const CFPoint worldAxes[3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};

// Restraints that are neither a hinge nor a clamp: a bar across each fixed axis, a short stroke for a fixed rotation.
void DrawComponents(Adv3d& vista, const CFPoint& at, const CVincolo& restraint) {
    const double pixel = vista.GetUnitsPerPixel(at);
    for (int i = 0; i < 3; ++i) {
        const CFPoint& axis = worldAxes[i];
        const CFPoint foot = at - axis * (12 * pixel);
        if (restraint.IsFixed(i)) {
            vista.Segment(at, foot, restraintColor, 2);
            const CFPoint across = worldAxes[(i + 1) % 3] * (5 * pixel);
            vista.Segment(foot - across, foot + across, restraintColor, 2);
        }
        if (restraint.IsFixed(i + 3))
            vista.Segment(at + axis * (4 * pixel), at + axis * (10 * pixel), restraintColor, 3);
    }
}

void DrawHinge(Adv3d& vista, CPoint at) {
    const CPoint triangle[] = {at, at + CSize(-7, 11), at + CSize(7, 11), at};
    vista.ScreenPolyline(triangle, 4, restraintColor, 2);
}

void DrawClamp(Adv3d& vista, CPoint at) {
    const CPoint box[] = {at + CSize(-8, 3), at + CSize(8, 3), at + CSize(8, 11), at + CSize(-8, 11),
                          at + CSize(-8, 3)};
    vista.ScreenPolyline(box, 5, restraintColor, 2);
    for (int x = -8; x < 8; x += 5) {
        const CPoint hatch[] = {at + CSize(x, 11), at + CSize(x + 5, 3)};
        vista.ScreenPolyline(hatch, 2, restraintColor, 1);
    }
}

void DrawZigzag(Adv3d& vista, const CFPoint& at, CFPoint direction) {
    const Adv3d::Punto start = vista.Project(at);
    const Adv3d::Punto ahead = vista.Project(at - direction * vista.GetUnitsPerPixel(at));
    if (!start.visible || !ahead.visible)
        return;
    double dx = ahead.x - start.x, dy = ahead.y - start.y;
    const double seen = std::hypot(dx, dy);
    if (seen < 1e-3) { // looking along the spring: only a ring is left of it
        vista.ScreenCircle(start.Pixel(), 6, springColor, 1);
        return;
    }
    dx /= seen;
    dy /= seen;
    constexpr int bends = 8;
    CPoint points[bends + 2];
    const double step = 26 * std::min(seen, 1.0) / (bends + 1);
    for (int i = 0; i < bends + 2; ++i) {
        const double side = i == 0 || i == bends + 1 ? 0 : i % 2 ? 4 : -4;
        points[i] = CPoint(static_cast<int>(std::lround(start.x + dx * step * i - dy * side)),
                           static_cast<int>(std::lround(start.y + dy * step * i + dx * side)));
    }
    vista.ScreenPolyline(points, bends + 2, springColor, 1);
}

} // namespace

int CNodo::CanDraw(Adv3d* pVista) {
    return CElementoCarico::CanDraw(pVista) && pVista->Project(m_point).visible;
}

void CNodo::Draw(Adv3d* pVista) {
    if (!CElementoCarico::CanDraw(pVista))
        return;
    const Adv3d::Punto p = pVista->Project(m_point);
    if (!p.visible)
        return;
    if (IsSelect())
        pVista->ScreenSquare(p.Pixel(), nodeHalf + 1, Adv3d::selectionColor, 2);
    else
        pVista->ScreenSquare(p.Pixel(), nodeHalf, Settings(*pVista).GetColor(), 1);
}

void CNodo::DrawInformazioni(Adv3d* pVista) {
    // Most nodes of a large model: not even projected.
    if (!pVista || (!m_support && IsBare(*pVista)) || !CanDraw(pVista))
        return;
    CElementoCarico::DrawInformazioni(pVista);
    if (!m_support)
        return;
    const CElementoSettings& shown = Settings(*pVista);
    if (shown.IsItem(CElementoSettings::Restraints))
        DrawVincolo(pVista);
    if (shown.IsItem(CElementoSettings::Springs))
        DrawMolle(pVista);
}

int CNodo::IsInRect(CPoint a, CPoint b, Adv3d* pVista) {
    if (!CanDraw(pVista))
        return 0;
    CRect rect(a, b);
    rect.NormalizeRect();
    rect.InflateRect(0, 0, 1, 1); // the lower right corner belongs to what the user framed
    return rect.PtInRect(pVista->Project(m_point).Pixel());
}

int CNodo::PtIn(CPoint punto, Adv3d* pVista) {
    if (!CanDraw(pVista))
        return 0;
    const Adv3d::Punto p = pVista->Project(m_point);
    return std::abs(p.x - punto.x) <= touchPixels && std::abs(p.y - punto.y) <= touchPixels;
}

void CNodo::UpdateInvalideRect(Adv3dRect* pRect, int margine) {
    if (pRect)
        pRect->Add(m_point, margine + nodeHalf + 3);
}

double CNodo::GetProfonditaVista(Adv3d* pVista) {
    return pVista ? pVista->GetDepth(m_point) : 0;
}

void CNodo::DrawInfo(Adv3d* pVista) {
    if (!pVista || !Settings(*pVista).IsItem(CElementoSettings::Identifier))
        return;
    const Adv3d::Punto p = pVista->Project(m_point);
    CString text;
    text.Format("%d", GetID());
    if (p.visible)
        pVista->Text(p.Pixel() + CSize(4, 2), text, Settings(*pVista).GetColor());
}

void CNodo::DrawVincolo(Adv3d* pVista) {
    const CVincolo* restraint = GetVincolo();
    if (!restraint || !pVista)
        return;
    const Adv3d::Punto p = pVista->Project(m_point);
    if (!p.visible)
        return;
    constexpr unsigned translations = CVincolo::Tx | CVincolo::Ty | CVincolo::Tz;
    if (restraint->GetMask() == CVincolo::All)
        DrawClamp(*pVista, p.Pixel());
    else if (restraint->GetMask() == translations)
        DrawHinge(*pVista, p.Pixel());
    else
        DrawComponents(*pVista, m_point, *restraint);
}

void CNodo::DrawMolle(Adv3d* pVista) {
    for (int i = 0; pVista && i < GetSizeMolle(); ++i) {
        const CMolla* spring = GetIndexMolla(i);
        CFPoint direction = spring->GetDirection();
        if (spring->GetStiffness().GetValue() == 0 || !direction.Normalize())
            continue;
        const Adv3d::Punto p = pVista->Project(m_point);
        if (spring->GetTipo() == CMolla::Translational)
            DrawZigzag(*pVista, m_point, direction);
        else if (p.visible)
            pVista->ScreenCircle(p.Pixel(), 9, springColor, 1);
    }
}
