// The reversible changes that undo steps are made of. Each keeps references to the document's data, which outlives it.
#pragma once

#include "host/document/DocumentData.h"
#include "host/document/HostUndo.h"
#include "model/design/ElementoProgetto.h"
#include "model/entity/CasoCarico.h"
#include "model/entity/Gruppo.h"

#include <algorithm>
#include <cstdint>
#include <unordered_set>
#include <utility>

namespace host {

// How far it reaches when objects of a kind come or go. Results follow the load cases by themselves, and depend on
// the other named entities only through who refers to them.
constexpr Reach ReachOf(Kind kind) {
    return IsSelectableKind(kind) ? Reach::Results : Reach::Model;
}

// Objects appended to their lists, in any mixture of kinds. While undone, it owns them.
class Creation : public Change {
  public:
    explicit Creation(DocumentData& data) : m_data(data) {}

    void Add(Kind kind); // one more object has just been appended
    void Undo() override;
    void Redo() override;
    Reach GetReach() const override;
    bool HasEffect() const override { return !m_runs.empty(); }
    void CountIn(StepSummary& summary) const override;

  private:
    struct Run {
        Kind kind;
        std::uint32_t count;
    };
    DocumentData& m_data;
    std::vector<Run> m_runs;
    // The newest first, so that on destruction no element outlives its nodes.
    std::vector<std::unique_ptr<CElemento>> m_objects;
};

// Objects taken out of one list. While not undone, it owns them. Elements go before their nodes, in a change of their
// own.
class Removal : public Change {
  public:
    // Takes them out.
    Removal(DocumentData& data, Kind kind, std::vector<CElemento*> objects);

    void Undo() override;
    void Redo() override;
    Reach GetReach() const override { return ReachOf(m_kind); }
    void CountIn(StepSummary& summary) const override;

  private:
    DocumentData& m_data;
    Kind m_kind;
    std::vector<CElemento*> m_objects;
    DocumentData::Taken m_taken;
};

// Nodes moved.
class Movement : public Change {
  public:
    // Moves them.
    Movement(DocumentData& data, std::vector<std::pair<CNodo*, CFPoint>> places);

    void Undo() override { Swap(); }
    void Redo() override { Swap(); }
    unsigned GetNews() const override { return newsLengths; }
    void CountIn(StepSummary& summary) const override;

  private:
    void Swap();

    DocumentData& m_data;
    std::vector<std::pair<CNodo*, CFPoint>> m_places; // where the nodes are not
};

// What one object was. Made before it changes.
class Former : public Change {
  public:
    CElemento& Object() const { return m_object; }
    // A command is going to change it, so far; of what is only kept in case, a difference counts.
    void Confirm(Reach reach) {
        m_confirmed = true;
        m_reach = std::max(m_reach, reach);
    }
    Reach GetReach() const override { return m_reach; }

    void Undo() override { Exchange(); }
    void Redo() override { Exchange(); }
    CElemento* Keeps() const override { return &m_object; }
    bool HasEffect() const override { return m_confirmed || m_object.GetID() != m_id || Differs(); }
    // The document finds the object under the number that it was given; one that is taken is put back.
    void Settle() override;

  protected:
    Former(DocumentData& data, CElemento& object, Reach reach);

    virtual bool Differs() const = 0;
    virtual void Swap() = 0; // everything but the number

    DocumentData& m_data;
    CElemento& m_object;

  private:
    void Exchange();

    Reach m_reach;
    int m_id;   // the number that it does not have
    int m_next; // the document's next one with it
    bool m_confirmed = false;
};

// The attributes of one object, with its design. Not for load cases, whose loads others refer to.
class Attributes : public Former {
  public:
    Attributes(DocumentData& data, CElemento& object, Reach reach);

    unsigned GetNews() const override;
    CElemento* Other() const override { return m_other.get(); }

  private:
    bool Differs() const override;
    void Swap() override;
    bool HasOtherDesign() const;

