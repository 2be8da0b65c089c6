#include "reduce/DotScreen.h"
#include "reduce/palettes.h"
#include <algorithm>

namespace velara {

namespace {

constexpr int kMostError =
    64 * 255; // summed over all entries; for colours outside the palette's gamut it would grow without end

/// Bayer's matrix: each doubling inserts 0, 2 / 3, 1 between the thresholds there are.
constexpr ScreenMatrix dispersed()
{
    ScreenMatrix matrix{};
    for (std::size_t y = 0; y < 8; ++y)
        for (std::size_t x = 0; x < 8; ++x)
            for (std::size_t bit = 0; bit < 3; ++bit) {
                const std::size_t column = x >> bit & 1, row = y >> bit & 1;
                matrix[y * 8 + x] |= static_cast<std::uint8_t>(((column ^ row) << 1 | row) << (4 - 2 * bit));
            }
    return matrix;
}

} // namespace

constexpr ScreenMatrix kDispersedDots = dispersed();

// Clustered dots: two a square, each growing outwards from its centre; the second lags the first by one step.
// clang-format off
constexpr ScreenMatrix kClusteredDots{
    24, 10, 12, 26, 35, 47, 49, 37,
     8,  0,  2, 14, 45, 59, 61, 51,
    22,  6,  4, 16, 43, 57, 63, 53,
    30, 20, 18, 28, 33, 41, 55, 39,
    34, 46, 48, 36, 25, 11, 13, 27,
    44, 58, 60, 50,  9,  1,  3, 15,
    42, 56, 62, 52, 23,  7,  5, 17,
    32, 40, 54, 38, 31, 21, 19, 29};
// clang-format on

DotScreen::DotScreen(const std::vector<Pixel>& colours, NearestColours& nearest) : nearest_(nearest), colours_(colours)
{
    for (const Pixel& p : colours) {
        lanes_.push_back(wide(p));
        brightness_.push_back(greyOf(p.c[2], p.c[1], p.c[0]));
        for (std::size_t rank = 0; rank < kRanks; ++rank) state_[cellOf(p, rank)] = kHoldsEntry;
    }
}

int DotScreen::lookCloser(Pixel p, std::size_t cell, int place)
{
    if (state_[cell] & kHoldsEntry) {
        const int own = nearest_(p);
        const Pixel& q = colours_[std::size_t(own)];
        if (p.c[0] == q.c[0] && p.c[1] == q.c[1] && p.c[2] == q.c[2]) return own;
    }
    if (!(state_[cell] & kMixed)) mix(cell);
    return mixtures_[cell][std::size_t(place)];
}

/// Each entry is the nearest to the colour plus the error that the entries before it have left.
void DotScreen::mix(std::size_t cell)
{
    const auto value = [&](int channel) {
        return (static_cast<int>(cell >> kBits * channel & kMostLevel) * 255 + kMostLevel / 2) / kMostLevel;
    };
    const Lanes colour{value(0), value(1), value(2), 0};
    std::array<std::uint8_t, 256> times{};
    std::array<std::uint8_t, 64> used;
    std::size_t count = 0;
    Lanes error{};
    for (int i = 0; i < 64; ++i) {
        const auto entry = static_cast<std::size_t>(nearest_(narrow(limited(colour + error, 0, 255))));
        if (times[entry]++ == 0) used[count++] = static_cast<std::uint8_t>(entry);
        error = limited(error + colour - lanes_[entry], -kMostError, kMostError);
    }
    std::sort(used.begin(), used.begin() + count, [&](int a, int b) {
        const int byBrightness = brightness_[std::size_t(a)] - brightness_[std::size_t(b)];
        return byBrightness != 0 ? byBrightness < 0 : a < b;
    });
    auto to = mixtures_[cell].begin();
    for (std::size_t i = 0; i < count; ++i) to = std::fill_n(to, times[used[i]], used[i]);
    state_[cell] |= kMixed;
}

} // namespace velara
