#include "model/element/Linea.h"

#include "model/element/Nodo.h"

#include <cmath>
#include <numbers>

IMPLEMENT_DYNAMIC(CLinea, CElementoSpecifiche)

namespace {

constexpr double shortest = 1e-6;     // metres: what is shorter counts as no line
constexpr double upright = 1e-4;      // lean against the length
constexpr double parallel = 0.999999; // cosine of two directions that count as one

// Another line on the same two nodes; null when there is none. The node with fewer elements is searched.
CLinea* Twin(CLinea& line, CNodo& first, CNodo& last) {
    CNodo& fewer = first.GetSizeElementi() <= last.GetSizeElementi() ? first : last;
    for (int i = 0; i < fewer.GetSizeElementi(); ++i) {
        auto* other = DYNAMIC_DOWNCAST(CLinea, static_cast<CObject*>(fewer.GetIndexElemento(i)));
        if (!other || other == &line)
            continue;
        CNodo* const from = other->GetNodoIniziale();
        CNodo* const to = other->GetNodoFinale();
        if ((from == &first && to == &last) || (from == &last && to == &first))
            return other;
    }
    return nullptr;
}

} // namespace

CLinea::~CLinea() {
    CLinea::StaccaNodi();
}

double CLinea::GetLunghezzaLinea() {
    return m_pNodi[0] && m_pNodi[1] ? (*m_pNodi[1]->GetPunto() - *m_pNodi[0]->GetPunto()).GetMod() : 0;
}

CNodo* CLinea::GetNodoIniziale() {
    return m_pNodi[0];
}

CNodo* CLinea::GetNodoFinale() {
    return m_pNodi[1];
}

int CLinea::GetIDNodoIniziale() {
    return m_pNodi[0] ? m_pNodi[0]->GetID() : m_nIDNodi[0];
}

int CLinea::GetIDNodoFinale() {
    return m_pNodi[1] ? m_pNodi[1]->GetID() : m_nIDNodi[1];
}

int CLinea::SetNodi(CNodo* nodo1, CNodo* nodo2) {
    BeforeWrite();
    CLinea::StaccaNodi();
    m_pNodi[0] = nodo1;
    m_pNodi[1] = nodo2;
    for (int i = 0; i < 2; ++i)
        m_nIDNodi[i] = m_pNodi[i] ? m_pNodi[i]->GetID() : 0;
    CLinea::LinkNodes();
    return nodo1 && nodo2 && nodo1 != nodo2;
}

void CLinea::SetIDNodi(int id1, int id2) {
    SetNodi(nullptr, nullptr);
    m_nIDNodi[0] = id1;
    m_nIDNodi[1] = id2;
}

void CLinea::StaccaNodi() {
    if (!Linked())
        return;
    SetLinked(false);
    if (m_pNodi[0])
        m_pNodi[0]->ForgetElement(this);
    if (m_pNodi[1] && m_pNodi[1] != m_pNodi[0])
        m_pNodi[1]->ForgetElement(this);
}

void CLinea::LinkNodes() {
    if (Linked())
        return;
    SetLinked(true);
    if (m_pNodi[0])
        m_pNodi[0]->AddElemento(this);
    if (m_pNodi[1] && m_pNodi[1] != m_pNodi[0]) // a line from a node to itself stands in its list once
        m_pNodi[1]->AddElemento(this);
}

void CLinea::SetNode(int i, CNodo* nodo) {
    CNodo* const other = m_pNodi[1 - i];
    if (Linked() && m_pNodi[i] && m_pNodi[i] != other)
        m_pNodi[i]->ForgetElement(this);
    m_pNodi[i] = nodo;
    if (nodo)
        m_nIDNodi[i] = nodo->GetID();
    if (Linked() && nodo && nodo != other)
        nodo->AddElemento(this);
}

