// A load combination: load cases by identifier, each with its factor, in order. Held by value by its editor.
#pragma once

#include "model/entity/ElementoStrutturale.h"
#include "model/index/PositionIndex.h"

#include <vector>

class CCombinazione : public CElementoStrutturale {
    DECLARE_DYNCREATE(CCombinazione)

    using CElementoStrutturale::operator=;

    CCombinazione();
    CCombinazione(const CCombinazione&) = default;
    CCombinazione& operator=(const CCombinazione& altro) {
        operator=(Source(altro));
        return *this;
    }
    CElemento& operator=(CElemento& altro) override;

    int GetSizeCDC() const { return static_cast<int>(m_cases.size()); }
    int GetIDCDC(int pos) const;                                   // 0 for a position outside
    int GetIndexCDC(int id) const { return m_positions.Find(id); } // -1 when the case is not in
    int IsCDC(int id) const { return GetIndexCDC(id) >= 0; }
    // 0 and nothing done for a position outside.
    int GetFattoreCDC(int pos, double& fattore) const;
    int SetFattoreCDC(int pos, double fattore);
    int AddCDC(int id, double fattore); // at the end; 0 when the case is in already
    int EliminaCDC(int id);             // 0 when it is not in
    int EliminaCDC();                   // all

  private:
    struct Case {
        int id;
        double factor;
    };
    std::vector<Case> m_cases;
    PositionIndex m_positions;
};
