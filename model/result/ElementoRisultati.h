// Analysis results of one element in one load case: a record for each of its sections, or nodes, in order.
#pragma once

#include "platform/core/Object.h"
#include "platform/core/String.h"

#include <vector>

// The internal forces at one section, in the element's local axes 1, 2, 3 and the document's units: V are forces and M
// moments, so V1 is the axial force N and M1 the torsion T.
class CNodoRisultati : public CObject {
    DECLARE_DYNCREATE(CNodoRisultati)

    double& GetV1() { return m_d[0]; }
    double& GetV2() { return m_d[1]; }
    double& GetV3() { return m_d[2]; }
    double& GetM1() { return m_d[3]; }
    double& GetM2() { return m_d[4]; }
    double& GetM3() { return m_d[5]; }
    double& GetN() { return GetV1(); }
    double& GetT() { return GetM1(); }
    double& GetIndex(int i) { return m_d[i]; } // 0..5 in the order above
    double GetIndex(int i) const { return m_d[i]; }

  private:
    double m_d[6] = {};
};

class CElementoRisultati : public CObject {
    DECLARE_DYNCREATE(CElementoRisultati)

    // The record of a section; null for an index outside. Owned by this object.
    virtual CNodoRisultati* GetNodeResults(int index);
    const CNodoRisultati* GetNodeResults(int index) const;
    virtual int GetNodeResultCount() const { return static_cast<int>(m_nodi.size()); }
    void SetNodeResultCount(int size);

    int GetID() const { return m_nID; } // of the element that the results belong to
    void SetID(int id) { m_nID = id; }

    static CString _GetStringRisultato(int tipo); // "M2/W2"; empty for a kind that beams do not have

  private:
    int m_nID = 0;
    std::vector<CNodoRisultati> m_nodi;
};

// The reaction of a restrained node: forces, then moments, in global axes, as the node acts on its support.
class CNodoReazioniVincolari : public CObject {
    DECLARE_DYNCREATE(CNodoReazioniVincolari)

    CNodoReazioniVincolari() = default;
    CNodoReazioniVincolari(double fx, double fy, double fz, double mx, double my, double mz)
        : m_d{fx, fy, fz, mx, my, mz} {}

    double& GetReaction(int i) { return m_d[i]; } // 0..5

  private:
    double m_d[6] = {};
};
