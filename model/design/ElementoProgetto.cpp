#include "model/design/ElementoProgetto.h"

#include <algorithm>

IMPLEMENT_DYNCREATE(CNodoProgetto, CObject)
IMPLEMENT_DYNCREATE(CElementoProgetto, CObject)
IMPLEMENT_DYNCREATE(CSettoProgetto, CElementoProgetto)
IMPLEMENT_DYNCREATE(CElementoVerifica, CObject)

CGrandezza& CNodoProgetto::GetArm(int index) {
    const auto at = static_cast<std::size_t>(std::max(index, 0));
    if (at >= m_reinforcement.size())
        m_reinforcement.resize(at + 1);
    return m_reinforcement[at];
}

CNodoProgetto* CElementoProgetto::GetNodoProgetto(int index) {
    return index >= 0 && index < static_cast<int>(m_nodi.size()) ? &m_nodi[static_cast<std::size_t>(index)] : nullptr;
}

void CElementoProgetto::SetSizeNodiProgetto(int size) {
    m_nodi.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
}
