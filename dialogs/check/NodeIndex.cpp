#include "dialogs/check/NodeIndex.h"

#include <bit>
#include <cstdint>
#include <utility>

void NodeIndex::Reserve(std::size_t nodes) {
    const std::size_t size = std::bit_ceil(2 * nodes + 16);
    if (size <= m_slots.size())
        return;
    std::vector<Slot> former = std::exchange(m_slots, std::vector<Slot>(size));
    for (const Slot& slot : former)
        if (slot.node)
            m_slots[Locate(slot.node)] = slot;
}

void NodeIndex::Add(const CObject* node, int structure, int id) {
    if (!node)
        return;
    if (2 * (m_used + 1) > m_slots.size())
        Reserve(2 * m_used);
    Slot& slot = m_slots[Locate(node)];
    if (slot.node)
        return;
    slot = {node, structure, id};
    ++m_used;
}

int NodeIndex::Find(const CObject* node) const {
    return node && m_used ? m_slots[Locate(node)].structure : none;
}

int NodeIndex::IdOf(const CObject* node) const {
    return node && m_used ? m_slots[Locate(node)].id : none;
}

void NodeIndex::Clear() {
    m_slots.clear();
    m_used = 0;
}

std::size_t NodeIndex::Locate(const CObject* node) const {
    constexpr unsigned alignmentBits = 4; // of what the heap hands out
    const std::size_t mask = m_slots.size() - 1;
    std::size_t at = (reinterpret_cast<std::uintptr_t>(node) >> alignmentBits) & mask;
    while (m_slots[at].node && m_slots[at].node != node)
        at = (at + 1) & mask;
    return at;
}
