// The commands that make nodes and elements.
#include "host/document/Changes.h"
#include "host/document/Generation.h"
#include "host/document/HostDocument.h"
#include "model/element/Asta.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"

#include <algorithm>

namespace host {

namespace {

constexpr char generationStep[] = "Generazione nodi";

} // namespace

CElemento* HostDocument::Add(std::unique_ptr<CElemento> object, const char* stepName) {
    Kind kind;
    if (!object || !KindOf(*object, kind))
        return nullptr;
    CElemento* added = object.get();
    added->SetID(m_data.NextId(kind));
    added->SetLunghezza(m_data.Units().length);
    added->SetForza(m_data.Units().force);
    if (!m_data.Append(object))
        return nullptr;
    // Consecutive creations are one change: a million nodes need no million records.
    if (auto* creation = dynamic_cast<Creation*>(m_undo.Last())) {
        creation->Add(kind);
        return added;
    }
    auto creation = std::make_unique<Creation>(m_data);
    creation->Add(kind);
    m_undo.Record(std::move(creation), stepName);
    return added;
}

int HostDocument::GenerateNodes(const std::vector<CFPoint>& places) {
    if (places.empty() || !std::all_of(places.begin(), places.end(), IsUsablePlace))
        return 0;
    UndoStep step(m_undo, generationStep);
    for (const CFPoint& place : places)
        MakeNode(place);
    return 1;
}

CNodo* HostDocument::MakeNode(const CFPoint& place) {
    if (CNodo* there = m_data.NodeAt(place, nullptr, m_data.Tolerance()))
        return there;
    return AddNew(std::make_unique<CNodo>(place), generationStep);
}

int HostDocument::GenNodiLineare(CFPoint inizio, CFPoint direzione, double passo, int nNodi) {
    return GenerateNodes(PlacesOnLine(inizio, direzione, passo, nNodi, m_data.Tolerance()));
}

int HostDocument::GenNodi2Punti(CFPoint p1, CFPoint p2, int nNodi) {
    return GenerateNodes(PlacesOnSegment(p1, p2, nNodi, m_data.Tolerance()));
}

int HostDocument::GenNodiArco3Punti(int piano, CFPoint p1, CFPoint p2, CFPoint p3, int nNodi) {
    return GenerateNodes(PlacesOnArc(piano, p1, p2, p3, nNodi, m_data.Tolerance()));
}

int HostDocument::GenNodiArcoCerchio(int piano, double inclinazione, CFPoint centro, CFPoint inizio, double angolo,
                                     int nNodi) {
    return GenerateNodes(PlacesOnArc(piano, inclinazione, centro, inizio, angolo, nNodi, m_data.Tolerance()));
}

int HostDocument::GenNodiCerchio(int piano, double inclinazione, int nNodi, CFPoint centro, double raggio) {
    return GenerateNodes(PlacesOnCircle(piano, inclinazione, centro, raggio, nNodi, m_data.Tolerance()));
}

int HostDocument::Mesh4Punti(CFPoint p1, CFPoint p2, CFPoint p3, CFPoint p4, int nSuddivisioni1, int nSuddivisioni2) {
    const std::vector<CFPoint> places =
        PlacesInQuadrilateral({p1, p2, p3, p4}, nSuddivisioni1, nSuddivisioni2, m_data.Tolerance());
    if (places.empty() || !std::all_of(places.begin(), places.end(), IsUsablePlace))
        return 0;
    UndoStep step(m_undo, "Mesh");
    m_undo.Rename("Mesh");
    std::vector<int> ids;
    ids.reserve(places.size());
    for (const CFPoint& place : places) {
        CNodo* node = MakeNode(place);
        ids.push_back(node ? node->GetID() : 0);
    }
    const auto row = static_cast<std::size_t>(nSuddivisioni1) + 1;
    for (std::size_t corner = 0; corner + row < ids.size(); ++corner)
        if (corner % row + 1 < row) // the last place of a row begins no element
            AddPolygon<CSolaio>({ids[corner], ids[corner + 1], ids[corner + row + 1], ids[corner + row]}, "Mesh");
    return 1;
}

CNodo* HostDocument::AddNodo(CFPoint& punto, CView*, int flag) {
    if (!IsUsablePlace(punto))
        return nullptr;
    if (flag != 0)
        if (CNodo* there = m_data.NodeAt(punto, nullptr, m_data.ExactTolerance()))
            return there;
    return AddNew(std::make_unique<CNodo>(punto), "Aggiungi nodo");
}

CNodo* HostDocument::GetNodo(CFPoint& punto, CNodo* pEscluso, double tolleranza) {
    return m_data.NodeAt(punto, pEscluso, tolleranza);
}

// New elements have the first material, section and thickness of the document, so that a simple model needs no
// assigning.
void HostDocument::GiveDefaults(CLineaFisica& line) {
    if (CMateriale* material = GetIndexMateriale(0))
        line.SetMateriale(material->GetID(), material);
    if (CSezione* section = GetIndexSezione(0))
        line.SetSezione(section->GetID(), section);
}

void HostDocument::GiveDefaults(CPoligonoFisico& polygon) {
    if (CMateriale* material = GetIndexMateriale(0))
        polygon.SetMateriale(material->GetID(), material);
    if (CSpessore* thickness = GetIndexSpessore(0))
        polygon.SetThickness(thickness->GetID(), thickness);
}

template <class T>
T* HostDocument::AddLine(int idNodo1, int idNodo2, const char* stepName) {
    CNodo* first = m_data.FindNode(idNodo1);
    CNodo* second = m_data.FindNode(idNodo2);
    if (!first || !second || first == second)
        return nullptr;
    auto line = std::make_unique<T>();
    line->SetNodi(first, second);
    GiveDefaults(*line);
    return AddNew(std::move(line), stepName);
}

CTrave* HostDocument::AddTrave(int idNodo1, int idNodo2, CView*) {
    return AddLine<CTrave>(idNodo1, idNodo2, "Aggiungi trave");
}

CAsta* HostDocument::AddAsta(int idNodo1, int idNodo2, CView*) {
    return AddLine<CAsta>(idNodo1, idNodo2, "Aggiungi asta");
}

template <class T>
T* HostDocument::AddPolygon(const std::vector<int>& idNodi, const char* stepName) {
    std::vector<int> sorted = idNodi;
    std::sort(sorted.begin(), sorted.end());
    if (sorted.size() < 3 || std::adjacent_find(sorted.begin(), sorted.end()) != sorted.end())
        return nullptr;
    auto polygon = std::make_unique<T>();
    for (const int id : idNodi) {
        CNodo* node = m_data.FindNode(id);
        if (!node)
            return nullptr;
        polygon->AggiungiVertice(node);
    }
    GiveDefaults(*polygon);
    return AddNew(std::move(polygon), stepName);
}

CSetto* HostDocument::AddSetto(const std::vector<int>& idNodi) {
    return AddPolygon<CSetto>(idNodi, "Aggiungi setto");
}

CSolaio* HostDocument::AddSolaio(const std::vector<int>& idNodi) {
    return AddPolygon<CSolaio>(idNodi, "Aggiungi solaio");
}

} // namespace host
