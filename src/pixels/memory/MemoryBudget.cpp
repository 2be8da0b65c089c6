#include "pixels/memory/MemoryBudget.h"
#include "pixels/memory/freeMemory.h"
#include <cstdio>
#include <utility>

namespace velara {

namespace {

thread_local MemoryBudget* present = nullptr;

std::string sizeText(std::int64_t bytes)
{
    constexpr double kMega = 1e6, kGiga = 1e9;
    char text[32];
    if (bytes < 1e9)
        std::snprintf(text, sizeof text, "%.0f MB", double(bytes) / kMega);
    else
        std::snprintf(text, sizeof text, "%.1f GB", double(bytes) / kGiga);
    return text;
}

} // namespace

std::function<std::int64_t()> MemoryBudget::available = [] { return freeMemory(); };

NotEnoughMemory::NotEnoughMemory(std::int64_t needed, std::int64_t free)
    : words_("it needs " + sizeText(needed) + " of memory, more than half of the " + sizeText(free) + " that are free")
{
}

MemoryBudget::MemoryBudget(Kind kind) : outer_(std::exchange(present, this)), kind_(kind) {}
MemoryBudget::~MemoryBudget() { present = outer_; }

void MemoryBudget::take(std::size_t bytes)
{
    MemoryBudget* budget = present;
    if (!budget || budget->kind_ == Kind::Without) return;
    if (budget->free_ < 0) budget->free_ = available();
    const std::int64_t needed = budget->held_ + static_cast<std::int64_t>(bytes);
    if (needed > budget->free_ / 2) throw NotEnoughMemory(needed, budget->free_);
    budget->held_ = needed;
}

void MemoryBudget::give(std::size_t bytes) noexcept
{
    if (present && present->free_ >= 0) present->held_ -= static_cast<std::int64_t>(bytes);
}

} // namespace velara
