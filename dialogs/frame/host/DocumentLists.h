// The part of the document that counts what the project holds and hands it out by index.
#pragma once

class CAsta;
class CCasoCarico;
class CCombinazione;
class CElemento;
class CGruppo;
class CMateriale;
class CNodo;
class CSezione;
class CSolaio;
class CSpessore;
class CTrave;

// Indexes are 0-based in document order; an index outside gives null. The objects stay the document's.
class DocumentLists {
  public:
    virtual int GetSizeNodi() = 0;
    virtual CNodo* GetIndexNodo(int index) = 0;
    virtual int GetSizeTravi() = 0;
    virtual CTrave* GetIndexTrave(int index) = 0;
    virtual int GetSizeAste() = 0;
    virtual CAsta* GetIndexAsta(int index) = 0;
    virtual int GetSizeSolai() = 0;
    virtual CSolaio* GetIndexSolaio(int index) = 0;
    // Beams, truss members, walls and slabs, kind after kind.
    virtual long GetSizeElementi() = 0;
    virtual CElemento* GetIndexElemento(int index) = 0;
    virtual int GetSizeCasiCarico() = 0;
    virtual CCasoCarico* GetIndexCasoCarico(int index) = 0;
    virtual int GetSizeCombinazioni() = 0;
    virtual CCombinazione* GetIndexCombinazione(int index) = 0;
    virtual int GetSizeGruppi() = 0;
    virtual CGruppo* GetIndexGruppo(int index) = 0;
    virtual int GetSizeMateriali() = 0;
    virtual CMateriale* GetIndexMateriale(int index) = 0;
    virtual int GetSizeSezioni() = 0;
    virtual CSezione* GetIndexSezione(int index) = 0;
    virtual int GetSizeSpessori() = 0;
    virtual CSpessore* GetIndexSpessore(int index) = 0;

  protected:
    ~DocumentLists() = default;
};
