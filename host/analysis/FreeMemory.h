// How much memory the machine could still give.
#pragma once

#include <cstdint>

namespace host {

// In bytes, without swapping; the largest number when the system does not say.
std::uint64_t FreeMemory();

} // namespace host
