#include "document/texturing.h"
#include "pixels/RuntimeError.h"
#include "pixels/numbers.h"
#include <stdexcept>

namespace velara {

namespace {

Region whole(const Bits& bits) { return Region::rectangle(0, 0, bits.width(), bits.height()); }

/// Grey around 128. The picture itself is full of edges: it gets the deeper relief by the smaller divisor.
Bits reliefOf(cBitFilter helper, const Bits& texture, const Texturing& texturing)
{
    if (!reliefFits(texture.width(), texture.height())) throw RuntimeError(Fault::OutOfRange);
    const int weight = roundEven(texturing.intensity / (texturing.texture.isNull() ? 2.0 : 10.0));
    helper.setBits(texture);
    helper.setBitsRegion(whole(texture));
    return texturing.engrave ? helper.ENGRAVE(weight) : helper.EMBOSS(weight);
}

Bits cropped(const Bits& picture, const Rect& part)
{
    cBitFilter filter;
    filter.setBits(picture);
    filter.BitsCrop(picture, part.left, part.top, part.right, part.bottom);
    return filter.bits();
}

} // namespace

Bits texturized(cBitFilter& filter, const Texturing& texturing)
{
    const Bits relief = reliefOf(filter, texturing.texture.isNull() ? filter.bits() : texturing.texture, texturing);
    return filter.Texturize(relief);
}

Bits texturizedPart(const Bits& picture, const Region& region, const Texturing& texturing, const Rect& part)
{
    cBitFilter filter;
    filter.clock = [] { return 0u; }; // no progress reports
    if (part.width() >= picture.width() && part.height() >= picture.height()) {
        filter.setBits(picture);
        filter.setBitsRegion(region);
        return texturized(filter, texturing);
    }
    const Bits piece = cropped(picture, part);
    filter.setBits(piece);
    filter.setBitsRegion(region.translated(-part.left, -part.top));
    if (!texturing.texture.isNull())
        return texturized(filter, texturing); // tiles start at the region's corner either way
    // Of the picture's own relief, only what falls on the part: it starts at the region's corner, like a tile.
    const Region shown = filter.BitsRegion().combined(whole(piece), Combine::And);
    if (shown.isEmpty()) return piece;
    const Rect box = shown.bounds(), from = region.bounds();
    const int left = part.left + box.left - from.left, top = part.top + box.top - from.top;
    const Rect needed = Rect{left, top, left + box.width() + 1, top + box.height() + 1}.intersected(
        {0, 0, picture.width(), picture.height()});
    filter.setBitsRegion(shown);
    return filter.Texturize(reliefOf(filter, cropped(picture, needed), texturing));
}

const Operation& texturizeOperation()
{
    static const Operation operation{
        "fTexturize",
        {{"Texture", ArgumentType::Picture, {}, {}, "its relief is tiled; self is the picture itself"},
         {"Weight", ArgumentType::Integer, "0..100", "50", "strength of the relief"},
         {"Depth", ArgumentType::Integer, "0..1", "0", "0 embossed; 1 engraved"}},
        0,
        [](const Operation&, cBitFilter& filter, const Arguments& arguments) {
            const Texturing texturing{std::get<Bits>(arguments[0]), std::get<int>(arguments[1]),
                                      std::get<int>(arguments[2]) == 1};
            if (texturing.intensity < 0 || texturing.intensity > kMostIntensity)
                throw std::invalid_argument("a Weight that is not 0 to 100");
            if (std::get<int>(arguments[2]) < 0 || std::get<int>(arguments[2]) > 1)
                throw std::invalid_argument("a Depth that is neither 0 (emboss) nor 1 (engrave)");
            const Bits& texture = texturing.texture.isNull() ? filter.bits() : texturing.texture;
            if (!reliefFits(texture.width(), texture.height()))
                throw std::invalid_argument("a texture of less than 2 by 2 pixels");
            filter.setBits(texturized(filter, texturing));
        },
        true};
    return operation;
}

} // namespace velara
