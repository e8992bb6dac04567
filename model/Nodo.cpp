#include "model/Nodo.h"

#include "model/NodeGrid.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CVincolo, CObject)
IMPLEMENT_DYNAMIC(CMolla, CObject)
IMPLEMENT_DYNCREATE(CNodo, CElementoCarico)

CNodo::~CNodo() {
    if (m_grid)
        m_grid->Remove(this);
    // The list is taken away first: each element would look itself up in it otherwise.
    for (CElemento* element : m_elementi.Take())
        element->UpdateVertex(this, nullptr);
}

CElemento& CNodo::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    CElementoCarico::operator=(altro);
    if (auto* other = DYNAMIC_DOWNCAST(CNodo, &altro)) {
        SetPunto(other->m_punto);
        AssegnaAttributi(other);
    }
    return *this;
}

int CNodo::AssegnaAttributi(CElemento* pElemento) {
    auto* other = DYNAMIC_DOWNCAST(CNodo, static_cast<CObject*>(pElemento));
    if (!other)
        return 0;
    SetVincolo(other->GetVincolo());
    if (other->GetSizeMolle() > 0)
        makeSupport().springs = other->m_support->springs;
    else
        EliminaMolle();
    return 1;
}

void CNodo::SetPunto(CFPoint punto) {
    if (m_grid)
        m_grid->move(this, punto);
    else
        m_punto = punto;
}

CNodo* CNodo::GetCoincidente(double tolleranza) {
    return m_grid ? m_grid->Find(m_punto, this, tolleranza) : nullptr;
}

CNodo::Support& CNodo::makeSupport() {
    if (!m_support)
        m_support = std::make_unique<Support>();
    return *m_support;
}

CVincolo* CNodo::GetVincolo() {
    return m_support && m_support->restrained ? &m_support->restraint : nullptr;
}

void CNodo::SetVincolo(const CVincolo* pVincolo) {
    const unsigned fixed = pVincolo ? pVincolo->GetMaschera() : 0;
    if (!fixed && !m_support)
        return;
    makeSupport().restraint.SetMaschera(fixed);
    m_support->restrained = fixed != 0;
}

int CNodo::GetSizeMolle() {
    return m_support ? static_cast<int>(m_support->springs.size()) : 0;
}

CMolla* CNodo::GetIndexMolla(int i) {
    return i >= 0 && i < GetSizeMolle() ? &m_support->springs[static_cast<std::size_t>(i)] : nullptr;
}

int CNodo::AddMolla(const CMolla& molla) {
    makeSupport().springs.push_back(molla);
    return GetSizeMolle() - 1;
}

int CNodo::EliminaMolla(int i) {
    if (!GetIndexMolla(i))
        return 0;
    m_support->springs.erase(m_support->springs.begin() + i);
    return 1;
}

void CNodo::EliminaMolle() {
    if (m_support)
        m_support->springs.clear();
}

CNodoReazioniVincolari* CNodo::GetReazioniVincolari() {
    return m_support && m_support->reacting ? &m_support->reactions : nullptr;
}

void CNodo::SetReazioniVincolari(const CNodoReazioniVincolari* pReazioni) {
    if (!pReazioni && !m_support)
        return;
    makeSupport().reacting = pReazioni != nullptr;
    if (pReazioni)
        m_support->reactions = *pReazioni;
}

int CNodo::CheckElemento(CStringArray& messaggi) {
    const int before = messaggi.GetSize();
    CString text;
    if (!m_punto.IsFinite())
        messaggi.Add("Le coordinate del nodo non sono valide.");
    if (GetSizeElementi() == 0)
        messaggi.Add("Il nodo non appartiene a nessun elemento.");
    if (CNodo* other = GetCoincidente(kTolleranza)) {
        text.Format("Il nodo coincide con il nodo n.ro %d.", other->GetID());
        messaggi.Add(text);
    }
    return messaggi.GetSize() == before;
}

int CNodo::IsInRange(CFPoint da, CFPoint a) {
    const auto between = [](double value, double p, double q) {
        return value >= std::min(p, q) && value <= std::max(p, q);
    };
    return between(m_punto.x, da.x, a.x) && between(m_punto.y, da.y, a.y) && between(m_punto.z, da.z, a.z);
}

void CNodo::ChangeLunghezza(Lunghezza lunghezza) {
    const Lunghezza old = GetLunghezza();
    if (lunghezza != old)
        SetPunto(m_punto * CGrandezza::_FattoreLunghezza(old, lunghezza));
    if (m_support) {
        for (CMolla& spring : m_support->springs)
            spring.GetRigidezza().ChangeLunghezza(lunghezza);
        for (int i = 3; i < 6; ++i)
            m_support->reactions.GetReazione(i) *= CGrandezza::_FattoreLunghezza(old, lunghezza);
    }
    CElementoCarico::ChangeLunghezza(lunghezza);
}

void CNodo::ChangeForza(Forza forza) {
    if (m_support) {
        for (CMolla& spring : m_support->springs)
            spring.GetRigidezza().ChangeForza(forza);
        for (int i = 0; i < 6; ++i)
            m_support->reactions.GetReazione(i) *= CGrandezza::_FattoreForza(GetForza(), forza);
    }
    CElementoCarico::ChangeForza(forza);
}

int CNodo::GetTextInfo(CString& testo) {
    testo.Format("Nodo n.ro %d (%g, %g, %g)", GetID(), m_punto.x, m_punto.y, m_punto.z);
    return 1;
}
