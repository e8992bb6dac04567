#include "host/document/Copier.h"

#include "dialogs/frame/host/MainFrame.h"
#include "host/document/HostDocument.h"
#include "model/element/Asta.h"
#include "model/element/Linea.h"
#include "model/element/Poligono.h"
#include "model/element/TipoElemento.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"

#include <cmath>
#include <numbers>

namespace host {

namespace {

// More objects than this in one command are a slip of the keyboard, and would end in no memory.
constexpr std::size_t mostCopies = 5'000'000;

// Removes what differs from a whole number of degrees by rounding only.
double Clean(double degrees) {
    const double whole = std::round(degrees);
    return std::fabs(degrees - whole) < 1e-9 ? whole + 0.0 : degrees;
}

// The same nodes in the same order, or the other way round.
bool SameLine(CElemento& line, CNodo* first, CNodo* second) {
    CNodo* a = line.GetIndexNodo(0);
    CNodo* b = line.GetIndexNodo(1);
    return (a == first && b == second) || (a == second && b == first);
}

bool HasNode(CElemento& element, CNodo* node) {
    for (int i = 0; i < element.GetSize(); ++i)
        if (element.GetIndexNodo(i) == node)
            return true;
    return false;
}

} // namespace

double BetaAfter(CLineaFisica& line, const Motion& motion, const CFPoint& newFirst, const CFPoint& newSecond) {
    CFPoint axis1, axis2, axis3, base1, base2, base3;
    if (!motion.Turns() || !line.GetLocalAxes(axis1, axis2, axis3) ||
        !CLinea::_GetLocalAxes(newFirst, newSecond, 0, base1, base2, base3))
        return line.GetBeta();
    const CFPoint third = motion.Direction(axis3);
    return Clean(std::atan2(-Dot(third, base2), Dot(third, base3)) * 180 / std::numbers::pi);
}

Copier::Copier(HostDocument& document, const std::vector<CElemento*>& selection)
    : m_document(document), m_objects(static_cast<int>(selection.size())) {
    std::unordered_map<CNodo*, std::size_t> places;
    const auto enter = [&](CNodo* node) {
        const auto [found, isNew] = places.emplace(node, m_current.size());
        if (isNew) {
            m_current.push_back(node);
            m_selected.push_back(node->IsSelect() != 0);
        }
        return found->second;
    };
    for (CElemento* element : selection) {
        Kind kind;
        KindOf(*element, kind);
        if (kind == Kind::Node) {
            enter(static_cast<CNodo*>(element));
            continue;
        }
        Item item{kind, element, {}};
        for (int i = 0; i < element->GetSize(); ++i)
            item.nodes.push_back(enter(element->GetIndexNodo(i)));
        m_items.push_back(std::move(item));
    }
}

bool Copier::Accepts(int copies) const {
    const std::size_t each = m_current.size() + m_items.size();
    return each == 0 || static_cast<std::size_t>(copies) <= (mostCopies - m_made) / each;
}

bool Copier::Copy(const Motion& motion, int join) {
    if (!Accepts(1))
        return false;
    m_made += m_current.size() + m_items.size();
    CopyNodes(motion);
    for (Item& item : m_items) {
        CopyItem(item, motion);
        CMainFrame::_StepBar();
    }
    Join(join);
    m_current.swap(m_next);
    return true;
}

void Copier::CopyNodes(const Motion& motion) {
    const double tolerance = m_document.GetTolerance();
    m_next.resize(m_current.size());
    for (std::size_t i = 0; i < m_current.size(); ++i) {
        CNodo& original = *m_current[i];
        const CFPoint place = motion.Place(*original.GetPunto());
        CNodo* there = m_document.Data().NodeAt(place, nullptr, tolerance);
        // A place out of reach gets no copy, and what hangs on it none either.
        m_next[i] = there ? there : IsUsablePlace(place) ? CopyNode(original, place, motion) : nullptr;
        if (m_selected[i])
            CMainFrame::_StepBar();
    }
    for (CNodo*& node : m_next)
        if (!node)
            node = m_current[static_cast<std::size_t>(&node - m_next.data())];
}

CNodo* Copier::CopyNode(CNodo& original, const CFPoint& place, const Motion& motion) {
    auto copy = std::make_unique<CNodo>();
    *copy = static_cast<const CNodo&>(original);
    copy->SetPoint(place);
    while (copy->GetSizeGruppi() > 0)
        copy->EliminaGruppo(copy->GetIDGruppo(0));
    for (int i = 0; i < copy->GetSizeMolle(); ++i)
        copy->GetIndexMolla(i)->GetDirection() = motion.Direction(copy->GetIndexMolla(i)->GetDirection());
    return m_document.AddNew(std::move(copy), "Copia");
}

// An element of the same kind that has the item's nodes at their next places; null when there is none.
CElemento* Copier::Existing(const Item& item) const {
    CNodo* first = m_next[item.nodes[0]];
    CNodo* second = m_next[item.nodes[1]];
    CNodo* fewer = first->GetSizeElementi() <= second->GetSizeElementi() ? first : second;
    for (int i = 0; i < fewer->GetSizeElementi(); ++i) {
        CElemento* element = fewer->GetIndexElemento(i);
        if (element->GetTipoElemento() != CodeOf(item.kind) ||
            element->GetSize() != static_cast<int>(item.nodes.size()))
            continue;
        if (IsLineKind(item.kind)) {
            if (SameLine(*element, first, second))
                return element;
            continue;
        }
        bool all = true;
        for (std::size_t j = 0; all && j < item.nodes.size(); ++j)
            all = HasNode(*element, m_next[item.nodes[j]]);
        if (all)
            return element;
    }
    return nullptr;
}

void Copier::CopyItem(Item& item, const Motion& motion) {
    if (!item.current)
        return;
    for (std::size_t i = 1; i < item.nodes.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (m_next[item.nodes[i]] == m_next[item.nodes[j]]) {
                item.current = nullptr;
                return;
            }
        }
    }
    CElemento* existing = Existing(item);
    item.current = existing ? existing : MakeCopy(item, motion);
}

