// Dithers by a matrix, for any palette: each colour becomes 64 entries of the palette whose mean it is, dark ones
// first, and the matrix says which of them a pixel gets.
#pragma once
#include "pixels/NearestColours.h"
#include "pixels/PixelLanes.h"
#include <algorithm>
#include <array>
#include <vector>

namespace velara {

/// Places 0 to 63 by row and column of a square of 8.
using ScreenMatrix = std::array<std::uint8_t, 64>;
extern const ScreenMatrix kDispersedDots, kClusteredDots;

class Screen {
  public:
    using Entries = std::array<std::uint8_t, 64>;

    /// colours: those that nearest knows, at most 256.
    Screen(const std::vector<Pixel>& colours, NearestColours& nearest);
    /// For the colour at even levels: odd ones go up or down, which by turns gives their mean.
    const Entries& entries(Pixel p, bool up)
    {
        std::uint32_t key = 0xFF000000;
        for (int c = 0; c < 3; ++c) key |= std::uint32_t(std::min(p.c[c] + up, 255) & ~1) << 8 * c;
        Known& known = known_[key * 2654435769U >> (32 - kKnownBits)];
        if (known.key != key) fill(known, key);
        return known.entries;
    }

  private:
    static constexpr int kKnownBits = 16;
    struct Known {
        std::uint32_t key = 0; // the colour, opaque
        Entries entries;
    };
    void fill(Known& known, std::uint32_t key);

    NearestColours& nearest_;
    std::vector<Lanes> lanes_;
    std::vector<int> brightness_;
    std::vector<Known> known_{std::size_t{1} << kKnownBits};
};

} // namespace velara
