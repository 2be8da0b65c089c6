#include "pixels/Bits.h"
#include "pixels/BlockPool.h"
#include <cstring>

namespace velara {

namespace {

std::shared_ptr<std::uint8_t[]> newBlock(std::size_t size)
{
    return {BlockPool::instance().take(size), [size](std::uint8_t* block) { BlockPool::instance().give(block, size); }};
}

} // namespace

Bits::Bits(int width, int height)
{
    *this = uninitialized(width, height);
    if (block_) std::memset(block_.get(), 0, sizeInBytes());
}

Bits Bits::uninitialized(int width, int height)
{
    Bits bits;
    if (width < 1 || height < 1) return bits;
    bits.width_ = width;
    bits.height_ = height;
    bits.block_ = newBlock(bits.sizeInBytes());
    return bits;
}

std::size_t Bits::sizeInBytes() const
{
    if (width_ == 0) return 0;
    return sizeof(Pixel) * (static_cast<std::size_t>(width_) + 2 * kMargin) *
           (static_cast<std::size_t>(height_) + 2 * kMargin);
}

void Bits::copyBlock()
{
    auto block = newBlock(sizeInBytes());
    std::memcpy(block.get(), block_.get(), sizeInBytes());
    block_ = std::move(block);
}

bool operator==(const Bits& a, const Bits& b)
{
    if (a.width_ != b.width_ || a.height_ != b.height_) return false;
    return a.sharesWith(b) || std::memcmp(a.data(), b.data(), a.sizeInBytes()) == 0;
}

} // namespace velara
