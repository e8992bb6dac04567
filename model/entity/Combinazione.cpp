#include "model/entity/Combinazione.h"

#include "model/element/TipoElemento.h"

IMPLEMENT_DYNCREATE(CCombinazione, CElementoStrutturale)

CCombinazione::CCombinazione() : CElementoStrutturale(TipoElemento::Combinazione) {
}

CElemento& CCombinazione::operator=(CElemento& altro) {
    CElementoStrutturale::operator=(altro);
    if (const auto* combination = DYNAMIC_DOWNCAST(CCombinazione, &altro)) {
        m_cases = combination->m_cases;
        m_positions = combination->m_positions;
    }
    return *this;
}

int CCombinazione::GetIDCDC(int pos) const {
    return pos >= 0 && pos < GetSizeCDC() ? m_cases[static_cast<std::size_t>(pos)].id : 0;
}

int CCombinazione::GetFattoreCDC(int pos, double& fattore) const {
    if (pos < 0 || pos >= GetSizeCDC())
        return 0;
    fattore = m_cases[static_cast<std::size_t>(pos)].factor;
    return 1;
}

int CCombinazione::SetFattoreCDC(int pos, double fattore) {
    if (pos < 0 || pos >= GetSizeCDC())
        return 0;
    m_cases[static_cast<std::size_t>(pos)].factor = fattore;
    return 1;
}

int CCombinazione::AddCDC(int id, double fattore) {
    if (IsCDC(id))
        return 0;
    m_positions.Set(id, GetSizeCDC());
    m_cases.push_back({id, fattore});
    return 1;
}

// The order of the others is shown to the user and stays.
int CCombinazione::EliminaCDC(int id) {
    const int place = GetIndexCDC(id);
    if (place < 0)
        return 0;
    m_cases.erase(m_cases.begin() + place);
    m_positions.Remove(id, place, m_cases, [](const Case& c) { return c.id; });
    return 1;
}

int CCombinazione::EliminaCDC() {
    const int gone = GetSizeCDC();
    m_cases.clear();
    m_positions.Clear();
    return gone > 0;
}
