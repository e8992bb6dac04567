// The units of a document and quantities that carry theirs. Time is in seconds and temperature in degrees Celsius
// whatever the units; a mass is force * s^2 / length.
#pragma once

#include "platform/String.h"

// Stored in files and shown by the units dialog in this order: never renumber.
enum class Lunghezza : int { Millimetri = 0, Centimetri = 1, Metri = 2, Pollici = 3, Piedi = 4 };
enum class Forza : int { Chilogrammi = 0, Tonnellate = 1, Newton = 2, ChiloNewton = 3, Libbre = 4, ChiloLibbre = 5 };

inline constexpr int kNumeroLunghezze = 5;
inline constexpr int kNumeroForze = 6;

// A number with its dimension length^a * force^b and the units that it is counted in.
class CGrandezza {
  public:
    CGrandezza() = default; // 0, without a dimension
    explicit CGrandezza(double valore, int esponenteLunghezza = 0, int esponenteForza = 0,
                        Lunghezza lunghezza = Lunghezza::Metri, Forza forza = Forza::ChiloNewton);

    double GetValore() const { return m_dValore; }
    double& GetValore() { return m_dValore; }
    void SetValore(double valore) { m_dValore = valore; }
    int GetEsponenteLunghezza() const { return m_nEsponenteLunghezza; }
    int GetEsponenteForza() const { return m_nEsponenteForza; }
    Lunghezza GetLunghezza() const { return static_cast<Lunghezza>(m_nLunghezza); }
    Forza GetForza() const { return static_cast<Forza>(m_nForza); }

    // Convert the value to another unit; the quantity stays the same.
    void ChangeLunghezza(Lunghezza lunghezza);
    void ChangeForza(Forza forza);
    // Only say in which unit the value is; the quantity changes.
    void SetLunghezza(Lunghezza lunghezza) { m_nLunghezza = static_cast<signed char>(lunghezza); }
    void SetForza(Forza forza) { m_nForza = static_cast<signed char>(forza); }

    CString GetStringUnita() const; // "kN/m^2"; empty without a dimension

    static CString _GetStringLunghezza(Lunghezza lunghezza); // "mm", "cm", "m", "in", "ft"; empty for a value outside
    static CString _GetStringForza(Forza forza);             // "kg", "t", "N", "kN", "lb", "klb"
    // What one `da` counts in `a`; a value outside the enum counts as metres, or kilonewtons.
    static double _FattoreLunghezza(Lunghezza da, Lunghezza a);
    static double _FattoreForza(Forza da, Forza a);
    // Standard gravity in length / s^2.
    static double _Gravita(Lunghezza lunghezza);

  private:
    double m_dValore = 0;
    signed char m_nEsponenteLunghezza = 0;
    signed char m_nEsponenteForza = 0;
    signed char m_nLunghezza = static_cast<signed char>(Lunghezza::Metri);
    signed char m_nForza = static_cast<signed char>(Forza::ChiloNewton);
};
