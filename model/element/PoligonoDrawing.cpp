// How a polygon looks, and where the mouse touches it.
#include "model/element/FaceElemento.h"
#include "model/element/Nodo.h"
#include "model/element/Poligono.h"
#include "model/view/Adv3d.h"
#include "model/view/Adv3dRect.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// The projected corners; empty when one of them cannot be seen.
std::vector<CPoint> Corners(CPoligono& polygon, const Adv3d& vista) {
    std::vector<CPoint> points;
    points.reserve(static_cast<std::size_t>(polygon.GetSize()));
    for (int i = 0; i < polygon.GetSize(); ++i) {
        CNodo* const node = polygon.GetVertice(i);
        const Adv3d::Punto p = node ? vista.Project(*node->GetPunto()) : Adv3d::Punto();
        if (!p.visible)
            return {};
        points.push_back(p.Pixel());
    }
    return points;
}

using Outline = std::vector<Adv3d::Punto>;

// The outline of what can be seen, of which a perspective may leave a part behind the eye.
Outline VisibleOutline(CPoligono& polygon, const Adv3d& vista) {
    Outline outline;
    Adv3d::Punto p, q;
    for (int i = 0, count = polygon.GetSize(); i < count; ++i) {
        const CFPoint& to = *polygon.GetVertice((i + 1) % count)->GetPunto();
        if (!vista.ProjectSegment(*polygon.GetVertice(i)->GetPunto(), to, p, q))
            continue;
        outline.push_back(p);
        if (!vista.Project(to).visible)
            outline.push_back(q); // the next side begins elsewhere
    }
    return outline;
}

bool Inside(const Outline& outline, CPoint point) {
    bool odd = false;
    for (std::size_t i = 0, j = outline.size() - 1; i < outline.size(); j = i++) {
        const Adv3d::Punto &a = outline[i], &b = outline[j];
        if ((a.y > point.y) == (b.y > point.y))
            continue;
        if (point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y))
            odd = !odd;
    }
    return odd;
}

// Seen edge on, a polygon is a line: hardly wider than what a click may miss a line by.
bool IsThin(const Outline& outline) {
    double twiceArea = 0, around = 0;
    for (std::size_t i = 0, j = outline.size() - 1; i < outline.size(); j = i++) {
        const Adv3d::Punto &a = outline[j], &b = outline[i];
        twiceArea += (a.x - outline[0].x) * (b.y - outline[0].y) - (b.x - outline[0].x) * (a.y - outline[0].y);
        around += std::hypot(b.x - a.x, b.y - a.y);
    }
    return std::abs(twiceArea) <= around * Adv3d::touchPixels;
}

bool NearEdge(const Outline& outline, CPoint point) {
    for (std::size_t i = 0, j = outline.size() - 1; i < outline.size(); j = i++)
        if (outline[j].DistanceFromLine(point, outline[i]) <= Adv3d::touchPixels)
            return true;
    return false;
}

CRect Bounds(const std::vector<CPoint>& points) {
    CRect rect;
    for (const CPoint& p : points)
        rect |= CRect(p, CSize(1, 1));
    return rect;
}

// Lighter by half, so that the edges and what stands in front stay readable.
COLORREF Pale(COLORREF color) {
    return RGB((GetRValue(color) + 255) / 2, (GetGValue(color) + 255) / 2, (GetBValue(color) + 255) / 2);
}

} // namespace

int CPoligono::CanDraw(Adv3d* pVista) {
    return Complete() && CElementoSpecifiche::CanDraw(pVista);
}

void CPoligono::Draw(Adv3d* pVista) {
    if (!CanDraw(pVista))
        return;
    const CElementoSettings& shown = Settings(*pVista);
    const COLORREF color = IsSelect() ? Adv3d::selectionColor : shown.GetColor();
    const int width = IsSelect() ? 2 : 1;
    for (int i = 0; i < GetSize(); ++i)
        pVista->Segment(*GetVertice(i)->GetPunto(), *GetVertice((i + 1) % GetSize())->GetPunto(), color, width);
}

int CPoligono::IsInRect(CPoint a, CPoint b, Adv3d* pVista) {
    if (!CanDraw(pVista))
        return 0;
    CRect rect(a, b);
    rect.NormalizeRect();
    rect.InflateRect(0, 0, 1, 1);
    const std::vector<CPoint> points = Corners(*this, *pVista);
    for (const CPoint& p : points)
        if (!rect.PtInRect(p))
            return 0;
    return !points.empty();
}

int CPoligono::PtIn(CPoint punto, Adv3d* pVista) {
    if (!CanDraw(pVista))
        return 0;
    const Outline outline = VisibleOutline(*this, *pVista);
    return !outline.empty() && (Inside(outline, punto) || (IsThin(outline) && NearEdge(outline, punto)));
}

void CPoligono::UpdateInvalideRect(Adv3dRect* pRect, int margine) {
    if (!pRect || !pRect->GetVista() || !Complete())
        return;
    const std::vector<CPoint> points = Corners(*this, *pRect->GetVista());
    if (points.empty())
        return;
    CRect around = Bounds(points);
    around.InflateRect(margine + 3, margine + 3);
    pRect->Add(around);
}

double CPoligono::GetProfonditaVista(Adv3d* pVista) {
    return pVista ? pVista->GetDepth(GetCentro()) : 0;
}

int CPoligono::GetSizeFaccie(Adv3d* pVista) {
    return CanDraw(pVista) && GetDrawFaces() && Settings(*pVista).IsItem(CElementoSettings::Faces);
}

int CPoligono::SetFacesArray(FaceElemento** ppFaccia, Adv3d* pVista, Adv3dRect* pRect) {
    if (!ppFaccia || !*ppFaccia || !GetSizeFaccie(pVista))
        return 0;
    FaceElemento& face = **ppFaccia;
    face.element = this;
    face.corners = Corners(*this, *pVista);
    if (face.corners.empty())
        return 0;
    face.depth = GetProfonditaVista(pVista);
    face.edge = IsSelect() ? Adv3d::selectionColor : Settings(*pVista).GetColor();
    face.fill = Pale(face.edge);
    ++*ppFaccia;
    UpdateInvalideRect(pRect, 0);
    return 1;
}

void CPoligono::DrawInfo(Adv3d* pVista) {
    if (!CanDraw(pVista) || !Settings(*pVista).IsItem(CElementoSettings::Identifier))
        return;
    const Adv3d::Punto p = pVista->Project(GetCentro());
    CString text;
    text.Format("%d", GetID());
    if (p.visible)
        pVista->Text(p.Pixel(), text, Settings(*pVista).GetColor());
}
