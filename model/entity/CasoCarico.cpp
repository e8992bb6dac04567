#include "model/entity/CasoCarico.h"

#include "model/element/TipoElemento.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNCREATE(CCasoCarico, CElementoStrutturale)

CCasoCarico::CCasoCarico() : CElementoStrutturale(TipoElemento::CasoCarico) {
}

CCasoCarico::CCasoCarico(const CCasoCarico& altro) : CElementoStrutturale(altro) {
    CopyLoads(const_cast<CCasoCarico&>(altro));
}

CElemento& CCasoCarico::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    CElementoStrutturale::operator=(altro);
    if (auto* loadCase = DYNAMIC_DOWNCAST(CCasoCarico, &altro))
        CopyLoads(*loadCase);
    return *this;
}

void CCasoCarico::CopyLoads(CCasoCarico& altro) {
    std::vector<std::unique_ptr<CCarico>> copies;
    copies.reserve(altro.m_loads.size());
    for (const auto& load : altro.m_loads) {
        std::unique_ptr<CCarico> copy(static_cast<CCarico*>(load->GetRuntimeClass()->CreateObject()));
        *static_cast<CElemento*>(copy.get()) = *load;
        copy->SetID(load->GetID());
        copy->GetIDCasoCarico() = GetID();
        copies.push_back(std::move(copy));
    }
    m_loads = std::move(copies);
    m_places = altro.m_places;
    m_nLast = altro.m_nLast;
}

void CCasoCarico::SetID(int id) {
    CElementoStrutturale::SetID(id);
    for (const auto& load : m_loads)
        load->GetIDCasoCarico() = id;
}

int CCasoCarico::AddCarico(CCarico* pCarico) {
    if (!pCarico)
        return 0;
    if (pCarico->GetID() <= 0 || m_places.Find(pCarico->GetID()) >= 0)
        pCarico->SetID(m_nLast + 1);
    m_nLast = std::max(m_nLast, pCarico->GetID());
    pCarico->GetIDCasoCarico() = GetID();
    // The values are given in the units of the case, as everything of a document is.
    pCarico->SetLunghezza(GetLunghezza());
    pCarico->SetForza(GetForza());
    m_places.Set(pCarico->GetID(), GetSizeCarichi());
    m_loads.emplace_back(pCarico);
    return pCarico->GetID();
}

CCarico* CCasoCarico::GetCarico(int id, int* pIndex) {
    const int place = m_places.Find(id);
    if (pIndex)
        *pIndex = place;
    return place < 0 ? nullptr : m_loads[static_cast<std::size_t>(place)].get();
}

CCarico* CCasoCarico::GetIndexCarico(int i) {
    return i >= 0 && i < GetSizeCarichi() ? m_loads[static_cast<std::size_t>(i)].get() : nullptr;
}

std::unique_ptr<CCarico> CCasoCarico::DetachLoad(int id) {
    const int place = m_places.Find(id);
    if (place < 0)
        return nullptr;
    std::unique_ptr<CCarico> load = std::move(m_loads[static_cast<std::size_t>(place)]);
    m_loads.erase(m_loads.begin() + place);
    m_places.Remove(id, place, m_loads, [](const auto& c) { return c->GetID(); });
    return load;
}

std::vector<std::unique_ptr<CCarico>> CCasoCarico::DetachLoads() {
    m_places.Clear();
    return std::exchange(m_loads, {});
}

int CCasoCarico::EliminaCarico(int id) {
    return DetachLoad(id) != nullptr;
}

void CCasoCarico::EliminaCarichi() {
    m_loads.clear();
    m_places.Clear();
}

void CCasoCarico::ChangeLunghezza(Lunghezza lunghezza) {
    for (const auto& load : m_loads)
        load->ChangeLunghezza(lunghezza);
    CElementoStrutturale::ChangeLunghezza(lunghezza);
}

void CCasoCarico::ChangeForza(Forza force) {
    for (const auto& load : m_loads)
        load->ChangeForza(force);
    CElementoStrutturale::ChangeForza(force);
}

// A case that is only told its units tells its loads; after a conversion they know them already.
void CCasoCarico::SetLunghezza(Lunghezza lunghezza) {
    CElementoStrutturale::SetLunghezza(lunghezza);
    for (const auto& load : m_loads)
        load->SetLunghezza(lunghezza);
}

void CCasoCarico::SetForza(Forza force) {
    CElementoStrutturale::SetForza(force);
    for (const auto& load : m_loads)
        load->SetForza(force);
}
