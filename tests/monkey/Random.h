// Choices that depend on the seed alone: the same on every machine.
#pragma once

#include <cstddef>
#include <cstdint>

class Random {
  public:
    explicit Random(std::uint64_t seed) : m_state(seed) {}

    std::uint64_t Next() { // splitmix64
        std::uint64_t z = m_state += 0x9e3779b97f4a7c15u;
        z = (z ^ z >> 30) * 0xbf58476d1ce4e5b9u;
        z = (z ^ z >> 27) * 0x94d049bb133111ebu;
        return z ^ z >> 31;
    }
    int Below(int count) { return count > 0 ? static_cast<int>(Next() % static_cast<unsigned>(count)) : 0; }
    bool Chance(int percent) { return Below(100) < percent; }
    // The container is not empty.
    template <class Container>
    auto& Of(Container& from) {
        return from[static_cast<std::size_t>(Below(static_cast<int>(from.size())))];
    }
    template <class T, std::size_t count>
    const T& Of(const T (&from)[count]) {
        return from[Below(static_cast<int>(count))];
    }

  private:
    std::uint64_t m_state;
};
