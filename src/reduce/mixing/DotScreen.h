// Ordered dithering of a picture for any palette: each colour is approximated by a mixture of palette entries, sorted
// dark to light, and an 8x8 threshold matrix picks the entry of a pixel.
#pragma once
#include "reduce/EuroDepth.h"
#include "reduce/mixing/ColourMixer.h"
#include <bit>
#include <utility>

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
    /// Makes the mixtures of all colours of the picture, on all cores. colours: the palette, at most 256. For a picture
    /// of very many colours, mixtures are made for every fourth level of a channel; those of a pixel between two of
    /// them are alternated, so that the mean is kept. progress is called with 0 now and then. The matrix must outlive
    /// this.
    DotScreen(const Bits& bits, const std::vector<Pixel>& colours, const DotMatrix& matrix, PaletteOf origin,
              const ReduceProgress& progress);

    /// The palette entries of the picture's row y, width pixels. Colours of the palette map to themselves, to the
    /// lowest index of equal ones.
    void row(const Pixel* from, std::uint8_t* to, int width, int y) const;

  private:
    struct alignas(16) Dots {
        std::array<std::uint8_t, ColourMixer::kMostMixed> entries{}, ends{}; // the threshold at which each one ends

        static Dots of(const ColourMixer::Mixture& mixture);
        /// A threshold in all bytes, with their high bits.
        static std::uint64_t spread(std::uint8_t threshold) { return threshold * kOnes | kHigh; }
        /// Counts the ends up to the threshold all at once: the high bit of a byte is kept where nothing is borrowed.
        std::uint8_t at(std::uint64_t spread) const
        {
            const std::uint64_t kept = (spread - std::bit_cast<std::uint64_t>(ends)) & kHigh;
            return entries[std::size_t(std::popcount(kept))];
        }
        /// Pixels may have a colour of the palette. Noted in the last end, which no threshold reaches in any case.
        void markOwn() { ends.back() = kOwn; }
        bool maybeOwn() const { return ends.back() == kOwn; }

        static constexpr std::uint64_t kOnes = 0x0101010101010101, kHigh = 0x80 * kOnes;
        static constexpr std::uint8_t kOwn = 127;
        static_assert(ColourMixer::kParts < kOwn);
    };
    struct OfColour {
        std::uint32_t colour = 0xFF000000; // of none
        Dots dots;
    };

    void mixEach(const std::vector<Pixel>& used, const ColourMixer& mixer);
    void mixLevels(const Bits& bits, const std::vector<Pixel>& colours, const ColourMixer& mixer,
                   const ReduceProgress& progress);
    std::size_t slotOf(std::uint32_t colour) const;
    std::uint8_t ownOr(Pixel p, std::uint8_t entry) const;

    const DotMatrix& matrix_;
    // One of them is empty:
    std::vector<OfColour> each_;                              // by slotOf
    std::vector<Dots> levels_;                                // by MixtureCells, of those that the picture has
    std::vector<std::pair<std::uint32_t, std::uint8_t>> own_; // the palette's colours, ascending
};

} // namespace velara
