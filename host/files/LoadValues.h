// The numbers that a load holds, in the order in which project files keep them.
#pragma once

#include <array>
#include <memory>

class CCarico;

namespace host {

struct LoadValues {
    std::array<double*, 12> values{};
    int count = 0;
};

// Points into the load, good while it lives.
LoadValues ValuesOf(CCarico& load);
// An empty load of a kind code; null for a code that is no load's.
std::unique_ptr<CCarico> MakeLoad(unsigned kindCode);

} // namespace host
