// Gradients between two points, along a line or around the first one.
#include "filters/numbers.h"
#include "filters/passes.h"

namespace velara {

namespace {

constexpr Colour kOwnColour = -1; // an end of the ramp that takes each pixel's own colour

/// What both gradients have in common: the distance between the points, the bands and the blend.
struct Ramp {
    std::int32_t R;
    float frequency, opacity, rest;
    Colour colour1, colour2;

    Ramp(double distance, Colour color1, Colour color2, int Opacity, int Repeat)
        : R(roundEven(distance)), frequency(static_cast<float>((Repeat - 1.0) * kPi)),
          opacity(static_cast<float>(Opacity / 100.0)), rest(static_cast<float>(1.0 - opacity)), colour1(color1),
          colour2(color2)
    {
        if (R < frequency) frequency = static_cast<float>(R);
    }

    Pixel at(float t, Pixel from) const
    {
        if (frequency > 0) {
            const double s = std::sin(static_cast<double>(frequency) * t);
            t = static_cast<float>(s * s);
        }
        t = t > 1 ? 1 : t < 0 ? 0 : t;
        const float u = static_cast<float>(1.0 - t);
        for (int c = 0; c < 3; ++c) {
            const double a = colour1 == kOwnColour ? from.c[c] : part(colour1, c);
            const double b = colour2 == kOwnColour ? from.c[c] : part(colour2, c);
            from.c[c] = toByte(from.c[c] * static_cast<double>(rest) + (a * u + b * t) * opacity);
        }
        return from;
    }
    static int part(Colour colour, int channel) { return colour >> (16 - 8 * channel) & 255; }
};

double distance(int X1, int Y1, int X2, int Y2)
{
    const double dx = static_cast<double>(X2) - X1, dy = static_cast<double>(Y2) - Y1;
    return std::sqrt(dx * dx + dy * dy);
}

/// The direction of the line, in single, from -pi/2 to two turns.
float direction(double dx, double dy)
{
    double a = dx != 0 ? std::atan(dy / dx) : (dy > 0 ? 1 : -1) * 90 * kDegreesToRadians;
    if (dx < 0)
        a += kPi;
    else if (dy < 0)
        a += kTwoPi;
    return static_cast<float>(a);
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
        const double ry = static_cast<double>(y) - Y1;
        for (int x = x0; x < x1; ++x) {
            const double rx = static_cast<double>(x) - X1;
            to[x] = ramp.at(static_cast<float>(ry * sr + rx * cr), from[x]);
        }
    });
}

Bits cBitFilter::GradientCircular(int X1, int Y1, int X2, int Y2, Colour Color1, Colour Color2, int Opacity, int Repeat)
{
    const double length = distance(X1, Y1, X2, Y2);
    if (length == 0) return bits_;
    const Ramp ramp(length, Color1, Color2, Opacity, Repeat);
    return eachSpan(0, [&](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        const double ry = static_cast<double>(y) - Y1;
        for (int x = x0; x < x1; ++x) {
            const double rx = static_cast<double>(x) - X1;
            to[x] = ramp.at(static_cast<float>(std::sqrt(rx * rx + ry * ry) / ramp.R), from[x]);
        }
    });
}

} // namespace velara
