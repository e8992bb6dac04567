#include "host/document/Copier.h"

#include "dialogs/frame/host/MainFrame.h"
#include "host/document/HostDocument.h"
#include "host/document/ModelWalks.h"
#include "model/element/Asta.h"
#include "model/element/Linea.h"
#include "model/element/Poligono.h"
#include "model/element/TipoElemento.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"

#include <algorithm>
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

void LeaveGroups(CElementoGruppo& copy) {
    while (copy.GetSizeGruppi() > 0)
        copy.EliminaGruppo(copy.GetIDGruppo(0));
}

} // namespace

double BetaAfter(CLineaFisica& line, const Motion& motion, const CFPoint& newFirst, const CFPoint& newSecond) {
    CFPoint axis1, axis2, axis3;
    if (!motion.Turns() || !line.GetLocalAxes(axis1, axis2, axis3) || newFirst == newSecond)
        return line.GetBeta();
    return BetaFor(motion.Direction(axis3), newFirst, newSecond);
}

double BetaFor(const CFPoint& third, const CFPoint& first, const CFPoint& second) {
    CFPoint base1, base2, base3;
    CLinea::_GetLocalAxes(first, second, 0, base1, base2, base3);
    return Clean(std::atan2(-Dot(third, base2), Dot(third, base3)) * 180 / std::numbers::pi);
}

void TurnSprings(CNodo& node, const Motion& motion) {
    for (int i = 0; i < node.GetSizeMolle(); ++i)
        node.GetIndexMolla(i)->GetDirection() = motion.Direction(node.GetIndexMolla(i)->GetDirection());
}

