// Elements that carry loads. They refer to loads that load cases own: before a load goes, its elements let it go.
#pragma once

#include "model/element/ElementoGruppo.h"

class CCarico;
class CCaricoTemperatura;

class CElementoCarico : public CElementoVista {
    DECLARE_DYNAMIC(CElementoCarico)

    // Links the i-th reference to the load itself again, after a file was read or an undo; null unlinks it.
    virtual int AggiornaIndexCarico(int i, CCarico* pCarico);
    // With a non-zero flag a load that the element carries already is refused. 0 for null or a refused load.
    virtual int AddCarico(CCarico* pCarico, int bUnico);
    virtual int EliminaCarichi(); // all; like the next ones, returns how many went
    virtual int EliminaCarico(int idCasoCarico, int idCarico);
    virtual int EliminaCarico(int i);
    virtual int EliminaCaricoInsieme(int idCasoCarico, int idInsieme);
    virtual int GetSizeCarichi();
    virtual int GetIndexIDCasoCarico(int i); // identifiers of the i-th reference; 0 outside
    virtual int GetIndexIDCarico(int i);
    virtual int IsCarico(int idCasoCarico, int idCarico, int* pIndex); // pIndex null, or receives the position
    virtual int IsCaricoInsieme(int idCasoCarico, int idInsieme);
    virtual int SetIndexIDCasoCarico(int i, int id);
    virtual int SetIndexIDCarico(int i, int id);
    virtual int ThereCaricoTemperatura(int idCasoCarico);
    virtual CCaricoTemperatura* GetCaricoTemperatura(int idCasoCarico); // the first one; null when there is none

    CCarico* GetIndexCarico(int i);          // null outside, or while the reference is not linked
    int RemoveLoadsOfCase(int idCasoCarico); // every load of a case that is about to go

    CElemento& operator=(CElemento& altro) override;
    CElementoCarico& operator=(CElementoCarico& altro) {
        operator=(static_cast<CElemento&>(altro));
        return *this;
    }
    void DrawCarichi(Adv3d* pVista) override; // those of the view's load case
    void DrawInformazioni(Adv3d* pVista) override;

  protected:
    using CElementoVista::CElementoVista;
};
