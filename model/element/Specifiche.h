// Specifications attached to an element, which owns them.
#pragma once

#include "platform/core/Object.h"

#include <memory>

class CSpecifiche : public CObject {
    DECLARE_DYNAMIC(CSpecifiche)

    int GetID() const { return m_nID; } // unique within its element; given when it is attached
    void SetID(int id) { m_nID = id; }

    virtual std::unique_ptr<CSpecifiche> Copia() const = 0;

  private:
    int m_nID = 0;
};

// Releases at one end of a beam: what the end does not hand over to its node.
class CSpecificheSvincoliTrave : public CSpecifiche {
    DECLARE_DYNCREATE(CSpecificheSvincoliTrave)

    enum Svincolo { N = 0, T = 1, M2 = 2, M3 = 3 }; // axial force, torsion, bending about local axes 2 and 3

    CSpecificheSvincoliTrave() = default;
    CSpecificheSvincoliTrave(int estremo, int n, int t, int m2, int m3)
        : m_bSecond(estremo != 0), m_b{n != 0, t != 0, m2 != 0, m3 != 0} {}

    int GetEnd() const { return m_bSecond; }                          // 0 the first end, non-zero the second
    int GetRelease(int i) const { return i >= 0 && i < 4 && m_b[i]; } // non-zero when released
    void SetRelease(int i, int svincolato) {
        if (i >= 0 && i < 4)
            m_b[i] = svincolato != 0;
    }

    std::unique_ptr<CSpecifiche> Copia() const override { return std::make_unique<CSpecificheSvincoliTrave>(*this); }

  private:
    bool m_bSecond = false;
    bool m_b[4] = {};
};