Copier::Copier(HostDocument& document, const std::vector<CElemento*>& selection)
    : m_document(document), m_objects(static_cast<int>(selection.size())) {
    std::unordered_map<CNodo*, std::size_t> places;
    const auto enter = [&](CNodo* node) {
        const auto [found, isNew] = places.emplace(node, m_originals.size());
        if (isNew) {
            m_originals.push_back(node);
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
    m_former = m_originals;
    if (m_originals.empty())
        return;
    m_low = m_high = *m_originals[0]->GetPunto();
    for (CNodo* node : m_originals) {
        const CFPoint& p = *node->GetPunto();
        m_low = {std::min(m_low.x, p.x), std::min(m_low.y, p.y), std::min(m_low.z, p.z)};
        m_high = {std::max(m_high.x, p.x), std::max(m_high.y, p.y), std::max(m_high.z, p.z)};
    }
}

bool Copier::Accepts(std::size_t copies) const {
    const std::size_t each = m_originals.size() + m_items.size();
    if (each > 0 && copies > mostCopies / each)
        return false;
    const std::size_t most = copies * (each + m_originals.size()); // with the joins
    for (const Kind kind : allKinds) {
        if (IsSelectableKind(kind) && !m_document.Data().HasNumbers(kind, most))
            return false;
    }
    return true;
}

bool Copier::Reaches(const Motion& motion) const {
    // What lies between the corners of a box still lies between them after a motion: most copies need no more.
    bool whole = true;
    for (int i = 0; whole && i < 8; ++i)
        whole = IsUsablePlace(
            motion.Place({i & 1 ? m_high.x : m_low.x, i & 2 ? m_high.y : m_low.y, i & 4 ? m_high.z : m_low.z}));
    return whole || std::all_of(m_originals.begin(), m_originals.end(),
                                [&motion](CNodo* node) { return IsUsablePlace(motion.Place(*node->GetPunto())); });
}

void Copier::Copy(const Motion& motion, int join) {
    PlaceNodes(motion);
    for (const Item& item : m_items) {
        CopyItem(item, motion);
        CMainFrame::_StepBar();
    }
    Join(join);
    m_former.swap(m_next);
}

void Copier::PlaceNodes(const Motion& motion) {
    const int firstNew = m_document.Data().NextId(Kind::Node);
    const double tolerance = m_document.GetTolerance();
    m_next.assign(m_originals.size(), nullptr);
    // A node that stays where it is serves as its own copy, before another one that comes there may take it.
    for (std::size_t i = 0; i < m_originals.size(); ++i) {
        CNodo* original = m_originals[i];
        if (CFPoint::GetMod(motion.Place(*original->GetPunto()), *original->GetPunto()) > tolerance)
            continue;
        original->SetAlready(1);
        m_next[i] = original;
    }
    for (std::size_t i = 0; i < m_originals.size(); ++i) {
        if (!m_next[i]) {
            const CFPoint place = motion.Place(*m_originals[i]->GetPunto());
            CNodo* met = Met(place, firstNew);
            m_next[i] = met ? met : CopyNode(*m_originals[i], place, motion);
            m_next[i]->SetAlready(1);
        }
        if (m_selected[i])
            CMainFrame::_StepBar();
    }
    for (CNodo* node : m_next)
        node->SetAlready(0);
}

// The node at the place that was there before the copy and serves none of its nodes yet; null when there is none.
CNodo* Copier::Met(const CFPoint& place, int firstNew) const {
    return m_document.Data().NodeAt(place, m_document.GetTolerance(),
                                    [firstNew](CNodo& node) { return node.GetID() < firstNew && !node.IsAlready(); });
}

CNodo* Copier::CopyNode(CNodo& original, const CFPoint& place, const Motion& motion) {
    auto copy = std::make_unique<CNodo>();
    *copy = static_cast<const CNodo&>(original);
    copy->SetPoint(place);
    LeaveGroups(*copy);
    TurnSprings(*copy, motion);
    return m_document.AddNew(std::move(copy), "Copia");
}

void Copier::CopyItem(const Item& item, const Motion& motion) {
    m_corners.clear();
    for (const std::size_t place : item.nodes)
        m_corners.push_back(m_next[place]);
    if (!HasElement(item.kind, m_corners))
        MakeCopy(item, motion);
}

// The copy gets the nodes in m_corners.
void Copier::MakeCopy(const Item& item, const Motion& motion) {
    std::unique_ptr<CElemento> copy = MakeObject(item.kind);
    *copy = *item.original;
    auto& carrier = static_cast<CElementoCarico&>(*copy);
    LeaveGroups(carrier);
    if (IsLineKind(item.kind)) {
        auto& line = static_cast<CLineaFisica&>(*copy);
        line.SetBeta(BetaAfter(static_cast<CLineaFisica&>(*item.original), motion, *m_corners[0]->GetPunto(),
                               *m_corners[1]->GetPunto()));
        line.SetNodi(m_corners[0], m_corners[1]);
        if (motion.Mirrors())
            MirrorLoads(carrier, 1);
    } else {
        // After mirroring round the other way, so that the normal is the mirrored one, and from the second vertex to
        // the first, so that axis 1 goes on lying along the first side.
        if (motion.Mirrors()) {
            std::reverse(m_corners.begin(), m_corners.end());
            std::rotate(m_corners.begin(), m_corners.end() - 2, m_corners.end());
            MirrorLoads(carrier, 0);
        }
        for (CNodo* corner : m_corners)
            static_cast<CPoligono&>(*copy).AggiungiVertice(corner);
    }
    m_document.Add(std::move(copy), "Copia");
}

void Copier::Join(int join) {
    if (join != UNIONE_TRAVI && join != UNIONE_ASTE)
        return;
    const Kind kind = join == UNIONE_TRAVI ? Kind::Beam : Kind::Truss;
    for (std::size_t i = 0; i < m_former.size(); ++i) {
        m_corners = {m_former[i], m_next[i]};
        if (m_corners[0] == m_corners[1] || HasElement(kind, m_corners))
            continue;
        if (kind == Kind::Beam)
            m_document.AddTrave(m_corners[0]->GetID(), m_corners[1]->GetID(), nullptr);
        else
            m_document.AddAsta(m_corners[0]->GetID(), m_corners[1]->GetID(), nullptr);
    }
}

namespace {

double& Along(CFPoint& vector, int axis) {
    return axis == 0 ? vector.x : axis == 1 ? vector.y : vector.z;
}

// Changes the sign of what points along the axis, or turns about another one; false when nothing does.
bool Mirror(CCarico& load, int axis) {
    if (load.GetReference() != CCarico::Local)
        return false;
    const auto flip = [](double& value) {
        const bool changes = value != 0;
        value = changes ? -value : value;
        return changes;
    };
    switch (load.GetTipoElemento()) {
    case TipoElemento::CaricoUniforme:
        return flip(Along(static_cast<CCaricoUniforme&>(load).GetCarico(), axis));
    case TipoElemento::CaricoTrapezoidale: {
        auto& part = static_cast<CCaricoTrapezoidale&>(load).GetStretch(axis);
        return flip(part.inizio) | flip(part.fine);
    }
    case TipoElemento::CaricoConcentrato: {
        auto& point = static_cast<CCaricoConcentrato&>(load);
        return flip(Along(point.GetForceVector(), axis)) | flip(Along(point.GetMomentVector(), (axis + 1) % 3)) |
               flip(Along(point.GetMomentVector(), (axis + 2) % 3));
    }
    case TipoElemento::CaricoTemperatura:
        return axis == 1 && flip(static_cast<CCaricoTemperatura&>(load).GetGradient2());
    default:
        return false;
    }
}

} // namespace

// Loads are shared by the elements that carry them: a mirrored one is another load, made once for all. `axis` is the
// local one that has changed sides: the second of lines, the first of polygons.
void Copier::MirrorLoads(CElementoCarico& copy, int axis) {
    std::vector<CCarico*> loads;
    for (int i = 0; i < copy.GetSizeCarichi(); ++i)
        if (CCarico* load = copy.GetIndexCarico(i))
            loads.push_back(load);
    copy.EliminaCarichi();
    for (CCarico* load : loads) {
        CCarico*& mirrored = m_mirrored[axis][load];
        if (!mirrored) {
            mirrored = load;
            std::unique_ptr<CElemento> other = CopyOf(*load);
            auto* loadCase = m_document.GetCasoCarico(load->GetIDCasoCarico(), nullptr);
            if (loadCase && other && Mirror(static_cast<CCarico&>(*other), axis))
                mirrored =
                    m_document.AddCarico(*loadCase, std::unique_ptr<CCarico>(static_cast<CCarico*>(other.release())));
        }
        copy.AddCarico(mirrored, 0);
    }
}

} // namespace host
