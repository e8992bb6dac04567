// A named entity of the model: load case, combination, group, material, section, thickness.
#pragma once

#include "model/element/Elemento.h"

class CDC;
class CPropertyPage;

class CElementoStrutturale : public CElemento {
    DECLARE_DYNAMIC(CElementoStrutturale)

    using CElemento::Draw;
    using CElemento::UpdateInvalideRect;

    // The description as a line of a list: each part that is asked for, "12", "Nome", "(tipo)", blank between them and
    // " : " after the number.
    virtual CString GetDescrizione(int bID, int bNome, int bTipo);
    // Property pages and drawing of entities: neutral, no entity has any.
    virtual CPropertyPage* CreatePage(unsigned int tipo);
    virtual int SetPage(CPropertyPage* pPagina, int tipo);
    virtual int ChangeWithPage(CPropertyPage* pPagina);
    virtual CRuntimeClass* GetRuntimePage(unsigned int tipo);
    virtual int GetSizeTipiPage();
    virtual int GetTipoPage(int i);
    virtual void Draw(CDC* pDC, Adv3d* pVista, CElementoSettings* pSettings);
    virtual void DrawID(CDC* pDC, Adv3d* pVista);
    virtual void UpdateInvalideRect(CDC* pDC, Adv3dRect* pRect, int margine);
    // Unlike elements, entities take over the identifier too: whoever wants a new one sets it afterwards.
    virtual CElementoStrutturale& operator=(CElementoStrutturale& altro);
    virtual int operator==(CElementoStrutturale& altro); // same kind, name and type text
    virtual CString GetTipo();
    virtual void SetTipo(CString tipo);
    virtual CString GetNome();
    virtual void GetNome(CString** ppNome); // the stored name itself, good while the entity lives
    virtual void SetNome(CString nome);

    CElemento& operator=(CElemento& altro) override;
    int GetTextInfo(CString& testo) override; // GetDescrizione(1, 1, 1)

  protected:
    explicit CElementoStrutturale(unsigned tipo) : CElemento(tipo) {}
    CElementoStrutturale(const CElementoStrutturale& altro);

  private:
    CString m_strNome;
    CString m_strTipo;
};
