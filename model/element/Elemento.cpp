#include "model/element/Elemento.h"

#include "model/design/ElementoProgetto.h"
#include "model/element/ElementExtras.h"
#include "model/view/Adv3d.h"
#include "model/view/Adv3dRect.h"

IMPLEMENT_DYNAMIC(CElemento, CObject)

CElemento::CElemento(unsigned tipo)
    : m_nTipo(tipo & 0xff),
      m_nLunghezza(static_cast<unsigned>(Lunghezza::Metres)),
      m_nForza(static_cast<unsigned>(Forza::KiloNewtons)) {
}

CElemento::CElemento(const CElemento& altro)
    : CObject(altro), m_nTipo(altro.m_nTipo), m_nLunghezza(altro.m_nLunghezza), m_nForza(altro.m_nForza) {
}

CElemento::~CElemento() {
    SetDesignOwner(nullptr);
}

void CElemento::SetDesignOwner(CElemento* owner) {
    if (m_pExtras && m_pExtras->design)
        m_pExtras->design->m_owner = owner;
}

ElementExtras& CElemento::MakeData() {
    if (!m_pExtras)
        m_pExtras = std::make_unique<ElementExtras>();
    return *m_pExtras;
}

CElementoSettings& CElemento::Settings(Adv3d& vista) {
    return m_pExtras && m_pExtras->settings ? *m_pExtras->settings : vista.GetSettings(m_nTipo);
}

namespace {

constexpr unsigned named = CElementoSettings::Identifier | CElementoSettings::Materiale | CElementoSettings::Sezione |
                           CElementoSettings::LocalAxes;

} // namespace

bool CElemento::IsBare(Adv3d& vista) {
    return !m_pExtras && !Settings(vista).IsItem(named);
}

int CElemento::CanDraw(Adv3d* pVista) {
    return pVista && m_bVisible && Settings(*pVista).IsItem(CElementoSettings::Object);
}

void CElemento::Draw(Adv3d*) {
}

void CElemento::DrawInformazioni(Adv3d* pVista) {
    if (!CanDraw(pVista))
        return;
    if (Settings(*pVista).IsItem(named))
        DrawInfo(pVista);
    DrawRisultati(pVista);
    DrawProgetto(pVista);
    DrawVerifica(pVista);
}

int CElemento::IsInRect(CPoint, CPoint, Adv3d*) {
    return 0;
}

int CElemento::PtIn(CPoint, Adv3d*) {
    return 0;
}

int CElemento::Select(int seleziona, Adv3d* pVista) {
    const int wanted = seleziona ? 1 : 0;
    if (IsSelect() == wanted)
        return 0;
    SetSelect(wanted);
    Draw(pVista);
    return 1;
}

int CElemento::Select(CPoint a, CPoint b, Adv3d* pVista) {
    if (!IsInRect(a, b, pVista))
        return 0;
    Select(1, pVista);
    return 1;
}

int CElemento::Select(CPoint punto, Adv3d* pVista) {
    if (!PtIn(punto, pVista))
        return 0;
    Select(1, pVista);
    return 1;
}

void CElemento::UpdateInvalideRect(Adv3dRect*, int) {
}

double CElemento::GetProfonditaVista(Adv3d*) {
    return 0;
}

int CElemento::GetSizeFaccie(Adv3d*) {
    return 0;
}

int CElemento::SetFacesArray(FaceElemento**, Adv3d*, Adv3dRect*) {
    return 0;
}

int CElemento::AssegnaAttributi(CElemento*) {
    return 0;
}

int CElemento::CheckElemento(CStringArray&) {
    return 1;
}

int CElemento::GetDir(CFPoint&, int) {
    return 0;
}

int CElemento::GetSize() {
    return 0;
}

CNodo* CElemento::GetIndexNodo(int) {
    return nullptr;
}

int CElemento::IsInRange(CFPoint, CFPoint) {
    return 0;
}

int CElemento::IsParallelo(CFPoint) {
    return 0;
}

// An object with values of its own converts them before it calls these.
void CElemento::ChangeLunghezza(Lunghezza lunghezza) {
    SetLunghezza(lunghezza);
}

void CElemento::ChangeForza(Forza force) {
    SetForza(force);
}

void CElemento::SetLunghezza(Lunghezza lunghezza) {
    m_nLunghezza = static_cast<unsigned>(lunghezza) & 0xf;
}

void CElemento::SetForza(Forza force) {
    m_nForza = static_cast<unsigned>(force) & 0xf;
}

Lunghezza CElemento::GetLunghezza() {
    return static_cast<Lunghezza>(m_nLunghezza);
}

Forza CElemento::GetForza() {
    return static_cast<Forza>(m_nForza);
}

int CElemento::GetRisultatoNodo(int, int, double&) {
    return 0;
}

