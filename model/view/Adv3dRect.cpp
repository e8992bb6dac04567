#include "model/view/Adv3dRect.h"

#include "model/view/Adv3d.h"

IMPLEMENT_DYNAMIC(Adv3dRect, CObject)

void Adv3dRect::Add(const CFPoint& punto, int margine) {
    if (!m_pProjection)
        return;
    const Adv3d::Punto p = m_pProjection->Project(punto);
    if (!p.visible)
        return;
    CRect around(p.Pixel(), CSize(1, 1));
    around.InflateRect(margine, margine);
    Add(around);
}

void Adv3dRect::Add(const CRect& rect) {
    if (m_pProjection)
        m_rect |= rect;
}
