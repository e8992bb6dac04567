// How a line looks, and where the mouse touches it.
#include "model/element/Linea.h"
#include "model/element/Nodo.h"
#include "model/view/Adv3d.h"
#include "model/view/Adv3dRect.h"

namespace {

constexpr COLORREF releaseColor = RGB(200, 0, 0);
constexpr COLORREF axisColors[3] = {RGB(200, 0, 0), RGB(0, 150, 0), RGB(0, 0, 200)};

} // namespace

int CLinea::CanDraw(Adv3d* pVista) {
    return m_pNodi[0] && m_pNodi[1] && CElementoSpecifiche::CanDraw(pVista);
}

void CLinea::Draw(Adv3d* pVista) {
    if (!CanDraw(pVista))
        return;
    const CElementoSettings& shown = Settings(*pVista);
    if (IsSelect())
        pVista->Segment(*m_pNodi[0]->GetPunto(), *m_pNodi[1]->GetPunto(), Adv3d::selectionColor, 2);
    else
        pVista->Segment(*m_pNodi[0]->GetPunto(), *m_pNodi[1]->GetPunto(), shown.GetColor());
}

int CLinea::IsInRect(CPoint a, CPoint b, Adv3d* pVista) {
    if (!CanDraw(pVista))
        return 0;
    CRect rect(a, b);
    rect.NormalizeRect();
    rect.InflateRect(0, 0, 1, 1);
    for (CNodo* node : m_pNodi) {
        const Adv3d::Punto p = pVista->Project(*node->GetPunto());
        if (!p.visible || !rect.PtInRect(p.Pixel()))
            return 0;
    }
    return 1;
}

int CLinea::PtIn(CPoint punto, Adv3d* pVista) {
    if (!CanDraw(pVista))
        return 0;
    Adv3d::Punto a, b;
    return pVista->ProjectSegment(*m_pNodi[0]->GetPunto(), *m_pNodi[1]->GetPunto(), a, b) &&
           a.DistanceFromLine(punto, b) <= Adv3d::touchPixels;
}

void CLinea::UpdateInvalideRect(Adv3dRect* pRect, int margine) {
    if (!pRect || !m_pNodi[0] || !m_pNodi[1] || !pRect->GetVista())
        return;
    const Adv3d::Punto a = pRect->GetVista()->Project(*m_pNodi[0]->GetPunto());
    const Adv3d::Punto b = pRect->GetVista()->Project(*m_pNodi[1]->GetPunto());
    if (!a.visible || !b.visible)
        return;
    CRect around(a.Pixel(), b.Pixel());
    around.NormalizeRect();
    around.InflateRect(margine + 2, margine + 2, margine + 3, margine + 3);
    pRect->Add(around);
}

double CLinea::GetProfonditaVista(Adv3d* pVista) {
    if (!pVista || !m_pNodi[0] || !m_pNodi[1])
        return 0;
    return pVista->GetDepth((*m_pNodi[0]->GetPunto() + *m_pNodi[1]->GetPunto()) * 0.5);
}

void CLinea::DrawInfo(Adv3d* pVista) {
    if (!CanDraw(pVista))
        return;
    const CElementoSettings& shown = Settings(*pVista);
    const CFPoint middle = (*m_pNodi[0]->GetPunto() + *m_pNodi[1]->GetPunto()) * 0.5;
    const Adv3d::Punto p = pVista->Project(middle);
    if (p.visible && shown.IsItem(CElementoSettings::Identifier)) {
        CString text;
        text.Format("%d", GetID());
        pVista->Text(p.Pixel() + CSize(3, -15), text, shown.GetColor());
    }
    CFPoint axes[3];
    if (shown.IsItem(CElementoSettings::LocalAxes) && GetLocalAxes(axes[0], axes[1], axes[2]))
        for (int i = 0; i < 3; ++i)
            pVista->Arrow(middle + axes[i] * (22 * pVista->GetUnitsPerPixel(middle)), axes[i], 22, axisColors[i], 1);
}

// A ring near each end that hands less over than it could.
void CLinea::DrawSpecifiche(Adv3d* pVista) {
    if (!CanDraw(pVista))
        return;
    for (int i = 0; i < GetSizeSpecifiche(); ++i) {
        const auto* release = DYNAMIC_DOWNCAST(CSpecificheSvincoliTrave, static_cast<CObject*>(GetIndexSpecifica(i)));
        if (!release)
            continue;
        const int end = release->GetEnd() ? 1 : 0;
        const CFPoint& at = *m_pNodi[end]->GetPunto();
        const Adv3d::Punto p = pVista->Project(at + (*m_pNodi[1 - end]->GetPunto() - at) * 0.08);
        if (p.visible)
            pVista->ScreenCircle(p.Pixel(), 4, releaseColor, 1);
    }
}

void CLinea::DrawInformazioni(Adv3d* pVista) {
    if (!pVista || IsBare(*pVista) || !CanDraw(pVista))
        return;
    CElementoSpecifiche::DrawInformazioni(pVista);
    if (Data() && Settings(*pVista).IsItem(CElementoSettings::Specifiche))
        DrawSpecifiche(pVista);
}
