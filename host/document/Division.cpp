#include "host/document/Division.h"

#include "host/analysis/Analysis.h"
#include "host/document/Copier.h"
#include "host/document/HostDocument.h"
#include "model/element/Asta.h"
#include "model/element/TipoElemento.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Gruppo.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace host {

namespace {

constexpr char stepName[] = "Suddivisione linea";
constexpr double samePlace = 1e-12; // of the line's length: what is nearer differs by rounding only

// Lengths from the line's first node to the nodes of its parts.
std::vector<double> PlacesOf(const std::vector<CNodo*>& nodes) {
    const CFPoint& from = *nodes.front()->GetPunto();
    const double length = CFPoint::GetMod(from, *nodes.back()->GetPunto());
    CFPoint along = *nodes.back()->GetPunto() - from;
    along.Normalize();
    std::vector<double> places;
    places.reserve(nodes.size());
    for (const CNodo* node : nodes)
        places.push_back(Dot(*const_cast<CNodo*>(node)->GetPunto() - from, along));
    places.front() = 0;
    places.back() = length;
    return places;
}

// The part that begins at the place or, when none does, around it.
std::size_t PartAt(const std::vector<double>& places, double place) {
    return static_cast<std::size_t>(std::upper_bound(places.begin() + 1, places.end() - 1, place) - places.begin()) - 1;
}

bool Acts(const CCaricoTrapezoidale::Stretch& load) {
    return (load.inizio != 0 || load.fine != 0) && load.a != load.da;
}

// What of the load lies between two places, measured from the first one; an open end lets it reach beyond, but not so
// little beyond that it ends there: of a part, which is shorter, that may be too much.
CCaricoTrapezoidale::Stretch Clipped(CCaricoTrapezoidale::Stretch load, double from, double to, bool openStart,
                                     bool openEnd, double slack) {
    if (load.a < load.da) {
        std::swap(load.da, load.a);
        std::swap(load.inizio, load.fine);
    }
    const double low = openStart ? load.da : std::max(load.da, from);
    const double high = openEnd && load.a > to * (1 + sameEnd) ? load.a : std::min(load.a, to);
    if (!Acts(load) || !(high - low > slack))
        return {};
    const double slope = (load.fine - load.inizio) / (load.a - load.da);
    const auto valueAt = [&](double place) {
        return place == load.a ? load.fine : load.inizio + slope * (place - load.da);
    };
    return {low - from, high - from, valueAt(low), valueAt(high)};
}

bool IsSame(const CCaricoTrapezoidale::Stretch& a, const CCaricoTrapezoidale::Stretch& b) {
    return a.da == b.da && a.a == b.a && a.inizio == b.inizio && a.fine == b.fine;
}

template <class Load>
std::unique_ptr<Load> CopyOfLoad(Load& load) {
    return std::unique_ptr<Load>(static_cast<Load*>(CopyOf(load).release()));
}

void KeepReleases(CElementoSpecifiche& part, bool first, bool last) {
    for (int i = part.GetSizeSpecifiche(); i-- > 0;) {
        const auto* release = DYNAMIC_DOWNCAST(CSpecificheSvincoliTrave, part.GetIndexSpecifica(i));
        if (release && !(release->GetEnd() == 0 ? first : last))
            part.EliminaIndexSpecifica(i);
    }
}

void SetLoads(CElementoCarico& part, const std::vector<CCarico*>& loads) {
    part.EliminaCarichi();
    for (CCarico* load : loads)
        part.AddCarico(load, 0);
}

} // namespace

CLineaFisica* Division::Add(const CLineaFisica& like, CNodo& from, CNodo& to) {
    if (like.IsKindOf(RUNTIME_CLASS(CTrave)))
        return m_document.AddTrave(from.GetID(), to.GetID(), nullptr);
    return m_document.AddAsta(from.GetID(), to.GetID(), nullptr);
}

