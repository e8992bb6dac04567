// A line of some material and section, turned about its axis, and its results.
#pragma once

#include "model/Linea.h"

class CMateriale;
class CSezione;
class CWnd;

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
    void SetBeta(double gradi) { m_dBeta = gradi; }

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
    double betaDegrees() override { return m_dBeta; }

  private:
    CMateriale* m_pMateriale = nullptr;
    CSezione* m_pSezione = nullptr;
    int m_nIDMateriale = 0;
    int m_nIDSezione = 0;
    double m_dBeta = 0;
};

// The part of a line that shows results.
class CLineaRisultati : public CLineaFisica {
    DECLARE_DYNAMIC(CLineaRisultati)

    using CLineaFisica::operator=;
    CLineaRisultati& operator=(CLineaRisultati& altro) {
        operator=(static_cast<CElemento&>(altro));
        return *this;
    }

    // Draws the wanted diagrams of the line's results into the window's client area, or, with `bLettura`, the values at
    // `punto`. Without results it draws nothing; the drawing itself comes with the analysis.
    virtual void DisegnaDiagrammaTrave(CWnd* pWnd, int bN, int bV2, int bV3, int bT, int bM2, int bM3, int bNA,
                                       int bM2W2, int bM3W3, int bLettura, CPoint punto);

  protected:
    explicit CLineaRisultati(unsigned tipo) : CLineaFisica(tipo) {}
};
