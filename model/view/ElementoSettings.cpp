#include "model/view/ElementoSettings.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CElementoSettings, CObject)

const CElementoSettings::Shown* CElementoSettings::ShownAt(int i) const {
    return i >= 0 && i < GetResultCount() ? &m_results[static_cast<std::size_t>(i)] : nullptr;
}

int CElementoSettings::IsRisultato(int tipo) const {
    return std::any_of(m_results.begin(), m_results.end(), [&](const Shown& s) { return s.kind == tipo; });
}

void CElementoSettings::SetRisultato(int tipo, int mostra) {
    if (!mostra)
        std::erase_if(m_results, [&](const Shown& s) { return s.kind == tipo; });
    else if (!IsRisultato(tipo))
        m_results.push_back({tipo, 0, 0});
}

int CElementoSettings::GetRisultato(int i) const {
    const Shown* found = ShownAt(i);
    return found ? found->kind : 0;
}

double CElementoSettings::GetRisultatoMin(int i) const {
    const Shown* found = ShownAt(i);
    return found ? found->minimum : 0;
}

double CElementoSettings::GetRisultatoMax(int i) const {
    const Shown* found = ShownAt(i);
    return found ? found->maximum : 0;
}

void CElementoSettings::SetResultLimits(int i, double minimo, double massimo) {
    if (!ShownAt(i))
        return;
    m_results[static_cast<std::size_t>(i)].minimum = minimo;
    m_results[static_cast<std::size_t>(i)].maximum = massimo;
}
