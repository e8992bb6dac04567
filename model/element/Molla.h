// A spring that holds a node along, or about, a direction.
#pragma once

#include "model/values/FPoint.h"
#include "model/values/Units.h"
#include "platform/core/Object.h"

class CMolla : public CObject {
    DECLARE_DYNAMIC(CMolla)

    enum Tipo { Translational = 0, Rotational = 1 };

    CMolla() : CMolla(Translational, 0, CFPoint(0, 0, 1)) {}
    // `rigidezza` in force/length, or force*length per radian, of the given units.
    CMolla(int tipo, double rigidezza, CFPoint direzione, Lunghezza lunghezza = Lunghezza::Metres,
           Forza force = Forza::KiloNewtons)
        : m_nTipo(tipo),
          m_stiffness(rigidezza, tipo == Rotational ? 1 : -1, 1, lunghezza, force),
          m_direction(direzione) {}

    int GetTipo() const { return m_nTipo; }
    CGrandezza& GetStiffness() { return m_stiffness; }
    const CGrandezza& GetStiffness() const { return m_stiffness; }
    CFPoint& GetDirection() { return m_direction; } // of any length: only where it points counts
    const CFPoint& GetDirection() const { return m_direction; }

  private:
    int m_nTipo;
    CGrandezza m_stiffness;
    CFPoint m_direction;
};
