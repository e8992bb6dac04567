#include "model/Carico.h"

#include "model/Linea.h"

#include <cmath>

IMPLEMENT_DYNAMIC(CCarico, CElemento)
IMPLEMENT_DYNCREATE(CCaricoNodale, CCarico)
IMPLEMENT_DYNCREATE(CCaricoSpostamento, CCarico)
IMPLEMENT_DYNCREATE(CCaricoUniforme, CCarico)
IMPLEMENT_DYNCREATE(CCaricoTrapezoidale, CCarico)
IMPLEMENT_DYNCREATE(CCaricoConcentrato, CCarico)
IMPLEMENT_DYNCREATE(CCaricoTemperatura, CCarico)
IMPLEMENT_DYNCREATE(CCaricoPesoProprio, CCarico)

namespace {

CString vectorText(const char* what, const CFPoint& v) {
    CString text;
    text.Format("%s (%g, %g, %g)", what, v.x, v.y, v.z);
    return text;
}

} // namespace

CElemento& CCarico::operator=(CElemento& altro) {
    CElemento::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCarico, &altro)) {
        m_nIDCasoCarico = load->m_nIDCasoCarico;
        m_nIDInsieme = load->m_nIDInsieme;
        m_nRiferimento = load->m_nRiferimento;
    }
    return *this;
}

CString CCarico::GetDescrizioneCarico() {
    return "Carico";
}

CFPoint CCarico::globalVector(CElemento& elemento, const CFPoint& vettore) const {
    auto* line = DYNAMIC_DOWNCAST(CLinea, &elemento);
    CFPoint x, y, z;
    if (m_nRiferimento != Locale || !line || !line->GetAssiLocali(x, y, z))
        return vettore;
    return x * vettore.x + y * vettore.y + z * vettore.z;
}

double CCarico::lengthFactor(Lunghezza nuova, int power) {
    return std::pow(CGrandezza::_FattoreLunghezza(GetLunghezza(), nuova), power);
}

double CCarico::forceFactor(Forza nuova) {
    return CGrandezza::_FattoreForza(GetForza(), nuova);
}

CElemento& CCaricoNodale::operator=(CElemento& altro) {
    CCarico::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCaricoNodale, &altro)) {
        m_forza = load->m_forza;
        m_momento = load->m_momento;
    }
    return *this;
}

void CCaricoNodale::ChangeLunghezza(Lunghezza lunghezza) {
    m_momento *= lengthFactor(lunghezza, 1);
    CCarico::ChangeLunghezza(lunghezza);
}

void CCaricoNodale::ChangeForza(Forza forza) {
    m_forza *= forceFactor(forza);
    m_momento *= forceFactor(forza);
    CCarico::ChangeForza(forza);
}

CString CCaricoNodale::GetDescrizioneCarico() {
    return vectorText("Forza nodale", m_forza) + vectorText(", momento", m_momento);
}

CElemento& CCaricoSpostamento::operator=(CElemento& altro) {
    CCarico::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCaricoSpostamento, &altro)) {
        m_spostamento = load->m_spostamento;
        m_rotazione = load->m_rotazione;
    }
    return *this;
}

void CCaricoSpostamento::ChangeLunghezza(Lunghezza lunghezza) {
    m_spostamento *= lengthFactor(lunghezza, 1);
    CCarico::ChangeLunghezza(lunghezza);
}

CString CCaricoSpostamento::GetDescrizioneCarico() {
    return vectorText("Spostamento imposto", m_spostamento) + vectorText(", rotazione", m_rotazione);
}

CElemento& CCaricoUniforme::operator=(CElemento& altro) {
    CCarico::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCaricoUniforme, &altro))
        m_carico = load->m_carico;
    return *this;
}

void CCaricoUniforme::ChangeLunghezza(Lunghezza lunghezza) {
    m_carico *= lengthFactor(lunghezza, -1);
    CCarico::ChangeLunghezza(lunghezza);
}

void CCaricoUniforme::ChangeForza(Forza forza) {
    m_carico *= forceFactor(forza);
    CCarico::ChangeForza(forza);
}

