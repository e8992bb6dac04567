// Everything that a project holds, without undo, selection or views: what files are read into and written from.
#pragma once

#include "host/document/ConstructionGrid.h"
#include "host/document/GapVector.h"
#include "model/element/Copy.h"
#include "model/element/Nodo.h"
#include "model/index/IdIndex.h"
#include "model/index/NodeGrid.h"
#include "model/values/FPoint.h"
#include "platform/core/String.h"

#include <array>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

class CCasoCarico;
class CLineaFisica;
class CPoligonoFisico;

namespace host {

enum class Kind { Node, Beam, Truss, Wall, Slab, LoadCase, Combination, Group, Material, Section, Thickness };
inline constexpr std::size_t kindCount = 11;
inline constexpr Kind allKinds[] = {Kind::Node,     Kind::Beam,     Kind::Truss,       Kind::Wall,
                                    Kind::Slab,     Kind::LoadCase, Kind::Combination, Kind::Group,
                                    Kind::Material, Kind::Section,  Kind::Thickness};

constexpr unsigned Bit(Kind kind) {
    return 1u << static_cast<unsigned>(kind);
}
constexpr bool IsLineKind(Kind kind) {
    return kind == Kind::Beam || kind == Kind::Truss;
}
constexpr bool IsPolygonKind(Kind kind) {
    return kind == Kind::Wall || kind == Kind::Slab;
}
constexpr bool IsElementKind(Kind kind) {
    return IsLineKind(kind) || IsPolygonKind(kind);
}
constexpr bool IsSelectableKind(Kind kind) {
    return kind == Kind::Node || IsElementKind(kind);
}

// Which list of a document an object belongs to. False for an object of no list, such as a load.
bool KindOf(CElemento& object, Kind& kind);
// The kind's code in the model.
unsigned CodeOf(Kind kind);
// A new object of a kind, empty, without a number.
std::unique_ptr<CElemento> MakeObject(Kind kind);

// Coordinates that a node may have: numbers, and far from where their squares would overflow or neighbours merge.
bool IsUsablePlace(const CFPoint& place);

struct DocumentUnits {
    Lunghezza length = Lunghezza::Metres;
    Forza force = Forza::KiloNewtons;
};

// The information record of a project.
struct ProjectInfo {
    CString title;
    CString author;
    CString date; // "2024-05-31"; of the first save when the user gives none
    CString notes;

    bool operator==(const ProjectInfo&) const = default;
};

class DocumentData : public ModelLookup {
  public:
    DocumentData();
    ~DocumentData() override;
    DocumentData(DocumentData&&) noexcept;
    DocumentData& operator=(DocumentData&&) noexcept;

    int Size(Kind kind) const { return static_cast<int>(ListOf(kind).objects.size()); }
    // In document order; null for an index outside.
    CElemento* At(Kind kind, int index) const {
        const auto& objects = ListOf(kind).objects;
        return static_cast<std::size_t>(index) < objects.size() ? objects[static_cast<std::size_t>(index)].get()
                                                                : nullptr;
    }
    // T is the class of the kind's objects.
    template <class T>
    T* As(Kind kind, int index) const {
        return static_cast<T*>(At(kind, index));
    }
    CNodo* Node(int index) const { return static_cast<CNodo*>(At(Kind::Node, index)); }
    // By number, in constant time; null when there is none.
    CElemento* Find(Kind kind, int id) const { return ListOf(kind).ids.Find(id); }
    template <class T>
    T* FindAs(Kind kind, int id) const {
        return static_cast<T*>(Find(kind, id));
    }
    bool Contains(CElemento& object) const;
    int IndexOf(Kind kind, int id) const; // a walk along the list; -1 when there is none

    // The object is found under its number from now on instead of the one it had; the next new one is `next`, or above
    // all when that is 0. False when its number is not free.
    bool Renumber(CElemento& object, int former, int next = 0);

