#include "model/entity/Sezione.h"

#include "model/element/TipoElemento.h"

#include <algorithm>
#include <cmath>
#include <iterator>

IMPLEMENT_DYNCREATE(CSezione, CElementoStrutturale)

CSezione::CSezione() : CElementoStrutturale(TipoElemento::Sezione) {
}

CElemento& CSezione::operator=(CElemento& altro) {
    CElementoStrutturale::operator=(altro);
    if (const auto* section = DYNAMIC_DOWNCAST(CSezione, &altro))
        std::copy(std::begin(section->m_d), std::end(section->m_d), m_d);
    return *this;
}

int CSezione::SetRectangle(double base, double altezza) {
    if (!(base > 0) || !(altezza > 0))
        return 0;
    const double lesser = std::min(base, altezza), greater = std::max(base, altezza);
    const double ratio = lesser / greater;
    m_d[A] = base * altezza;
    m_d[A2] = m_d[A3] = m_d[A] * 5 / 6;
    // The usual approximation of the torsion constant of a rectangle, within 0.5 %.
    m_d[J] = greater * std::pow(lesser, 3) * (1.0 / 3 - 0.21 * ratio * (1 - std::pow(ratio, 4) / 12));
    m_d[I2] = base * std::pow(altezza, 3) / 12;
    m_d[I3] = altezza * std::pow(base, 3) / 12;
    m_d[W2] = base * altezza * altezza / 6;
    m_d[W3] = altezza * base * base / 6;
    SetDimensions(base, altezza);
    return 1;
}

void CSezione::ChangeLunghezza(Lunghezza lunghezza) {
    static constexpr int powers[Size] = {2, 2, 2, 4, 4, 4, 3, 3, 1, 1};
    const double factor = CGrandezza::_LengthFactor(GetLunghezza(), lunghezza);
    for (int i = 0; i < Size; ++i)
        m_d[i] *= std::pow(factor, powers[i]);
    CElementoStrutturale::ChangeLunghezza(lunghezza);
}

int CSezione::CheckElemento(CStringArray& messaggi) {
    const int before = messaggi.GetSize();
    if (!(m_d[A] > 0))
        messaggi.Add("L'area della sezione non è positiva."_t);
    if (m_d[J] < 0 || m_d[I2] < 0 || m_d[I3] < 0)
        messaggi.Add("Un momento d'inerzia della sezione è negativo."_t);
    return messaggi.GetSize() == before;
}
