// Ordered dithering for any palette: each colour is approximated by a mixture of palette entries, sorted dark to light,
// and an 8x8 threshold matrix picks the entry of a pixel. Mixtures are kept.
#pragma once
#include "pixels/nearest/NearestColours.h"
#include "reduce/mixing/ColourMixer.h"

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
    static constexpr int kRun = 1024; // pixels whose mixtures are made together
    struct alignas(16) Dots {
        std::array<std::uint8_t, ColourMixer::kMostMixed> entries{}, ends{}; // the threshold at which each one ends
        /// A threshold in all bytes, with their high bits.
        static std::uint64_t spread(std::uint8_t threshold) { return threshold * kOnes | kHigh; }
        /// Counts the ends up to the threshold all at once: the high bit of a byte is kept where nothing is borrowed.
        std::uint8_t at(std::uint64_t spread) const
        {
            const std::uint64_t kept = (spread - std::bit_cast<std::uint64_t>(ends)) & kHigh;
            return entries[std::size_t(std::popcount(kept))];
        }
        static constexpr std::uint64_t kOnes = 0x0101010101010101, kHigh = 0x80 * kOnes;
    };
    struct Recent {
        std::uint32_t colour = 0xFF000000; // of none
        Dots dots;
    };
    static Dots dotsOf(const ColourMixer::Mixture& mixture);
    void mixUnknown();
    const Dots& recent(Pixel p);

    const DotMatrix& matrix_;
    const bool alternates_;
    NearestColours nearest_;
    const std::vector<Pixel>& colours_;
    ColourMixer mixer_;
    std::vector<Recent> recent_ = std::vector<Recent>(std::size_t{1} << kSlotBits);
    std::vector<Dots> coarse_;                             // for every fourth level
    static constexpr std::uint8_t kKnown = 1, kHasOwn = 2; // a mixture; pixels that may be colours of the palette
    std::vector<std::uint8_t> states_;                     // of coarse_
    // Of a run of pixels:
    std::array<std::uint32_t, kRun> cells_;
    std::vector<std::uint32_t> unknown_; // cells
    std::vector<int> own_;               // pixels
};

} // namespace velara
