// Vector kernel of the random displacement.
#pragma once
#include "engine/SpanOf.h"
#include "pixels/random.h"
#include <vector>

namespace velara {

/// Which pixels of a picture a region selects, a bit each: row y starts at word y * wordsPerRow.
struct PixelMask {
    std::vector<std::uint32_t> words;
    std::int32_t wordsPerRow;
    bool contains(int x, int y) const
    {
        return words[static_cast<std::size_t>(y) * static_cast<std::size_t>(wordsPerRow) +
                     static_cast<std::size_t>(x / 32)] >>
                   x % 32 &
               1;
    }
};

/// Where the sources lie: within the rectangle x0..x1-1, y0..y1-1 and, unless null, in the mask.
struct Sources {
    int x0, x1, y0, y1;
    const PixelMask* mask;
};

/// The numbers of the pixel i of a row are first + 2*i and the next, for the column and the row.
struct Displacement {
    int horizontal, vertical; // -kMostRange..kMostRange
    Random random;
    std::uint32_t first;

    static constexpr int kMostRange = 127; // keeps 24 random bits times the range within 32 bits
};

/// Each pixel takes three channels of the pixel at round(rnd*H + x - H/2), round(rnd*V + y - V/2), halves to the even
/// neighbour, if that is among the sources; else it stays. Writes as many pixels of the span as fill whole vectors and
/// returns the first x that is left. All sources lie in the same block as span.from, row y.
int diffusePixels(SpanOf span, int y, const Displacement& displacement, const Sources& sources);

} // namespace velara