    std::unique_ptr<CElemento> m_other;
    std::unique_ptr<CElementoProgetto> m_design; // null for none
};

// Name and type of a named entity.
class EntityName : public Former {
  public:
    EntityName(DocumentData& data, CElementoStrutturale& entity)
        : Former(data, entity, Reach::Model), m_name(entity.GetNome()), m_type(entity.GetTipo()) {}

  private:
    CElementoStrutturale& Entity() const { return static_cast<CElementoStrutturale&>(m_object); }
    bool Differs() const override { return Entity().GetNome() != m_name || Entity().GetTipo() != m_type; }
    void Swap() override;

    CString m_name, m_type;
};

// The one that fits the object; of combinations, groups and names no result depends on any.
std::unique_ptr<Former> KeepState(DocumentData& data, CElemento& object, Reach reach = Reach::Results);

// The members of a new group, which learn of it.
class Grouping : public Change {
  public:
    // Tells them.
    Grouping(DocumentData& data, CGruppo& group) : m_data(data), m_group(group) { Redo(); }

    void Undo() override;
    void Redo() override;
    Reach GetReach() const override { return Reach::Model; }

  private:
    DocumentData& m_data;
    CGruppo& m_group;
};

// The members of a group that is about to go, which forget it.
class Disbanding : public Change {
  public:
    Disbanding(DocumentData& data, CGruppo& group) : m_data(data), m_group(group) { Redo(); }

    void Undo() override;
    void Redo() override;
    Reach GetReach() const override { return Reach::Model; }

  private:
    DocumentData& m_data;
    CGruppo& m_group;
    std::vector<int> m_places; // of the group in each member's list
};

// Elements that leave a group because they are about to go. They go on knowing it.
class Leaving : public Change {
  public:
    // Takes them out.
    Leaving(CGruppo& group, const std::vector<CElemento*>& members);

    void Undo() override;
    void Redo() override;
    Reach GetReach() const override { return Reach::Model; }

  private:
    struct Member {
        unsigned kind;
        int id;
        int place; // from which it left
    };
    CGruppo& m_group;
    std::vector<Member> m_members;
};

// A load that entered its case, as the last one. No element refers to it while it is out.
class LoadCreation : public Change {
  public:
    // Puts it in.
    LoadCreation(CCasoCarico& loadCase, std::unique_ptr<CCarico> load);

    CCarico* Load() const { return m_case.GetCarico(m_id, nullptr); }
    void Undo() override { m_load = m_case.DetachLoad(m_id); }
    void Redo() override;

  private:
    CCasoCarico& m_case;
    int m_id;
    std::unique_ptr<CCarico> m_load; // while it is out
};

// Loads that left their case, which nothing refers to. Undo puts each back at its place: the order of a case's loads is
// what its file and its sums follow.
class LoadRemoval : public Change {
  public:
    // Takes them out.
    LoadRemoval(CCasoCarico& loadCase, std::unordered_set<int> numbers)
        : m_case(loadCase), m_numbers(std::move(numbers)) {
        Redo();
    }

    void Undo() override;
    void Redo() override;

  private:
    void GiveBack(std::unique_ptr<CCarico>& load) { m_case.AddCarico(load.release()); }

    CCasoCarico& m_case;
    std::unordered_set<int> m_numbers;
    std::vector<std::pair<int, std::unique_ptr<CCarico>>> m_out; // with their places, in order; none while undone
};

// A plain value of the document that no result depends on.
template <class T>
class Value : public Change {
  public:
    // Sets it.
    Value(T& where, T value) : m_where(where), m_other(std::move(value)) { std::swap(m_where, m_other); }

    void Undo() override { std::swap(m_where, m_other); }
    void Redo() override { std::swap(m_where, m_other); }
    Reach GetReach() const override { return Reach::Model; }

  private:
    T& m_where;
    T m_other;
};

// Which load case or combination is the current one.
class CurrentCase : public Value<int> {
  public:
    using Value::Value;
    Reach GetReach() const override { return Reach::Look; }
};

} // namespace host
