#include "host/document/HostGeneration.h"

#include "host/document/Defaults.h"
#include "host/document/Generation.h"
#include "host/document/Mesher.h"
#include "model/element/Asta.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"

#include <algorithm>

namespace host {

namespace {

constexpr char generationStep[] = "Generazione nodi";

template <class T>
T* AddLine(HostEditing& document, int idNodo1, int idNodo2, const char* stepName) {
    CNodo* first = document.Data().FindNode(idNodo1);
    CNodo* second = document.Data().FindNode(idNodo2);
    if (!first || !second || first == second)
        return nullptr;
    auto line = std::make_unique<T>();
    line->SetNodi(first, second);
    GiveDefaults(document, *line);
    return document.AddNew(std::move(line), stepName);
}

template <class T>
T* AddPolygon(HostEditing& document, const std::vector<int>& idNodi, const char* stepName) {
    std::vector<int> sorted = idNodi;
    std::sort(sorted.begin(), sorted.end());
    if (sorted.size() < 3 || std::adjacent_find(sorted.begin(), sorted.end()) != sorted.end())
        return nullptr;
    auto polygon = std::make_unique<T>();
    for (const int id : idNodi) {
        CNodo* node = document.Data().FindNode(id);
        if (!node)
            return nullptr;
        polygon->AggiungiVertice(node);
    }
    GiveDefaults(document, *polygon);
    return document.AddNew(std::move(polygon), stepName);
}

} // namespace

int HostGeneration::GenerateNodes(const std::vector<CFPoint>& places) {
    if (places.empty() || !std::all_of(places.begin(), places.end(), IsUsablePlace) ||
        !Data().HasNumbers(Kind::Node, places.size()))
        return 0;
    UndoStep step(Undo(), generationStep);
    for (const CFPoint& place : places) {
        if (Data().NodeAt(place, nullptr, GetTolerance()))
            Undo().NotePresent(Kind::Node, 1);
        else
            AddNew(std::make_unique<CNodo>(place), generationStep);
    }
    return 1;
}

int HostGeneration::GenNodiLineare(CFPoint inizio, CFPoint direzione, double passo, int nNodi) {
    return GenerateNodes(PlacesOnLine(inizio, direzione, passo, nNodi, Data().Tolerance()));
}

int HostGeneration::GenNodi2Punti(CFPoint p1, CFPoint p2, int nNodi) {
    if (nNodi < 1 || nNodi > mostGeneratedNodes - 2)
        return 0;
    return GenerateNodes(PlacesOnSegment(p1, p2, nNodi + 2, Data().Tolerance()));
}

int HostGeneration::GenNodiArco3Punti(int, CFPoint p1, CFPoint p2, CFPoint p3, int nNodi) {
    return GenerateNodes(PlacesOnArc(p1, p2, p3, nNodi, Data().Tolerance()));
}

int HostGeneration::GenNodiArcoCerchio(int piano, double inclinazione, CFPoint centro, CFPoint inizio, double angolo,
                                       int nNodi) {
    return GenerateNodes(PlacesOnArc(piano, inclinazione, centro, inizio, angolo, nNodi, Data().Tolerance()));
}

int HostGeneration::GenNodiCerchio(int piano, double inclinazione, int nNodi, CFPoint centro, double raggio) {
    return GenerateNodes(PlacesOnCircle(piano, inclinazione, centro, raggio, nNodi, Data().Tolerance()));
}

int HostGeneration::Mesh4Punti(CFPoint p1, CFPoint p2, CFPoint p3, CFPoint p4, int nSuddivisioni1, int nSuddivisioni2) {
    Mesher mesher(*this, {p1, p2, p3, p4}, nSuddivisioni1, nSuddivisioni2);
    if (const std::optional<Refusal> refusal = mesher.Check()) {
        Refuse(*refusal);
        return 0;
    }
    return mesher.Run();
}

CNodo* HostGeneration::AddNodo(CFPoint& punto, CView*, int flag) {
    if (!IsUsablePlace(punto)) {
        Refuse(Refusal("Le coordinate non sono valide: il nodo non è stato creato."_t));
        return nullptr;
    }
    if (flag != 0)
        if (CNodo* there = Data().NodeAt(punto, nullptr, GetTolerance()))
            return there;
    return AddNew(std::make_unique<CNodo>(punto), "Aggiungi nodo");
}

CNodo* HostGeneration::GetNodo(CFPoint& punto, CNodo* pEscluso, double tolleranza) {
    return Data().NodeAt(punto, pEscluso, tolleranza);
}

CTrave* HostGeneration::AddTrave(int idNodo1, int idNodo2, CView*) {
    return AddLine<CTrave>(*this, idNodo1, idNodo2, "Aggiungi trave");
}

CAsta* HostGeneration::AddAsta(int idNodo1, int idNodo2, CView*) {
    return AddLine<CAsta>(*this, idNodo1, idNodo2, "Aggiungi asta");
}

CSetto* HostGeneration::AddSetto(const std::vector<int>& idNodi) {
    return AddPolygon<CSetto>(*this, idNodi, "Aggiungi setto");
}

CSolaio* HostGeneration::AddSolaio(const std::vector<int>& idNodi) {
    return AddPolygon<CSolaio>(*this, idNodi, "Aggiungi solaio");
}

} // namespace host
