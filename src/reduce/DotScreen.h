// Ordered dithering for any palette: each colour is approximated by 64 palette entries with its mean, sorted dark to
// light, and an 8x8 threshold matrix picks the entry of a pixel. The lists are cached: a picture needs few of them.
#pragma once
#include "pixels/NearestColours.h"
#include "pixels/PixelLanes.h"
#include <algorithm>
#include <array>
#include <memory>
#include <vector>

namespace velara {

/// Thresholds 0 to 63 of an 8x8 square, row by row.
using ScreenMatrix = std::array<std::uint8_t, 64>;
extern const ScreenMatrix kDispersedDots, kClusteredDots;

class DotScreen {
  public:
    /// colours: those that nearest knows, at most 256.
    DotScreen(const std::vector<Pixel>& colours, NearestColours& nearest);

    /// The palette entry for a colour at a threshold of the matrix, in a numbered square of the picture. Colours of the
    /// palette map to themselves. Channels are quantised to 32 levels; the rounding direction varies over eight
    /// successive squares, so that the mean is kept.
    int operator()(Pixel p, int place, int square)
    {
        const std::size_t cell = cellOf(p, std::size_t(place + square) % kRanks);
        if (state_[cell] != kMixed) [[unlikely]]
            return lookCloser(p, cell, place);
        return mixtures_[cell][std::size_t(place)];
    }

  private:
    using Mixture = std::array<std::uint8_t, 64>;
    enum State : std::uint8_t { kMixed = 1, kHoldsEntry = 2 };
    static constexpr int kBits = 5, kMostLevel = (1 << kBits) - 1;
    static constexpr std::size_t kCells = std::size_t{1} << 3 * kBits, kRanks = 8;
    static constexpr auto kLevel = [] { // by rank and channel value
        std::array<std::array<std::uint8_t, 256>, kRanks> level{};
        for (std::size_t rank = 0; rank < kRanks; ++rank)
            for (std::size_t v = 0; v < 256; ++v)
                level[rank][v] = static_cast<std::uint8_t>((v * kMostLevel * 2 * kRanks + (2 * rank + 1) * 255) /
                                                           (255 * 2 * kRanks));
        return level;
    }();
    static std::size_t cellOf(Pixel p, std::size_t rank)
    {
        const auto& level = kLevel[rank];
        return std::size_t(level[p.c[0]] | level[p.c[1]] << kBits | level[p.c[2]] << 2 * kBits);
    }

    int lookCloser(Pixel p, std::size_t cell, int place);
    void mix(std::size_t cell);

    NearestColours& nearest_;
    const std::vector<Pixel>& colours_;
    std::vector<Lanes> lanes_;
    std::vector<int> brightness_;
    std::vector<std::uint8_t> state_ = std::vector<std::uint8_t>(kCells);
    std::unique_ptr<Mixture[]> mixtures_ = std::make_unique_for_overwrite<Mixture[]>(kCells);
};

} // namespace velara
