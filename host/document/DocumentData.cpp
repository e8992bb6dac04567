#include "host/document/DocumentData.h"

#include "model/element/Asta.h"
#include "model/element/Setto.h"
#include "model/element/Solaio.h"
#include "model/element/TipoElemento.h"
#include "model/element/Trave.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Combinazione.h"
#include "model/entity/Gruppo.h"
#include "model/entity/Materiale.h"
#include "model/entity/Sezione.h"
#include "model/entity/Spessore.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace host {

unsigned CodeOf(Kind kind) {
    static constexpr unsigned codes[kindCount] = {
        TipoElemento::Nodo,      TipoElemento::Trave,      TipoElemento::Asta,         TipoElemento::Setto,
        TipoElemento::Solaio,    TipoElemento::CasoCarico, TipoElemento::Combinazione, TipoElemento::Gruppo,
        TipoElemento::Materiale, TipoElemento::Sezione,    TipoElemento::Spessore};
    return codes[static_cast<std::size_t>(kind)];
}

bool KindOf(CElemento& object, Kind& kind) {
    static const auto kinds = [] {
        std::array<signed char, 64> table;
        table.fill(-1);
        for (const Kind candidate : allKinds)
            table[CodeOf(candidate)] = static_cast<signed char>(candidate);
        return table;
    }();
    const unsigned code = object.GetTipoElemento();
    if (code >= kinds.size() || kinds[code] < 0)
        return false;
    kind = static_cast<Kind>(kinds[code]);
    return true;
}

bool IsUsablePlace(const CFPoint& place) {
    constexpr double farthest = 1e12;
    return std::fabs(place.x) <= farthest && std::fabs(place.y) <= farthest && std::fabs(place.z) <= farthest;
}

std::unique_ptr<CElemento> MakeObject(Kind kind) {
    switch (kind) {
    case Kind::Node:
        return std::make_unique<CNodo>();
    case Kind::Beam:
        return std::make_unique<CTrave>();
    case Kind::Truss:
        return std::make_unique<CAsta>();
    case Kind::Wall:
        return std::make_unique<CSetto>();
    case Kind::Slab:
        return std::make_unique<CSolaio>();
    case Kind::LoadCase:
        return std::make_unique<CCasoCarico>();
    case Kind::Combination:
        return std::make_unique<CCombinazione>();
    case Kind::Group:
        return std::make_unique<CGruppo>();
    case Kind::Material:
        return std::make_unique<CMateriale>();
    case Kind::Section:
        return std::make_unique<CSezione>();
    case Kind::Thickness:
        return std::make_unique<CSpessore>();
    }
    return nullptr;
}

DocumentData::DocumentData() : m_grid(std::make_unique<NodeGrid>()) {
}

// Whoever refers to others goes first, so that no node has to look for elements that still know it.
DocumentData::~DocumentData() {
    if (m_grid)          // null once the content was moved away
        m_grid->Clear(); // at once, instead of node by node
    for (const Kind kind : {Kind::Beam, Kind::Truss, Kind::Wall, Kind::Slab, Kind::Node})
        ListOf(kind).objects.clear();
}

DocumentData::DocumentData(DocumentData&&) noexcept = default;

DocumentData& DocumentData::operator=(DocumentData&& other) noexcept {
    DocumentData old(std::move(*this)); // destroyed in its own order, with its own grid
    m_lists = std::move(other.m_lists);
    m_grid = std::move(other.m_grid);
    m_tolerance = other.m_tolerance;
    m_units = other.m_units;
    m_info = std::move(other.m_info);
    m_constructionGrid = other.m_constructionGrid;
    m_currentCase = other.m_currentCase;
    return *this;
}

bool DocumentData::Contains(CElemento& object) const {
    Kind kind;
    return KindOf(object, kind) && Find(kind, object.GetID()) == &object;
}

int DocumentData::IndexOf(Kind kind, int id) const {
    const CElemento* object = Find(kind, id);
    return object ? static_cast<int>(PlaceOf(kind, *object)) : -1;
}

// Looked for from where the list changed last, on both sides: objects are taken out one after the other.
std::size_t DocumentData::PlaceOf(Kind kind, const CElemento& object) const {
    const auto& objects = ListOf(kind).objects;
    std::size_t up = std::min(objects.LastPlace(), objects.size()), down = up;
    while (up < objects.size() || down > 0) {
        if (up < objects.size() && objects[up++].get() == &object)
            return up - 1;
        if (down > 0 && objects[--down].get() == &object)
            return down;
    }
    return objects.size();
}

int DocumentData::NextId(Kind kind) const {
    return ListOf(Counter(kind)).next;
}

int DocumentData::NextId(CElemento& object) const {
    Kind kind;
    return KindOf(object, kind) ? NextId(kind) : 0;
}

bool DocumentData::HasNumbers(Kind kind, std::size_t count) const {
    const int next = NextId(kind);
    return next > 0 && count <= static_cast<std::size_t>(std::numeric_limits<int>::max() - next) + 1;
}

void DocumentData::Enter(Kind kind, CElemento& object) {
    List& its = ListOf(kind);
    its.ids.Insert(object.GetID(), &object);
    if (kind == Kind::Node) {
        auto& node = static_cast<CNodo&>(object);
        m_grid->Insert(&node);
    } else if (IsLineKind(kind)) {
        static_cast<CLinea&>(object).LinkNodes();
    } else if (IsPolygonKind(kind)) {
        static_cast<CPoligono&>(object).LinkNodes();
    }
}

