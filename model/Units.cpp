#include "model/Units.h"

#include <array>
#include <cmath>

namespace {

struct Unit {
    const char* symbol;
    double size; // in metres, or in newtons
};

constexpr double gravity = 9.80665; // m/s^2, by definition
constexpr double pound = 0.45359237 * gravity;

constexpr std::array<Unit, kNumeroLunghezze> lengths{
    {{"mm", 0.001}, {"cm", 0.01}, {"m", 1.0}, {"in", 0.0254}, {"ft", 0.3048}}};
constexpr std::array<Unit, kNumeroForze> forces{
    {{"kg", gravity}, {"t", 1000 * gravity}, {"N", 1.0}, {"kN", 1000.0}, {"lb", pound}, {"klb", 1000 * pound}}};

template <std::size_t N>
const Unit* find(const std::array<Unit, N>& units, int index) {
    return index >= 0 && index < static_cast<int>(N) ? &units[static_cast<std::size_t>(index)] : nullptr;
}

double size(Lunghezza unit) {
    const Unit* found = find(lengths, static_cast<int>(unit));
    return found ? found->size : 1.0;
}

double size(Forza unit) {
    const Unit* found = find(forces, static_cast<int>(unit));
    return found ? found->size : 1000.0;
}

void appendFactor(CString& text, const CString& symbol, int exponent) {
    if (exponent == 1)
        text += symbol;
    else
        text.AppendFormat("%s^%d", symbol, exponent);
}

} // namespace

CGrandezza::CGrandezza(double valore, int esponenteLunghezza, int esponenteForza, Lunghezza lunghezza, Forza forza)
    : m_dValore(valore),
      m_nEsponenteLunghezza(static_cast<signed char>(esponenteLunghezza)),
      m_nEsponenteForza(static_cast<signed char>(esponenteForza)),
      m_nLunghezza(static_cast<signed char>(lunghezza)),
      m_nForza(static_cast<signed char>(forza)) {
}

void CGrandezza::ChangeLunghezza(Lunghezza lunghezza) {
    // Skipping the empty conversion keeps the value's last bit: opening and confirming a dialog changes nothing.
    if (lunghezza == GetLunghezza())
        return;
    m_dValore *= std::pow(_FattoreLunghezza(GetLunghezza(), lunghezza), m_nEsponenteLunghezza);
    SetLunghezza(lunghezza);
}

void CGrandezza::ChangeForza(Forza forza) {
    if (forza == GetForza())
        return;
    m_dValore *= std::pow(_FattoreForza(GetForza(), forza), m_nEsponenteForza);
    SetForza(forza);
}

CString CGrandezza::GetStringUnita() const {
    CString above, below;
    const auto append = [&](const CString& symbol, int exponent) {
        CString& part = exponent > 0 ? above : below;
        if (exponent == 0)
            return;
        if (!part.IsEmpty())
            part += "*";
        appendFactor(part, symbol, exponent > 0 ? exponent : -exponent);
    };
    append(_GetStringForza(GetForza()), m_nEsponenteForza);
    append(_GetStringLunghezza(GetLunghezza()), m_nEsponenteLunghezza);
    if (below.IsEmpty())
        return above;
    return (above.IsEmpty() ? CString("1") : above) + "/" + below;
}

CString CGrandezza::_GetStringLunghezza(Lunghezza lunghezza) {
    const Unit* found = find(lengths, static_cast<int>(lunghezza));
    return found ? found->symbol : "";
}

CString CGrandezza::_GetStringForza(Forza forza) {
    const Unit* found = find(forces, static_cast<int>(forza));
    return found ? found->symbol : "";
}

double CGrandezza::_FattoreLunghezza(Lunghezza da, Lunghezza a) {
    return da == a ? 1.0 : size(da) / size(a);
}

double CGrandezza::_FattoreForza(Forza da, Forza a) {
    return da == a ? 1.0 : size(da) / size(a);
}

double CGrandezza::_Gravita(Lunghezza lunghezza) {
    return gravity / size(lunghezza);
}
