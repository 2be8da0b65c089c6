#include "document/undo/TileSums.h"
#include "document/undo/xxh3.h"
#include "pixels/threads/parallelFor.h"
#include <algorithm>

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

TileSums::TileSums(const Bits& bits, int side) : TileSums(TileGrid(bits, side))
{
    while (addSome(bits)) continue;
}

/// Goes through the block in its order in memory: a tile's sum is made of those of its rows.
void TileSums::addRows(const Bits& bits, int y0, int y1)
{
    constexpr std::uint64_t kLow = 0x9E3779B185EBCA87, kHigh = 0xC2B2AE3D27D4EB4F; // odd: no row gets lost
    const auto side = grid_.side;
    const std::uint8_t* row =
        bits.data() + sizeof(Pixel) * static_cast<std::size_t>(grid_.width) * static_cast<std::size_t>(y0);
    for (int y = y0; y < y1; ++y) {
        Sum* sum = &sums_[static_cast<std::size_t>(y / side) * static_cast<std::size_t>(grid_.across())];
        for (int x = 0; x < grid_.width; x += side, ++sum) {
            const std::size_t size = sizeof(Pixel) * static_cast<std::size_t>(std::min(side, grid_.width - x));
            const XXH128_hash_t of = XXH3_128bits(row, size);
            *sum = {sum->low * kLow + of.low64, sum->high * kHigh + of.high64};
            row += size;
        }
    }
}

bool TileSums::addSome(const Bits& bits)
{
    constexpr int kEach = 2; // for each thread
    if (done_ == grid_.height) return false;
    const int side = grid_.side, first = done_ / side, count = std::min(kEach * threadCount(), grid_.down() - first);
    parallelFor(count, turnsTogether(std::int64_t{grid_.width} * side), [&](int i) {
        const int top = (first + i) * side;
        addRows(bits, std::max(top, done_), std::min(top + side, grid_.height));
    });
    done_ = std::min((first + count) * side, grid_.height);
    return true;
}

void TileSums::addUpTo(const Bits& bits, std::size_t end)
{
    const std::size_t pitch = sizeof(Pixel) * static_cast<std::size_t>(grid_.width);
    const int to = static_cast<int>((end + pitch - 1) / pitch);
    if (to <= done_) return;
    addRows(bits, done_, to);
    done_ = to;
}

std::uint64_t TileSums::whole() const
{
    const auto size = static_cast<std::uint64_t>(grid_.width) << 32 | static_cast<std::uint64_t>(grid_.height);
    return sums_.empty() ? 0 : XXH3_64bits_withSeed(sums_.data(), sums_.size() * sizeof(Sum), size) | 1;
}

std::vector<std::uint32_t> TileSums::differing(const TileSums& other) const
{
    std::vector<std::uint32_t> numbers;
    const int rows = done_ == grid_.height ? grid_.down() : done_ / grid_.side;
    const auto complete = static_cast<std::size_t>(rows) * static_cast<std::size_t>(grid_.across());
    for (std::size_t i = 0; i < complete; ++i)
        if (sums_[i] != other.sums_[i]) numbers.push_back(static_cast<std::uint32_t>(i));
    return numbers;
}

} // namespace velara
