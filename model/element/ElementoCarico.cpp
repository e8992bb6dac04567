#include "model/element/ElementoCarico.h"

#include "model/element/ElementExtras.h"
#include "model/load/Carico.h"
#include "model/view/Adv3d.h"

#include <vector>

IMPLEMENT_DYNAMIC(CElementoCarico, CElementoVista)

namespace {

ElementExtras::Load* LoadAt(ElementExtras* data, int i) {
    if (!data || i < 0 || i >= static_cast<int>(data->loads.size()))
        return nullptr;
    return &data->loads[static_cast<std::size_t>(i)];
}

template <typename Predicate>
int EraseLoads(CElemento& element, ElementExtras* data, Predicate goes) {
    if (!data || data->loads.empty())
        return 0;
    element.BeforeWrite();
    return static_cast<int>(std::erase_if(data->loads, goes));
}

} // namespace

int CElementoCarico::AggiornaIndexCarico(int i, CCarico* pCarico) {
    ElementExtras::Load* load = LoadAt(Data(), i);
    if (!load)
        return 0;
    load->load = pCarico;
    if (pCarico) {
        load->caseId = pCarico->GetIDCasoCarico();
        load->loadId = pCarico->GetID();
    }
    return 1;
}

int CElementoCarico::AddCarico(CCarico* pCarico, int bUnico) {
    if (!pCarico || (bUnico && IsCarico(pCarico->GetIDCasoCarico(), pCarico->GetID(), nullptr)))
        return 0;
    BeforeWrite();
    MakeData().loads.push_back({pCarico, pCarico->GetIDCasoCarico(), pCarico->GetID()});
    return 1;
}

int CElementoCarico::EliminaCarichi() {
    return EraseLoads(*this, Data(), [](const ElementExtras::Load&) { return true; });
}

int CElementoCarico::EliminaCarico(int idCasoCarico, int idCarico) {
    return EraseLoads(*this, Data(),
                      [&](const ElementExtras::Load& l) { return l.caseId == idCasoCarico && l.loadId == idCarico; });
}

int CElementoCarico::EliminaCarico(int i) {
    if (!LoadAt(Data(), i))
        return 0;
    BeforeWrite();
    Data()->loads.erase(Data()->loads.begin() + i);
    return 1;
}

int CElementoCarico::EliminaCaricoInsieme(int idCasoCarico, int idInsieme) {
    return EraseLoads(*this, Data(), [&](const ElementExtras::Load& l) {
        return l.caseId == idCasoCarico && l.load && l.load->GetSetId() == idInsieme;
    });
}

int CElementoCarico::RemoveLoadsOfCase(int idCasoCarico) {
    return EraseLoads(*this, Data(), [&](const ElementExtras::Load& l) { return l.caseId == idCasoCarico; });
}

int CElementoCarico::GetSizeCarichi() {
    return Data() ? static_cast<int>(Data()->loads.size()) : 0;
}

int CElementoCarico::GetIndexIDCasoCarico(int i) {
    const ElementExtras::Load* load = LoadAt(Data(), i);
    return load ? load->caseId : 0;
}

int CElementoCarico::GetIndexIDCarico(int i) {
    const ElementExtras::Load* load = LoadAt(Data(), i);
    return load ? load->loadId : 0;
}

int CElementoCarico::IsCarico(int idCasoCarico, int idCarico, int* pIndex) {
    for (int i = 0; i < GetSizeCarichi(); ++i) {
        const ElementExtras::Load* load = LoadAt(Data(), i);
        if (load->caseId == idCasoCarico && load->loadId == idCarico) {
            if (pIndex)
                *pIndex = i;
            return 1;
        }
    }
    return 0;
}

int CElementoCarico::IsCaricoInsieme(int idCasoCarico, int idInsieme) {
    for (int i = 0; i < GetSizeCarichi(); ++i) {
        const ElementExtras::Load* load = LoadAt(Data(), i);
        if (load->caseId == idCasoCarico && load->load && load->load->GetSetId() == idInsieme)
            return 1;
    }
    return 0;
}

int CElementoCarico::SetIndexIDCasoCarico(int i, int id) {
    ElementExtras::Load* load = LoadAt(Data(), i);
    if (load)
        load->caseId = id;
    return load != nullptr;
}

int CElementoCarico::SetIndexIDCarico(int i, int id) {
    ElementExtras::Load* load = LoadAt(Data(), i);
    if (load)
        load->loadId = id;
    return load != nullptr;
}

int CElementoCarico::ThereCaricoTemperatura(int idCasoCarico) {
    return GetCaricoTemperatura(idCasoCarico) != nullptr;
}

CCaricoTemperatura* CElementoCarico::GetCaricoTemperatura(int idCasoCarico) {
    for (int i = 0; i < GetSizeCarichi(); ++i)
        if (GetIndexIDCasoCarico(i) == idCasoCarico)
            if (auto* temperature = DYNAMIC_DOWNCAST(CCaricoTemperatura, static_cast<CObject*>(GetIndexCarico(i))))
                return temperature;
    return nullptr;
}

CCarico* CElementoCarico::GetIndexCarico(int i) {
    const ElementExtras::Load* load = LoadAt(Data(), i);
    return load ? load->load : nullptr;
}

CElemento& CElementoCarico::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    CElementoVista::operator=(altro);
    const auto* other = DYNAMIC_DOWNCAST(CElementoCarico, &altro);
    if (other && (other->Data() || Data()))
        MakeData().loads = other->Data() ? other->Data()->loads : std::vector<ElementExtras::Load>();
    return *this;
}

void CElementoCarico::DrawCarichi(Adv3d* pVista) {
    if (!pVista || !Data())
        return;
    const int values = Settings(*pVista).IsItem(CElementoSettings::ValoriCarichi);
    for (const ElementExtras::Load& load : Data()->loads)
        if (load.load && (pVista->GetCasoCarico() == 0 || pVista->GetCasoCarico() == load.caseId))
            load.load->DrawOn(*this, *pVista, values);
}

void CElementoCarico::DrawInformazioni(Adv3d* pVista) {
    if (!CanDraw(pVista))
        return;
    CElementoVista::DrawInformazioni(pVista);
    if (Settings(*pVista).IsItem(CElementoSettings::Carichi))
        DrawCarichi(pVista);
}
