// A region of the screen that grows while elements are selected or changed. Elements add themselves with
// UpdateInvalideRect; the views redraw the region.
#pragma once

#include "model/values/FPoint.h"
#include "platform/core/Geometry.h"
#include "platform/core/Object.h"

class Adv3d;

class Adv3dRect : public CObject {
    DECLARE_DYNAMIC(Adv3dRect)

    // Without a projection the region stays empty. The projection is not owned.
    explicit Adv3dRect(Adv3d* pVista = nullptr) : m_pProjection(pVista) {}

    Adv3d* GetVista() const { return m_pProjection; }
    void Add(const CFPoint& punto, int margine); // margin in pixels
    void Add(const CRect& rect);
    int IsEmpty() const { return m_rect.IsRectEmpty(); }
    const CRect& GetRect() const { return m_rect; }

  private:
    Adv3d* m_pProjection;
    CRect m_rect;
};
