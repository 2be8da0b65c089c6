#include "reduce/DotScreen.h"
#include <algorithm>
#include <bit>

namespace velara {

namespace {

/// Bayer's matrix: each doubling inserts 0, 2 / 3, 1 between the thresholds there are.
constexpr auto dispersed()
{
    std::array<std::uint8_t, 64> matrix{};
    for (std::size_t y = 0; y < 8; ++y)
        for (std::size_t x = 0; x < 8; ++x)
            for (std::size_t bit = 0; bit < 3; ++bit) {
                const std::size_t column = x >> bit & 1, row = y >> bit & 1;
                matrix[y * 8 + x] |= static_cast<std::uint8_t>(((column ^ row) << 1 | row) << (4 - 2 * bit));
            }
    return matrix;
}

} // namespace

constexpr DotMatrix kDispersedDots{dispersed(), {0.05F, 40}};

// Clustered dots: two a square, each growing outwards from its centre; the second lags the first by one step.
// clang-format off
constexpr DotMatrix kClusteredDots{{
    24, 10, 12, 26, 35, 47, 49, 37,
     8,  0,  2, 14, 45, 59, 61, 51,
    22,  6,  4, 16, 43, 57, 63, 53,
    30, 20, 18, 28, 33, 41, 55, 39,
    34, 46, 48, 36, 25, 11, 13, 27,
    44, 58, 60, 50,  9,  1,  3, 15,
    42, 56, 62, 52, 23,  7,  5, 17,
    32, 40, 54, 38, 31, 21, 19, 29}, {0.1F, 500}};
// clang-format on

DotScreen::DotScreen(const std::vector<Pixel>& colours, const NearestColours& nearest, const DotMatrix& matrix,
                     PaletteOf origin, bool hasManyColours)
    : matrix_(matrix), alternates_(hasManyColours), nearest_(nearest), colours_(colours),
      mixer_(colours, {matrix.contrast.seen, origin == PaletteOf::Any ? 0 : matrix.contrast.close})
{
    for (const Pixel& p : colours) hasOwn_[cellOf(p)] = true;
    if (alternates_) coarse_.resize(kLevels * kLevels * kLevels);
}

void DotScreen::row(const Pixel* from, std::uint8_t* to, int width, int y)
{
    std::array<std::uint8_t, 8> thresholds;
    std::copy_n(&matrix_.thresholds[std::size_t(y % 8 * 8)], 8, thresholds.begin());
    if (!alternates_) {
        for (int x = 0; x < width; ++x) to[x] = recent(from[x]).at(thresholds[std::size_t(x % 8)]);
        return;
    }
    // The two fractions of a sequence that fills the plane evenly and has no common period with the thresholds.
    unsigned sequence = unsigned(y) * 2447445414U;
    constexpr int kRun = 64; // pixels, whose dots are fetched before the first is needed: their table is a large one
    std::array<std::uint32_t, kRun> cells;
    for (int x0 = 0; x0 < width; x0 += kRun) {
        const int n = std::min(kRun, width - x0);
        for (int i = 0; i < n; ++i, sequence += 3242174889U)
            cells[std::size_t(i)] = between(from[x0 + i], sequence >> 30);
        for (int i = 0; i < n; ++i) __builtin_prefetch(&coarse_[cells[std::size_t(i)]]);
        for (int i = 0; i < n; ++i)
            to[x0 + i] = entryOf(from[x0 + i], cells[std::size_t(i)], thresholds[std::size_t((x0 + i) % 8)]);
    }
}

/// The place in the table of the level below or above each channel; up: 0 to 3.
inline std::uint32_t DotScreen::between(Pixel p, unsigned up)
{
    const auto level = [&](int c) { return (p.c[c] + up) >> 2; };
    return (level(2) * kLevels + level(1)) * kLevels + level(0);
}

inline std::uint8_t DotScreen::entryOf(Pixel p, std::uint32_t cell, std::uint8_t threshold)
{
    if (hasOwn_[cellOf(p)])
        if (const int own = nearest_(p); channelBits(colours_[std::size_t(own)]) == channelBits(p))
            return static_cast<std::uint8_t>(own);
    Dots& dots = coarse_[cell];
    if (dots.ends[0] == 0) [[unlikely]] {
        const auto channel = [&](std::uint32_t level) { return static_cast<std::uint8_t>(std::min(level << 2, 255U)); };
        dots = mix({channel(cell % kLevels), channel(cell / kLevels % kLevels), channel(cell / kLevels / kLevels), 0});
    }
    return dots.at(threshold);
}

inline const DotScreen::Dots& DotScreen::recent(Pixel p)
{
    const std::uint32_t colour = channelBits(p);
    Recent& recent = recent_[colour * 2654435769U >> (32 - kSlotBits)]; // golden ratio
    if (recent.colour != colour) [[unlikely]]
        recent = {colour, mix(p)};
    return recent.dots;
}

DotScreen::Dots DotScreen::mix(Pixel p)
{
    const ColourMixer::Mixture mixture = mixer_(p);
    Dots dots{.entries = mixture.entries};
    dots.ends.fill(ColourMixer::kParts);
    int end = 0;
    for (std::size_t i = 0; i < mixture.count; ++i) dots.ends[i] = static_cast<std::uint8_t>(end += mixture.parts[i]);
    return dots;
}

} // namespace velara
