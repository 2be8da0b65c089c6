// Literal twins of the filters that draw lights, noise, lines, gradients and overlays.
#include "filters/numbers.h"
#include "support/twins.h"

namespace velara {
namespace {

Bits tileMask(const Bits& bits, const Region& region, const Arguments& args)
{
    const Bits& overlay = std::get<Bits>(args[0]);
    const long long left = wholeAt(args, 1), top = wholeAt(args, 2);
    const Colour key = wholeAt(args, 5);
    const long long stepX = flagAt(args, 3) ? overlay.width() : bits.maxX() - left + 1;
    const long long stepY = flagAt(args, 3) ? overlay.height() : bits.maxY() - top + 1;
    const float a = static_cast<float>(wholeAt(args, 4) / 100.0), b = static_cast<float>(1.0 - a);
    Bits out = bits;
    for (long long Y = top; Y <= bits.maxY(); Y += stepY)
        for (long long X = left; X <= bits.maxX(); X += stepX)
            for (int j = 0; j < overlay.height(); ++j)
                for (int i = 0; i < overlay.width(); ++i) {
                    const long long x = X + i, y = Y + j;
                    if (x < 0 || y < 0 || x > bits.maxX() || y > bits.maxY()) continue;
                    if (!region.contains(static_cast<int>(x), static_cast<int>(y))) continue;
                    const Pixel& o = overlay.at(i, j);
                    if (key != -1 && o.c[2] == (key & 255) && o.c[1] == (key >> 8 & 255) && o.c[0] == (key >> 16 & 255))
                        continue;
                    const Pixel& from = bits.at(static_cast<int>(x), static_cast<int>(y));
                    for (int c = 0; c < 3; ++c)
                        out.at(static_cast<int>(x), static_cast<int>(y)).c[c] =
                            toByte(from.c[c] * double(a) + o.c[c] * double(b));
                }
    return out;
}

const TwinRows rows{
    {"TileMask", tileMask},
};

} // namespace
} // namespace velara
