#include "model/element/PoligonoFisico.h"

#include "model/element/Nodo.h"
#include "model/element/TipoElemento.h"
#include "model/entity/Materiale.h"
#include "model/entity/Spessore.h"

#include <algorithm>
#include <cmath>

IMPLEMENT_DYNAMIC(CPoligonoFisico, CPoligono)

namespace {

// Another polygon of the same kind on the same nodes, in any order; null when there is none.
CPoligono* Twin(CPoligono& polygon) {
    CNodo* const first = polygon.GetVertice(0);
    for (int i = 0; first && i < first->GetSizeElementi(); ++i) {
        auto* other = DYNAMIC_DOWNCAST(CPoligono, static_cast<CObject*>(first->GetIndexElemento(i)));
        if (!other || other == &polygon || other->GetTipoElemento() != polygon.GetTipoElemento() ||
            other->GetSize() != polygon.GetSize())
            continue;
        int shared = 0;
        for (int k = 0; k < polygon.GetSize(); ++k)
            shared += other->GetIndexVertice(polygon.GetIDVertice(k)) >= 0;
        if (shared == polygon.GetSize())
            return other;
    }
    return nullptr;
}

void CheckTwin(CPoligono& polygon, CStringArray& messaggi) {
    CString text;
    if (CPoligono* other = Twin(polygon)) {
        text.Format("L'elemento ha gli stessi nodi dell'elemento %s n.ro %d.",
                    other->GetRuntimeClass()->m_lpszClassName, other->GetID());
        messaggi.Add(text);
    }
}

} // namespace

void CPoligonoFisico::SetMateriale(int id, CMateriale* pMateriale) {
    BeforeWrite();
    m_nIDMateriale = id;
    m_pMateriale = pMateriale;
}

void CPoligonoFisico::SetThickness(int id, CSpessore* pSpessore) {
    BeforeWrite();
    m_nIDSpessore = id;
    m_pSpessore = pSpessore;
}

CElemento& CPoligonoFisico::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    CPoligono::operator=(altro);
    AssegnaAttributi(&altro);
    return *this;
}

int CPoligonoFisico::AssegnaAttributi(CElemento* pElemento) {
    const auto* other = DYNAMIC_DOWNCAST(CPoligonoFisico, static_cast<CObject*>(pElemento));
    if (!other)
        return 0;
    SetMateriale(other->m_nIDMateriale, other->m_pMateriale);
    SetThickness(other->m_nIDSpessore, other->m_pSpessore);
    return 1;
}

int CPoligonoFisico::CheckElemento(CStringArray& messaggi) {
    const int before = messaggi.GetSize();
    if (!m_pMateriale)
        messaggi.Add("L'elemento non ha un materiale.");
    if (!m_pSpessore)
        messaggi.Add("L'elemento non ha uno spessore.");
    CheckTwin(*this, messaggi);
    return messaggi.GetSize() == before;
}

int CPoligonoFisico::GetTextInfo(CString& testo) {
    testo.Format("%s n.ro %d, nodi", GetTipoElemento() == TipoElemento::Setto ? "Setto" : "Solaio", GetID());
    for (int i = 0; i < GetSize(); ++i)
        testo.AppendFormat(" %d", GetIDVertice(i));
    return 1;
}
