#include "model/element/ElementoSpecifiche.h"

#include "model/element/ElementExtras.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CElementoSpecifiche, CElementoCarico)

int CElementoSpecifiche::AddSpecifica(CSpecifiche* pSpecifica) {
    if (!pSpecifica)
        return 0;
    if (pSpecifica->GetID() <= 0 || IsIDSpecifica(pSpecifica->GetID())) {
        int highest = 0;
        for (int i = 0; i < GetSizeSpecifiche(); ++i)
            highest = std::max(highest, GetIndexIDSpecifiche(i));
        pSpecifica->SetID(highest + 1);
    }
    MakeData().specifications.emplace_back(pSpecifica);
    return 1;
}

int CElementoSpecifiche::AggiornaSpecifiche(CObArray* pSpecifiche) {
    int updated = 0;
    for (int i = 0; pSpecifiche && i < GetSizeSpecifiche(); ++i) {
        auto& own = Data()->specifications[static_cast<std::size_t>(i)];
        for (CObject* object : *pSpecifiche) {
            const auto* given = DYNAMIC_DOWNCAST(CSpecifiche, object);
            if (!given || given->GetID() != own->GetID() || given == own.get())
                continue;
            own = given->Copia();
            ++updated;
            break;
        }
    }
    return updated;
}

CSpecifiche* CElementoSpecifiche::GetIndexSpecifica(int i) {
    return i >= 0 && i < GetSizeSpecifiche() ? Data()->specifications[static_cast<std::size_t>(i)].get() : nullptr;
}

int CElementoSpecifiche::GetSizeSpecifiche() {
    return Data() ? static_cast<int>(Data()->specifications.size()) : 0;
}

int CElementoSpecifiche::IsIDSpecifica(int id) {
    for (int i = 0; i < GetSizeSpecifiche(); ++i)
        if (GetIndexIDSpecifiche(i) == id)
            return 1;
    return 0;
}

int CElementoSpecifiche::EliminaSpecifica(int id) {
    if (!Data())
        return 0;
    return std::erase_if(Data()->specifications, [&](const auto& s) { return s->GetID() == id; }) > 0;
}

int CElementoSpecifiche::EliminaIndexSpecifica(int i) {
    if (!GetIndexSpecifica(i))
        return 0;
    Data()->specifications.erase(Data()->specifications.begin() + i);
    return 1;
}

int CElementoSpecifiche::SetSpecifica(int i, int id, CSpecifiche* pSpecifica) {
    if (!pSpecifica || !GetIndexSpecifica(i))
        return 0;
    pSpecifica->SetID(id);
    if (pSpecifica != GetIndexSpecifica(i))
        Data()->specifications[static_cast<std::size_t>(i)].reset(pSpecifica);
    return 1;
}

int CElementoSpecifiche::GetIndexIDSpecifiche(int i) {
    const CSpecifiche* specification = GetIndexSpecifica(i);
    return specification ? specification->GetID() : 0;
}

CElemento& CElementoSpecifiche::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    CElementoCarico::operator=(altro);
    auto* other = DYNAMIC_DOWNCAST(CElementoSpecifiche, &altro);
    if (!other || (!other->Data() && !Data()))
        return *this;
    auto& own = MakeData().specifications;
    own.clear();
    for (int i = 0; i < other->GetSizeSpecifiche(); ++i)
        own.push_back(other->GetIndexSpecifica(i)->Copia());
    return *this;
}
