// The random numbers of the trials: determined by a name, the same on every machine and with every library.
#pragma once
#include "pixels/Bits.h"
#include "pixels/random.h"
#include "region/Region.h"
#include <string_view>

namespace velara {

/// FNV-1a in 64 bits; can be continued from `before`.
inline std::uint64_t checksum(const void* bytes, std::size_t count, std::uint64_t before = 0xCBF29CE484222325u)
{
    const auto* byte = static_cast<const std::uint8_t*>(bytes);
    for (std::size_t i = 0; i < count; ++i) before = (before ^ byte[i]) * 0x100000001B3u;
    return before;
}

class Dice {
  public:
    explicit Dice(std::string_view name) : random_(checksum(name.data(), name.size())) {}

    std::uint32_t next() { return random_.bits(drawn_++); } // 24 bits
    int within(int low, int high)                           // both included
    {
        const auto count = static_cast<std::uint64_t>(std::int64_t{high} - low + 1);
        const std::uint64_t draw = count >> 24 ? next() * std::uint64_t{1 << 24} + next() : next();
        return static_cast<int>(low + static_cast<std::int64_t>(draw % count));
    }
    double between(double low, double high) { return low + (high - low) * next() / (1 << 24); }
    bool oneIn(int n) { return within(1, n) == 1; }

    /// Fills the whole buffer with random bytes, margin and fourth byte included.
    Bits bits(int width, int height);
    /// With sides of 1 to most.
    Bits smallBits(int most);
    /// Flat patches of a few colours with some noise, for flood fills.
    Bits patches(int width, int height, int noise);
    /// A union of rectangles and ellipses that may extend slightly beyond the picture.
    Region region(int width, int height);

  private:
    Random random_;
    std::uint32_t drawn_ = 0;
};

} // namespace velara
