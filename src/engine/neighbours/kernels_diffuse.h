// Vector kernel of the random displacement.
#pragma once
#include "engine/SpanOf.h"
#include "pixels/random.h"
#include <vector>

namespace velara {

/// The pixels of a picture that a region selects, a bit each: row y starts at word y * wordsPerRow.
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

/// The permitted sources: within the rectangle x0..x1-1, y0..y1-1 and, unless null, in the mask.
struct Sources {
    int x0, x1, y0, y1;
    const PixelMask* mask;
};

/// Pixel i of a row uses the random numbers first + 2*i for the column and first + 2*i + 1 for the row.
struct Displacement {
    int horizontal, vertical; // -kMostRange..kMostRange
    Random random;
    std::uint32_t first;

    static constexpr int kMostRange = 127; // keeps 24 random bits times the range within 32 bits
};

/// Each pixel takes three channels of the pixel at round(rnd*H + x - H/2), round(rnd*V + y - V/2), half to even, if
/// that is a permitted source; otherwise it is kept. Writes as many pixels of the span as fill whole vectors and
/// returns the first x not written. All sources lie in the same block as span.from, row y.
int diffusePixels(SpanOf span, int y, const Displacement& displacement, const Sources& sources);

} // namespace velara
