// Literal twins of the filters that move pixels.
#include "filters/numbers.h"
#include "support/twins.h"

namespace velara {
namespace {

constexpr double kDegree = 0.017453288659453392;

void take(Pixel& to, const Pixel& from) { std::copy(from.c, from.c + 3, to.c); }
void black(Pixel& to) { std::fill(to.c, to.c + 3, std::uint8_t(0)); }

/// Every pixel of the box, whether selected or not; body(to, x, y).
template <class Body> Bits eachOfBox(const Bits& bits, const Region& region, Body body)
{
    Bits out = bits;
    const Rect box = region.bounds().intersected({0, 0, bits.width(), bits.height()});
    for (int y = box.top; y < box.bottom; ++y)
        for (int x = box.left; x < box.right; ++x) body(out.at(x, y), x, y);
    return out;
}

/// The common rule: source(x, y, sx, sy) says where the pixel comes from, and the region is asked there.
template <class Source> Bits eachSource(const Bits& bits, const Region& region, bool clean, Source source)
{
    return eachOfBox(bits, region, [&](Pixel& to, int x, int y) {
        int sx = 0, sy = 0;
        source(x, y, sx, sy);
        if (sx >= 0 && sy >= 0 && sx < bits.width() && sy < bits.height() && region.contains(sx, sy))
            take(to, bits.at(sx, sy));
        else if (clean)
            black(to);
    });
}

Bits rotate(const Bits& bits, const Region& region, const Arguments& a)
{
    const int cx = bits.maxX() / 2, cy = bits.maxY() / 2;
    const double angle = wholeAt(a, 0) * kDegree;
    const float cs = static_cast<float>(std::cos(angle)), sn = static_cast<float>(std::sin(angle));
    return eachSource(bits, region, flagAt(a, 1), [&](int x, int y, int& sx, int& sy) {
        const double dx = x - cx, dy = y - cy;
        sx = roundEven(dx * cs - dy * sn + cx);
        sy = roundEven(dx * sn + dy * cs + cy);
    });
}

Bits rotateSmooth(const Bits& bits, const Region& region, const Arguments& a)
{
    const int cx = bits.maxX() / 2, cy = bits.maxY() / 2;
    const double angle = wholeAt(a, 0) * kDegree;
    const float cs = static_cast<float>(std::cos(angle)), sn = static_cast<float>(std::sin(angle));
    return eachOfBox(bits, region, [&](Pixel& to, int x, int y) {
        const double dx = x - cx, dy = y - cy;
        const double sxf = dx * cs - dy * sn + cx, syf = dx * sn + dy * cs + cy;
        const int ix = static_cast<int>(std::floor(sxf)), iy = static_cast<int>(std::floor(syf));
        black(to);
        if (ix < 0 || iy < 0 || ix >= bits.width() || iy >= bits.height()) return;
        const double fx = static_cast<float>(sxf - ix), fy = static_cast<float>(syf - iy);
        for (int c = 0; c < 3; ++c) {
            const int top = roundEven((1 - fy) * bits.at(ix, iy).c[c] + fy * bits.at(ix, iy + 1).c[c]);
            const int next = roundEven((1 - fy) * bits.at(ix + 1, iy).c[c] + fy * bits.at(ix + 1, iy + 1).c[c]);
            to.c[c] = clamp(roundEven((1 - fx) * top + fx * next));
        }
    });
}

Bits flip(const Bits& bits, const Region&, const Arguments& a)
{
    Bits out = bits;
    for (int y = 0; y < bits.height(); ++y)
        for (int x = 0; x < bits.width(); ++x)
            take(out.at(x, y), bits.at(flagAt(a, 0) ? bits.maxX() - x : x, flagAt(a, 1) ? bits.maxY() - y : y));
    return out;
}

const TwinRows rows{
    {"ROTATE", rotate},
    {"RotateSmooth", rotateSmooth},
    {"Flip", flip},
};

} // namespace
} // namespace velara
