// A line of some material and section, turned about its axis.
#pragma once

#include "model/element/Linea.h"

class CMateriale;
class CSezione;

class CLineaFisica : public CLinea {
    DECLARE_DYNAMIC(CLineaFisica)

    // The document's; null with an identifier that is not 0 says that the reference is to be linked again.
    CMateriale* GetMateriale() const { return m_pMateriale; }
    int GetIDMateriale() const { return m_nIDMateriale; } // 0 for none
    void SetMateriale(int id, CMateriale* pMateriale);
    CSezione* GetSezione() const { return m_pSezione; }
    int GetIDSezione() const { return m_nIDSezione; }
    void SetSezione(int id, CSezione* pSezione);
    double GetBeta() const { return m_dBeta; } // degrees
    void SetBeta(double gradi);

    CElemento& operator=(CElemento& altro) override;
    CLineaFisica& operator=(CLineaFisica& altro) {
        operator=(static_cast<CElemento&>(altro));
        return *this;
    }
    int AssegnaAttributi(CElemento* pElemento) override; // material, section and beta
    int CheckElemento(CStringArray& messaggi) override;
    void DrawInfo(Adv3d* pVista) override;
    int GetTextInfo(CString& testo) override;

  protected:
    explicit CLineaFisica(unsigned tipo) : CLinea(tipo) {}
    double BetaDegrees() override { return m_dBeta; }

  private:
    CMateriale* m_pMateriale = nullptr;
    CSezione* m_pSezione = nullptr;
    int m_nIDMateriale = 0;
    int m_nIDSezione = 0;
    double m_dBeta = 0;
};
