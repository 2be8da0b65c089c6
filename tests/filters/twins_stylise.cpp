// Literal twins of the stylising filters.
#include "filters/numbers.h"
#include "support/twins.h"
#include <cmath>

namespace velara {
namespace {

using Wide = std::int64_t;

void paint(Pixel& to, Colour colour)
{
    const int parts[] = {blueOf(colour), greenOf(colour), redOf(colour)};
    for (int c = 0; c < 3; ++c) to.c[c] = static_cast<std::uint8_t>(parts[c]);
}

Bits sketch(const Bits& bits, const Region& region, const Arguments& a)
{
    const int level = wholeAt(a, 0);
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        int e = 0;
        for (int c = 0; c < 3; ++c) {
            e += 9 * bits.at(x, y).c[c];
            for (int dy = -1; dy <= 1; ++dy)
                for (int dx = -1; dx <= 1; ++dx) e -= bits.at(x + dx, y + dy).c[c];
        }
        const bool on = (e + 765) / 3 > level;
        if (flagAt(a, 1))
            paint(to, on ? 0xFFFFFF : 0);
        else if (on)
            paint(to, wholeAt(a, 2));
    });
}

Bits thermique(const Bits& bits, const Region& region, const Arguments&)
{
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        const auto* c = bits.at(x, y).c;
        if (c[0] < c[2] && c[1] < c[2])
            to.c[1] = to.c[0] = 0;
        else if (c[0] < c[1] && c[2] < c[1])
            to.c[2] = to.c[0] = 0;
        else if (c[1] < c[0] && c[2] < c[0])
            to.c[2] = to.c[1] = 0;
    });
}

Bits twoTone(const Bits& bits, const Region& region, Colour bright, Colour dark)
{
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        const auto* c = bits.at(x, y).c;
        if (c[0] > 127.5 && c[1] > 127.5 && c[2] > 127.5) paint(to, bright);
        if (c[0] < 127.5 && c[1] < 127.5 && c[2] < 127.5) paint(to, dark);
    });
}

Bits xblack(const Bits& bits, const Region& region, const Arguments&) { return twoTone(bits, region, 0, 0xFFFFFF); }
Bits photocop(const Bits& bits, const Region& region, const Arguments&) { return twoTone(bits, region, 0xFFFFFF, 0); }

const TwinRows rows{{"SKETCH", sketch}, {"THERMIQUE", thermique}, {"XBLACK", xblack}, {"PHOTOCOP", photocop}};

} // namespace
} // namespace velara