CElemento* Copier::MakeCopy(const Item& item, const Motion& motion) {
    std::unique_ptr<CElemento> copy = MakeObject(item.kind);
    *copy = *item.current;
    auto& carrier = static_cast<CElementoCarico&>(*copy);
    while (carrier.GetSizeGruppi() > 0)
        carrier.EliminaGruppo(carrier.GetIDGruppo(0));
    if (IsLineKind(item.kind)) {
        auto& line = static_cast<CLineaFisica&>(*copy);
        CNodo* first = m_next[item.nodes[0]];
        CNodo* second = m_next[item.nodes[1]];
        line.SetBeta(
            BetaAfter(static_cast<CLineaFisica&>(*item.current), motion, *first->GetPunto(), *second->GetPunto()));
        line.SetNodi(first, second);
        if (motion.Mirrors())
            MirrorLoads(carrier);
    } else {
        // Round the other way after mirroring, so that the normal is the mirrored one.
        auto& polygon = static_cast<CPoligono&>(*copy);
        const std::size_t count = item.nodes.size();
        for (std::size_t i = 0; i < count; ++i)
            polygon.AggiungiVertice(m_next[item.nodes[motion.Mirrors() ? (count - i) % count : i]]);
    }
    return m_document.Add(std::move(copy), "Copia");
}

void Copier::Join(int join) {
    if (join != UNIONE_TRAVI && join != UNIONE_ASTE)
        return;
    const Kind kind = join == UNIONE_TRAVI ? Kind::Beam : Kind::Truss;
    Item item{kind, nullptr, {0, 1}};
    std::vector<CNodo*> pair(2);
    for (std::size_t i = 0; i < m_current.size(); ++i) {
        if (m_current[i] == m_next[i])
            continue;
        pair = {m_current[i], m_next[i]};
        pair.swap(m_next);
        const bool there = Existing(item) != nullptr;
        pair.swap(m_next);
        if (there)
            continue;
        if (kind == Kind::Beam)
            m_document.AddTrave(m_current[i]->GetID(), m_next[i]->GetID(), nullptr);
        else
            m_document.AddAsta(m_current[i]->GetID(), m_next[i]->GetID(), nullptr);
    }
}

namespace {

// Changes the sign of what points along the second axis, or turns about the other two; false when nothing does.
bool Mirror(CCarico& load) {
    if (load.GetReference() != CCarico::Local)
        return false;
    const auto flip = [](double& value) {
        const bool changes = value != 0;
        value = changes ? -value : value;
        return changes;
    };
    switch (load.GetTipoElemento()) {
    case TipoElemento::CaricoUniforme:
        return flip(static_cast<CCaricoUniforme&>(load).GetCarico().y);
    case TipoElemento::CaricoTrapezoidale: {
        auto& part = static_cast<CCaricoTrapezoidale&>(load).GetStretch(1);
        return flip(part.inizio) | flip(part.fine);
    }
    case TipoElemento::CaricoConcentrato: {
        auto& point = static_cast<CCaricoConcentrato&>(load);
        return flip(point.GetForceVector().y) | flip(point.GetMomentVector().x) | flip(point.GetMomentVector().z);
    }
    case TipoElemento::CaricoTemperatura:
        return flip(static_cast<CCaricoTemperatura&>(load).GetGradient2());
    default:
        return false;
    }
}

} // namespace

// Loads are shared by the elements that carry them: a mirrored one is another load, made once for all.
void Copier::MirrorLoads(CElementoCarico& copy) {
    std::vector<CCarico*> loads;
    for (int i = 0; i < copy.GetSizeCarichi(); ++i)
        if (CCarico* load = copy.GetIndexCarico(i))
            loads.push_back(load);
    copy.EliminaCarichi();
    for (CCarico* load : loads) {
        CCarico*& mirrored = m_mirrored[load];
        if (!mirrored) {
            mirrored = load;
            std::unique_ptr<CElemento> other = CopyOf(*load);
            auto* loadCase = m_document.GetCasoCarico(load->GetIDCasoCarico(), nullptr);
            if (loadCase && other && Mirror(static_cast<CCarico&>(*other)))
                mirrored =
                    m_document.AddCarico(*loadCase, std::unique_ptr<CCarico>(static_cast<CCarico*>(other.release())));
        }
        copy.AddCarico(mirrored, 0);
    }
}

} // namespace host
