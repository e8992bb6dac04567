#include "model/element/Poligono.h"

#include "model/element/Nodo.h"
#include "model/element/TipoElemento.h"

#include <algorithm>
#include <cmath>

IMPLEMENT_DYNCREATE(CPoligono, CElementoSpecifiche)

CPoligono::CPoligono() : CPoligono(TipoElemento::Poligono) {
}

namespace {

// Area below this share of the squared diameter is no area: the vertices lie on a line.
constexpr double flat = 1e-9;

} // namespace

CPoligono::~CPoligono() {
    CPoligono::StaccaNodi();
}

bool CPoligono::Complete() {
    return m_vertices.size() >= 3 &&
           std::all_of(m_vertices.begin(), m_vertices.end(), [](const Vertex& v) { return v.node != nullptr; });
}

CFPoint CPoligono::GetCentro() {
    CFPoint sum;
    int count = 0;
    for (const Vertex& vertex : m_vertices)
        if (vertex.node) {
            sum += *vertex.node->GetPunto();
            ++count;
        }
    return count ? sum * (1.0 / count) : sum;
}

CFPoint CPoligono::AreaVector() {
    CFPoint sum;
    if (!Complete())
        return sum;
    // Taken about the first vertex: about the origin a small wall far away would lose its digits.
    const CFPoint origin = *m_vertices[0].node->GetPunto();
    double diameter = 0;
    for (std::size_t i = 1; i < m_vertices.size(); ++i) {
        const CFPoint here = *m_vertices[i].node->GetPunto() - origin;
        diameter = std::max(diameter, here.GetMod());
        if (i + 1 < m_vertices.size())
            sum += Cross(here, *m_vertices[i + 1].node->GetPunto() - origin);
    }
    return sum.GetMod() > flat * diameter * diameter ? sum : CFPoint();
}

int CPoligono::GetArea(CGrandezza& area) {
    const double value = AreaVector().GetMod() / 2;
    area = CGrandezza(value, 2, 0, GetLunghezza(), GetForza());
    return value > 0;
}

int CPoligono::GetAreaView(CGrandezza& area) {
    if (IsVisible())
        return GetArea(area);
    area = CGrandezza(0, 2, 0, GetLunghezza(), GetForza());
    return 0;
}

int CPoligono::GetAreaNodo(CNodo* pNodo, CGrandezza& area) {
    int place = -1;
    for (std::size_t i = 0; i < m_vertices.size() && place < 0; ++i)
        if (pNodo && m_vertices[i].node == pNodo)
            place = static_cast<int>(i);
    return GetAreaNodo(place, area);
}

int CPoligono::GetAreaNodo(int i, CGrandezza& area) {
    area = CGrandezza(0, 2, 0, GetLunghezza(), GetForza());
    CFPoint normal = AreaVector();
    const int count = GetSize();
    if (i < 0 || i >= count || !normal.Normalize())
        return 0;
    const CFPoint corner = *GetVertice(i)->GetPunto();
    const CFPoint after = (*GetVertice((i + 1) % count)->GetPunto() - corner) * 0.5;
    const CFPoint before = (*GetVertice((i + count - 1) % count)->GetPunto() - corner) * 0.5;
    const CFPoint centre = GetCentro() - corner;
    area.SetValue(Dot(Cross(after, centre) + Cross(centre, before), normal) / 2);
    return 1;
}

int CPoligono::GetVersoriLocali(double& x1, double& y1, double& z1, double& x2, double& y2, double& z2, double& x3,
                                double& y3, double& z3, double& xc, double& yc, double& zc) {
    CFPoint normal = AreaVector();
    if (!normal.Normalize())
        return 0;
    // Along the first side that has a length once it is laid into the plane.
    CFPoint first;
    for (int i = 0; i < GetSize(); ++i) {
        first = *GetVertice((i + 1) % GetSize())->GetPunto() - *GetVertice(i)->GetPunto();
        first -= normal * Dot(first, normal);
        if (first.Normalize())
            break;
    }
    const CFPoint second = Cross(normal, first), centre = GetCentro();
    x1 = first.x, y1 = first.y, z1 = first.z;
    x2 = second.x, y2 = second.y, z2 = second.z;
    x3 = normal.x, y3 = normal.y, z3 = normal.z;
    xc = centre.x, yc = centre.y, zc = centre.z;
    return 1;
}

void CPoligono::Release(CNodo* nodo) {
    if (!Linked() || !nodo)
        return;
    // A node that is still a vertex elsewhere keeps its one entry.
    const auto uses =
        std::count_if(m_vertices.begin(), m_vertices.end(), [&](const Vertex& v) { return v.node == nodo; });
    if (uses <= 1)
        nodo->ForgetElement(this);
}

int CPoligono::SetVertice(CNodo* pNodo, int i) {
    if (!pNodo || i < 0 || i >= GetSize())
        return 0;
    if (!Linked() && EntersNodes())
        LinkNodes();
    Vertex& vertex = m_vertices[static_cast<std::size_t>(i)];
    if (vertex.node == pNodo)
        return 1;
    Release(vertex.node);
    const bool enters =
        std::none_of(m_vertices.begin(), m_vertices.end(), [&](const Vertex& v) { return v.node == pNodo; });
    vertex = {pNodo, pNodo->GetID()};
    if (Linked() && enters)
        pNodo->AddElemento(this);
    return 1;
}

int CPoligono::SetIDVertice(int id, int i) {
    if (i < 0 || i >= GetSize())
        return 0;
    Vertex& vertex = m_vertices[static_cast<std::size_t>(i)];
    Release(vertex.node);
    vertex = {nullptr, id};
    return 1;
}

int CPoligono::AggiungiVertice(int id) {
    m_vertices.push_back({nullptr, id});
    return 1;
}