void Division::Cut(CLineaFisica& line, const std::vector<double>& places) {
    Line cut{&line, {line.GetNodoIniziale()}};
    CNodo* const end = line.GetNodoFinale();
    const CFPoint from = *line.GetNodoIniziale()->GetPunto();
    const CFPoint along = *end->GetPunto() - from;
    for (const double place : places) {
        CFPoint at = from + along * place;
        CNodo* node = m_document.Data().NodeAt(at, m_document.GetTolerance(), [&](const CNodo& there) {
            return &there != cut.nodes.front() && &there != cut.nodes.back() && &there != end;
        });
        if (!node)
            node = m_document.AddNodo(at, nullptr, 0);
        if (node)
            cut.nodes.push_back(node);
    }
    cut.nodes.push_back(end);
    for (std::size_t i = 1; i + 1 < cut.nodes.size(); ++i)
        if (CLineaFisica* part = Add(line, *cut.nodes[i], *cut.nodes[i + 1]))
            cut.others.push_back(part);
    m_lines.push_back(std::move(cut));
}

void Division::Take(CLineaFisica& line, CNodo& end, std::vector<CLineaFisica*>& made) {
    Line cut{&line, {line.GetNodoIniziale(), line.GetNodoFinale()}};
    std::vector<CElemento*> needless;
    for (CLineaFisica*& part : made) {
        if (part->GetNodoIniziale() != cut.nodes.back())
            continue;
        if (cut.nodes.front() == cut.nodes.back()) { // a place that fell on the first node left no length to the line
            cut.nodes.back() = part->GetNodoFinale();
            needless.push_back(part);
        } else {
            cut.nodes.push_back(part->GetNodoFinale());
            cut.others.push_back(part);
        }
        part = nullptr;
    }
    std::erase(made, nullptr);
    // What could not be made must not leave a gap.
    if (cut.nodes.back() != &end) {
        CLineaFisica* rest = cut.others.empty() ? nullptr : Add(line, *cut.nodes.back(), end);
        if (rest) {
            cut.nodes.push_back(&end);
            cut.others.push_back(rest);
        } else {
            cut.nodes.back() = &end;
        }
    }
    m_document.Remove(needless);
    m_lines.push_back(std::move(cut));
}

void Division::Finish() {
    // Loads first, elements then: undone and redone, an element finds its loads in their cases.
    for (Line& cut : m_lines)
        ShareLoads(cut);
    for (Line& cut : m_lines)
        Complete(cut);
    EnterGroups();
    DiscardLoads();
}

void Division::ShareLoads(Line& cut) {
    cut.loads.resize(cut.others.size() + 1);
    const std::vector<double> places = PlacesOf(cut.nodes);
    for (int i = 0; i < cut.first->GetSizeCarichi(); ++i) {
        CCarico* load = cut.first->GetIndexCarico(i);
        if (!load)
            continue;
        if (load->GetTipoElemento() == TipoElemento::CaricoTrapezoidale)
            ShareTrapezoid(cut, places, *load);
        else if (load->GetTipoElemento() == TipoElemento::CaricoConcentrato)
            SharePoint(cut, places, *load);
        else
            for (auto& loads : cut.loads)
                loads.push_back(load);
    }
}

void Division::ShareTrapezoid(Line& cut, const std::vector<double>& places, CCarico& load) {
    double from = places.back(), to = 0;
    for (int axis = 0; axis < 3; ++axis) {
        const auto& stretch = static_cast<CCaricoTrapezoidale&>(load).GetStretch(axis);
        if (!Acts(stretch))
            continue;
        from = std::min({from, stretch.da, stretch.a});
        to = std::max({to, stretch.da, stretch.a});
    }
    if (from >= to) { // it does nothing, there where it was
        cut.loads.front().push_back(&load);
        return;
    }
    const std::size_t last = cut.others.size();
    for (std::size_t part = PartAt(places, from); part <= PartAt(places, to); ++part)
        if (CCarico* its = PartOf(load, {places[part], places[part + 1], part == 0, part == last}))
            cut.loads[part].push_back(its);
}

// Null where the load does not reach.
CCarico* Division::PartOf(CCarico& load, const Stretch& stretch) {
    const auto [found, isNew] = m_parts.try_emplace({&load, stretch}, nullptr);
    if (!isNew)
        return found->second;
    const auto& [from, to, first, last] = stretch;
    auto& whole = static_cast<CCaricoTrapezoidale&>(load);
    auto part = CopyOfLoad(whole);
    bool acts = false, same = true;
    for (int axis = 0; axis < 3; ++axis) {
        auto& its = part->GetStretch(axis);
        its = Clipped(its, from, to, first, last, samePlace * to);
        acts = acts || Acts(its);
        same = same && (IsSame(its, whole.GetStretch(axis)) || !Acts(whole.GetStretch(axis)));
    }
    if (acts)
        found->second = same ? &load : AddLoad(load, std::move(part));
    return found->second;
}

