// Which structure a node belongs to, by the node's address, and the number that it had: an address alone may have come
// to another node since.
#pragma once

#include <cstddef>
#include <vector>

class CObject;

// An open table of power-of-two size. Neighbours in memory are neighbours in the table, so that a walk over nodes that
// were made one after the other stays in the cache.
class NodeIndex {
  public:
    static constexpr int none = -1;

    // Makes room once for a number of nodes that is known. Throws std::bad_alloc.
    void Reserve(std::size_t nodes);
    // A node that is there already keeps its first structure.
    void Add(const CObject* node, int structure, int id);
    // None for a node that is not there, and for null.
    int Find(const CObject* node) const;
    int IdOf(const CObject* node) const;
    void Clear();

  private:
    struct Slot {
        const CObject* node = nullptr;
        int structure = none;
        int id = none;
    };

    // The slot of the node, or the free one where it belongs. The table is never full.
    std::size_t Locate(const CObject* node) const;

    std::vector<Slot> m_slots;
    std::size_t m_used = 0;
};
