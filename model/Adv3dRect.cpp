#include "model/Adv3dRect.h"

#include "model/Adv3d.h"

IMPLEMENT_DYNAMIC(Adv3dRect, CObject)

void Adv3dRect::Add(const CFPoint& punto, int margine) {
    if (!m_pVista)
        return;
    const Adv3d::Punto p = m_pVista->Project(punto);
    if (!p.visible)
        return;
    CRect around(p.pixel(), CSize(1, 1));
    around.InflateRect(margine, margine);
    Add(around);
}

void Adv3dRect::Add(const CRect& rect) {
    if (m_pVista)
        m_rect |= rect;
}
