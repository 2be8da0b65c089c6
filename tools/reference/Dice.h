// The random numbers of the trials: determined by a name, the same on every machine and with every library.
#pragma once
#include "pixels/Bits.h"
#include "pixels/random.h"
#include "region/Region.h"
#include <string_view>

namespace velara {

class Dice {
  public:
    explicit Dice(std::string_view name);

    std::uint32_t next() { return random_.bits(drawn_++); } // 24 bits
    int within(int low, int high);                          // both included
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

/// FNV-1a in 64 bits; can be continued from `before`.
std::uint64_t checksum(const void* bytes, std::size_t count, std::uint64_t before = 0xCBF29CE484222325u);

} // namespace velara
