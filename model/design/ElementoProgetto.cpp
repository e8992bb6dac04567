#include "model/design/ElementoProgetto.h"

#include "model/element/Elemento.h"

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

// A quantity that nobody has asked for yet is as one of value 0.
bool CNodoProgetto::operator==(const CNodoProgetto& other) const {
    const auto value = [](const CNodoProgetto& node, std::size_t i) {
        return i < node.m_reinforcement.size() ? node.m_reinforcement[i].GetValue() : 0;
    };
    for (std::size_t i = 0; i < std::max(m_reinforcement.size(), other.m_reinforcement.size()); ++i)
        if (value(*this, i) != value(other, i))
            return false;
    return true;
}

CElementoProgetto::CElementoProgetto() {
    static unsigned last = 0;
    m_design = ++last;
}

CElementoProgetto::CElementoProgetto(const CElementoProgetto& other)
    : CObject(other), m_design(other.m_design), m_nodi(other.m_nodi) {
}

CElementoProgetto::~CElementoProgetto() {
    if (m_owner)
        m_owner->SetProgetto(nullptr);
}

CNodoProgetto* CElementoProgetto::GetNodoProgetto(int index) {
    if (m_owner)
        m_owner->BeforeWrite();
    return index >= 0 && index < static_cast<int>(m_nodi.size()) ? &m_nodi[static_cast<std::size_t>(index)] : nullptr;
}

void CElementoProgetto::SetSizeNodiProgetto(int size) {
    m_nodi.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
}
