// The units of a document and quantities that carry theirs. Time is in seconds and temperature in degrees Celsius
// whatever the units; a mass is force * s^2 / length.
#pragma once

#include "platform/core/String.h"

// Stored in files and shown by the units dialog in this order: never renumber.
enum class Lunghezza : int { Millimetres = 0, Centimetres = 1, Metres = 2, Inches = 3, Feet = 4 };
enum class Forza : int { Kilograms = 0, Tonnes = 1, Newton = 2, KiloNewtons = 3, Pounds = 4, Kips = 5 };

inline constexpr int lengthCount = 5;
inline constexpr int forceCount = 6;

// A number with its dimension length^a * force^b and the units that it is counted in.
class CGrandezza {
  public:
    CGrandezza() = default; // 0, without a dimension
    explicit CGrandezza(double valore, int esponenteLunghezza = 0, int esponenteForza = 0,
                        Lunghezza lunghezza = Lunghezza::Metres, Forza force = Forza::KiloNewtons);

    double GetValue() const { return m_dValue; }
    double& GetValue() { return m_dValue; }
    void SetValue(double valore) { m_dValue = valore; }
    Lunghezza GetLunghezza() const { return static_cast<Lunghezza>(m_nLunghezza); }
    Forza GetForza() const { return static_cast<Forza>(m_nForza); }

    // Convert the value to another unit; the quantity stays the same.
    void ChangeLunghezza(Lunghezza lunghezza);
    void ChangeForza(Forza force);
    // Only say in which unit the value is; the quantity changes.
    void SetLunghezza(Lunghezza lunghezza) { m_nLunghezza = static_cast<signed char>(lunghezza); }
    void SetForza(Forza force) { m_nForza = static_cast<signed char>(force); }

    CString GetUnitText() const; // "kN/m^2"; empty without a dimension

    static CString _GetStringLunghezza(Lunghezza lunghezza); // "mm", "cm", "m", "in", "ft"; empty for a value outside
    static CString _GetStringForza(Forza force);             // "kg", "t", "N", "kN", "lb", "klb"
    // What one `da` counts in `a`; a value outside the enum counts as metres, or kilonewtons.
    static double _LengthFactor(Lunghezza da, Lunghezza a);
    static double _ForceFactor(Forza da, Forza a);
    // Standard gravity in length / s^2.
    static double _Gravity(Lunghezza lunghezza);

  private:
    double m_dValue = 0;
    signed char m_nLengthExponent = 0;
    signed char m_nForceExponent = 0;
    signed char m_nLunghezza = static_cast<signed char>(Lunghezza::Metres);
    signed char m_nForza = static_cast<signed char>(Forza::KiloNewtons);
};
