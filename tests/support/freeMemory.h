// Simulates a machine with little memory for this process.
#pragma once
#include "pixels/memory/MemoryBudget.h"
#include <utility>

namespace velara {

/// While it lives, the given bytes count as free.
struct FreeMemory {
    std::function<std::int64_t()> before;
    explicit FreeMemory(std::int64_t bytes) : before(std::exchange(MemoryBudget::available, [bytes] { return bytes; }))
    {
    }
    ~FreeMemory() { MemoryBudget::available = before; }
};

} // namespace velara
