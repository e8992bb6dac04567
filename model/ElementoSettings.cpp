#include "model/ElementoSettings.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CElementoSettings, CObject)

const CElementoSettings::Shown* CElementoSettings::shown(int i) const {
    return i >= 0 && i < GetSizeRisultati() ? &m_risultati[static_cast<std::size_t>(i)] : nullptr;
}

int CElementoSettings::IsRisultato(int tipo) const {
    return std::any_of(m_risultati.begin(), m_risultati.end(), [&](const Shown& s) { return s.kind == tipo; });
}

void CElementoSettings::SetRisultato(int tipo, int mostra) {
    if (!mostra)
        std::erase_if(m_risultati, [&](const Shown& s) { return s.kind == tipo; });
    else if (!IsRisultato(tipo))
        m_risultati.push_back({tipo, 0, 0});
}

int CElementoSettings::GetRisultato(int i) const {
    const Shown* found = shown(i);
    return found ? found->kind : 0;
}

double CElementoSettings::GetRisultatoMin(int i) const {
    const Shown* found = shown(i);
    return found ? found->minimum : 0;
}

double CElementoSettings::GetRisultatoMax(int i) const {
    const Shown* found = shown(i);
    return found ? found->maximum : 0;
}

void CElementoSettings::SetLimitiRisultato(int i, double minimo, double massimo) {
    if (!shown(i))
        return;
    m_risultati[static_cast<std::size_t>(i)].minimum = minimo;
    m_risultati[static_cast<std::size_t>(i)].maximum = massimo;
}