void DocumentData::Leave(Kind kind, CElemento& object) {
    ListOf(kind).ids.Remove(object.GetID());
    object.SetRisultati(nullptr); // the results may end while the object is out of the model
    if (kind == Kind::Node)
        m_grid->Remove(static_cast<CNodo*>(&object));
    else if (IsLineKind(kind))
        static_cast<CLinea&>(object).StaccaNodi();
    else if (IsPolygonKind(kind))
        static_cast<CPoligono&>(object).StaccaNodi();
}

bool DocumentData::IsFree(Kind kind, int id) const {
    if (id <= 0 || Find(kind, id))
        return false;
    return Counter(kind) != Kind::LoadCase || !Find(kind == Kind::LoadCase ? Kind::Combination : Kind::LoadCase, id);
}

bool DocumentData::Renumber(CElemento& object, int former, int next) {
    Kind kind;
    if (!KindOf(object, kind) || !IsFree(kind, object.GetID()))
        return false;
    ListOf(kind).ids.Remove(former);
    ListOf(kind).ids.Insert(object.GetID(), &object);
    if (next != 0)
        ListOf(Counter(kind)).next = next;
    Count(kind, object.GetID());
    return true;
}

bool DocumentData::Append(std::unique_ptr<CElemento>& object) {
    Kind kind;
    if (!object || !KindOf(*object, kind))
        return false;
    if (!IsFree(kind, object->GetID()))
        return false;
    Add(kind, std::move(object));
    return true;
}

void DocumentData::Return(std::unique_ptr<CElemento> object) {
    Kind kind;
    if (object && KindOf(*object, kind))
        Add(kind, std::move(object));
}

void DocumentData::Add(Kind kind, std::unique_ptr<CElemento> object) {
    Enter(kind, *object);
    Count(kind, object->GetID());
    ListOf(kind).objects.push_back(std::move(object));
}

void DocumentData::Count(Kind kind, int id) {
    int& next = ListOf(Counter(kind)).next;
    if (next != 0 && id >= next)
        next = id < 0x7fffffff ? id + 1 : 0;
}

std::unique_ptr<CElemento> DocumentData::TakeLast(Kind kind) {
    List& its = ListOf(kind);
    std::unique_ptr<CElemento> object = its.objects.TakeLast();
    Leave(kind, *object);
    // The newest number is free again, so that a command repeated after its undo numbers alike.
    int& next = ListOf(Counter(kind)).next;
    if (object->GetID() == next - 1)
        next = object->GetID();
    return object;
}

DocumentData::Taken DocumentData::Take(Kind kind, const std::vector<CElemento*>& objects) {
    Taken taken;
    taken.reserve(objects.size());
    auto& from = ListOf(kind).objects;
    if (objects.size() == 1) {
        const std::size_t place = PlaceOf(kind, *objects[0]);
        Leave(kind, *objects[0]);
        taken.emplace_back(place, from.Take(place));
        return taken;
    }
    for (CElemento* object : objects)
        object->SetAlready(1);
    std::size_t kept = 0;
    for (std::size_t i = 0; i < from.size(); ++i) {
        if (from[i]->IsAlready()) {
            from[i]->SetAlready(0);
            Leave(kind, *from[i]);
            taken.emplace_back(i, std::move(from[i]));
        } else {
            if (kept != i)
                from[kept] = std::move(from[i]);
            ++kept;
        }
    }
    from.resize(kept);
    return taken;
}

void DocumentData::PutBack(Kind kind, Taken taken) {
    auto& to = ListOf(kind).objects;
    if (taken.size() == 1) {
        const std::size_t place = taken[0].first;
        to.Put(place, std::move(taken[0].second));
        Enter(kind, *to[place]);
        return;
    }
    std::size_t from = to.size(); // behind the next object that moves up
    std::size_t at = to.size() + taken.size();
    to.resize(at);
    for (std::size_t i = taken.size(); i-- > 0;) {
        for (--at; at > taken[i].first; --at)
            to[at] = std::move(to[--from]);
        to[at] = std::move(taken[i].second);
    }
    for (const auto& [index, object] : taken)
        Enter(kind, *to[index]);
}

void DocumentData::MoveNode(CNodo& node, const CFPoint& place) {
    node.SetPoint(place);
}

CNodo* DocumentData::NodeAt(const CFPoint& place, const CNodo* excluded, double tolerance) const {
    return m_grid->Find(place, excluded, tolerance);
}

CNodo* DocumentData::FindNode(int id) {
    return FindAs<CNodo>(Kind::Node, id);
}

CMateriale* DocumentData::FindMaterial(int id) {
    return FindAs<CMateriale>(Kind::Material, id);
}

CSezione* DocumentData::FindSection(int id) {
    return FindAs<CSezione>(Kind::Section, id);
}

CSpessore* DocumentData::FindThickness(int id) {
    return FindAs<CSpessore>(Kind::Thickness, id);
}

CCarico* DocumentData::FindLoad(int idCasoCarico, int idCarico) {
    auto* loadCase = FindAs<CCasoCarico>(Kind::LoadCase, idCasoCarico);
    return loadCase ? loadCase->GetCarico(idCarico, nullptr) : nullptr;
}

} // namespace host
