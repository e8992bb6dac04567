#include "model/load/Carico.h"

#include "model/element/Linea.h"
#include "model/element/TipoElemento.h"

#include <cmath>

IMPLEMENT_DYNAMIC(CCarico, CElemento)
IMPLEMENT_DYNCREATE(CCaricoNodale, CCarico)
IMPLEMENT_DYNCREATE(CCaricoSpostamento, CCarico)
IMPLEMENT_DYNCREATE(CCaricoUniforme, CCarico)
IMPLEMENT_DYNCREATE(CCaricoTrapezoidale, CCarico)
IMPLEMENT_DYNCREATE(CCaricoConcentrato, CCarico)
IMPLEMENT_DYNCREATE(CCaricoTemperatura, CCarico)
IMPLEMENT_DYNCREATE(CCaricoPesoProprio, CCarico)

CCaricoNodale::CCaricoNodale() : CCarico(TipoElemento::CaricoNodale) {
}

CCaricoSpostamento::CCaricoSpostamento() : CCarico(TipoElemento::CaricoSpostamento) {
}

CCaricoUniforme::CCaricoUniforme() : CCarico(TipoElemento::CaricoUniforme) {
}

CCaricoTrapezoidale::CCaricoTrapezoidale() : CCarico(TipoElemento::CaricoTrapezoidale) {
    SetReference(Local);
}

CCaricoConcentrato::CCaricoConcentrato() : CCarico(TipoElemento::CaricoConcentrato) {
}

CCaricoTemperatura::CCaricoTemperatura() : CCarico(TipoElemento::CaricoTemperatura) {
    SetReference(Local);
}

CCaricoPesoProprio::CCaricoPesoProprio() : CCarico(TipoElemento::CaricoPesoProprio) {
}

CElemento& CCarico::operator=(CElemento& altro) {
    CElemento::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCarico, &altro)) {
        m_nIDCasoCarico = load->m_nIDCasoCarico;
        m_nIDInsieme = load->m_nIDInsieme;
        m_nReference = load->m_nReference;
    }
    return *this;
}

CFPoint CCarico::GlobalVector(CElemento& elemento, const CFPoint& vettore) const {
    auto* line = DYNAMIC_DOWNCAST(CLinea, &elemento);
    CFPoint x, y, z;
    if (m_nReference != Local || !line || !line->GetLocalAxes(x, y, z))
        return vettore;
    return x * vettore.x + y * vettore.y + z * vettore.z;
}

double CCarico::LengthFactor(Lunghezza nuova, int power) {
    return std::pow(CGrandezza::_LengthFactor(GetLunghezza(), nuova), power);
}

double CCarico::ForceFactor(Forza nuova) {
    return CGrandezza::_ForceFactor(GetForza(), nuova);
}

CElemento& CCaricoNodale::operator=(CElemento& altro) {
    CCarico::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCaricoNodale, &altro)) {
        m_force = load->m_force;
        m_moment = load->m_moment;
    }
    return *this;
}

void CCaricoNodale::ChangeLunghezza(Lunghezza lunghezza) {
    m_moment *= LengthFactor(lunghezza, 1);
    CCarico::ChangeLunghezza(lunghezza);
}

void CCaricoNodale::ChangeForza(Forza force) {
    m_force *= ForceFactor(force);
    m_moment *= ForceFactor(force);
    CCarico::ChangeForza(force);
}

CElemento& CCaricoSpostamento::operator=(CElemento& altro) {
    CCarico::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCaricoSpostamento, &altro)) {
        m_displacement = load->m_displacement;
        m_rotation = load->m_rotation;
    }
    return *this;
}

void CCaricoSpostamento::ChangeLunghezza(Lunghezza lunghezza) {
    m_displacement *= LengthFactor(lunghezza, 1);
    CCarico::ChangeLunghezza(lunghezza);
}

CElemento& CCaricoUniforme::operator=(CElemento& altro) {
    CCarico::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCaricoUniforme, &altro))
        m_load = load->m_load;
    return *this;
}

void CCaricoUniforme::ChangeLunghezza(Lunghezza lunghezza) {
    m_load *= LengthFactor(lunghezza, -1);
    CCarico::ChangeLunghezza(lunghezza);
}

void CCaricoUniforme::ChangeForza(Forza force) {
    m_load *= ForceFactor(force);
    CCarico::ChangeForza(force);
}

CElemento& CCaricoTrapezoidale::operator=(CElemento& altro) {
    CCarico::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCaricoTrapezoidale, &altro))
        for (int i = 0; i < 3; ++i)
            m_stretches[i] = load->m_stretches[i];
    return *this;
}

void CCaricoTrapezoidale::ChangeLunghezza(Lunghezza lunghezza) {
    const double factor = LengthFactor(lunghezza, 1);
    for (Stretch& part : m_stretches)
        part = {part.da * factor, part.a * factor, part.inizio / factor, part.fine / factor};
    CCarico::ChangeLunghezza(lunghezza);
}

void CCaricoTrapezoidale::ChangeForza(Forza force) {
    for (Stretch& part : m_stretches) {
        part.inizio *= ForceFactor(force);
        part.fine *= ForceFactor(force);
    }
    CCarico::ChangeForza(force);
}

CElemento& CCaricoConcentrato::operator=(CElemento& altro) {
    CCarico::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCaricoConcentrato, &altro)) {
        m_force = load->m_force;
        m_moment = load->m_moment;
        m_dDistanza = load->m_dDistanza;
    }
    return *this;
}

void CCaricoConcentrato::ChangeLunghezza(Lunghezza lunghezza) {
    m_moment *= LengthFactor(lunghezza, 1);
    m_dDistanza *= LengthFactor(lunghezza, 1);
    CCarico::ChangeLunghezza(lunghezza);
}

void CCaricoConcentrato::ChangeForza(Forza force) {
    m_force *= ForceFactor(force);
    m_moment *= ForceFactor(force);
    CCarico::ChangeForza(force);
}

CElemento& CCaricoTemperatura::operator=(CElemento& altro) {
    CCarico::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCaricoTemperatura, &altro)) {
        m_dUniforme = load->m_dUniforme;
        m_dGradient2 = load->m_dGradient2;
        m_dGradient3 = load->m_dGradient3;
        m_dAlpha = load->m_dAlpha;
    }
    return *this;
}

void CCaricoTemperatura::ChangeLunghezza(Lunghezza lunghezza) {
    m_dGradient2 *= LengthFactor(lunghezza, -1);
    m_dGradient3 *= LengthFactor(lunghezza, -1);
    CCarico::ChangeLunghezza(lunghezza);
}

CElemento& CCaricoPesoProprio::operator=(CElemento& altro) {
    CCarico::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCaricoPesoProprio, &altro))
        m_acceleration = load->m_acceleration;
    return *this;
}

void CCaricoPesoProprio::ChangeLunghezza(Lunghezza lunghezza) {
    m_acceleration *= LengthFactor(lunghezza, 1);
    CCarico::ChangeLunghezza(lunghezza);
}