int CPoligono::AggiungiVertice(CNodo* pNodo) {
    if (!pNodo || std::any_of(m_vertices.begin(), m_vertices.end(), [&](const Vertex& v) { return v.node == pNodo; }))
        return 0;
    m_vertices.push_back({nullptr, 0});
    return SetVertice(pNodo, GetSize() - 1);
}

int CPoligono::EliminaVertice(int i) {
    if (i < 0 || i >= GetSize())
        return 0;
    Release(m_vertices[static_cast<std::size_t>(i)].node);
    m_vertices.erase(m_vertices.begin() + i);
    return 1;
}

int CPoligono::GetIDVertice(int i) {
    if (i < 0 || i >= GetSize())
        return 0;
    const Vertex& vertex = m_vertices[static_cast<std::size_t>(i)];
    return vertex.node ? vertex.node->GetID() : vertex.id;
}

CNodo* CPoligono::GetVertice(int i) {
    return i >= 0 && i < GetSize() ? m_vertices[static_cast<std::size_t>(i)].node : nullptr;
}

int CPoligono::GetIndexVertice(int id) {
    for (int i = 0; i < GetSize(); ++i)
        if (GetIDVertice(i) == id)
            return i;
    return -1;
}

void CPoligono::AggiornaID() {
    for (Vertex& vertex : m_vertices)
        if (vertex.node)
            vertex.id = vertex.node->GetID();
}

int CPoligono::GetDir2(CFPoint& versore) {
    return GetDir(versore, 1);
}

int CPoligono::GetNodoMedio(CFPoint& punto, int lato) {
    if (lato < 0 || lato >= GetSize() || GetSize() < 2)
        return 0;
    CNodo* const from = GetVertice(lato);
    CNodo* const to = GetVertice((lato + 1) % GetSize());
    if (!from || !to)
        return 0;
    punto = (*from->GetPunto() + *to->GetPunto()) * 0.5;
    return 1;
}

void CPoligono::StaccaNodi() {
    if (!Linked())
        return;
    SetLinked(false);
    for (std::size_t i = 0; i < m_vertices.size(); ++i)
        if (m_vertices[i].node)
            m_vertices[i].node->ForgetElement(this);
}

void CPoligono::LinkNodes() {
    if (Linked() || !EntersNodes())
        return;
    SetLinked(true);
    for (std::size_t i = 0; i < m_vertices.size(); ++i) {
        CNodo* const node = m_vertices[i].node;
        const auto same = [&](const Vertex& v) { return v.node == node; };
        if (node && std::find_if(m_vertices.begin(), m_vertices.end(), same) - m_vertices.begin() ==
                        static_cast<std::ptrdiff_t>(i))
            node->AddElemento(this);
    }
}

double CPoligono::GetOutOfPlane() {
    CFPoint normal = AreaVector();
    if (!normal.Normalize())
        return 0;
    const CFPoint centre = GetCentro();
    double farthest = 0;
    for (const Vertex& vertex : m_vertices)
        farthest = std::max(farthest, std::abs(Dot(*vertex.node->GetPunto() - centre, normal)));
    return farthest;
}

CElemento& CPoligono::operator=(CElemento& altro) {
    return CElementoSpecifiche::operator=(altro);
}

int CPoligono::CheckElemento(CStringArray& messaggi) {
    const int before = messaggi.GetSize();
    if (!Complete())
        messaggi.Add("Il poligono ha meno di tre nodi.");
    else if (AreaVector().GetMod() == 0)
        messaggi.Add("Il poligono ha area nulla.");
    return messaggi.GetSize() == before;
}

int CPoligono::GetDir(CFPoint& versore, int asse) {
    CFPoint axes[3], centre;
    if (asse < 0 || asse > 2 ||
        !GetVersoriLocali(axes[0].x, axes[0].y, axes[0].z, axes[1].x, axes[1].y, axes[1].z, axes[2].x, axes[2].y,
                          axes[2].z, centre.x, centre.y, centre.z))
        return 0;
    versore = axes[asse];
    return 1;
}

int CPoligono::IsInRange(CFPoint da, CFPoint a) {
    return Complete() && std::all_of(m_vertices.begin(), m_vertices.end(),
                                     [&](const Vertex& v) { return v.node->IsInRange(da, a) != 0; });
}

int CPoligono::IsParallelo(CFPoint direzione) {
    constexpr double sine = 1.4142e-3; // the angle whose cosine is the lines' 0.999999
    CFPoint normal = AreaVector();
    return direzione.Normalize() && normal.Normalize() && std::abs(Dot(normal, direzione)) <= sine;
}

int CPoligono::UpdateVertex(CObject* pVecchio, CObject* pNuovo) {
    auto* replacement = DYNAMIC_DOWNCAST(CNodo, pNuovo);
    int changed = 0;
    for (int i = 0; i < GetSize(); ++i) {
        Vertex& vertex = m_vertices[static_cast<std::size_t>(i)];
        if (!vertex.node || vertex.node != pVecchio)
            continue;
        if (replacement)
            SetVertice(replacement, i);
        else
            SetIDVertice(vertex.node->GetID(), i);
        ++changed;
    }
    return changed;
}

int CPoligono::UpdateVertexID(int vecchio, int nuovo, CElemento* pNodo) {
    auto* node = DYNAMIC_DOWNCAST(CNodo, static_cast<CObject*>(pNodo));
    int changed = 0;
    for (int i = 0; i < GetSize(); ++i) {
        if (GetIDVertice(i) != vecchio)
            continue;
        if (node)
            SetVertice(node, i);
        m_vertices[static_cast<std::size_t>(i)].id = nuovo;
        ++changed;
    }
    return changed;
}
