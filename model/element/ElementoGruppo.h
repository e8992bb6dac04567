// Elements that groups, and named views, list.
#pragma once

#include "model/element/Elemento.h"

class CElementoGruppo : public CElemento {
    DECLARE_DYNAMIC(CElementoGruppo)

    virtual int AddGruppo(int id);      // 0 when the element is in the group already
    virtual int EliminaGruppo(int id);  // 0 when it is not in
    virtual int GetIndexGruppo(int id); // position of a group, -1 when not in
    virtual int GetIDGruppo(int i);     // group at a position, 0 outside
    virtual int IsGruppo(int id);
    int GetSizeGruppi();
    void RestoreGruppo(int i, int id); // puts a group back at the position from which it was taken

    CElemento& operator=(CElemento& altro) override;
    CElementoGruppo& operator=(CElementoGruppo& altro) { // of any kind: each class copies what is its own
        operator=(static_cast<CElemento&>(altro));
        return *this;
    }

  protected:
    using CElemento::CElemento;
};

class CElementoVista : public CElementoGruppo {
    DECLARE_DYNAMIC(CElementoVista)

    virtual int AddVista(int id);
    virtual int EliminaVista(int id);
    virtual int GetIndexVista(int i); // named view at a position, 0 outside
    virtual int IsVista(int id);

    CElemento& operator=(CElemento& altro) override;
    CElementoVista& operator=(CElementoVista& altro) {
        operator=(static_cast<CElemento&>(altro));
        return *this;
    }

  protected:
    using CElementoGruppo::CElementoGruppo;
};
