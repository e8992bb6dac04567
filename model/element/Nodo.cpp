#include "model/element/Nodo.h"

#include "model/element/TipoElemento.h"
#include "model/index/NodeGrid.h"

#include <algorithm>
#include <memory>

IMPLEMENT_DYNCREATE(CNodo, CElementoCarico)

CNodo::CNodo() : CElementoCarico(TipoElemento::Nodo) {
}

CNodo::~CNodo() {
    if (m_grid)
        m_grid->Remove(this);
    // The list is taken away first: each element would look itself up in it otherwise.
    for (CElemento* element : m_elements.Take())
        element->UpdateVertex(this, nullptr);
}

CElemento& CNodo::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    CElementoCarico::operator=(altro);
    if (auto* other = DYNAMIC_DOWNCAST(CNodo, &altro)) {
        SetPoint(other->m_point);
        AssegnaAttributi(other);
    }
    return *this;
}

int CNodo::AssegnaAttributi(CElemento* pElemento) {
    auto* other = DYNAMIC_DOWNCAST(CNodo, static_cast<CObject*>(pElemento));
    if (!other)
        return 0;
    SetRestraint(other->GetVincolo());
    if (other->GetSizeMolle() > 0)
        MakeSupport().springs = other->m_support->springs;
    else
        RemoveSprings();
    return 1;
}

void CNodo::SetPoint(CFPoint punto) {
    if (m_grid)
        m_grid->Move(this, punto);
    else
        m_point = punto;
}

CNodo* CNodo::GetCoincident(double tolleranza) {
    return m_grid ? m_grid->Find(m_point, this, tolleranza) : nullptr;
}

CNodo::Support& CNodo::MakeSupport() {
    if (!m_support)
        m_support = std::make_unique<Support>();
    return *m_support;
}

CVincolo* CNodo::GetVincolo() {
    return m_support && m_support->restrained ? &m_support->restraint : nullptr;
}

void CNodo::SetRestraint(const CVincolo* pVincolo) {
    const unsigned fixed = pVincolo ? pVincolo->GetMask() : 0;
    if (!fixed && !m_support)
        return;
    MakeSupport().restraint.SetMask(fixed);
    m_support->restrained = fixed != 0;
}

int CNodo::GetSizeMolle() {
    return m_support ? static_cast<int>(m_support->springs.size()) : 0;
}

CMolla* CNodo::GetIndexMolla(int i) {
    return i >= 0 && i < GetSizeMolle() ? &m_support->springs[static_cast<std::size_t>(i)] : nullptr;
}

int CNodo::AddSpring(const CMolla& molla) {
    MakeSupport().springs.push_back(molla);
    return GetSizeMolle() - 1;
}

void CNodo::RemoveSprings() {
    if (m_support)
        m_support->springs.clear();
}

CNodoReazioniVincolari* CNodo::GetReazioniVincolari() {
    return m_support && m_support->reacting ? &m_support->reactions : nullptr;
}

void CNodo::SetReactions(const CNodoReazioniVincolari* pReazioni) {
    if (!pReazioni && !m_support)
        return;
    MakeSupport().reacting = pReazioni != nullptr;
    if (pReazioni)
        m_support->reactions = *pReazioni;
}

int CNodo::CheckElemento(CStringArray& messaggi) {
    const int before = messaggi.GetSize();
    CString text;
    if (!m_point.IsFinite())
        messaggi.Add("Le coordinate del nodo non sono valide.");
    if (GetSizeElementi() == 0)
        messaggi.Add("Il nodo non appartiene a nessun elemento.");
    const double metre = CGrandezza::_LengthFactor(Lunghezza::Metres, GetLunghezza());
    if (CNodo* other = GetCoincident(coincidenceTolerance * metre)) {
        text.Format("Il nodo coincide con il nodo n.ro %d.", other->GetID());
        messaggi.Add(text);
    }
    return messaggi.GetSize() == before;
}

int CNodo::IsInRange(CFPoint da, CFPoint a) {
    const auto between = [](double value, double p, double q) {
        return value >= std::min(p, q) && value <= std::max(p, q);
    };
    return between(m_point.x, da.x, a.x) && between(m_point.y, da.y, a.y) && between(m_point.z, da.z, a.z);
}

void CNodo::ChangeLunghezza(Lunghezza lunghezza) {
    const Lunghezza old = GetLunghezza();
    if (lunghezza != old)
        SetPoint(m_point * CGrandezza::_LengthFactor(old, lunghezza));
    if (m_support) {
        for (CMolla& spring : m_support->springs)
            spring.GetStiffness().ChangeLunghezza(lunghezza);
        for (int i = 3; i < 6; ++i)
            m_support->reactions.GetReaction(i) *= CGrandezza::_LengthFactor(old, lunghezza);
    }
    CElementoCarico::ChangeLunghezza(lunghezza);
}

void CNodo::ChangeForza(Forza force) {
    if (m_support) {
        for (CMolla& spring : m_support->springs)
            spring.GetStiffness().ChangeForza(force);
        for (int i = 0; i < 6; ++i)
            m_support->reactions.GetReaction(i) *= CGrandezza::_ForceFactor(GetForza(), force);
    }
    CElementoCarico::ChangeForza(force);
}

int CNodo::GetTextInfo(CString& testo) {
    testo.Format("Nodo n.ro %d (%g, %g, %g)", GetID(), m_point.x, m_point.y, m_point.z);
    return 1;
}
