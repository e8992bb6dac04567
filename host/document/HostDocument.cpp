#include "host/document/HostDocument.h"

#include "host/document/Changes.h"
#include "host/document/UnitChange.h"
#include "model/element/LineaFisica.h"
#include "model/element/Poligono.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "model/values/Path.h"

#include <algorithm>

namespace host {

HostDocument::HostDocument() : m_selection(*this), m_undo(*this) {
    m_pAnalisi = &m_analysis;
    m_pProgetto = &m_design;
    m_pSelezione = &m_selection;
    m_pUndo = &m_undo;
    SetTitle("Senza nome");
    DocumentData data;
    auto loadCase = std::make_unique<CCasoCarico>();
    loadCase->SetID(1);
    loadCase->SetNome("Caso 1");
    std::unique_ptr<CElemento> object = std::move(loadCase);
    data.Append(object);
    data.CurrentCase() = 1;
    Replace(std::move(data));
}

HostDocument::~HostDocument() = default;

// ---- Notifications

void HostDocument::AddObserver(DocumentObserver* observer) {
    if (observer && std::find(m_observers.begin(), m_observers.end(), observer) == m_observers.end())
        m_observers.push_back(observer);
}

void HostDocument::RemoveObserver(DocumentObserver* observer) {
    const auto found = std::find(m_observers.begin(), m_observers.end(), observer);
    if (found == m_observers.end())
        return;
    if (m_notifying > 0)
        *found = nullptr; // the walk below is among them
    else
        m_observers.erase(found);
}

void HostDocument::UpdateAllViews(CView* pSender, long lHint, CObject* pHint) {
    if (lHint == MODIFICA_CASI_CARICO)
        RecordDirectChanges();
    ++m_notifying;
    const std::size_t count = m_observers.size();
    for (std::size_t i = 0; i < count; ++i)
        if (m_observers[i])
            m_observers[i]->OnDocumentUpdate(pSender, lHint, pHint);
    if (--m_notifying == 0)
        std::erase(m_observers, nullptr);
}

void HostDocument::SetIdleScheduler(std::function<void()> scheduler) {
    m_scheduler = std::move(scheduler);
}

void HostDocument::ScheduleIdle() {
    if (!m_scheduler || m_idleScheduled)
        return;
    m_idleScheduled = true;
    m_scheduler();
}

void HostDocument::Idle() {
    m_idleScheduled = false;
    m_undo.CloseImplicit();
    SendPending();
}

void HostDocument::NotifySelection(unsigned kinds) {
    m_pendingKinds |= kinds;
    if (m_scheduler)
        ScheduleIdle();
    else
        SendPending();
}

void HostDocument::NotifyChange(bool model) {
    RefreshModified();
    if (model) {
        InvalidateResults();
        RememberNames();
        m_pendingStructure = true;
    }
    // Undo may have taken away the case that is shown.
    if (!m_data.Find(Kind::LoadCase, m_data.CurrentCase()) && !m_data.Find(Kind::Combination, m_data.CurrentCase()))
        m_data.CurrentCase() = m_data.Size(Kind::LoadCase) > 0 ? m_data.At(Kind::LoadCase, 0)->GetID() : 0;
    if (m_scheduler)
        ScheduleIdle();
    else
        SendPending();
}

void HostDocument::SendPending() {
    static constexpr std::pair<Kind, long> codes[] = {{Kind::Node, MODIFICA_SELEZIONE_NODI},
                                                      {Kind::Truss, MODIFICA_SELEZIONE_ASTE},
                                                      {Kind::Beam, MODIFICA_SELEZIONE_TRAVI},
                                                      {Kind::Slab, MODIFICA_SELEZIONE_SOLAI},
                                                      {Kind::Wall, MODIFICA_SELEZIONE_SETTI}};
    const bool structure = std::exchange(m_pendingStructure, false);
    const bool groups = std::exchange(m_pendingGroups, false);
    const unsigned kinds = std::exchange(m_pendingKinds, 0u);
    if (structure)
        UpdateAllViews(nullptr, MODIFICA_STRUTTURA, nullptr);
    if (groups)
        UpdateAllViews(nullptr, MODIFICA_GRUPPI, nullptr);
    if (std::exchange(m_pendingResults, false))
        UpdateAllViews(nullptr, MODIFICA_RISULTATI_ELIMINATI, nullptr);
    if (std::exchange(m_announcedCase, m_data.CurrentCase()) != m_data.CurrentCase())
        ShowCurrentCase();
    if (kinds == 0)
        return;
    for (const auto& [kind, code] : codes)
        if (kinds & Bit(kind))
            UpdateAllViews(nullptr, code, nullptr);
    if (m_selection.IsEmpty())
        UpdateAllViews(nullptr, MODIFICA_DESELEZIONE, nullptr);
    UpdateAllViews(nullptr, MODIFICA_SELEZIONE_FINE, nullptr);
}

void HostDocument::InvalidateResults() {
    m_pendingResults |= m_analysis.Clear();
}

AnalysisOutcome HostDocument::RunAnalysis() {
    Idle(); // a step that is still open would make the results invalid when it ends
    AnalysisOutcome outcome = m_analysis.Run();
    m_pendingResults = false;
    UpdateAllViews(nullptr, outcome.done ? MODIFICA_RISULTATI : MODIFICA_RISULTATI_ELIMINATI, nullptr);
    return outcome;
}

void HostDocument::ShowCurrentCase() {
    m_analysis.Show(m_data.CurrentCase());
    UpdateAllViews(nullptr, MODIFICA_RISULTATI_CASO, nullptr);
}

// ---- The file

void HostDocument::Replace(DocumentData data) {
    m_selection.Forget();
    m_undo.Clear(); // before the objects that its steps refer to
    m_data = std::move(data);
    m_savedState = m_undo.State();
    NotifyChange(true);
    NotifySelection(0);
}

void HostDocument::SetPathName(LPCTSTR path) {
    CQuovarDoc::SetPathName(path);
    CString name, extension;
    if (SplitPath(GetPathName(), nullptr, nullptr, &name, &extension))
        SetTitle(name);
}

void HostDocument::MarkSaved() {
    m_undo.Close();
    m_savedState = m_undo.State();
    RefreshModified();
}

void HostDocument::RefreshModified() {
    SetModifiedFlag(m_undo.State() != m_savedState);
}

// ---- Changes

void HostDocument::RecordBefore(CElemento& object) {
    if (auto* last = dynamic_cast<Attributes*>(m_undo.Last()); last && &last->Object() == &object)
        return;
    if (auto* loadCase = DYNAMIC_DOWNCAST(CCasoCarico, &object))
        m_undo.Record(std::make_unique<EntityName>(*loadCase), "Modifica");
    else
        m_undo.Record(std::make_unique<Attributes>(m_data, object), "Modifica");
}

void HostDocument::Modify(CElemento& object, const std::function<void()>& change) {
    UndoStep step(m_undo, "Modifica");
    RecordBefore(object);
    change();
}

void HostDocument::MoveNodes(const std::vector<std::pair<CNodo*, CFPoint>>& places) {
    if (!places.empty())
        m_undo.Record(std::make_unique<Movement>(m_data, places), "Muovi");
}

template <class T>
void HostDocument::SetValue(T& where, T value, const char* stepName) {
    if (where != value)
        m_undo.Record(std::make_unique<Value<T>>(where, std::move(value)), stepName);
}

void HostDocument::SetTolerance(double tolerance) {
    if (std::isfinite(tolerance) && tolerance >= 0)
        SetValue(m_data.Tolerance(), tolerance, "Tolleranza");
}

void HostDocument::ChangeUnits(Lunghezza length, Forza force) {
    if (length == m_data.Units().length && force == m_data.Units().force)
        return;
    m_undo.Record(std::make_unique<UnitChange>(m_data, DocumentUnits{length, force}), "Cambia unità di misura");
    UpdateAllViews(nullptr, MODIFICA_LUNGHEZZE, nullptr);
    UpdateAllViews(nullptr, MODIFICA_UNITA, nullptr);
}

void HostDocument::AssegnaBetaSelezione(double beta, int, int) {
    UndoStep step(m_undo, "Angolo beta");
    for (int i = 0; i < m_selection.Size(Kind::Beam); ++i) {
        auto* beam = static_cast<CLineaFisica*>(m_selection.At(Kind::Beam, i));
        Modify(*beam, [&] { beam->SetBeta(beta); });
    }
}

void HostDocument::AssegnaBetaVista(double beta, int, int) {
    UndoStep step(m_undo, "Angolo beta");
    for (int i = 0; i < m_data.Size(Kind::Beam); ++i) {
        auto* beam = m_data.As<CLineaFisica>(Kind::Beam, i);
        if (beam->IsVisible())
            Modify(*beam, [&] { beam->SetBeta(beta); });
    }
}

// One walk that reaches every node that has an element; nodes without any count as structures of their own.
int HostDocument::IsUnica() {
    if (m_data.Size(Kind::Node) == 0)
        return 1;
    CObArray nodes;
    m_selection.SelezionaStruttura(GetIndexNodo(0), &nodes);
    return nodes.GetSize() == m_data.Size(Kind::Node);
}

// ---- Removing

// The objects, each once, with the elements that hang on the nodes among them.
std::vector<CElemento*> HostDocument::WithElements(std::vector<CElemento*> objects) {
    for (std::size_t i = 0, count = objects.size(); i < count; ++i) {
        auto* node = DYNAMIC_DOWNCAST(CNodo, objects[i]);
        for (int j = 0; node && j < node->GetSizeElementi(); ++j)
            objects.push_back(node->GetIndexElemento(j));
    }
    std::vector<CElemento*> once;
    once.reserve(objects.size());
    for (CElemento* object : objects) {
        if (object && !object->IsAlready() && m_data.Contains(*object)) {
            object->SetAlready(1);
            once.push_back(object);
        }
    }
    for (CElemento* object : once)
        object->SetAlready(0);
    return once;
}

void HostDocument::LeaveGroups(Kind kind, CElemento& object) {
    auto& member = static_cast<CElementoGruppo&>(object);
    for (int i = 0; i < member.GetSizeGruppi(); ++i)
        if (auto* group = m_data.FindAs<CGruppo>(Kind::Group, member.GetIDGruppo(i)))
            Modify(*group, [&] { group->RemoveElement(CodeOf(kind), object.GetID()); });
}

// Everything that refers to a named entity lets it go.
void HostDocument::LetGo(Kind kind, CElemento& object) {
    const int id = object.GetID();
    if (kind == Kind::LoadCase) {
        ForEachCarrier([&](CElementoCarico& carrier) {
            for (int i = 0; i < carrier.GetSizeCarichi(); ++i) {
                if (carrier.GetIndexIDCasoCarico(i) == id) {
                    Modify(carrier, [&] { carrier.RemoveLoadsOfCase(id); });
                    break;
                }
            }
        });
        for (int i = 0; i < m_data.Size(Kind::Combination); ++i) {
            CCombinazione* combination = GetIndexCombinazione(i);
            if (combination->IsCDC(id))
                Modify(*combination, [&] { combination->EliminaCDC(id); });
        }
    } else if (kind == Kind::Group) {
        auto& group = static_cast<CGruppo&>(object);
        for (int i = 0; i < group.GetSizeElementi(); ++i)
            for (const Kind member : allKinds)
                if (IsSelectableKind(member) && CodeOf(member) == group.GetElementKindAt(i))
                    if (auto* element = m_data.FindAs<CElementoGruppo>(member, group.GetElementIdAt(i)))
                        Modify(*element, [&] { element->EliminaGruppo(id); });
    } else {
        LetGoProperty(kind, id);
    }
}

void HostDocument::LetGoProperty(Kind kind, int id) {
    for (const Kind elements : {Kind::Beam, Kind::Truss}) {
        for (int i = 0; i < m_data.Size(elements); ++i) {
            auto* line = m_data.As<CLineaFisica>(elements, i);
            if (kind == Kind::Material && line->GetIDMateriale() == id)
                Modify(*line, [&] { line->SetMateriale(0, nullptr); });
            if (kind == Kind::Section && line->GetIDSezione() == id)
                Modify(*line, [&] { line->SetSezione(0, nullptr); });
        }
    }
    for (const Kind elements : {Kind::Wall, Kind::Slab}) {
        for (int i = 0; i < m_data.Size(elements); ++i) {
            auto* polygon = m_data.As<CPoligonoFisico>(elements, i);
            if (kind == Kind::Material && polygon->GetIDMateriale() == id)
                Modify(*polygon, [&] { polygon->SetMateriale(0, nullptr); });
            if (kind == Kind::Thickness && polygon->GetIDSpessore() == id)
                Modify(*polygon, [&] { polygon->SetThickness(0, nullptr); });
        }
    }
}

void HostDocument::RemoveFromLists(const std::vector<CElemento*>& objects) {
    std::array<std::vector<CElemento*>, kindCount> byKind;
    for (CElemento* object : objects) {
        Kind kind;
        KindOf(*object, kind);
        byKind[static_cast<std::size_t>(kind)].push_back(object);
    }
    // Nodes last: while undone, an element must find its nodes.
    std::rotate(byKind.begin(), byKind.begin() + 1, byKind.end());
    for (std::size_t i = 0; i < kindCount; ++i)
        if (!byKind[i].empty())
            m_undo.Record(
                std::make_unique<Removal>(m_data, static_cast<Kind>((i + 1) % kindCount), std::move(byKind[i])),
                "Elimina");
}

void HostDocument::Remove(std::vector<CElemento*> objects) {
    objects = WithElements(std::move(objects));
    if (objects.empty())
        return;
    UndoStep step(m_undo, "Elimina");
    m_selection.Remove(objects);
    for (CElemento* object : objects) {
        Kind kind;
        KindOf(*object, kind);
        if (IsSelectableKind(kind))
            LeaveGroups(kind, *object);
        else
            LetGo(kind, *object);
        if (object->GetID() == m_data.CurrentCase() && (kind == Kind::LoadCase || kind == Kind::Combination))
            SetValue(m_data.CurrentCase(), 0, "Elimina"); // the first one is shown then
    }
    RemoveFromLists(objects);
}

void HostDocument::DeleteSelection() {
    Remove(m_selection.All());
}

} // namespace host
