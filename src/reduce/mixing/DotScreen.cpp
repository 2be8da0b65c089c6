#include "reduce/mixing/DotScreen.h"
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
    if (!alternates_) return;
    coarse_.resize(MixtureCells::kCount);
    states_.resize(coarse_.size());
    for (const Pixel& p : colours) // pixels of that colour are in the cells around it
        for (unsigned corner = 0; corner < 8; ++corner) {
            const auto level = [&](int c) { return (p.c[c] >> 2) + (corner >> c & 1); };
            states_[MixtureCells::of(level(0), level(1), level(2))] |= kHasOwn;
        }
}

void DotScreen::row(const Pixel* from, std::uint8_t* to, int width, int y)
{
    std::array<std::uint8_t, 8> thresholds;
    std::copy_n(&matrix_.thresholds[std::size_t(y % 8 * 8)], 8, thresholds.begin());
    if (!alternates_) {
        for (int x = 0; x < width; ++x) to[x] = recent(from[x]).at(Dots::spread(thresholds[std::size_t(x % 8)]));
        return;
    }
    std::array<std::uint64_t, 8> spread;
    std::ranges::transform(thresholds, spread.begin(), Dots::spread);
    // The two fractions of a sequence that fills the plane evenly and has no common period with the thresholds.
    constexpr unsigned kAlong = 3242174889, kDown = 2447445414;
    for (int x0 = 0; x0 < width; x0 += kRun) {
        const int n = std::min(kRun, width - x0);
        MixtureCells::of(from + x0, n, unsigned(y) * kDown + unsigned(x0) * kAlong, kAlong, cells_.data());
        unknown_.clear();
        own_.clear();
        for (int i = 0; i < n; ++i) {
            const std::uint32_t cell = cells_[std::size_t(i)];
            __builtin_prefetch(&coarse_[cell]); // a large table
            const std::uint8_t state = states_[cell];
            if (state == kKnown) [[likely]]
                continue;
            if (!(state & kKnown)) unknown_.push_back(cell);
            if (state & kHasOwn) own_.push_back(i);
            states_[cell] |= kKnown;
        }
        mixUnknown();
        for (int i = 0; i < n; ++i) to[x0 + i] = coarse_[cells_[std::size_t(i)]].at(spread[std::size_t((x0 + i) % 8)]);
        for (const int i : own_)
            if (const int own = nearest_(from[x0 + i]);
                channelBits(colours_[std::size_t(own)]) == channelBits(from[x0 + i]))
                to[x0 + i] = static_cast<std::uint8_t>(own);
    }
}

/// Many at a time, as that is faster.
void DotScreen::mixUnknown()
{
    const auto channel = [](std::uint32_t level) { return static_cast<std::uint8_t>(std::min(level << 2, 255U)); };
    std::array<Pixel, kRun> colours;
    std::array<ColourMixer::Mixture, kRun> mixtures;
    std::ranges::transform(unknown_, colours.begin(), [&](std::uint32_t cell) {
        constexpr std::uint32_t kLevels = MixtureCells::kLevels;
        return Pixel{channel(cell % kLevels), channel(cell / kLevels % kLevels), channel(cell / kLevels / kLevels), 0};
    });
    mixer_.mixtures(colours.data(), static_cast<int>(unknown_.size()), mixtures.data());
    for (std::size_t i = 0; i < unknown_.size(); ++i) coarse_[unknown_[i]] = dotsOf(mixtures[i]);
}

inline const DotScreen::Dots& DotScreen::recent(Pixel p)
{
    const std::uint32_t colour = channelBits(p);
    Recent& recent = recent_[colour * 2654435769U >> (32 - kSlotBits)]; // golden ratio
    if (recent.colour != colour) [[unlikely]]
        recent = {colour, dotsOf(mixer_(p))};
    return recent.dots;
}

DotScreen::Dots DotScreen::dotsOf(const ColourMixer::Mixture& mixture)
{
    Dots dots{.entries = mixture.entries};
    dots.ends.fill(ColourMixer::kParts);
    int end = 0;
    for (std::size_t i = 0; i < mixture.count; ++i) dots.ends[i] = static_cast<std::uint8_t>(end += mixture.parts[i]);
    return dots;
}

} // namespace velara
