#include "reduce/DotScreen.h"

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

DotScreen::DotScreen(const std::vector<Pixel>& colours, NearestColours& nearest, const DotMatrix& matrix,
                     PaletteOf origin, bool hasManyColours)
    : matrix_(matrix), alternates_(hasManyColours), nearest_(nearest), colours_(colours),
      mixer_(colours, {matrix.contrast.seen, origin == PaletteOf::Any ? 0 : matrix.contrast.close})
{
}

void DotScreen::mix(Pixel p, Recent& recent)
{
    const ColourMixer::Mixture mixture = mixer_(p);
    recent.colour = std::bit_cast<std::uint32_t>(p) & 0xFFFFFF;
    recent.entries = mixture.entries;
    int end = 0;
    for (std::size_t i = 0; i < mixture.count; ++i) recent.ends[i] = static_cast<std::uint8_t>(end += mixture.parts[i]);
}

} // namespace velara
