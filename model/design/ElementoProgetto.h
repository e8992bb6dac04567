// Design and verification records of an element. The design of members and walls fills them; until then they are empty.
#pragma once

#include "model/values/Units.h"
#include "platform/core/Object.h"

#include <vector>

class CElemento;

// The design quantities of one section or corner, by index.
class CNodoProgetto : public CObject {
    DECLARE_DYNCREATE(CNodoProgetto)

    // The quantity with that index, made with value 0 when it is new. A negative index reads as index 0.
    CGrandezza& GetArm(int index);
    bool operator==(const CNodoProgetto& other) const;

  private:
    std::vector<CGrandezza> m_reinforcement;
};

class CElementoProgetto : public CObject {
    DECLARE_DYNCREATE(CElementoProgetto)

    CElementoProgetto();
    // The copy belongs to no element; it is of the same design.
    CElementoProgetto(const CElementoProgetto& other);
    CElementoProgetto& operator=(const CElementoProgetto&) = delete;
    ~CElementoProgetto() override; // the element lets it go

    // The design node of a section or corner, for writing too; null for an index outside. Owned by this object.
    virtual CNodoProgetto* GetNodoProgetto(int index);
    void SetSizeNodiProgetto(int size);

    // Whether both come from one design of the element: then their values may take each other's place.
    bool IsOfSameDesign(const CElementoProgetto& other) const { return m_design == other.m_design; }
    bool HasSameValues(const CElementoProgetto& other) const { return m_nodi == other.m_nodi; }
    void SwapValues(CElementoProgetto& other) { m_nodi.swap(other.m_nodi); }

  private:
    friend class CElemento;
    CElemento* m_owner = nullptr; // whose record this is; null for none
    unsigned m_design;            // tells the designs of the process apart
    std::vector<CNodoProgetto> m_nodi;
};

class CSettoProgetto : public CElementoProgetto {
    DECLARE_DYNCREATE(CSettoProgetto)
};

class CElementoVerifica : public CObject {
    DECLARE_DYNCREATE(CElementoVerifica)
};
