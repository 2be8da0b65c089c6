// The deformations around a centre: bend, twirl and lens.
#include "engine/deform/kernels_place.h"
#include "engine/deform/passes_disc.h"
#include "engine/deform/passes_warp.h"
#include "pixels/numbers.h"
#include <numbers>
#include <tuple>

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

namespace {

/// The sources of a twirl: the radius, rounded, at the angle t = single(angle - radius * k) + offset.
class TwirlSources {
  public:
    TwirlSources(const Bits& bits, int level, int offsetDegrees)
        : cx_(bits.maxX() / 2), cy_(bits.maxY() / 2), k_(static_cast<float>(quotient(level / 10.0, cx_))),
          offset_(static_cast<float>(offsetDegrees * kDegreesToRadians)), longest_(longestRadius(bits)),
          added_(std::abs(longest_ * k_) + std::abs(offset_)), isSafe_(added_ < 1000)
    {
        for (int r = 0; isSafe_ && r <= longest_ + kPlaces; ++r) { // the last vector of a row reads beyond it
            const double angle = offset_ - r * static_cast<double>(k_);
            for (const double part : {std::cos(angle), std::sin(angle)}) {
                exactTurns_.push_back(part);
                turns_.push_back(static_cast<float>(part));
            }
        }
    }
    /// Those of the n <= kPlaces targets from (x0, y) on, with a bit for each that is in doubt.
    std::uint64_t places(int x0, int y, int n, std::int32_t* sx, std::int32_t* sy) const
    {
        // In the kernel: three steps of the scale, less than one of sine and cosine, and four of products and sums.
        constexpr double kOfKernel = 3 + 0.75 + 4 + 0.25;
        const auto tolerance = [&](double ofDefinition) {
            return static_cast<float>(ofDefinition + kOfKernel * kStep);
        };
        const Twirl twirl{cx_, cy_, turns_.data(), tolerance(errorLeft()), tolerance(errorRight())};
        return isSafe_ ? twirlPlaces(twirl, x0, y, n, sx, sy) : kAllPlaces;
    }
    /// Those of the n <= kPlaces targets (xs, ys), which become places from the centre.
    void settle(std::int32_t* xs, std::int32_t* ys, int n, std::int32_t* sx, std::int32_t* sy) const
    {
        for (int i = 0; i < kPlaces; ++i) {
            xs[i] -= cx_;
            ys[i] -= cy_;
        }
        const ExactTwirl twirl{cx_, cy_, exactTurns_.data(), k_, kMissing};
        const std::uint64_t doubtful = isSafe_ ? twirlPlacesExactly(twirl, xs, ys, n, sx, sy) : kAllPlaces;
        eachPlace(doubtful, n, [&](int i) { std::tie(sx[i], sy[i]) = sourceOf(xs[i], ys[i]); });
    }

  private:
    /// What the rounding steps of the definition move a place by, per pixel of the radius: one of the angle from the
    /// centre, and one of its sum with what is added. Angles to the right of the centre lie within -pi/2..pi/2, those
    /// to the left within pi/2..3 pi/2; those of the column between are off by kMissing / 2.
    double errorRight() const { return (1.5708 + 1.5708 + added_) * kStep; }
    double errorLeft() const { return std::max(4.7125 * kStep, kMissing / 2) + (4.7125 + added_) * kStep; }

    using Source = std::pair<std::int32_t, std::int32_t>;
    /// As it is defined.
    Source sourceOf(int dx, int dy) const
    {
        const int r = roundEven(radiusOf(dx, dy));
        if (r == 0) return {cx_, cy_};
        const double t = static_cast<float>(cBitFilter::Angle(dx, dy) - r * static_cast<double>(k_));
        return {roundEven(r * std::cos(t + offset_) + cx_), roundEven(r * std::sin(t + offset_) + cy_)};
    }

    static constexpr double kMissing = std::numbers::pi - kPi;

    const int cx_, cy_;
    const float k_, offset_;
    const double longest_, added_;
    const bool isSafe_;
    std::vector<double> exactTurns_; // by the radius: cosine and sine of what is added to the angle
    std::vector<float> turns_;
};

} // namespace

Bits cBitFilter::TWIRL(int Level, int OffsetDegrees, bool Clean)
{
    const TwirlSources sources(bits_, Level, OffsetDegrees);
    return eachSettledSource(
        Clean,
        [&](int y, int x0, int n, std::int32_t* sx, std::int32_t* sy) { return sources.places(x0, y, n, sx, sy); },
        [&](std::int32_t* xs, std::int32_t* ys, int n, std::int32_t* sx, std::int32_t* sy) {
            sources.settle(xs, ys, n, sx, sy);
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
