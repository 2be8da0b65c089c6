#include "pixels/mHSLRGB.h"

namespace velara {

Hsl RGBToHSL(int red, int green, int blue)
{
    const float r = static_cast<float>(red / 255.0), g = static_cast<float>(green / 255.0),
                b = static_cast<float>(blue / 255.0);
    const float max = MaxOf3(r, g, b), min = MinOf3(r, g, b);
    Hsl out{0, 0, static_cast<float>((double(max) + min) / 2)};
    if (max == min) return out;
    const float d = static_cast<float>(double(max) - min);
    out.s = static_cast<float>(out.l <= 0.5f ? d / (double(max) + min) : d / (2.0 - max - min));
    if (r == max)
        out.h = static_cast<float>((double(g) - b) / d);
    else if (g == max)
        out.h = static_cast<float>(2 + (double(b) - r) / d);
    else
        out.h = static_cast<float>(4 + (double(r) - g) / d);
    return out;
}

Rgb HSLToRGB(float h, float s, float l)
{
    float r = l, g = l, b = l;
    if (s != 0) {
        const float lo = static_cast<float>(l <= 0.5f ? (1.0 - s) * l : l - s * (1.0 - l));
        const float hi = static_cast<float>(2.0 * l - lo);
        const float d = static_cast<float>(double(hi) - lo);
        const auto up = [&](double t) { return static_cast<float>(lo + d * t); };
        const auto down = [&](double t) { return static_cast<float>(lo - d * t); };
        if (h < 1) {
            r = hi;
            if (h < 0)
                g = lo, b = down(h);
            else
                b = lo, g = up(h);
        } else if (h < 3) {
            g = hi;
            if (h < 2)
                b = lo, r = down(double(h) - 2);
            else
                r = lo, b = up(double(h) - 2);
        } else {
            b = hi;
            if (h < 4)
                r = lo, g = down(double(h) - 4);
            else
                g = lo, r = up(double(h) - 4);
        }
    }
    return {roundEven(r * 255.0), roundEven(g * 255.0), roundEven(b * 255.0)};
}

} // namespace velara
