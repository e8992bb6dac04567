#include "host/document/HostSelection.h"

#include "dialogs/frame/host/MainFrame.h"
#include "host/document/Copier.h"
#include "host/document/Division.h"
#include "host/document/Generation.h"
#include "host/document/HostDocument.h"
#include "host/document/StepSummary.h"
#include "model/element/LineaFisica.h"
#include "model/element/Poligono.h"
#include "model/values/ExceptionEx.h"

#include <algorithm>
#include <cmath>

namespace host {

HostSelection::HostSelection(HostDocument& document) : m_document(document) {
}

HostSelection::~HostSelection() = default;

// ---- The set

CElemento* HostSelection::At(Kind kind, int index) const {
    const auto& elements = m_kinds[static_cast<std::size_t>(kind)];
    return static_cast<std::size_t>(index) < elements.size() ? elements[static_cast<std::size_t>(index)] : nullptr;
}

CString HostSelection::Text() const {
    KindCounts counts = {};
    for (const Kind kind : allKinds)
        counts[static_cast<std::size_t>(kind)] = Size(kind);
    return IsEmpty() ? CString("Nessun elemento selezionato") : "Selezionati: " + CountText(counts);
}

void HostSelection::Changed(unsigned kinds) {
    if (kinds == 0)
        return;
    m_snapshot.reset();
    m_listValid = false;
    m_document.NotifySelection(kinds);
}

// The kind's bit when the element was not selected before, else 0.
unsigned HostSelection::Put(CElemento* element) {
    Kind kind;
    if (!element || !KindOf(*element, kind) || !IsSelectableKind(kind) || element->IsSelect() ||
        !m_document.Data().Contains(*element))
        return 0;
    element->SetSelect(1);
    m_all.push_back(element);
    m_kinds[static_cast<std::size_t>(kind)].push_back(element);
    return Bit(kind);
}

void HostSelection::Add(CElemento* element) {
    Changed(Put(element));
}

void HostSelection::Add(const std::vector<CElemento*>& elements) {
    unsigned kinds = 0;
    for (CElemento* element : elements)
        kinds |= Put(element);
    Changed(kinds);
}

void HostSelection::Remove(CElemento* element) {
    Remove(std::vector<CElemento*>{element});
}

void HostSelection::Remove(const std::vector<CElemento*>& elements) {
    unsigned kinds = 0;
    for (CElemento* element : elements) {
        Kind kind;
        if (!element || !element->IsSelect() || !KindOf(*element, kind) || !IsSelectableKind(kind))
            continue;
        element->SetSelect(0);
        kinds |= Bit(kind);
    }
    if (kinds == 0)
        return;
    // One sweep for all of them.
    const auto isOut = [](CElemento* element) { return !element->IsSelect(); };
    std::erase_if(m_all, isOut);
    for (const Kind kind : allKinds)
        if (kinds & Bit(kind))
            std::erase_if(m_kinds[static_cast<std::size_t>(kind)], isOut);
    Changed(kinds);
}

void HostSelection::Clear() {
    unsigned kinds = 0;
    for (const Kind kind : allKinds) {
        auto& elements = m_kinds[static_cast<std::size_t>(kind)];
        if (!elements.empty())
            kinds |= Bit(kind);
        elements.clear();
    }
    for (CElemento* element : m_all)
        element->SetSelect(0);
    m_all.clear();
    Changed(kinds);
}

void HostSelection::Forget() {
    m_all.clear();
    for (auto& elements : m_kinds)
        elements.clear();
    m_snapshot.reset();
    m_listValid = false;
    m_cycle.reset();
}

CObList* HostSelection::List() {
    if (!m_listValid) {
        m_list.RemoveAll();
        for (CElemento* element : m_all)
            m_list.AddTail(element);
        m_listValid = true;
    }
    return &m_list;
}

HostSelection::Snapshot HostSelection::TakeSnapshot() {
    if (!m_snapshot)
        m_snapshot = std::make_shared<const std::vector<CElemento*>>(m_all);
    return m_snapshot;
}

void HostSelection::PrepareRestore(const Snapshot& snapshot) {
    if (m_all != *snapshot)
        Clear();
}

void HostSelection::Restore(const Snapshot& snapshot) {
    if (m_all.empty())
        Add(*snapshot);
    for (CElemento* element : m_all)
        element->SetSelect(1); // an object that was given its former state bears that one's flag
    m_snapshot = snapshot;
}

void HostSelection::Deseleziona(CView*) {
    Clear();
}

// ---- Selecting by connection and by place

// A breadth-first walk; the array is its queue. The cost is that of the nodes reached and what meets at them.
void HostSelection::SelezionaStruttura(CNodo* seed, CObArray* pNodi) {
    if (!seed || !pNodi)
        return;
    const int first = pNodi->GetSize();
    seed->SetAlready(1);
    pNodi->Add(seed);
    for (int at = first; at < pNodi->GetSize(); ++at) {
        auto* node = static_cast<CNodo*>(pNodi->GetAt(at));
        for (int i = 0; i < node->GetSizeElementi(); ++i) {
            CElemento* element = node->GetIndexElemento(i);
            for (int j = 0; j < element->GetSize(); ++j) {
                CNodo* other = element->GetIndexNodo(j);
                if (other && !other->IsAlready()) {
                    other->SetAlready(1);
                    pNodi->Add(other);
                }
            }
        }
    }
    for (int at = first; at < pNodi->GetSize(); ++at)
        static_cast<CNodo*>(pNodi->GetAt(at))->SetAlready(0);
}

namespace {

struct Plane {
    CFPoint point, normal;

