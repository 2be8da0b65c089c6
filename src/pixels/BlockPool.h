// Recycles the memory of picture buffers: page faults of a fresh 96 MB block cost three times the copy into it.
#pragma once
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <span>
#include <vector>

namespace velara {

/// Blocks of at least kSmallest bytes are allocated in huge pages and kept for the next request of the same size, at
/// most kKeptBlocks of them. A request of another size gives the kept ones back. Thread-safe.
class BlockPool {
  public:
    static constexpr std::size_t kSmallest = 1 << 20;
    static constexpr std::size_t kKeptBlocks = 1;

    static BlockPool& instance();
    /// A block with undefined contents. std::bad_alloc when memory is short, NotEnoughMemory when it is more than the
    /// command may take (MemoryBudget).
    std::uint8_t* take(std::size_t size);
    void give(std::uint8_t* block, std::size_t size) noexcept;
    /// From now on so many blocks are kept, of several sizes, until memory is short or others come: for programs that
    /// do the same to picture after picture.
    void keepSeveral(std::size_t blocks);
    /// Returns all kept blocks to the system.
    void clear() noexcept;

  private:
    struct Kept {
        std::uint8_t* block;
        std::size_t size;
    };
    static std::uint8_t* map(std::size_t size);
    static void unmap(std::span<const Kept> blocks) noexcept;

    std::mutex guard_;
    std::vector<Kept> kept_; // the first is the oldest
    std::size_t most_ = kKeptBlocks;
    bool ofSeveralSizes_ = false;
};

} // namespace velara
