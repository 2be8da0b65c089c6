// The affine deformations: flip and turn.
#include "filters/numbers.h"
#include "filters/passes_warp.h"

namespace velara {

namespace {

/// A turn about the centre, cosine and sine kept in single.
struct Turn {
    int cx, cy;
    float cs, sn;

    Turn(const Bits& bits, int degrees)
        : cx(bits.maxX() / 2), cy(bits.maxY() / 2), cs(static_cast<float>(std::cos(degrees * kDegreesToRadians))),
          sn(static_cast<float>(std::sin(degrees * kDegreesToRadians)))
    {
    }
    double x(double dx, double dy) const { return dx * cs - dy * sn + cx; }
    double y(double dx, double dy) const { return dx * sn + dy * cs + cy; }
};

/// The blend of four pixels: columns first, each rounded.
std::uint8_t bilinear(int p00, int p10, int p01, int p11, double fx, double fy)
{
    const int a = roundEven((1 - fy) * p00 + fy * p01), b = roundEven((1 - fy) * p10 + fy * p11);
    return clamp(roundEven((1 - fx) * a + fx * b));
}

} // namespace

Bits cBitFilter::ROTATE(int Degrees, bool Clean)
{
    const Turn turn(bits_, Degrees);
    return eachSource(Clean, [&](int y, int x0, int n, std::int32_t* sx, std::int32_t* sy) {
        for (int i = 0; i < n; ++i) {
            sx[i] = roundEven(turn.x(x0 + i - turn.cx, y - turn.cy));
            sy[i] = roundEven(turn.y(x0 + i - turn.cx, y - turn.cy));
        }
    });
}

Bits cBitFilter::RotateSmooth(int Degrees)
{
    const Bits in = bits_;
    const Turn turn(in, Degrees);
    return eachTile([&](Bits& out, int x0, int x1, int y0, int y1) {
        for (int y = y0; y < y1; ++y) {
            const Pixel* from = in.row(y);
            Pixel* to = out.row(y);
            for (int x = x0; x < x1; ++x) {
                const double sx = turn.x(x - turn.cx, y - turn.cy), sy = turn.y(x - turn.cx, y - turn.cy);
                const int ix = static_cast<int>(std::floor(sx)), iy = static_cast<int>(std::floor(sy));
                to[x] = {{0, 0, 0, from[x].c[3]}};
                if (ix < 0 || iy < 0 || ix > in.maxX() || iy > in.maxY()) continue;
                const float fx = static_cast<float>(sx - ix), fy = static_cast<float>(sy - iy);
                const Pixel *upper = in.row(iy) + ix, *lower = in.row(iy + 1) + ix;
                for (int c = 0; c < 3; ++c)
                    to[x].c[c] = bilinear(upper[0].c[c], upper[1].c[c], lower[0].c[c], lower[1].c[c], fx, fy);
            }
        }
    });
}

Bits cBitFilter::Flip(bool Horizontal, bool Vertical)
{
    const Bits in = bits_;
    if (in.isNull()) {
        report(100);
        return in;
    }
    Bits out = in;
    for (int y = 0; y < in.height(); ++y) {
        const Pixel* from = in.row(Vertical ? in.maxY() - y : y);
        Pixel* to = out.row(y);
        for (int x = 0; x < in.width(); ++x) std::memcpy(to[x].c, from[Horizontal ? in.maxX() - x : x].c, 3);
        progressDue(y, in.maxY());
    }
    report(100);
    return out;
}

} // namespace velara
