#include "reduce/best/refinePalette.h"
#include "pixels/IndexedPicture.h"
#include "pixels/Register.h"
#include "pixels/threads/parallelFor.h"
#include "reduce/best/kernels_refine.h"
#include <algorithm>
#include <utility>

namespace velara {

namespace {

constexpr int kRounds = 8;
constexpr int kPiece = 1 << 13; // pixels, for a thread at a time
constexpr int kQuarters = 4;    // of a level, in which means are kept

using Place = std::array<int, 3>; // blue, green, red in quarters of a level

/// The channels of the colours that an entry shows, and in the fourth lane their number.
using Sums = std::array<Lanes, Centres::kMost>;

/// In whole numbers, so that the order doesn't matter. A piece's sums fit into 32 bits, and so do those of a sample of
/// 2^23 pixels.
Sums sumsOf(const std::vector<Pixel>& sample, const Centres& centres)
{
    const int pieces = static_cast<int>((sample.size() + kPiece - 1) / kPiece);
    std::vector<Sums> sums(static_cast<std::size_t>(pieces), Sums{});
    parallelFor(pieces, 1, [&](int i) {
        const std::size_t first = std::size_t(i) * kPiece, n = std::min<std::size_t>(kPiece, sample.size() - first);
        std::array<std::uint8_t, kPiece> numbers;
        nearestCentres(&sample[first], static_cast<int>(n), centres, numbers.data());
        for (std::size_t k = 0; k < n; ++k) {
            const Pixel& p = sample[first + k];
            sums[std::size_t(i)][numbers[k]] += wide({p.c[0], p.c[1], p.c[2], 1});
        }
    });
    Sums all{};
    for (const Sums& piece : sums)
        for (std::size_t i = 0; i < all.size(); ++i) all[i] += piece[i];
    return all;
}

} // namespace

Palette refinedPalette(const std::vector<Pixel>& sample, const Palette& palette, const ReduceProgress& progress)
{
    std::vector<Place> places;
    for (const Colour c : palette) {
        const Pixel p = pixelFor(c);
        places.push_back({kQuarters * p.c[0], kQuarters * p.c[1], kQuarters * p.c[2]});
    }
    bool moved = true;
    for (int round = 0; round < kRounds && moved; ++round) {
        if (progress) progress(0);
        Centres centres;
        for (const Place& place : places) centres.add(place);
        const Sums sums = sumsOf(sample, centres);
        moved = false;
        for (std::size_t i = 0; i < places.size(); ++i)
            for (std::size_t c = 0; c < 3 && sums[i][3] > 0; ++c) {
                const int mean =
                    static_cast<int>((std::int64_t{2 * kQuarters} * sums[i][c] + sums[i][3]) / (2 * sums[i][3]));
                moved |= mean != std::exchange(places[i][c], mean);
            }
    }
    Palette refined;
    for (const Place& place : places) {
        const auto level = [&](std::size_t c) { return (place[c] + kQuarters / 2) / kQuarters; };
        refined.push_back(colourOf(level(2), level(1), level(0)));
    }
    return refined;
}

} // namespace velara
