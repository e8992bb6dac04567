// A vector with a gap inside: what is taken out, or put back, near the last such place moves only what lies between.
// Taking the objects of a long list out one by one, as dialogs delete, costs no more than walking along it.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace host {

// T is movable and has a default value.
template <class T>
class GapVector {
  public:
    GapVector() = default;
    GapVector(GapVector&& other) noexcept
        : m_items(std::move(other.m_items)),
          m_gap(std::exchange(other.m_gap, 0)),
          m_width(std::exchange(other.m_width, 0)) {}
    GapVector& operator=(GapVector&& other) noexcept {
        m_items = std::move(other.m_items);
        m_gap = std::exchange(other.m_gap, 0);
        m_width = std::exchange(other.m_width, 0);
        return *this;
    }

    std::size_t size() const { return m_items.size() - m_width; }
    T& operator[](std::size_t i) { return m_items[i < m_gap ? i : i + m_width]; }
    const T& operator[](std::size_t i) const { return m_items[i < m_gap ? i : i + m_width]; }
    std::size_t LastPlace() const { return m_gap; } // where an item was taken out or put in

    void push_back(T item) { m_items.push_back(std::move(item)); }
    T TakeLast() {
        if (m_gap == size())
            return Take(m_gap - 1);
        T item = std::move(m_items.back());
        m_items.pop_back();
        return item;
    }
    T Take(std::size_t i) {
        MoveGap(i);
        ++m_width;
        return std::move(m_items[i + m_width - 1]);
    }
    void Put(std::size_t i, T item) {
        if (m_width == 0)
            Widen(i);
        MoveGap(i);
        m_items[i] = std::move(item);
        ++m_gap;
        --m_width;
    }
    // Only the first `count` items stay, or default ones come behind them.
    void resize(std::size_t count) {
        Close();
        m_items.resize(count);
    }
    void clear() {
        m_items.clear();
        m_gap = m_width = 0;
    }

  private:
    void MoveGap(std::size_t to) {
        if (m_width == 0)
            m_gap = to;
        for (; m_gap > to; --m_gap)
            m_items[m_gap - 1 + m_width] = std::move(m_items[m_gap - 1]);
        for (; m_gap < to; ++m_gap)
            m_items[m_gap] = std::move(m_items[m_gap + m_width]);
    }
    void Widen(std::size_t at) {
        constexpr std::size_t least = 16;
        m_gap = at;
        m_width = least + m_items.size() / 8;
        const std::size_t old = m_items.size();
        m_items.resize(old + m_width);
        for (std::size_t i = old; i-- > at;)
            m_items[i + m_width] = std::move(m_items[i]);
    }
    void Close() {
        if (m_width == 0)
            return;
        MoveGap(size());
        m_items.resize(size());
        m_width = 0;
    }

    std::vector<T> m_items;
    std::size_t m_gap = 0, m_width = 0; // items from m_gap on are free
};

} // namespace host
