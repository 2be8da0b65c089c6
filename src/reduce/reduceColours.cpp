#include "reduce/reduceColours.h"
#include "reduce/bestColours.h"
#include "reduce/dither.h"
#include "reduce/stretchPalette.h"
#include <algorithm>

namespace velara {

namespace {

Bits greyPicture(const Bits& bits)
{
    Bits grey(bits.width(), bits.height());
    for (int y = 0; y < bits.height(); ++y)
        std::transform(bits.row(y), bits.row(y) + bits.width(), grey.row(y), [](const Pixel& p) {
            const auto level = static_cast<std::uint8_t>(greyOf(p.c[2], p.c[1], p.c[0]));
            return Pixel{{level, level, level, 0}};
        });
    return grey;
}

Colour greyColour(Colour c) { return greyOf(redOf(c), greenOf(c), blueOf(c)) * colourOf(1, 1, 1); }

Palette paletteOf(const ReduceWords& words, const Bits& bits, const ReduceProgress& progress, BestPalette& best)
{
    const int most = 1 << words.bitCount, counted = words.paletteWord & ~kCounted;
    switch (words.paletteWord) {
    case kOptimal:
        if (best.plain.empty()) best.plain = bestPalette(bits, most, progress);
        if (!mixesColours(static_cast<Dither>(words.ditherWord))) return best.plain;
        if (best.stretched.empty()) best.stretched = stretchedPalette(bits, best.plain, progress);
        return best.stretched;
    case kVgaPalette:
        return vgaColours();
    case kWebPalette:
        return webSafeColours();
    case kHalftonePalette:
        return halftoneColours();
    case kGreyPalette:
        return greyRamp(most);
    case kMapped:
        if (const Palette table = tableOfDepth(words.bitCount); !table.empty()) return table;
        [[fallthrough]];
    default:
        return fixedColours(counted >= 2 && counted < most && words.paletteWord != kMapped ? counted : most);
    }
}

} // namespace

ReducedPicture reduceColours(const Bits& bits, const ReduceWords& words, const ReduceProgress& progress,
                             BestPalette* best)
{
    const int count = words.bitCount;
    const bool isIndexed = count >= 1 && count <= 8;
    if (bits.isNull() || (!isIndexed && count != 16 && count != 24 && count != 32)) return {};
    const bool isGrey = words.colorMode == kGreyscale;
    const Bits source = isGrey ? greyPicture(bits) : bits;
    if (!isIndexed) return {std::min(count, 24), {}, bitsAtDepth(source, count, progress)};

    BestPalette own;
    Palette palette = paletteOf(words, source, progress, best ? *best : own);
    palette.resize(std::min<std::size_t>(palette.size(), std::size_t{1} << count));
    if (isGrey) std::ranges::transform(palette, palette.begin(), greyColour);
    const auto dither = words.paletteWord == kMapped ? Dither::None : static_cast<Dither>(words.ditherWord);
    return {count,
            dithered(source, palette, dither, progress,
                     words.paletteWord == kOptimal ? PaletteOf::ThePicture : PaletteOf::Any),
            {}};
}

Bits pictureOf(const ReducedPicture& picture)
{
    if (picture.bitCount > 8) return picture.full;
    const IndexedPicture& indexed = picture.indexed;
    Bits bits(indexed.width, indexed.height);
    const std::uint8_t* from = indexed.indices.data();
    for (int y = 0; y < indexed.height; ++y, from += indexed.width)
        std::transform(from, from + indexed.width, bits.row(y),
                       [&](std::uint8_t i) { return pixelFor(indexed.palette[i]); });
    return bits;
}

} // namespace velara
