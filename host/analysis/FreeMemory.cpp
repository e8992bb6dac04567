#include "host/analysis/FreeMemory.h"

#include <fstream>
#include <limits>
#include <string>

namespace host {

std::uint64_t FreeMemory() {
    std::ifstream file("/proc/meminfo");
    std::string name, unit;
    for (std::uint64_t kilobytes = 0; file >> name >> kilobytes; std::getline(file, unit))
        if (name == "MemAvailable:")
            return kilobytes * 1024;
    return std::numeric_limits<std::uint64_t>::max();
}

} // namespace host