    double Distance(const CFPoint& place) const { return Dot(place - point, normal); }
};

bool PlaneOf(CPoligono* polygon, Plane& plane) {
    double unused;
    CFPoint& n = plane.normal;
    CFPoint& p = plane.point;
    return polygon &&
           polygon->GetVersoriLocali(unused, unused, unused, unused, unused, unused, n.x, n.y, n.z, p.x, p.y, p.z);
}

} // namespace

// Cuts the selected lines where they cross the plane of the polygon, as far as it goes on.
void HostSelection::IntersezioneLineePiano(CPoligono* pPoligono) {
    Plane plane;
    if (!PlaneOf(pPoligono, plane))
        throw new CExceptionEx("I tre nodi sono allineati: non definiscono un piano.");
    const double tolerance = m_document.GetTolerance();
    std::vector<std::pair<CLineaFisica*, double>> crossed;
    for (const Kind kind : {Kind::Beam, Kind::Truss}) {
        for (int i = 0; i < Size(kind); ++i) {
            auto* line = static_cast<CLineaFisica*>(At(kind, i));
            const double from = plane.Distance(*line->GetNodoIniziale()->GetPunto());
            const double to = plane.Distance(*line->GetNodoFinale()->GetPunto());
            // What only touches the plane with an end, or lies in it, stays whole.
            if (std::fabs(from) > tolerance && std::fabs(to) > tolerance && (from < 0) != (to < 0))
                crossed.emplace_back(line, from / (from - to));
        }
    }
    if (Size(Kind::Beam) + Size(Kind::Truss) == 0)
        return Refuse("Nessuna trave o asta selezionata");
    if (crossed.empty())
        return Refuse("Nessuna trave o asta selezionata attraversa il piano");
    UndoStep step(m_document.Undo(), "Intersezione linee piano");
    WaitBar bar("Attendere...Intersezione delle linee selezionate.", static_cast<unsigned>(crossed.size()));
    Division division(m_document);
    for (const auto& [line, place] : crossed) {
        division.Cut(*line, {place});
        CMainFrame::_StepBar();
    }
    division.Finish();
}

bool HostSelection::DivideEqually(int parts) {
    const int count = Size(Kind::Beam) + Size(Kind::Truss);
    CString why;
    if (count == 0)
        why = "Nessuna trave o asta selezionata";
    else if (parts < 2)
        why = "Il numero delle divisioni deve essere almeno 2";
    else if (parts > mostGeneratedNodes / count)
        why = "Il numero delle divisioni è troppo grande"_t;
    std::vector<CLineaFisica*> lines;
    // Nodes within the tolerance of two places must follow each other as the places do.
    const double shortest = 2 * m_document.GetTolerance() * parts;
    for (const Kind kind : {Kind::Beam, Kind::Truss}) {
        for (int i = 0; why.IsEmpty() && i < Size(kind); ++i) {
            lines.push_back(static_cast<CLineaFisica*>(At(kind, i)));
            if (!(lines.back()->GetLunghezzaLinea() > shortest))
                why.Format("%s n.ro %d è troppo corta per il numero delle divisioni"_t,
                           kind == Kind::Beam ? "La trave" : "L'asta", lines.back()->GetID());
        }
    }
    if (!why.IsEmpty()) {
        Refuse(why);
        return false;
    }
    std::vector<double> places;
    for (int i = 1; i < parts; ++i)
        places.push_back(static_cast<double>(i) / parts);
    UndoStep step(m_document.Undo(), "Spezza");
    WaitBar bar("Attendere...Divisione delle linee selezionate.", static_cast<unsigned>(count));
    Division division(m_document);
    for (CLineaFisica* line : lines) {
        division.Cut(*line, places);
        CMainFrame::_StepBar();
    }
    division.Finish();
    return true;
}

void HostSelection::SelezionaElementiPiano(CPoligono* pPoligono) {
    Plane plane;
    if (!PlaneOf(pPoligono, plane))
        return;
    std::vector<CElemento*> found;
    for (int i = 0; i < m_document.GetSizeElementi(); ++i) {
        CElemento* element = m_document.GetIndexElemento(i);
        bool inside = true;
        for (int j = 0; inside && j < element->GetSize(); ++j)
            inside = std::fabs(plane.Distance(*element->GetIndexNodo(j)->GetPunto())) <= m_document.GetTolerance();
        if (inside)
            found.push_back(element);
    }
    Add(found);
}

void HostSelection::SelezionaElementiRange(CFPoint da, CFPoint a, int nodi, int aste, int travi, int solai, int setti) {
    const int axis = m_rangeAxis ? m_rangeAxis() : -1;
    const double tolerance = m_document.GetTolerance();
    const auto bound = [&](int which, double& from, double& to) {
        constexpr double anywhere = std::numeric_limits<double>::infinity();
        const bool limited = axis < 0 || axis > 2 || axis == which;
        const auto [low, high] = std::minmax({from, to});
        from = limited ? low - tolerance : -anywhere;
        to = limited ? high + tolerance : anywhere;
    };
    bound(0, da.x, a.x);
    bound(1, da.y, a.y);
    bound(2, da.z, a.z);
    const std::pair<Kind, int> wanted[] = {
        {Kind::Node, nodi}, {Kind::Truss, aste}, {Kind::Beam, travi}, {Kind::Slab, solai}, {Kind::Wall, setti}};
    std::vector<CElemento*> found;
    for (const auto& [kind, flag] : wanted)
        for (int i = 0; flag && i < m_document.Data().Size(kind); ++i)
            if (CElemento* element = m_document.Data().At(kind, i); element->IsInRange(da, a))
                found.push_back(element);
    Add(found);
}

} // namespace host
