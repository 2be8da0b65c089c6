// The deformations around a centre: bend, twirl and lens.
#include "filters/numbers.h"
#include "filters/passes_disc.h"
#include "filters/passes_warp.h"

namespace velara {

Bits cBitFilter::BEND(int RadiusFactor, bool Clean)
{
    const int maxX = bits_.maxX(), maxY = bits_.maxY(), cx = maxX / 2, cy = maxY / 2;
    const float k = static_cast<float>(RadiusFactor / 100.0 + 2);
    return eachSource(Clean, [&](int y, int x0, int n, std::int32_t* sx, std::int32_t* sy) {
        const int dy = y - cy;
        for (int i = 0; i < n; ++i) {
            const int dx = x0 + i - cx;
            const float radius =
                static_cast<float>(k * std::sqrt(static_cast<double>(dx) * dx + static_cast<double>(dy) * dy));
            float t = -Angle(dy, dx);
            if (dy < 0 || dx > 0) t = static_cast<float>(static_cast<double>(t) + kTwoPi);
            sx[i] = roundEven(static_cast<double>(t) * maxX / kTwoPi);
            sy[i] = roundEven(maxY - static_cast<double>(radius));
        }
    });
}

Bits cBitFilter::TWIRL(int Level, int OffsetDegrees, bool Clean)
{
    const int cx = bits_.maxX() / 2, cy = bits_.maxY() / 2;
    const float k = static_cast<float>(quotient(Level / 10.0, cx));
    const float offset = static_cast<float>(OffsetDegrees * kDegreesToRadians);
    return eachSource(Clean, [&](int y, int x0, int n, std::int32_t* sx, std::int32_t* sy) {
        const int dy = y - cy;
        for (int i = 0; i < n; ++i) {
            const int dx = x0 + i - cx;
            const int r = roundEven(std::sqrt(static_cast<double>(dx) * dx + static_cast<double>(dy) * dy));
            sx[i] = cx;
            sy[i] = cy;
            if (r == 0) continue;
            const float t = static_cast<float>(Angle(dx, dy) - r * static_cast<double>(k));
            sx[i] = roundEven(r * std::cos(static_cast<double>(t) + offset) + cx);
            sy[i] = roundEven(r * std::sin(static_cast<double>(t) + offset) + cy);
        }
    });
}

Bits cBitFilter::LENS(float CenterX, float CenterY, float Radius, int Magnify)
{
    const Bits in = bits_;
    const Disc disc(in, CenterX, CenterY, Radius);
    const double R = disc.radius;
    const double D = static_cast<float>((150.0 - Magnify) * R / 150);
    const double limit = roundToEven(R * R - D * D);
    return eachOfDisc(disc, limit, [&](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        const double oy = static_cast<double>(y) - disc.y;
        const int pulledY = roundEven(D * oy);
        for (int x = x0; x < x1; ++x) {
            const double ox = static_cast<double>(x) - disc.x;
            const int z = roundEven(std::sqrt(R * R - ox * ox - oy * oy));
            const std::int64_t sx = std::int64_t(divide(roundEven(D * ox), z)) + disc.x;
            const std::int64_t sy = std::int64_t(divide(pulledY, z)) + disc.y;
            if (sx < -Bits::kMargin || sx >= in.width() + Bits::kMargin || sy < -Bits::kMargin ||
                sy >= in.height() + Bits::kMargin)
                throw RuntimeError(Fault::OutOfRange);
            to[x] = withColour(in.at(static_cast<int>(sx), static_cast<int>(sy)), from[x]);
        }
    });
}

} // namespace velara
