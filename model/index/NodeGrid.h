// Nodes by position: the node within a tolerance of a point, in constant time for any number of nodes.
//
// Space is divided into cells a few times as large as the tolerance that is asked for, so that most searches stay in
// one of them. Each order of magnitude of tolerance gets a division of its own, made when it is first asked for and
// kept while nodes come, move and go.
#pragma once

#include "model/values/FPoint.h"

#include <cstdint>
#include <functional>
#include <vector>

class CNodo;

class NodeGrid {
  public:
    NodeGrid() = default;
    ~NodeGrid(); // lets its nodes go
    NodeGrid(const NodeGrid&) = delete;
    NodeGrid& operator=(const NodeGrid&) = delete;

    // False for null, a node of some grid already, or coordinates that are no numbers. The node is not owned; it leaves
    // by itself when it is deleted and is found at its new place after CNodo::SetPoint.
    bool Insert(CNodo* node);
    bool Remove(CNodo* node); // false when the node is not in this grid
    void Clear();
    int GetSize() const { return m_count; }

    // The nearest node within the tolerance (length units, the limit included), other than `excluded` (null excludes
    // none); of equally near ones that with the lowest identifier. Null when there is none. A negative tolerance finds
    // nothing, 0 finds nodes at exactly the point.
    CNodo* Find(const CFPoint& point, const CNodo* excluded, double tolerance) const;
    // The same among the nodes that the test accepts.
    CNodo* Find(const CFPoint& point, double tolerance, const std::function<bool(CNodo&)>& accepts) const;

  private:
    friend class CNodo;

    static constexpr std::uint32_t noLink = 0xffffffffu;

    // One division of space. A node is in the chain of the bucket that its cell hashes to.
    struct Level {
        double cell = 0;    // size of a cell, length units; a power of two
        double perUnit = 0; // cells per length unit
        std::uint64_t used = 0;
        std::vector<std::uint32_t> buckets; // first slot of each chain; the size is a power of two
        struct Link {
            std::uint32_t next = noLink;
            std::uint32_t previous = noLink;
            std::uint32_t hash = 0; // of the cell; its low bits are the bucket
        };
        std::vector<Link> links; // by slot
    };

    template <class Test>
    CNodo* Search(const CFPoint& point, double tolerance, const Test& accepts) const;
    void Move(CNodo* node, const CFPoint& point);
    void Link(Level& level, std::uint32_t slot) const;
    static void Unlink(Level& level, std::uint32_t slot);
    void Build(Level& level) const;
    Level& LevelFor(double tolerance) const;

    std::vector<CNodo*> m_slots; // null in a free one
    std::vector<std::uint32_t> m_free;
    int m_count = 0;
    mutable std::vector<Level> m_levels;
    mutable std::uint64_t m_clock = 0;
};
