// Gradients between two points, along a line or around the first one.
#include "engine/deform/passes_warp.h"
#include "engine/stylise/kernels_generate.h"
#include "pixels/numbers.h"

namespace velara {

namespace {

constexpr Colour kOwnColour = -1; // an end of the ramp that uses each pixel's own colour

/// Common to both gradients: the distance between the points, the bands and the blend.
struct Ramp {
    std::int32_t R;
    float frequency;
    RampColours colours;
    bool canBeNear; // in single precision few pixels need to be computed twice

    Ramp(double distance, Colour color1, Colour color2, int Opacity, int Repeat)
        : R(roundEven(distance)), frequency(static_cast<float>((Repeat - 1.0) * kPi))
    {
        const float opacity = static_cast<float>(Opacity / 100.0), rest = static_cast<float>(1.0 - opacity);
        colours = {{}, {}, color1 == kOwnColour, color2 == kOwnColour, opacity, rest};
        for (int c = 0; c < 3; ++c) {
            colours.first[c] = part(color1, c);
            colours.second[c] = part(color2, c);
        }
        if (R < frequency) frequency = static_cast<float>(R);
        canBeNear = opacity >= 0 && opacity <= 1;
        if (opacity * 256 != std::floor(opacity * 256)) return;
        for (int c = 0; c < 3; ++c) // half of a channel that both ends share is a half for every second pixel
            canBeNear = canBeNear && (colours.ownFirst || colours.ownSecond || colours.first[c] == 0 ||
                                      colours.first[c] != colours.second[c]);
    }

    /// Blends n <= kPlaces pixels by their positions t on the ramp, an array of kPlaces.
    void blend(const float* t, const Pixel* from, int n, Pixel* to) const
    {
        constexpr float kMostError = 1e-4f; // beyond it too many pixels would be computed twice
        float near[kPlaces], error = 0;
        if (frequency > 0)
            error = squareSinesNearly(frequency, t, n, near);
        else
            std::copy_n(t, n, near);
        if (!(error < kMostError && canBeNear)) return exactly(t, from, n, to);
        limit(near, n);
        const std::uint64_t doubtful = rampNearly(colours, from, near, error, n, to);
        if (doubtful == 0) return;
        float places[kPlaces];
        Pixel some[kPlaces];
        int count = 0;
        eachPlace(doubtful, n, [&](int i) {
            places[count] = t[i];
            some[count++] = from[i];
        });
        exactly(places, some, count, some);
        count = 0;
        eachPlace(doubtful, n, [&](int i) { to[i] = some[count++]; });
    }
    void exactly(const float* t, const Pixel* from, int n, Pixel* to) const
    {
        float places[kPlaces];
        std::copy_n(t, n, places);
        if (frequency > 0)
            eachPlace(squareSines(frequency, n, places), n, [&](int i) {
                const double sine = std::sin(static_cast<double>(frequency) * places[i]);
                places[i] = static_cast<float>(sine * sine);
            });
        limit(places, n);
        if (!rampPixels(colours, from, places, n, to)) throw RuntimeError(Fault::Overflow);
    }
    static void limit(float* t, int n)
    {
        for (int i = 0; i < n; ++i) t[i] = t[i] > 1 ? 1 : t[i] < 0 ? 0 : t[i];
    }
    static int part(Colour colour, int channel) { return colour >> (16 - 8 * channel) & 255; }
};

double distance(int X1, int Y1, int X2, int Y2)
{
    const double dx = static_cast<double>(X2) - X1, dy = static_cast<double>(Y2) - Y1;
    return std::sqrt(dx * dx + dy * dy);
}

/// The direction of the line in radians, from -pi/2 to two turns.
double direction(double dx, double dy)
{
    double a = dx != 0 ? std::atan(dy / dx) : (dy > 0 ? 1 : -1) * 90 * kDegreesToRadians;
    if (dx < 0)
        a += kPi;
    else if (dy < 0)
        a += kTwoPi;
    return a;
}

} // namespace

Bits cBitFilter::GradientLinear(int X1, int Y1, int X2, int Y2, Colour Color1, Colour Color2, int Opacity, int Repeat)
{
    const double length = distance(X1, Y1, X2, Y2);
    if (length == 0) return bits_;
    const Ramp ramp(length, Color1, Color2, Opacity, Repeat);
    const double a = direction(static_cast<double>(X2) - X1, static_cast<double>(Y2) - Y1);
    const float cr = static_cast<float>(std::cos(a) / ramp.R), sr = static_cast<float>(std::sin(a) / ramp.R);
    return eachSpan(0, [&](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        eachRun(x0, x1, [&](int x, int n) {
            float t[kPlaces];
            linearRamp(static_cast<double>(x) - X1, static_cast<double>(y) - Y1, sr, cr, n, t);
            ramp.blend(t, from + x, n, to + x);
        });
    });
}

Bits cBitFilter::GradientCircular(int X1, int Y1, int X2, int Y2, Colour Color1, Colour Color2, int Opacity, int Repeat)
{
    const double length = distance(X1, Y1, X2, Y2);
    if (length == 0) return bits_;
    const Ramp ramp(length, Color1, Color2, Opacity, Repeat);
    return eachSpan(0, [&](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        eachRun(x0, x1, [&](int x, int n) {
            float t[kPlaces];
            circularRamp(static_cast<double>(x) - X1, static_cast<double>(y) - Y1, ramp.R, n, t);
            ramp.blend(t, from + x, n, to + x);
        });
    });
}

} // namespace velara
