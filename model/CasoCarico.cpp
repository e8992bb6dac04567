#include "model/CasoCarico.h"

#include <algorithm>
#include <utility>

IMPLEMENT_DYNCREATE(CCasoCarico, CElementoStrutturale)

CCasoCarico::CCasoCarico(const CCasoCarico& altro) : CElementoStrutturale(altro) {
    copyLoads(const_cast<CCasoCarico&>(altro));
}

CElemento& CCasoCarico::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    CElementoStrutturale::operator=(altro);
    if (auto* loadCase = DYNAMIC_DOWNCAST(CCasoCarico, &altro))
        copyLoads(*loadCase);
    return *this;
}

void CCasoCarico::copyLoads(CCasoCarico& altro) {
    std::vector<std::unique_ptr<CCarico>> copies;
    copies.reserve(altro.m_carichi.size());
    for (const auto& load : altro.m_carichi) {
        std::unique_ptr<CCarico> copy(static_cast<CCarico*>(load->GetRuntimeClass()->CreateObject()));
        *static_cast<CElemento*>(copy.get()) = *load;
        copy->SetID(load->GetID());
        copy->GetIDCasoCarico() = GetID();
        copies.push_back(std::move(copy));
    }
    m_carichi = std::move(copies);
    m_posizioni = altro.m_posizioni;
    m_nUltimo = altro.m_nUltimo;
}

void CCasoCarico::SetID(int id) {
    CElementoStrutturale::SetID(id);
    for (const auto& load : m_carichi)
        load->GetIDCasoCarico() = id;
}

int CCasoCarico::AddCarico(CCarico* pCarico) {
    if (!pCarico)
        return 0;
    if (pCarico->GetID() <= 0 || m_posizioni.Find(pCarico->GetID()) >= 0)
        pCarico->SetID(m_nUltimo + 1);
    m_nUltimo = std::max(m_nUltimo, pCarico->GetID());
    pCarico->GetIDCasoCarico() = GetID();
    // The values are given in the units of the case, as everything of a document is.
    pCarico->SetLunghezza(GetLunghezza());
    pCarico->SetForza(GetForza());
    m_posizioni.Set(pCarico->GetID(), GetSizeCarichi());
    m_carichi.emplace_back(pCarico);
    return pCarico->GetID();
}

CCarico* CCasoCarico::GetCarico(int id, int* pIndex) {
    const int place = m_posizioni.Find(id);
    if (pIndex)
        *pIndex = place;
    return place < 0 ? nullptr : m_carichi[static_cast<std::size_t>(place)].get();
}

CCarico* CCasoCarico::GetIndexCarico(int i) {
    return i >= 0 && i < GetSizeCarichi() ? m_carichi[static_cast<std::size_t>(i)].get() : nullptr;
}

std::unique_ptr<CCarico> CCasoCarico::StaccaCarico(int id) {
    const int place = m_posizioni.Find(id);
    if (place < 0)
        return nullptr;
    std::unique_ptr<CCarico> load = std::move(m_carichi[static_cast<std::size_t>(place)]);
    m_carichi.erase(m_carichi.begin() + place);
    m_posizioni.Rebuild(m_carichi, [](const auto& c) { return c->GetID(); });
    return load;
}

std::vector<std::unique_ptr<CCarico>> CCasoCarico::StaccaCarichi() {
    m_posizioni.Clear();
    return std::exchange(m_carichi, {});
}

int CCasoCarico::EliminaCarico(int id) {
    return StaccaCarico(id) != nullptr;
}

void CCasoCarico::EliminaCarichi() {
    m_carichi.clear();
    m_posizioni.Clear();
}

void CCasoCarico::ChangeLunghezza(Lunghezza lunghezza) {
    for (const auto& load : m_carichi)
        load->ChangeLunghezza(lunghezza);
    CElementoStrutturale::ChangeLunghezza(lunghezza);
}

void CCasoCarico::ChangeForza(Forza forza) {
    for (const auto& load : m_carichi)
        load->ChangeForza(forza);
    CElementoStrutturale::ChangeForza(forza);
}

// A case that is only told its units tells its loads; after a conversion they know them already.
void CCasoCarico::SetLunghezza(Lunghezza lunghezza) {
    CElementoStrutturale::SetLunghezza(lunghezza);
    for (const auto& load : m_carichi)
        load->SetLunghezza(lunghezza);
}

void CCasoCarico::SetForza(Forza forza) {
    CElementoStrutturale::SetForza(forza);
    for (const auto& load : m_carichi)
        load->SetForza(forza);
}
