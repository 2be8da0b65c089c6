// Ordered dithering for any palette: each colour is approximated by a mixture of palette entries, sorted dark to light,
// and an 8x8 threshold matrix picks the entry of a pixel. Recent mixtures are cached.
#pragma once
#include "pixels/NearestColours.h"
#include "reduce/ColourMixer.h"

namespace velara {

/// Thresholds 0 to 63 of an 8x8 square, row by row, and the contrast of its dots.
struct DotMatrix {
    std::array<std::uint8_t, 64> thresholds;
    Contrast contrast;
};
extern const DotMatrix kDispersedDots, kClusteredDots;

/// Where a palette comes from: one made for the picture has all its colours near, and contrast costs more than it
/// brings; with any other, the mean is all there is.
enum class PaletteOf { Any, ThePicture };

class DotScreen {
  public:
    /// colours: those that nearest knows, at most 256. For a picture of very many colours, mixtures are made for every
    /// fourth level of a channel; those of a pixel between two of them are alternated, so that the mean is kept.
    DotScreen(const std::vector<Pixel>& colours, NearestColours& nearest, const DotMatrix& matrix, PaletteOf origin,
              bool hasManyColours);

    /// The palette entry of a pixel. Colours of the palette map to themselves.
    int operator()(Pixel p, int x, int y)
    {
        if (alternates_ && !isOwn(p)) p = alternated(p, x, y);
        const std::uint32_t colour = std::bit_cast<std::uint32_t>(p) & 0xFFFFFF;
        Recent& recent = recent_[colour * 2654435769U >> (32 - kSlotBits)]; // golden ratio
        if (recent.colour != colour) [[unlikely]]
            mix(p, recent);
        const std::uint8_t threshold = matrix_.thresholds[std::size_t(y % 8 * 8 + x % 8)];
        std::size_t i = 0;
        while (threshold >= recent.ends[i]) ++i;
        return recent.entries[i];
    }

  private:
    static constexpr int kSlotBits = 16;
    struct Recent {
        std::uint32_t colour = 0xFF000000;                               // of none
        std::array<std::uint8_t, ColourMixer::kMostMixed> entries, ends; // the threshold at which each one ends
    };
    void mix(Pixel p, Recent& recent);
    bool isOwn(Pixel p)
    {
        const Pixel q = colours_[std::size_t(nearest_(p))];
        return ((std::bit_cast<std::uint32_t>(p) ^ std::bit_cast<std::uint32_t>(q)) & 0xFFFFFF) == 0;
    }
    static Pixel alternated(Pixel p, int x, int y)
    {
        // The two fractions of a sequence that fills the plane evenly and has no common period with the thresholds.
        const int up = static_cast<int>((unsigned(x) * 3242174889U + unsigned(y) * 2447445414U) >> 30);
        return narrow(limited((wide(p) + up) & ~3, 0, 255));
    }

    const DotMatrix& matrix_;
    const bool alternates_;
    NearestColours& nearest_;
    const std::vector<Pixel>& colours_;
    ColourMixer mixer_;
    std::vector<Recent> recent_ = std::vector<Recent>(std::size_t{1} << kSlotBits);
};

} // namespace velara
