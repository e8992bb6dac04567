// Objects by identifier, in constant time. Identifiers are small and dense in practice and cost 8 bytes each then; wild
// ones (a file may number its nodes as it likes) go to a table of their own.
#pragma once

#include <unordered_map>
#include <vector>

template <typename T>
class IdIndex {
  public:
    // The object is not owned. An identifier that is taken, 0 or negative, or a null object changes nothing: false.
    bool Insert(int id, T* object) {
        if (id <= 0 || !object || Find(id))
            return false;
        if (IsDense(id)) {
            if (static_cast<std::size_t>(id) >= m_dense.size())
                m_dense.resize(static_cast<std::size_t>(id) + 1);
            m_dense[static_cast<std::size_t>(id)] = object;
        } else {
            m_sparse.emplace(id, object);
        }
        ++m_count;
        return true;
    }
    // Null when there is none.
    T* Find(int id) const {
        if (id > 0 && static_cast<std::size_t>(id) < m_dense.size() && m_dense[static_cast<std::size_t>(id)])
            return m_dense[static_cast<std::size_t>(id)];
        if (m_sparse.empty())
            return nullptr;
        const auto found = m_sparse.find(id);
        return found == m_sparse.end() ? nullptr : found->second;
    }
    bool Remove(int id) {
        if (id > 0 && static_cast<std::size_t>(id) < m_dense.size() && m_dense[static_cast<std::size_t>(id)])
            m_dense[static_cast<std::size_t>(id)] = nullptr;
        else if (m_sparse.erase(id) == 0)
            return false;
        --m_count;
        return true;
    }
    void Clear() { *this = IdIndex(); }

    int GetSize() const { return m_count; }

  private:
    // The dense part stays within a small multiple of what it holds.
    bool IsDense(int id) const { return id <= 1024 || id / 4 <= m_count; }

    std::vector<T*> m_dense;
    std::unordered_map<int, T*> m_sparse;
    int m_count = 0;
};
