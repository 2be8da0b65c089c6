// The search for a mixture of colours, on vectors of candidates: the same floating-point operations with all of them.
#pragma once
#include "pixels/Bits.h"
#include <array>
#include <cstdint>

namespace velara {

/// How much of a mixture's contrast is still seen from afar, as a share of its variance, 0 to 1: the more, the less it
/// may vary for the sake of its mean. It rises to a half where entries are nearer to each other than close, a squared
/// distance: there the picture's own noise mixes already, and contrast costs more than it brings.
struct Contrast {
    float seen, close;
};

/// What may be mixed: channel by channel, and the squared distance of each from the colour of the palette next to it.
struct MixingCandidates {
    static constexpr std::size_t kCount = 32;
    using Each = std::array<float, kCount>;

    alignas(64) std::array<Each, 3> channels;
    alignas(64) Each apart;
};

/// Entries with their parts, which sum up to kParts.
struct MixedParts {
    static constexpr int kParts = 64;
    static constexpr std::size_t kMost = 8;

    std::array<std::uint8_t, kMost> entries, parts;
    std::size_t count;
};

/// The mixtures for n colours, each with its candidates; entries are numbered among these.
void mix(const MixingCandidates* const* candidates, const Pixel* colours, int n, Contrast contrast, MixedParts* mixed);

/// A table of mixtures for every fourth level of each channel.
struct MixtureCells {
    static constexpr std::uint32_t kLevels = 65; // 0, 4, ... 252, 255
    static constexpr std::uint32_t kCount = kLevels * kLevels * kLevels;

    static std::uint32_t of(std::uint32_t blue, std::uint32_t green, std::uint32_t red)
    {
        return (red * kLevels + green) * kLevels + blue;
    }
    /// For each of n pixels the place of the levels below or above its channels: the two highest bits of sequence + i *
    /// step are added to them. cells has room for whole vectors.
    static void of(const Pixel* from, int n, std::uint32_t sequence, std::uint32_t step, std::uint32_t* cells);
};

} // namespace velara
