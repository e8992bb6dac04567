#include "model/entity/Materiale.h"

#include "model/element/TipoElemento.h"

#include <cmath>

IMPLEMENT_DYNCREATE(CMateriale, CElementoStrutturale)

CMateriale::CMateriale() : CElementoStrutturale(TipoElemento::Materiale) {
}

CElemento& CMateriale::operator=(CElemento& altro) {
    CElementoStrutturale::operator=(altro);
    if (const auto* material = DYNAMIC_DOWNCAST(CMateriale, &altro)) {
        m_dE = material->m_dE;
        m_dG = material->m_dG;
        m_dPoisson = material->m_dPoisson;
        m_dDensity = material->m_dDensity;
        m_dAlpha = material->m_dAlpha;
    }
    return *this;
}

void CMateriale::ChangeLunghezza(Lunghezza lunghezza) {
    const double factor = CGrandezza::_LengthFactor(GetLunghezza(), lunghezza);
    m_dE /= factor * factor;
    m_dG /= factor * factor;
    m_dDensity /= std::pow(factor, 4);
    CElementoStrutturale::ChangeLunghezza(lunghezza);
}

void CMateriale::ChangeForza(Forza force) {
    const double factor = CGrandezza::_ForceFactor(GetForza(), force);
    m_dE *= factor;
    m_dG *= factor;
    m_dDensity *= factor;
    CElementoStrutturale::ChangeForza(force);
}

int CMateriale::CheckElemento(CStringArray& messaggi) {
    const int before = messaggi.GetSize();
    if (!(m_dE > 0))
        messaggi.Add("Il modulo elastico non è positivo."_t);
    if (!(m_dG > 0))
        messaggi.Add("Il modulo di taglio non è positivo."_t);
    if (m_dDensity < 0)
        messaggi.Add("Il peso specifico è negativo."_t);
    return messaggi.GetSize() == before;
}
