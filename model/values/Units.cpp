#include "model/values/Units.h"

#include <array>
#include <cmath>

namespace {

struct Unit {
    const char* symbol;
    double size; // in metres, or in newtons
};

constexpr double gravity = 9.80665; // m/s^2, by definition
constexpr double pound = 0.45359237 * gravity;

constexpr std::array<Unit, lengthCount> lengths{
    {{"mm", 0.001}, {"cm", 0.01}, {"m", 1.0}, {"in", 0.0254}, {"ft", 0.3048}}};
constexpr std::array<Unit, forceCount> forces{
    {{"kg", gravity}, {"t", 1000 * gravity}, {"N", 1.0}, {"kN", 1000.0}, {"lb", pound}, {"klb", 1000 * pound}}};

template <std::size_t N>
const Unit* Find(const std::array<Unit, N>& units, int index) {
    return index >= 0 && index < static_cast<int>(N) ? &units[static_cast<std::size_t>(index)] : nullptr;
}

double Size(Lunghezza unit) {
    const Unit* found = Find(lengths, static_cast<int>(unit));
    return found ? found->size : 1.0;
}

double Size(Forza unit) {
    const Unit* found = Find(forces, static_cast<int>(unit));
    return found ? found->size : 1000.0;
}

void AppendFactor(CString& text, const CString& symbol, int exponent) {
    if (exponent == 1)
        text += symbol;
    else
        text.AppendFormat("%s^%d", symbol, exponent);
}

} // namespace

CGrandezza::CGrandezza(double valore, int esponenteLunghezza, int esponenteForza, Lunghezza lunghezza, Forza force)
    : m_dValue(valore),
      m_nLengthExponent(static_cast<signed char>(esponenteLunghezza)),
      m_nForceExponent(static_cast<signed char>(esponenteForza)),
      m_nLunghezza(static_cast<signed char>(lunghezza)),
      m_nForza(static_cast<signed char>(force)) {
}

void CGrandezza::ChangeLunghezza(Lunghezza lunghezza) {
    // Skipping the empty conversion keeps the value's last bit: opening and confirming a dialog changes nothing.
    if (lunghezza == GetLunghezza())
        return;
    m_dValue *= std::pow(_LengthFactor(GetLunghezza(), lunghezza), m_nLengthExponent);
    SetLunghezza(lunghezza);
}

void CGrandezza::ChangeForza(Forza force) {
    if (force == GetForza())
        return;
    m_dValue *= std::pow(_ForceFactor(GetForza(), force), m_nForceExponent);
    SetForza(force);
}

CString CGrandezza::GetUnitText() const {
    CString above, below;
    const auto append = [&](const CString& symbol, int exponent) {
        CString& part = exponent > 0 ? above : below;
        if (exponent == 0)
            return;
        if (!part.IsEmpty())
            part += "*";
        AppendFactor(part, symbol, exponent > 0 ? exponent : -exponent);
    };
    append(_GetStringForza(GetForza()), m_nForceExponent);
    append(_GetStringLunghezza(GetLunghezza()), m_nLengthExponent);
    if (below.IsEmpty())
        return above;
    return (above.IsEmpty() ? CString("1") : above) + "/" + below;
}

CString CGrandezza::_GetStringLunghezza(Lunghezza lunghezza) {
    const Unit* found = Find(lengths, static_cast<int>(lunghezza));
    return found ? found->symbol : "";
}

CString CGrandezza::_GetStringForza(Forza force) {
    const Unit* found = Find(forces, static_cast<int>(force));
    return found ? found->symbol : "";
}

double CGrandezza::_LengthFactor(Lunghezza da, Lunghezza a) {
    return da == a ? 1.0 : Size(da) / Size(a);
}

double CGrandezza::_ForceFactor(Forza da, Forza a) {
    return da == a ? 1.0 : Size(da) / Size(a);
}

double CGrandezza::_Gravity(Lunghezza lunghezza) {
    return gravity / Size(lunghezza);
}