void Division::SharePoint(Line& cut, const std::vector<double>& places, CCarico& load) {
    const double length = places.back(), given = static_cast<CCaricoConcentrato&>(load).GetDistance();
    const double place = given > length * (1 + sameEnd) ? given : std::min(given, length);
    const std::size_t part = PartAt(places, place + samePlace * length);
    CCarico*& its = m_parts[{&load, {places[part], places[part + 1], part == 0, part == cut.others.size()}}];
    if (!its && part == 0)
        its = &load;
    if (!its) {
        auto moved = CopyOfLoad(static_cast<CCaricoConcentrato&>(load));
        moved->GetDistance() = std::max(place - places[part], 0.0);
        its = AddLoad(load, std::move(moved));
    }
    cut.loads[part].push_back(its);
}

CCarico* Division::AddLoad(CCarico& like, std::unique_ptr<CCarico> load) {
    const int loadCase = like.GetIDCasoCarico();
    m_replaced[loadCase].insert(like.GetID());
    return m_document.AddCarico(*m_document.GetCasoCarico(loadCase, nullptr), std::move(load));
}

void Division::Complete(Line& cut) {
    CLineaFisica& line = *cut.first;
    CFPoint axis1, axis2, third;
    CLinea::_GetLocalAxes(*cut.nodes.front()->GetPunto(), *cut.nodes.back()->GetPunto(), line.GetBeta(), axis1, axis2,
                          third);
    const double beta = line.GetBeta();
    const auto finish = [&](CLineaFisica& part, std::size_t i) {
        part.SetNodi(cut.nodes[i], cut.nodes[i + 1]);
        SetLoads(part, cut.loads[i]);
        KeepReleases(part, i == 0, i == cut.others.size());
        // Where the line just counts as vertical, a part of it may not.
        const double turned = BetaFor(third, *cut.nodes[i]->GetPunto(), *cut.nodes[i + 1]->GetPunto());
        if (std::fabs(std::remainder(turned - beta, 360)) > 1e-9)
            part.SetBeta(turned);
    };
    for (std::size_t i = 0; i < cut.others.size(); ++i) {
        CLineaFisica& part = *cut.others[i];
        static_cast<CElemento&>(part) = line;
        finish(part, i + 1);
        for (int group = 0; group < line.GetSizeGruppi(); ++group)
            m_members[line.GetIDGruppo(group)].push_back(&part);
    }
    m_document.Modify(line, [&] { finish(line, 0); });
}

void Division::EnterGroups() {
    for (const auto& [id, members] : m_members)
        if (auto* group = m_document.Data().FindAs<CGruppo>(Kind::Group, id))
            m_document.Modify(*group, [&, &members = members] {
                for (CLineaFisica* member : members)
                    group->AddElemento(member->GetTipoElemento(), member->GetID());
            });
}

void Division::DiscardLoads() {
    for (const auto& [id, loads] : m_replaced)
        if (CCasoCarico* loadCase = m_document.GetCasoCarico(id, nullptr))
            DiscardUncarried(m_document, *loadCase, loads, stepName);
}

void FinishDivisions(HostDocument& document) {
    Division division(document);
    std::unordered_set<const CElemento*> taken;
    for (const auto& [object, former] : document.Undo().FormerStates()) {
        auto* line = DYNAMIC_DOWNCAST(CLineaFisica, object);
        if (!line || HasNodesOf(*line, *former) || !taken.insert(line).second)
            continue;
        const Kind kind = line->IsKindOf(RUNTIME_CLASS(CTrave)) ? Kind::Beam : Kind::Truss;
        std::vector<CLineaFisica*> made;
        for (int i = document.Data().Size(kind);
             i-- > 0 && document.Data().At(kind, i)->GetID() >= document.Undo().FirstNew(kind);)
            made.push_back(document.Data().As<CLineaFisica>(kind, i));
        std::reverse(made.begin(), made.end());
        auto& was = static_cast<CLineaFisica&>(*former);
        CNodo* end = document.Data().FindNode(was.GetIDNodoFinale());
        if (end && was.GetIDNodoIniziale() == line->GetIDNodoIniziale())
            division.Take(*line, *end, made);
    }
    division.Finish();
}

} // namespace host