int CLinea::_GetLocalAxes(CFPoint da, CFPoint a, double betaGradi, CFPoint& asse1, CFPoint& asse2, CFPoint& asse3) {
    CFPoint along = a - da;
    if (!along.Normalize())
        return 0;
    // What leans by no more than nodes are off their places by is vertical: the direction of such a lean would turn the
    // section of a column by any angle.
    CFPoint across(-along.y, along.x, 0);
    if (std::hypot(along.x, along.y) < upright)
        across = CFPoint(0, 1, 0) - along * along.y;
    across.Normalize();
    const CFPoint upwards = Cross(along, across);
    const double beta = betaGradi * std::numbers::pi / 180;
    asse1 = along;
    asse2 = across * std::cos(beta) + upwards * std::sin(beta);
    asse3 = upwards * std::cos(beta) - across * std::sin(beta);
    return 1;
}

int CLinea::GetLocalAxes(CFPoint& asse1, CFPoint& asse2, CFPoint& asse3) {
    if (!m_pNodi[0] || !m_pNodi[1])
        return 0;
    return _GetLocalAxes(*m_pNodi[0]->GetPunto(), *m_pNodi[1]->GetPunto(), BetaDegrees(), asse1, asse2, asse3);
}

CElemento& CLinea::operator=(CElemento& altro) {
    return CElementoSpecifiche::operator=(altro);
}

int CLinea::CheckElemento(CStringArray& messaggi) {
    const int before = messaggi.GetSize();
    CString text;
    if (!m_pNodi[0] || !m_pNodi[1])
        messaggi.Add("L'elemento non ha due nodi.");
    else if (!(GetLunghezzaLinea() >= shortest * CGrandezza::_LengthFactor(Lunghezza::Metres, GetLunghezza())))
        messaggi.Add("L'elemento ha lunghezza nulla.");
    else if (CLinea* other = Twin(*this, *m_pNodi[0], *m_pNodi[1])) {
        text.Format("L'elemento ha gli stessi nodi dell'elemento %s n.ro %d.",
                    other->GetRuntimeClass()->m_lpszClassName, other->GetID());
        messaggi.Add(text);
    }
    return messaggi.GetSize() == before;
}

int CLinea::GetDir(CFPoint& versore, int asse) {
    CFPoint axes[3];
    if (asse < 0 || asse > 2 || !GetLocalAxes(axes[0], axes[1], axes[2]))
        return 0;
    versore = axes[asse];
    return 1;
}

CNodo* CLinea::GetIndexNodo(int i) {
    return i == 0 ? m_pNodi[0] : i == 1 ? m_pNodi[1] : nullptr;
}

int CLinea::IsInRange(CFPoint da, CFPoint a) {
    return m_pNodi[0] && m_pNodi[1] && m_pNodi[0]->IsInRange(da, a) && m_pNodi[1]->IsInRange(da, a);
}

int CLinea::IsParallelo(CFPoint direzione) {
    CFPoint axis;
    return direzione.Normalize() && GetDir(axis, 0) && std::abs(Dot(axis, direzione)) >= parallel;
}

int CLinea::UpdateVertex(CObject* pVecchio, CObject* pNuovo) {
    int changed = 0;
    for (int i = 0; i < 2; ++i)
        if (m_pNodi[i] && m_pNodi[i] == pVecchio) {
            SetNode(i, DYNAMIC_DOWNCAST(CNodo, pNuovo));
            ++changed;
        }
    return changed;
}

int CLinea::UpdateVertexID(int vecchio, int nuovo, CElemento* pNodo) {
    auto* node = DYNAMIC_DOWNCAST(CNodo, static_cast<CObject*>(pNodo));
    int changed = 0;
    for (int i = 0; i < 2; ++i) {
        if ((m_pNodi[i] ? m_pNodi[i]->GetID() : m_nIDNodi[i]) != vecchio)
            continue;
        if (node)
            SetNode(i, node);
        m_nIDNodi[i] = nuovo;
        ++changed;
    }
    return changed;
}