int CElemento::UpdateMinMaxRisultati(int, int&, double&, double&) {
    return 0;
}

int CElemento::GetProgettoNodo(int, int, double&) {
    return 0;
}

int CElemento::UpdateMinMaxProgetto(int, int&, double&, double&) {
    return 0;
}

int CElemento::GetVerificaNodo(int, int, double&) {
    return 0;
}

int CElemento::UpdateVertex(CObject*, CObject*) {
    return 0;
}

int CElemento::UpdateVertexID(int, int, CElemento*) {
    return 0;
}

void CElemento::DrawCarichi(Adv3d*) {
}

void CElemento::DrawInfo(Adv3d*) {
}

void CElemento::DrawVincolo(Adv3d*) {
}

void CElemento::DrawRisultati(Adv3d*) {
}

void CElemento::DrawProgetto(Adv3d*) {
}

void CElemento::DrawVerifica(Adv3d*) {
}

void CElemento::DrawMolle(Adv3d*) {
}

void CElemento::DrawSpecifiche(Adv3d*) {
}

int CElemento::GetTextInfo(CString& testo) {
    testo.Format("%s n.ro %d", GetRuntimeClass()->m_lpszClassName, GetID());
    return 1;
}

CElemento& CElemento::operator=(CElemento& altro) {
    if (this == &altro)
        return *this;
    m_nLunghezza = altro.m_nLunghezza;
    m_nForza = altro.m_nForza;
    m_bVisible = altro.m_bVisible;
    if (altro.m_pExtras) {
        MakeData().concreteId = altro.m_pExtras->concreteId;
        MakeData().settings = altro.m_pExtras->settings;
    } else if (m_pExtras) {
        m_pExtras->concreteId = 0;
        m_pExtras->settings = nullptr;
    }
    return *this;
}

int CElemento::IsSelect() {
    return m_bSelect;
}

void CElemento::SetSelect(int seleziona) {
    m_bSelect = seleziona != 0;
}

void CElemento::SetVisible(int visibile) {
    m_bVisible = visibile != 0;
}

int CElemento::IsVisible() {
    return m_bVisible;
}

void CElemento::SetID(int id) {
    BeforeWrite();
    m_nID = id;
}

int CElemento::GetID() {
    return m_nID;
}

void CElemento::SetAlready(int gia) {
    m_bAlready = gia != 0;
}

int CElemento::IsAlready() {
    return m_bAlready;
}

CElementoRisultati* CElemento::GetRisultati() {
    return m_pExtras ? m_pExtras->results : nullptr;
}

void CElemento::SetRisultati(CElementoRisultati* pRisultati) {
    if (pRisultati || m_pExtras)
        MakeData().results = pRisultati;
}

CElementoProgetto* CElemento::GetProgetto() {
    return m_pExtras ? m_pExtras->design : nullptr;
}

void CElemento::SetProgetto(CElementoProgetto* pProgetto) {
    SetDesignOwner(nullptr);
    if (pProgetto && pProgetto->m_owner)
        pProgetto->m_owner->SetProgetto(nullptr);
    if (pProgetto || m_pExtras)
        MakeData().design = pProgetto;
    SetDesignOwner(this);
}

CElementoVerifica* CElemento::GetVerifica() {
    return m_pExtras ? m_pExtras->check : nullptr;
}

void CElemento::SetVerifica(CElementoVerifica* pVerifica) {
    if (pVerifica || m_pExtras)
        MakeData().check = pVerifica;
}

CElementoSettings* CElemento::GetSettings() {
    return m_pExtras ? m_pExtras->settings : nullptr;
}

void CElemento::SetSettings(CElementoSettings* pSettings) {
    if (pSettings || m_pExtras)
        MakeData().settings = pSettings;
}

int CElemento::GetDrawFaces() {
    return 0;
}

unsigned int CElemento::GetIDRck() {
    return m_pExtras ? m_pExtras->concreteId : 0;
}

void CElemento::SetIDRck(unsigned int id) {
    BeforeWrite();
    if (id || m_pExtras)
        MakeData().concreteId = id;
}

unsigned int CElemento::GetTipoElemento() {
    return m_nTipo;
}

void CElemento::SetTipoElemento(unsigned int tipo) {
    m_nTipo = tipo & 0xff;
}

void CElemento::_DestroyArray(CObArray& array, int bElimina) {
    if (bElimina)
        for (CObject* object : array)
            delete object;
    array.RemoveAll();
}

int CElemento::_compareCrescente(const void* primo, const void* secondo) {
    const double a = static_cast<const Order*>(primo)->m_dValue;
    const double b = static_cast<const Order*>(secondo)->m_dValue;
    return a < b ? -1 : b < a ? 1 : 0;
}
