// A spring that holds a node along, or about, a direction.
#pragma once

#include "model/FPoint.h"
#include "model/Units.h"
#include "platform/Object.h"

class CMolla : public CObject {
    DECLARE_DYNAMIC(CMolla)

    enum Tipo { Traslazionale = 0, Rotazionale = 1 };

    CMolla() : CMolla(Traslazionale, 0, CFPoint(0, 0, 1)) {}
    // `rigidezza` in force/length, or force*length per radian, of the given units.
    CMolla(int tipo, double rigidezza, CFPoint direzione, Lunghezza lunghezza = Lunghezza::Metri,
           Forza forza = Forza::ChiloNewton)
        : m_nTipo(tipo),
          m_rigidezza(rigidezza, tipo == Rotazionale ? 1 : -1, 1, lunghezza, forza),
          m_direzione(direzione) {}

    int GetTipo() const { return m_nTipo; }
    CGrandezza& GetRigidezza() { return m_rigidezza; }
    const CGrandezza& GetRigidezza() const { return m_rigidezza; }
    CFPoint& GetDirezione() { return m_direzione; } // of any length: only where it points counts
    const CFPoint& GetDirezione() const { return m_direzione; }

  private:
    int m_nTipo;
    CGrandezza m_rigidezza;
    CFPoint m_direzione;
};
