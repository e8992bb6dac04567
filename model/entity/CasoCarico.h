// A load case and the loads that it owns.
#pragma once

#include "model/entity/ElementoStrutturale.h"
#include "model/index/PositionIndex.h"
#include "model/load/Carico.h"

#include <memory>
#include <vector>

class CCasoCarico : public CElementoStrutturale {
    DECLARE_DYNCREATE(CCasoCarico)

    using CElementoStrutturale::operator=;

    CCasoCarico();
    CCasoCarico(const CCasoCarico& altro);
    CCasoCarico& operator=(const CCasoCarico& altro) {
        operator=(Source(altro));
        return *this;
    }
    // Copies the loads, each under its own number. The loads that were here are deleted: nothing may refer to them.
    CElemento& operator=(CElemento& altro) override;

    void SetID(int id) override; // the loads follow

    // Takes the load over, gives it this case and, when its number is 0 or taken, a new number; returns that number. 0
    // for null, which is not taken.
    int AddCarico(CCarico* pCarico);
    // By number, null when there is none; the index goes through pIndex unless that is null (-1 when there is none).
    CCarico* GetCarico(int id, int* pIndex);
    int GetSizeCarichi() const { return static_cast<int>(m_loads.size()); }
    CCarico* GetIndexCarico(int i); // null for an index outside
    // Deletes a load; elements must have let it go. 0 when there is none.
    int EliminaCarico(int id);
    void EliminaCarichi();
    // Gives a load back to the caller, who owns it then; null when there is none.
    std::unique_ptr<CCarico> DetachLoad(int id);
    // The same for all, in their order; AddCarico takes them back one by one under the numbers that they have.
    std::vector<std::unique_ptr<CCarico>> DetachLoads();

    void ChangeLunghezza(Lunghezza lunghezza) override;
    void ChangeForza(Forza force) override;
    void SetLunghezza(Lunghezza lunghezza) override;
    void SetForza(Forza force) override;

  private:
    void CopyLoads(CCasoCarico& altro);

    std::vector<std::unique_ptr<CCarico>> m_loads;
    PositionIndex m_places;
    int m_nLast = 0; // the highest number given
};