CString CCaricoUniforme::GetDescrizioneCarico() {
    return vectorText("Carico uniforme", m_carico);
}

CElemento& CCaricoTrapezoidale::operator=(CElemento& altro) {
    CCarico::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCaricoTrapezoidale, &altro))
        for (int i = 0; i < 3; ++i)
            m_tratti[i] = load->m_tratti[i];
    return *this;
}

void CCaricoTrapezoidale::ChangeLunghezza(Lunghezza lunghezza) {
    const double factor = lengthFactor(lunghezza, 1);
    for (Tratto& part : m_tratti)
        part = {part.da * factor, part.a * factor, part.inizio / factor, part.fine / factor};
    CCarico::ChangeLunghezza(lunghezza);
}

void CCaricoTrapezoidale::ChangeForza(Forza forza) {
    for (Tratto& part : m_tratti) {
        part.inizio *= forceFactor(forza);
        part.fine *= forceFactor(forza);
    }
    CCarico::ChangeForza(forza);
}

CString CCaricoTrapezoidale::GetDescrizioneCarico() {
    CString text = "Carico trapezoidale";
    for (int i = 0; i < 3; ++i)
        if (m_tratti[i].inizio != 0 || m_tratti[i].fine != 0)
            text.AppendFormat(", asse %d: da %g a %g fra %g e %g", i + 1, m_tratti[i].inizio, m_tratti[i].fine,
                              m_tratti[i].da, m_tratti[i].a);
    return text;
}

CElemento& CCaricoConcentrato::operator=(CElemento& altro) {
    CCarico::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCaricoConcentrato, &altro)) {
        m_forza = load->m_forza;
        m_momento = load->m_momento;
        m_dDistanza = load->m_dDistanza;
    }
    return *this;
}

void CCaricoConcentrato::ChangeLunghezza(Lunghezza lunghezza) {
    m_momento *= lengthFactor(lunghezza, 1);
    m_dDistanza *= lengthFactor(lunghezza, 1);
    CCarico::ChangeLunghezza(lunghezza);
}

void CCaricoConcentrato::ChangeForza(Forza forza) {
    m_forza *= forceFactor(forza);
    m_momento *= forceFactor(forza);
    CCarico::ChangeForza(forza);
}

CString CCaricoConcentrato::GetDescrizioneCarico() {
    CString text = vectorText("Carico concentrato", m_forza) + vectorText(", momento", m_momento);
    text.AppendFormat(" a %g", m_dDistanza);
    return text;
}

CElemento& CCaricoTemperatura::operator=(CElemento& altro) {
    CCarico::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCaricoTemperatura, &altro)) {
        m_dUniforme = load->m_dUniforme;
        m_dGradiente2 = load->m_dGradiente2;
        m_dGradiente3 = load->m_dGradiente3;
        m_dAlfa = load->m_dAlfa;
    }
    return *this;
}

void CCaricoTemperatura::ChangeLunghezza(Lunghezza lunghezza) {
    m_dGradiente2 *= lengthFactor(lunghezza, -1);
    m_dGradiente3 *= lengthFactor(lunghezza, -1);
    CCarico::ChangeLunghezza(lunghezza);
}

CString CCaricoTemperatura::GetDescrizioneCarico() {
    CString text;
    text.Format("Temperatura %g, gradienti %g e %g", m_dUniforme, m_dGradiente2, m_dGradiente3);
    return text;
}

CElemento& CCaricoPesoProprio::operator=(CElemento& altro) {
    CCarico::operator=(altro);
    if (const auto* load = DYNAMIC_DOWNCAST(CCaricoPesoProprio, &altro))
        m_accelerazione = load->m_accelerazione;
    return *this;
}

void CCaricoPesoProprio::ChangeLunghezza(Lunghezza lunghezza) {
    m_accelerazione *= lengthFactor(lunghezza, 1);
    CCarico::ChangeLunghezza(lunghezza);
}

CString CCaricoPesoProprio::GetDescrizioneCarico() {
    return vectorText("Peso proprio, accelerazione", m_accelerazione);
}
