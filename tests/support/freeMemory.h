// A machine with little memory, as far as this process can tell.
#pragma once
#include "pixels/memory/MemoryBudget.h"
#include <utility>

namespace velara {

/// While it lives so many bytes are free.
struct FreeMemory {
    std::function<std::int64_t()> before;
    explicit FreeMemory(std::int64_t bytes) : before(std::exchange(MemoryBudget::available, [bytes] { return bytes; }))
    {
    }
    ~FreeMemory() { MemoryBudget::available = before; }
};

} // namespace velara
