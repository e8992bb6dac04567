#include "model/entity/Spessore.h"

#include "model/element/TipoElemento.h"

IMPLEMENT_DYNCREATE(CSpessore, CElementoStrutturale)

CSpessore::CSpessore() : CElementoStrutturale(TipoElemento::Spessore) {
}

CElemento& CSpessore::operator=(CElemento& altro) {
    CElementoStrutturale::operator=(altro);
    if (const auto* thickness = DYNAMIC_DOWNCAST(CSpessore, &altro))
        m_dSpessore = thickness->m_dSpessore;
    return *this;
}

void CSpessore::ChangeLunghezza(Lunghezza lunghezza) {
    m_dSpessore *= CGrandezza::_LengthFactor(GetLunghezza(), lunghezza);
    CElementoStrutturale::ChangeLunghezza(lunghezza);
}

int CSpessore::CheckElemento(CStringArray& messaggi) {
    if (m_dSpessore > 0)
        return 1;
    messaggi.Add("Lo spessore non è positivo."_t);
    return 0;
}
