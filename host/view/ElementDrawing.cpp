#include "host/view/ElementDrawing.h"

#include "host/document/HostDocument.h"
#include "model/element/Asta.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/Trave.h"

#include <algorithm>

namespace host {

namespace {

constexpr std::size_t leastCorners = 3, wallCorners = 4;

const char* StepName(Kind kind) {
    switch (kind) {
    case Kind::Beam:
        return "Disegna trave";
    case Kind::Truss:
        return "Disegna asta";
    case Kind::Wall:
        return "Disegna setto";
    default:
        return "Disegna solaio";
    }
}

const char* NameOf(Kind kind) {
    switch (kind) {
    case Kind::Beam:
        return "della trave";
    case Kind::Truss:
        return "dell'asta";
    case Kind::Wall:
        return "del setto";
    default:
        return "del solaio";
    }
}

CElemento* LineBetween(Kind kind, CNodo& from, CNodo& to) {
    for (int i = 0; i < from.GetSizeElementi(); ++i) {
        CElemento* element = from.GetIndexElemento(i);
        Kind its;
        if (KindOf(*element, its) && its == kind &&
            (element->GetIndexNodo(0) == &to || element->GetIndexNodo(1) == &to))
            return element;
    }
    return nullptr;
}

} // namespace

CString ElementDrawing::Start(Kind kind) {
    Stop();
    const int least = IsLineKind(kind) ? 2 : static_cast<int>(leastCorners);
    if (m_document.GetSizeNodi() < least) {
        CString text;
        text.Format("Servono almeno %d nodi: generarli con il menu Genera.", least);
        return text;
    }
    m_active = true;
    m_kind = kind;
    return {};
}

void ElementDrawing::Stop() {
    m_active = false;
    m_picked.clear();
}

void ElementDrawing::StepBack() {
    m_active = !m_picked.empty();
    m_picked.clear();
}

std::vector<CNodo*> ElementDrawing::Picked() const {
    std::vector<CNodo*> nodes;
    for (const int id : m_picked)
        if (CNodo* node = m_document.Data().FindNode(id))
            nodes.push_back(node);
    return nodes;
}

CString ElementDrawing::Take(CNodo& node) {
    std::erase_if(m_picked, [this](int id) { return !m_document.Data().FindNode(id); });
    return IsLineKind(m_kind) ? TakeForLine(node) : TakeForPolygon(node);
}

CString ElementDrawing::TakeForLine(CNodo& node) {
    const int id = node.GetID();
    if (m_picked.empty()) {
        m_picked = {id};
        return {};
    }
    CNodo& from = *m_document.Data().FindNode(m_picked[0]);
    if (&from == &node)
        return "Scegliere un altro nodo.";
    m_picked = {id};
    if (CElemento* there = LineBetween(m_kind, from, node)) {
        CString text;
        text.Format(m_kind == Kind::Beam ? "Tra i due nodi c'è già la trave %d."_t
                                         : "Tra i due nodi c'è già l'asta %d."_t,
                    there->GetID());
        return text;
    }
    const UndoStep step(m_document.Undo(), StepName(m_kind));
    if (m_kind == Kind::Beam)
        m_document.AddTrave(from.GetID(), id, nullptr);
    else
        m_document.AddAsta(from.GetID(), id, nullptr);
    return {};
}

CString ElementDrawing::TakeForPolygon(CNodo& node) {
    const int id = node.GetID();
    const auto place = std::find(m_picked.begin(), m_picked.end(), id);
    if (place == m_picked.end()) {
        m_picked.push_back(id);
        return m_kind == Kind::Wall && m_picked.size() == wallCorners ? Close() : CString();
    }
    const bool closes = place == m_picked.begin() || place + 1 == m_picked.end();
    if (closes && m_picked.size() >= leastCorners)
        return Close();
    return "Il nodo è già stato scelto."_t;
}

// An outline without area is not made: the analysis could do nothing with it.
CString ElementDrawing::Close() {
    const std::vector<int> nodes = std::exchange(m_picked, {});
    CPoligono outline;
    for (const int id : nodes)
        outline.AggiungiVertice(m_document.Data().FindNode(id));
    CStringArray faults;
    if (!outline.CheckElemento(faults))
        return faults.GetAt(0);
    const UndoStep step(m_document.Undo(), StepName(m_kind));
    if (m_kind == Kind::Wall)
        m_document.AddSetto(nodes);
    else
        m_document.AddSolaio(nodes);
    return {};
}

CString ElementDrawing::Prompt() const {
    if (!m_active)
        return {};
    CString text;
    const auto count = static_cast<int>(Picked().size());
    if (IsLineKind(m_kind))
        text.Format("%s nodo %s: clic, o numero e Invio", count == 0 ? "Primo" : "Secondo", NameOf(m_kind));
    else if (count < static_cast<int>(leastCorners))
        text.Format("Nodo %d %s: clic, o numero e Invio", count + 1, NameOf(m_kind));
    else
        text.Format("Nodo %d %s, o di nuovo l'ultimo per chiudere", count + 1, NameOf(m_kind));
    return text;
}

} // namespace host
