#include "document/undo/TileSums.h"
#include "pixels/threads/parallelFor.h"
#include <algorithm>
#define XXH_INLINE_ALL // many short pieces: calls would take half of the time
#include <xxhash.h>

namespace velara {

TileGrid::TileGrid(const Bits& bits, int side)
    : width(bits.width() + 2 * Bits::kMargin), height(bits.height() + 2 * Bits::kMargin), side(side)
{
}

Rect TileGrid::tile(std::uint32_t number) const
{
    const int left = static_cast<int>(number) % across() * side, top = static_cast<int>(number) / across() * side;
    return {left, top, std::min(left + side, width), std::min(top + side, height)};
}

/// Goes through the block in its order in memory, a row of tiles on each thread: a tile's sum is made of those of its
/// rows.
TileSums::TileSums(const Bits& bits, int side) : grid_(bits, side), sums_(grid_.count())
{
    constexpr std::uint64_t kLow = 0x9E3779B185EBCA87, kHigh = 0xC2B2AE3D27D4EB4F; // odd: no row gets lost
    const auto rowOfTiles = [&](int tileRow) {
        const int top = tileRow * side, bottom = std::min(top + side, grid_.height);
        const std::uint8_t* row =
            bits.data() + sizeof(Pixel) * static_cast<std::size_t>(grid_.width) * static_cast<std::size_t>(top);
        for (int y = top; y < bottom; ++y) {
            Sum* sum = &sums_[static_cast<std::size_t>(tileRow) * static_cast<std::size_t>(grid_.across())];
            for (int x = 0; x < grid_.width; x += side, ++sum) {
                const std::size_t size = sizeof(Pixel) * static_cast<std::size_t>(std::min(side, grid_.width - x));
                const XXH128_hash_t of = XXH3_128bits(row, size);
                *sum = {sum->low * kLow + of.low64, sum->high * kHigh + of.high64};
                row += size;
            }
        }
    };
    parallelFor(grid_.down(), turnsTogether(std::int64_t{grid_.width} * side), rowOfTiles);
}

std::uint64_t TileSums::whole() const
{
    const auto size = static_cast<std::uint64_t>(grid_.width) << 32 | static_cast<std::uint64_t>(grid_.height);
    return sums_.empty() ? 0 : XXH3_64bits_withSeed(sums_.data(), sums_.size() * sizeof(Sum), size) | 1;
}

std::vector<std::uint32_t> TileSums::differing(const TileSums& other) const
{
    std::vector<std::uint32_t> numbers;
    for (std::size_t i = 0; i < sums_.size(); ++i)
        if (sums_[i] != other.sums_[i]) numbers.push_back(static_cast<std::uint32_t>(i));
    return numbers;
}

} // namespace velara
