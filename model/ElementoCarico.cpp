#include "model/ElementoCarico.h"

#include "model/Adv3d.h"
#include "model/DatiElemento.h"

IMPLEMENT_DYNAMIC(CElementoCarico, CElementoVista)

namespace {

DatiElemento::Load* loadAt(DatiElemento* data, int i) {
    if (!data || i < 0 || i >= static_cast<int>(data->loads.size()))
        return nullptr;
    return &data->loads[static_cast<std::size_t>(i)];
}

template <typename Predicate>
int eraseLoads(DatiElemento* data, Predicate goes) {
    return data ? static_cast<int>(std::erase_if(data->loads, goes)) : 0;
}

} // namespace

int CElementoCarico::AggiornaIndexCarico(int i, CCarico* pCarico) {
    DatiElemento::Load* load = loadAt(data(), i);
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
    makeData().loads.push_back({pCarico, pCarico->GetIDCasoCarico(), pCarico->GetID()});
    return 1;
}

int CElementoCarico::EliminaCarichi() {
    return eraseLoads(data(), [](const DatiElemento::Load&) { return true; });
}

int CElementoCarico::EliminaCarico(int idCasoCarico, int idCarico) {
    return eraseLoads(data(),
                      [&](const DatiElemento::Load& l) { return l.caseId == idCasoCarico && l.loadId == idCarico; });
}

int CElementoCarico::EliminaCarico(int i) {
    if (!loadAt(data(), i))
        return 0;
    data()->loads.erase(data()->loads.begin() + i);
    return 1;
}

int CElementoCarico::EliminaCaricoInsieme(int idCasoCarico, int idInsieme) {
    return eraseLoads(data(), [&](const DatiElemento::Load& l) {
        return l.caseId == idCasoCarico && l.load && l.load->GetIDInsieme() == idInsieme;
    });
}

int CElementoCarico::EliminaCarichiCaso(int idCasoCarico) {
    return eraseLoads(data(), [&](const DatiElemento::Load& l) { return l.caseId == idCasoCarico; });
}

int CElementoCarico::GetSizeCarichi() {
    return data() ? static_cast<int>(data()->loads.size()) : 0;
}

int CElementoCarico::GetIndexIDCasoCarico(int i) {
    const DatiElemento::Load* load = loadAt(data(), i);
    return load ? load->caseId : 0;
}

int CElementoCarico::GetIndexIDCarico(int i) {
    const DatiElemento::Load* load = loadAt(data(), i);
    return load ? load->loadId : 0;
}

int CElementoCarico::IsCarico(int idCasoCarico, int idCarico, int* pIndex) {
    for (int i = 0; i < GetSizeCarichi(); ++i) {
        const DatiElemento::Load* load = loadAt(data(), i);
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
        const DatiElemento::Load* load = loadAt(data(), i);
        if (load->caseId == idCasoCarico && load->load && load->load->GetIDInsieme() == idInsieme)
            return 1;
    }
    return 0;
}

int CElementoCarico::SetIndexIDCasoCarico(int i, int id) {
    DatiElemento::Load* load = loadAt(data(), i);
    if (load)
        load->caseId = id;
    return load != nullptr;
}

int CElementoCarico::SetIndexIDCarico(int i, int id) {
    DatiElemento::Load* load = loadAt(data(), i);
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
    const DatiElemento::Load* load = loadAt(data(), i);
    return load ? load->load : nullptr;
}

CElemento& CElementoCarico::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    CElementoVista::operator=(altro);
    const auto* other = DYNAMIC_DOWNCAST(CElementoCarico, &altro);
    if (other && (other->data() || data()))
        makeData().loads = other->data() ? other->data()->loads : std::vector<DatiElemento::Load>();
    return *this;
}

void CElementoCarico::DrawCarichi(Adv3d* pVista) {
    if (!pVista || !data())
        return;
    const int values = settings(*pVista).IsVoce(CElementoSettings::ValoriCarichi);
    for (const DatiElemento::Load& load : data()->loads)
        if (load.load && (pVista->GetCasoCarico() == 0 || pVista->GetCasoCarico() == load.caseId))
            load.load->DrawSu(*this, *pVista, values);
}

void CElementoCarico::DrawInformazioni(Adv3d* pVista) {
    if (!CanDraw(pVista))
        return;
    CElementoVista::DrawInformazioni(pVista);
    if (settings(*pVista).IsVoce(CElementoSettings::Carichi))
        DrawCarichi(pVista);
}
