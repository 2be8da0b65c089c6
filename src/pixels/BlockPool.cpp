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
    std::vector<Kept> dropped;
    {
        const std::lock_guard lock(guard_);
        const auto kept = std::find_if(kept_.begin(), kept_.end(), [size](const Kept& k) { return k.size == size; });
        if (kept != kept_.end()) {
            std::uint8_t* block = kept->block;
            kept_.erase(kept);
            return block;
        }
        if (!ofSeveralSizes_) dropped.swap(kept_); // another size is in use now
    }
    unmap(dropped);
    try {
        return map(size);
    } catch (const std::bad_alloc&) {
        clear();
    }
    return map(size);
}

std::uint8_t* BlockPool::map(std::size_t size)
{
    MemoryBudget::take(size);
    void* block = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (block == MAP_FAILED) throw std::bad_alloc();
    madvise(block, size, MADV_HUGEPAGE);
    return static_cast<std::uint8_t*>(block);
}

void BlockPool::give(std::uint8_t* block, std::size_t size) noexcept
{
    if (size < kSmallest) return ::operator delete(block);
    Kept kept{block, size};
    {
        const std::lock_guard lock(guard_);
        if (kept_.capacity() < most_) kept_.reserve(most_);
        if (kept_.size() < most_) return kept_.push_back(kept);
        std::rotate(kept_.begin(), kept_.begin() + 1, kept_.end());
        std::swap(kept_.back(), kept);
    }
    unmap({&kept, 1});
}

void BlockPool::keepSeveral(std::size_t blocks)
{
    const std::lock_guard lock(guard_);
    most_ = blocks;
    ofSeveralSizes_ = true;
    kept_.reserve(most_);
}

void BlockPool::clear() noexcept
{
    std::vector<Kept> dropped;
    {
        const std::lock_guard lock(guard_);
        dropped.swap(kept_);
    }
    unmap(dropped);
}

/// Without the lock: it may take as long as a repaint.
void BlockPool::unmap(std::span<const Kept> blocks) noexcept
{
    for (const Kept& kept : blocks) {
        munmap(kept.block, kept.size);
        MemoryBudget::give(kept.size);
    }
}

} // namespace velara
