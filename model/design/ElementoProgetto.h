// Design and verification records of an element. The design of members and walls fills them; until then they are empty.
#pragma once

#include "model/values/Units.h"
#include "platform/core/Object.h"

#include <vector>

// The design quantities of one section or corner, by index.
class CNodoProgetto : public CObject {
    DECLARE_DYNCREATE(CNodoProgetto)

    // The quantity with that index, made with value 0 when it is new. A negative index reads as index 0.
    CGrandezza& GetArm(int index);
    int GetSizeArm() const { return static_cast<int>(m_reinforcement.size()); }

  private:
    std::vector<CGrandezza> m_reinforcement;
};

class CElementoProgetto : public CObject {
    DECLARE_DYNCREATE(CElementoProgetto)

    // The design node of a section or corner; null for an index outside. Owned by this object.
    virtual CNodoProgetto* GetNodoProgetto(int index);
    void SetSizeNodiProgetto(int size);

  private:
    std::vector<CNodoProgetto> m_nodi;
};

class CSettoProgetto : public CElementoProgetto {
    DECLARE_DYNCREATE(CSettoProgetto)
};

class CElementoVerifica : public CObject {
    DECLARE_DYNCREATE(CElementoVerifica)
};
