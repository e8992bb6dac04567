// A cross-section by its properties. Axis 2 is the section's horizontal one and 3 its vertical one at beta 0; a
// vertical load bends a horizontal beam about axis 2.
#pragma once

#include "model/entity/ElementoStrutturale.h"

class CSezione : public CElementoStrutturale {
    DECLARE_DYNCREATE(CSezione)

    using CElementoStrutturale::operator=;

    CSezione();
    CSezione(const CSezione&) = default;
    CSezione& operator=(const CSezione& altro) {
        operator=(Source(altro));
        return *this;
    }
    CElemento& operator=(CElemento& altro) override;

    double GetArea() const { return m_d[A]; } // length^2
    void SetArea(double area) { m_d[A] = area; }
    double GetArea2() const { return m_d[A2]; } // shear areas along 2 and 3, length^2; 0 takes no shear deformation
    void SetArea2(double area) { m_d[A2] = area; }
    double GetArea3() const { return m_d[A3]; }
    void SetArea3(double area) { m_d[A3] = area; }
    double GetJ() const { return m_d[J]; } // torsion constant, length^4
    void SetJ(double j) { m_d[J] = j; }
    double GetI2() const { return m_d[I2]; } // about axis 2, length^4
    void SetI2(double i) { m_d[I2] = i; }
    double GetI3() const { return m_d[I3]; } // about axis 3, length^4
    void SetI3(double i) { m_d[I3] = i; }
    double GetW2() const { return m_d[W2]; } // section moduli, length^3; 0 unknown
    void SetW2(double w) { m_d[W2] = w; }
    double GetW3() const { return m_d[W3]; }
    void SetW3(double w) { m_d[W3] = w; }
    double GetBase() const { return m_d[B]; } // width along 2 and height along 3, length; 0 unknown
    double GetHeight() const { return m_d[H]; }
    void SetDimensions(double base, double altezza) {
        m_d[B] = base;
        m_d[H] = altezza;
    }
    // Fills every property from a solid rectangle; 0 and nothing changed when a side is not positive.
    int SetRectangle(double base, double altezza);

    void ChangeLunghezza(Lunghezza lunghezza) override;
    int CheckElemento(CStringArray& messaggi) override;

  private:
    enum { A, A2, A3, J, I2, I3, W2, W3, B, H, Size };
    double m_d[Size] = {};
};
