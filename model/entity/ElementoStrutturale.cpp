#include "model/entity/ElementoStrutturale.h"

#include <utility>

IMPLEMENT_DYNAMIC(CElementoStrutturale, CElemento)

CElementoStrutturale::CElementoStrutturale(const CElementoStrutturale& altro)
    : CElemento(altro), m_strNome(altro.m_strNome), m_strTipo(altro.m_strTipo) {
    CElemento::SetID(Source(altro).GetID());
}

CString CElementoStrutturale::GetDescrizione(int bID, int bNome, int bTipo) {
    CString text;
    if (bID)
        text.Format("%d", GetID());
    if (bNome) {
        if (bID)
            text += " : ";
        text += m_strNome;
    }
    if (bTipo && !m_strTipo.IsEmpty()) {
        if (!text.IsEmpty())
            text += " ";
        text += "(" + m_strTipo + ")";
    }
    return text;
}

CPropertyPage* CElementoStrutturale::CreatePage(unsigned int) {
    return nullptr;
}

int CElementoStrutturale::SetPage(CPropertyPage*, int) {
    return 0;
}

int CElementoStrutturale::ChangeWithPage(CPropertyPage*) {
    return 0;
}

CRuntimeClass* CElementoStrutturale::GetRuntimePage(unsigned int) {
    return nullptr;
}

int CElementoStrutturale::GetSizeTipiPage() {
    return 0;
}

int CElementoStrutturale::GetTipoPage(int) {
    return 0;
}

void CElementoStrutturale::Draw(CDC*, Adv3d*, CElementoSettings*) {
}

void CElementoStrutturale::DrawID(CDC*, Adv3d*) {
}

void CElementoStrutturale::UpdateInvalideRect(CDC*, Adv3dRect*, int) {
}

CElementoStrutturale& CElementoStrutturale::operator=(CElementoStrutturale& altro) {
    // Through the other slot, where each entity copies what is its own.
    operator=(static_cast<CElemento&>(altro));
    return *this;
}

CElemento& CElementoStrutturale::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    BeforeWrite();
    CElemento::operator=(altro);
    if (const auto* entity = DYNAMIC_DOWNCAST(CElementoStrutturale, &altro)) {
        m_strNome = entity->m_strNome;
        m_strTipo = entity->m_strTipo;
        SetID(altro.GetID());
    }
    return *this;
}

int CElementoStrutturale::operator==(CElementoStrutturale& altro) {
    return GetRuntimeClass() == altro.GetRuntimeClass() && m_strNome == altro.m_strNome && m_strTipo == altro.m_strTipo;
}

CString CElementoStrutturale::GetTipo() {
    return m_strTipo;
}

void CElementoStrutturale::SetTipo(CString tipo) {
    BeforeWrite();
    m_strTipo = std::move(tipo);
}

CString CElementoStrutturale::GetNome() {
    return m_strNome;
}

void CElementoStrutturale::GetNome(CString** ppNome) {
    if (ppNome)
        *ppNome = &m_strNome;
}

void CElementoStrutturale::SetNome(CString nome) {
    BeforeWrite();
    m_strNome = std::move(nome);
}

int CElementoStrutturale::GetTextInfo(CString& testo) {
    testo = GetDescrizione(1, 1, 1);
    return 1;
}
