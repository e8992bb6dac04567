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

    // An element left the array: those behind where it stood have moved up. As fast as that walk, nothing at the end.
    template <typename Array, typename GetId>
    void Remove(int id, int position, const Array& array, GetId getId) {
        m_positions.erase(id);
        for (auto at = array.begin() + position; at != array.end(); ++at)
            Set(getId(*at), position++);
    }

  private:
    std::unordered_map<int, int> m_positions;
};
