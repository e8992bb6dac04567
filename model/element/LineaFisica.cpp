#include "model/element/LineaFisica.h"

#include "model/element/Nodo.h"
#include "model/element/TipoElemento.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/view/Adv3d.h"

IMPLEMENT_DYNAMIC(CLineaFisica, CLinea)

void CLineaFisica::SetMateriale(int id, CMateriale* pMateriale) {
    BeforeWrite();
    m_nIDMateriale = id;
    m_pMateriale = pMateriale;
}

void CLineaFisica::SetSezione(int id, CSezione* pSezione) {
    BeforeWrite();
    m_nIDSezione = id;
    m_pSezione = pSezione;
}

void CLineaFisica::SetBeta(double gradi) {
    BeforeWrite();
    m_dBeta = gradi;
}

CElemento& CLineaFisica::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    CLinea::operator=(altro);
    AssegnaAttributi(&altro);
    return *this;
}

int CLineaFisica::AssegnaAttributi(CElemento* pElemento) {
    const auto* other = DYNAMIC_DOWNCAST(CLineaFisica, static_cast<CObject*>(pElemento));
    if (!other)
        return 0;
    SetMateriale(other->m_nIDMateriale, other->m_pMateriale);
    SetSezione(other->m_nIDSezione, other->m_pSezione);
    m_dBeta = other->m_dBeta;
    return 1;
}

int CLineaFisica::CheckElemento(CStringArray& messaggi) {
    const int before = messaggi.GetSize();
    CLinea::CheckElemento(messaggi);
    if (!m_pMateriale)
        messaggi.Add("L'elemento non ha un materiale.");
    if (!m_pSezione)
        messaggi.Add("L'elemento non ha una sezione.");
    return messaggi.GetSize() == before;
}

void CLineaFisica::DrawInfo(Adv3d* pVista) {
    if (!CanDraw(pVista))
        return;
    CLinea::DrawInfo(pVista);
    const CElementoSettings& shown = Settings(*pVista);
    CString text;
    if (m_pMateriale && shown.IsItem(CElementoSettings::Materiale))
        text = m_pMateriale->GetNome();
    if (m_pSezione && shown.IsItem(CElementoSettings::Sezione))
        text += (text.IsEmpty() ? "" : " ") + m_pSezione->GetNome();
    const Adv3d::Punto p = pVista->Project((*GetNodoIniziale()->GetPunto() + *GetNodoFinale()->GetPunto()) * 0.5);
    if (p.visible && !text.IsEmpty())
        pVista->Text(p.Pixel() + CSize(3, 2), text, shown.GetColor());
}

int CLineaFisica::GetTextInfo(CString& testo) {
    testo.Format("%s n.ro %d, nodi %d - %d", GetTipoElemento() == TipoElemento::Asta ? "Asta" : "Trave", GetID(),
                 GetIDNodoIniziale(), GetIDNodoFinale());
    return 1;
}
