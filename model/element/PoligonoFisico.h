// A polygon of some material and thickness, part of the model.
#pragma once

#include "model/element/Poligono.h"

class CMateriale;
class CSpessore;

class CPoligonoFisico : public CPoligono {
    DECLARE_DYNAMIC(CPoligonoFisico)

    CMateriale* GetMateriale() const { return m_pMateriale; }
    int GetIDMateriale() const { return m_nIDMateriale; } // 0 for none
    void SetMateriale(int id, CMateriale* pMateriale);
    CSpessore* GetThickness() const { return m_pSpessore; }
    int GetIDSpessore() const { return m_nIDSpessore; }
    void SetThickness(int id, CSpessore* pSpessore);

    CElemento& operator=(CElemento& altro) override;
    CPoligonoFisico& operator=(CPoligonoFisico& altro) {
        operator=(static_cast<CElemento&>(altro));
        return *this;
    }
    int AssegnaAttributi(CElemento* pElemento) override; // material and thickness
    int CheckElemento(CStringArray& messaggi) override;
    int GetTextInfo(CString& testo) override;

  protected:
    explicit CPoligonoFisico(unsigned tipo) : CPoligono(tipo) {}
    bool EntersNodes() const override { return true; }

  private:
    CMateriale* m_pMateriale = nullptr; // the document's, like the thickness
    CSpessore* m_pSpessore = nullptr;
    int m_nIDMateriale = 0;
    int m_nIDSpessore = 0;
};
