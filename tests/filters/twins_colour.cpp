// Literal twins of the colour filters.
#include "support/twins.h"

namespace velara {
namespace {

Bits invert(const Bits& bits, const Region& region, const Arguments&)
{
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        for (int c = 0; c < 3; ++c) to.c[c] = static_cast<std::uint8_t>(255 - bits.at(x, y).c[c]);
    });
}

const TwinRows rows{{"Invert", invert}};

} // namespace
} // namespace velara
