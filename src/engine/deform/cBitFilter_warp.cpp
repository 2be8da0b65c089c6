// The deformations around a centre: bend, twirl and lens.
#include "engine/deform/kernels_place.h"
#include "engine/deform/passes_disc.h"
#include "engine/deform/passes_warp.h"
#include "pixels/numbers.h"

namespace velara {

namespace {

constexpr double kStep = 1.0 / (1 << 24); // what rounding to single changes at most, of 1

/// The distance from the centre to the farthest corner.
double longestRadius(const Bits& bits) { return std::hypot(bits.width() / 2 + 1, bits.height() / 2 + 1); }

double radiusOf(int dx, int dy) { return std::sqrt(static_cast<double>(dx) * dx + static_cast<double>(dy) * dy); }

} // namespace

Bits cBitFilter::BEND(int RadiusFactor, bool Clean)
{
    const int maxX = bits_.maxX(), maxY = bits_.maxY(), cx = maxX / 2, cy = maxY / 2;
    const float k = static_cast<float>(RadiusFactor / 100.0 + 2);
    const double longest = std::abs(k) * longestRadius(bits_);
    // A step is half of a single's last place: at most kStep of the number. Angles of the definition, 8 (rounded twice,
    // up to two pi: 2.4e-7 each); here the arc tangent and sums with it, 6e-7 (2e-7 of the series among them), and the
    // product and its factor, two steps. Radii: one step of the definition's, three of the root, and one of the
    // difference.
    const Bend bend{cx,
                    cy,
                    maxX,
                    maxY,
                    k,
                    static_cast<float>((4.8e-7 + 6e-7) / kTwoPi * maxX + 2.5 * kStep * maxX + 1e-6),
                    static_cast<float>(1.1 * kStep * maxY + 1e-6),
                    static_cast<float>(4.2 * kStep * std::abs(k))};
    const bool isSafe = longest < 1 << 20;
    return eachSource(Clean, [&](int y, int x0, int n, std::int32_t* sx, std::int32_t* sy) {
        const int dy = y - cy;
        const std::uint64_t doubtful = isSafe ? bendPlaces(bend, x0, y, n, sx, sy) : kAllPlaces;
        eachPlace(doubtful, n, [&](int i) {
            const int dx = x0 + i - cx;
            const float radius = static_cast<float>(k * radiusOf(dx, dy));
            float t = -Angle(dy, dx);
            if (dy < 0 || dx > 0) t = static_cast<float>(static_cast<double>(t) + kTwoPi);
            sx[i] = roundEven(static_cast<double>(t) * maxX / kTwoPi);
            sy[i] = roundEven(maxY - static_cast<double>(radius));
        });
    });
}

Bits cBitFilter::TWIRL(int Level, int OffsetDegrees, bool Clean)
{
    const int cx = bits_.maxX() / 2, cy = bits_.maxY() / 2;
    const float k = static_cast<float>(quotient(Level / 10.0, cx));
    const float offset = static_cast<float>(OffsetDegrees * kDegreesToRadians);
    // Angles of the definition lie within -pi/2..pi/2 to the right, and within pi/2..3 pi/2 to the left.
    const double longest = longestRadius(bits_), added = std::abs(longest * k) + std::abs(offset);
    const double right = 1.5708, left = 4.7125, widest = left + added;
    const bool isSafe = widest < 1000;
    std::vector<float> turns;
    for (int r = 0; isSafe && r <= longest + kPlaces; ++r) { // the last vector of a row reads beyond it
        turns.push_back(static_cast<float>(std::cos(offset - r * static_cast<double>(k))));
        turns.push_back(static_cast<float>(std::sin(offset - r * static_cast<double>(k))));
    }
    // The definition's steps: one of the angle from the centre and one of its sum with what is added. Here: three of
    // the scale, less than one of sine and cosine, and four of products and sums.
    const auto tolerance = [&](double angle) {
        return static_cast<float>((angle + (angle + added) + 3 + 0.75 + 4 + 0.25) * kStep);
    };
    const Twirl twirl{cx, cy, turns.data(), tolerance(left), tolerance(right)};
    return eachSource(Clean, [&](int y, int x0, int n, std::int32_t* sx, std::int32_t* sy) {
        const int dy = y - cy;
        const std::uint64_t doubtful = isSafe ? twirlPlaces(twirl, x0, y, n, sx, sy) : kAllPlaces;
        eachPlace(doubtful, n, [&](int i) {
            const int dx = x0 + i - cx, r = roundEven(radiusOf(dx, dy));
            sx[i] = cx;
            sy[i] = cy;
            if (r == 0) return;
            const float t = static_cast<float>(Angle(dx, dy) - r * static_cast<double>(k));
            sx[i] = roundEven(r * std::cos(static_cast<double>(t) + offset) + cx);
            sy[i] = roundEven(r * std::sin(static_cast<double>(t) + offset) + cy);
        });
    });
}

Bits cBitFilter::LENS(float CenterX, float CenterY, float Radius, int Magnify)
{
    const Bits in = bits_;
    const Disc disc(in, CenterX, CenterY, Radius);
    const double R = disc.radius;
    const double D = static_cast<float>((150.0 - Magnify) * R / 150);
    const double limit = roundToEven(R * R - D * D);
    const Rect readable{-Bits::kMargin, -Bits::kMargin, in.width() + Bits::kMargin, in.height() + Bits::kMargin};
    std::vector<float> pulled;
    constexpr double kWhole = 1 << 24; // singles below are exact
    if (R > 0 && R < 1 << 15 && std::abs(D) * (R + kPlaces) + 1 < kWhole && std::abs(double(disc.x)) < kWhole &&
        std::abs(double(disc.y)) < kWhole)
        for (int ox = -disc.radius; ox <= disc.radius + kPlaces; ++ox)
            pulled.push_back(static_cast<float>(roundToEven(D * ox)));
    const Lens lens{disc.x, disc.y, R, D, readable, pulled.empty() ? nullptr : pulled.data() + disc.radius};
    const auto source = [&](int x, int y) {
        const double ox = static_cast<double>(x) - disc.x, oy = static_cast<double>(y) - disc.y;
        const int z = roundEven(std::sqrt(R * R - ox * ox - oy * oy));
        const std::int64_t sx = std::int64_t(divide(roundEven(D * ox), z)) + disc.x;
        const std::int64_t sy = std::int64_t(divide(roundEven(D * oy), z)) + disc.y;
        if (sx < readable.left || sx >= readable.right || sy < readable.top || sy >= readable.bottom)
            throw RuntimeError(Fault::OutOfRange);
        return in.at(static_cast<int>(sx), static_cast<int>(sy));
    };
    return eachOfDisc(disc, limit, [&](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        alignas(64) std::int32_t sx[kPlaces], sy[kPlaces];
        eachRun(x0, x1, [&](int first, int n) {
            if (lensPlaces(lens, first, y, n, sx, sy))
                takePixels(in, sx, sy, n, from + first, to + first);
            else
                for (int x = first; x < first + n; ++x) to[x] = withColour(source(x, y), from[x]);
        });
    });
}

} // namespace velara
