#include "model/LineaFisica.h"

#include "model/Adv3d.h"
#include "model/Asta.h"
#include "model/Materiale.h"
#include "model/Nodo.h"
#include "model/Sezione.h"
#include "model/Trave.h"

IMPLEMENT_DYNAMIC(CLineaFisica, CLinea)
IMPLEMENT_DYNCREATE(CTrave, CLineaRisultati)
IMPLEMENT_DYNCREATE(CAsta, CLineaRisultati)

void CLineaFisica::SetMateriale(int id, CMateriale* pMateriale) {
    m_nIDMateriale = id;
    m_pMateriale = pMateriale;
}

void CLineaFisica::SetSezione(int id, CSezione* pSezione) {
    m_nIDSezione = id;
    m_pSezione = pSezione;
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
    const CElementoSettings& shown = settings(*pVista);
    CString text;
    if (m_pMateriale && shown.IsVoce(CElementoSettings::Materiale))
        text = m_pMateriale->GetNome();
    if (m_pSezione && shown.IsVoce(CElementoSettings::Sezione))
        text += (text.IsEmpty() ? "" : " ") + m_pSezione->GetNome();
    const Adv3d::Punto p = pVista->Project((*GetNodoIniziale()->GetPunto() + *GetNodoFinale()->GetPunto()) * 0.5);
    if (p.visible && !text.IsEmpty())
        pVista->Text(p.pixel() + CSize(3, 2), text, shown.GetColore());
}

int CLineaFisica::GetTextInfo(CString& testo) {
    testo.Format("%s n.ro %d, nodi %d - %d", GetTipoElemento() == TipoElemento::Asta ? "Asta" : "Trave", GetID(),
                 GetIDNodoIniziale(), GetIDNodoFinale());
    return 1;
}

unsigned CTrave::GetSvincoli(int estremo) {
    unsigned released = 0;
    for (int i = 0; i < GetSizeSpecifiche(); ++i) {
        const auto* release = DYNAMIC_DOWNCAST(CSpecificheSvincoliTrave, static_cast<CObject*>(GetIndexSpecifica(i)));
        if (!release || (release->GetEstremo() != 0) != (estremo != 0))
            continue;
        for (int flag = 0; flag < 4; ++flag)
            released |= release->GetSvincolo(flag) ? 1u << flag : 0u;
    }
    return released;
}
