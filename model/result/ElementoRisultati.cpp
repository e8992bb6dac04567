#include "model/result/ElementoRisultati.h"

#include "model/view/ElementoSettings.h"

IMPLEMENT_DYNCREATE(CNodoRisultati, CObject)
IMPLEMENT_DYNCREATE(CElementoRisultati, CObject)
IMPLEMENT_DYNCREATE(CNodoReazioniVincolari, CObject)

CNodoRisultati* CElementoRisultati::GetNodeResults(int index) {
    return index >= 0 && index < GetNodeResultCount() ? &m_nodi[static_cast<std::size_t>(index)] : nullptr;
}

const CNodoRisultati* CElementoRisultati::GetNodeResults(int index) const {
    return const_cast<CElementoRisultati*>(this)->GetNodeResults(index);
}

void CElementoRisultati::SetNodeResultCount(int size) {
    m_nodi.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
}

CString CElementoRisultati::_GetStringRisultato(int tipo) {
    switch (tipo) {
    case CElementoSettings::N:
        return "N";
    case CElementoSettings::V2:
        return "V2";
    case CElementoSettings::V3:
        return "V3";
    case CElementoSettings::T:
        return "T";
    case CElementoSettings::M2:
        return "M2";
    case CElementoSettings::M3:
        return "M3";
    case CElementoSettings::N_A:
        return "N/A";
    case CElementoSettings::M2_W2:
        return "M2/W2";
    case CElementoSettings::M3_W3:
        return "M3/W3";
    default:
        return "";
    }
}