    // Above all numbers in use; load cases and combinations share theirs. 0 when the numbers are used up.
    int NextId(Kind kind) const;
    int NextId(CElemento& object) const; // of the object's kind
    // Whether there are numbers for so many more objects of the kind.
    bool HasNumbers(Kind kind, std::size_t count) const;

    // Takes the object, as the last of its list, under the number that it has. The nodes of an element must be in, and
    // the element in their lists. False, and not taken, for null, a number that is taken or not positive, or an object
    // that belongs to no list.
    bool Append(std::unique_ptr<CElemento>& object);
    // The same under the next free number of its kind.
    template <class T>
    T* AppendNew(Kind kind, std::unique_ptr<T> object) {
        T* added = object.get();
        added->SetID(NextId(kind));
        std::unique_ptr<CElemento> element = std::move(object);
        Append(element);
        return added;
    }
    // The last object of a list; its element leaves the lists of its nodes, which it goes on knowing.
    std::unique_ptr<CElemento> TakeLast(Kind kind);
    // Takes an object back that TakeLast or Take gave.
    void Return(std::unique_ptr<CElemento> object);

    // Objects taken from the middle of a list, with the places where they stood, in increasing order.
    using Taken = std::vector<std::pair<std::size_t, std::unique_ptr<CElemento>>>;
    Taken Take(Kind kind, const std::vector<CElemento*>& objects);
    void PutBack(Kind kind, Taken taken);

    void MoveNode(CNodo& node, const CFPoint& place);
    // The nearest node, other than `excluded` (null excludes none); see NodeGrid.
    CNodo* NodeAt(const CFPoint& place, const CNodo* excluded, double tolerance) const;
    // The nearest of those that the test accepts.
    CNodo* NodeAt(const CFPoint& place, double tolerance, const std::function<bool(CNodo&)>& accepts) const {
        return m_grid->Find(place, tolerance, accepts);
    }

    // How near two nodes may lie before they count as one.
    double Tolerance() const { return m_tolerance; }
    double& Tolerance() { return m_tolerance; }
    DocumentUnits& Units() { return m_units; }
    const DocumentUnits& Units() const { return m_units; }
    ProjectInfo& Info() { return m_info; }
    const ProjectInfo& Info() const { return m_info; }
    // The construction lines that the views show; no part of the model, undo passes it over.
    ConstructionGrid& Grid() { return m_constructionGrid; }
    const ConstructionGrid& Grid() const { return m_constructionGrid; }
    // The current load case or combination; 0 for none.
    int& CurrentCase() { return m_currentCase; }
    int CurrentCase() const { return m_currentCase; }

    CNodo* FindNode(int id) override;
    CMateriale* FindMaterial(int id) override;
    CSezione* FindSection(int id) override;
    CSpessore* FindThickness(int id) override;
    CCarico* FindLoad(int idCasoCarico, int idCarico) override;

  private:
    struct List {
        GapVector<std::unique_ptr<CElemento>> objects;
        IdIndex<CElemento> ids;
        int next = 1;
    };
    List& ListOf(Kind kind) { return m_lists[static_cast<std::size_t>(kind)]; }
    const List& ListOf(Kind kind) const { return m_lists[static_cast<std::size_t>(kind)]; }
    // The list whose counter numbers the kind.
    static Kind Counter(Kind kind) { return kind == Kind::Combination ? Kind::LoadCase : kind; }
    bool IsFree(Kind kind, int id) const;
    void Count(Kind kind, int id); // the number is in use
    void Add(Kind kind, std::unique_ptr<CElemento> object);
    std::size_t PlaceOf(Kind kind, const CElemento& object) const;
    void Enter(Kind kind, CElemento& object);
    void Leave(Kind kind, CElemento& object);

    std::array<List, kindCount> m_lists;
    std::unique_ptr<NodeGrid> m_grid; // by pointer: nodes keep its address
    double m_tolerance = 0.001;
    DocumentUnits m_units;
    ProjectInfo m_info;
    ConstructionGrid m_constructionGrid;
    int m_currentCase = 0;
};

} // namespace host
