// Where an identifier stands in an array, in constant time: the index beside the array that membership questions need.
#pragma once

#include <unordered_map>

class PositionIndex {
  public:
    // -1 when there is none.
    int Find(int id) const {
        const auto found = m_positions.find(id);
        return found == m_positions.end() ? -1 : found->second;
    }
    void Set(int id, int position) { m_positions[id] = position; }
    void Clear() { m_positions.clear(); }

    // Anew from an array whose elements give their identifier; of equal ones the first counts.
    template <typename Array, typename GetId>
    void Rebuild(const Array& array, GetId id) {
        m_positions.clear();
        int position = 0;
        for (const auto& element : array)
            m_positions.emplace(id(element), position++);
    }

  private:
    std::unordered_map<int, int> m_positions;
};
