// MemoryBudget: what a command may take. A big block is asked for before it is taken, wherever that happens, so that a
// new filter has nothing to do for it.
#pragma once
#include <cstddef>
#include <cstdint>
#include <functional>
#include <new>
#include <string>

namespace velara {

/// A command needs more than it may take. what() is for a person and has both numbers.
class NotEnoughMemory : public std::bad_alloc {
  public:
    NotEnoughMemory(std::int64_t needed, std::int64_t free);
    const char* what() const noexcept override { return words_.c_str(); }

  private:
    std::string words_;
};

/// While one lives, all big blocks that its thread takes together may be half of the memory that was free at the first
/// of them. Of several on a thread the youngest counts.
class MemoryBudget {
  public:
    /// Without: nothing is counted, for what runs in the middle of a command and is no part of it.
    enum class Kind { Half, Without };
    explicit MemoryBudget(Kind kind = Kind::Half);
    ~MemoryBudget();
    MemoryBudget(const MemoryBudget&) = delete;
    MemoryBudget& operator=(const MemoryBudget&) = delete;

    // For BlockPool, which hands out all big blocks.
    /// Before a block is had from the system: NotEnoughMemory when it is too much. Nothing without a budget.
    static void take(std::size_t bytes);
    /// A block went back to the system.
    static void give(std::size_t bytes) noexcept;

    /// What tells how much is free, in bytes; freeMemory() unless a test replaces it.
    static std::function<std::int64_t()> available;

  private:
    MemoryBudget* outer_;
    Kind kind_;
    std::int64_t free_ = -1, held_ = 0; // -1: not asked yet
};

} // namespace velara
