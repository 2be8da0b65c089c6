#include "pixels/BlockPool.h"
#include "pixels/memory/MemoryBudget.h"
#include <algorithm>
#include <new>
#include <sys/mman.h>

namespace velara {

BlockPool& BlockPool::instance()
{
    static auto* pool = new BlockPool; // never destroyed: buffers of static life give back after it
    return *pool;
}

std::uint8_t* BlockPool::take(std::size_t size)
{
    if (size < kSmallest) return static_cast<std::uint8_t*>(::operator new(size));
    const std::lock_guard lock(guard_);
    const auto kept = std::find_if(kept_.begin(), kept_.end(), [size](const Kept& k) { return k.size == size; });
    if (kept != kept_.end()) {
        std::uint8_t* block = kept->block;
        kept_.erase(kept);
        return block;
    }
    drop(); // another size is in use now
    MemoryBudget::take(size);
    void* block = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (block == MAP_FAILED) throw std::bad_alloc();
    madvise(block, size, MADV_HUGEPAGE);
    return static_cast<std::uint8_t*>(block);
}

void BlockPool::give(std::uint8_t* block, std::size_t size) noexcept
{
    if (size < kSmallest) return ::operator delete(block);
    const std::lock_guard lock(guard_);
    if (kept_.size() >= kKeptBlocks) {
        unmap(kept_.front());
        kept_.erase(kept_.begin());
    }
    if (kept_.capacity() == 0) kept_.reserve(kKeptBlocks);
    kept_.push_back({block, size});
}

void BlockPool::clear() noexcept
{
    const std::lock_guard lock(guard_);
    drop();
}

void BlockPool::unmap(const Kept& kept) noexcept
{
    munmap(kept.block, kept.size);
    MemoryBudget::give(kept.size);
}

void BlockPool::drop() noexcept
{
    for (const Kept& k : kept_) unmap(k);
    kept_.clear();
}

} // namespace velara
