// Ordered dithering for any palette: each colour is approximated by a mixture of palette entries, sorted dark to light,
// and an 8x8 threshold matrix picks the entry of a pixel. Mixtures are kept.
#pragma once
#include "pixels/nearest/NearestColours.h"
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
    DotScreen(const std::vector<Pixel>& colours, const NearestColours& nearest, const DotMatrix& matrix,
              PaletteOf origin, bool hasManyColours);

    /// The palette entries of row y, width pixels. Colours of the palette map to themselves.
    void row(const Pixel* from, std::uint8_t* to, int width, int y);

  private:
    static constexpr int kSlotBits = 16;
    static constexpr std::uint32_t kLevels = 65; // 0, 4, ... 252, 255
    struct alignas(16) Dots {
        std::array<std::uint8_t, ColourMixer::kMostMixed> entries{}, ends{}; // the threshold at which each one ends
        /// Counts the ends up to the threshold all at once: the high bit of a byte is kept where nothing is borrowed.
        std::uint8_t at(std::uint8_t threshold) const
        {
            constexpr std::uint64_t kOnes = 0x0101010101010101, kHigh = 0x80 * kOnes;
            const std::uint64_t kept = ((threshold * kOnes | kHigh) - std::bit_cast<std::uint64_t>(ends)) & kHigh;
            return entries[std::size_t(std::popcount(kept))];
        }
    };
    struct Recent {
        std::uint32_t colour = 0xFF000000; // of none
        Dots dots;
    };
    Dots mix(Pixel p);
    const Dots& recent(Pixel p);
    static std::uint32_t between(Pixel p, unsigned up);
    std::uint8_t entryOf(Pixel p, std::uint32_t cell, std::uint8_t threshold);
    static std::size_t cellOf(Pixel p) { return std::size_t(p.c[0] >> 2 | (p.c[1] >> 2) << 6 | (p.c[2] >> 2) << 12); }

    const DotMatrix& matrix_;
    const bool alternates_;
    NearestColours nearest_;
    const std::vector<Pixel>& colours_;
    ColourMixer mixer_;
    std::vector<bool> hasOwn_ = std::vector<bool>(std::size_t{1} << 18); // colours of the palette, by cells
    std::vector<Recent> recent_ = std::vector<Recent>(std::size_t{1} << kSlotBits);
    std::vector<Dots> coarse_; // for every fourth level
};

} // namespace velara
