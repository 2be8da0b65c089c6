// Definitions of the filters by colour distance and by hue.
#include "pixels/mHSLRGB.h"
#include "pixels/numbers.h"
#include "tools/reference/definitions.h"
#include "tools/reference/dialogTrials.h"
#include <cmath>

namespace velara {
namespace {

int distance(const Pixel& p, Colour colour)
{
    const int b = p.c[0] - blueOf(colour), g = p.c[1] - greenOf(colour), r = p.c[2] - redOf(colour);
    return b * b + g * g + r * r;
}

int limitOf(int tolerance) { return roundEven(std::pow(tolerance * 127.5 / 100, 2) + 1); }

void draw(Pixel& to, Colour colour, double k)
{
    const int t[] = {blueOf(colour), greenOf(colour), redOf(colour)};
    for (int c = 0; c < 3; ++c) to.c[c] = toByte((t[c] - to.c[c]) * k + to.c[c]);
}

void store(Pixel& to, const Rgb& rgb) { to.c[0] = toByte(rgb.b), to.c[1] = toByte(rgb.g), to.c[2] = toByte(rgb.r); }

Bits isolate(const Bits& bits, const Region& region, const Given& a)
{
    return eachPixel(bits, region, 0, [&](Pixel& to, int, int) {
        if (distance(to, a.whole("Color")) >= limitOf(a.whole("Tolerance"))) draw(to, a.whole("Fill"), 1);
    });
}

Bits replace(const Bits& bits, const Region& region, const Given& a)
{
    const int T = limitOf(a.whole("Tolerance"));
    return eachPixel(bits, region, 0, [&](Pixel& to, int, int) {
        const int d2 = distance(to, a.whole("From"));
        if (d2 <= T) draw(to, a.whole("To"), 1 - double(d2) / T);
    });
}

Bits replaceHS(const Bits& bits, const Region& region, const Given& a)
{
    const int T = limitOf(a.whole("ApplyTolerance")), from = a.whole("From");
    const float th = static_cast<float>(a.whole("HueTolerance") / 100.0),
                ts = static_cast<float>(a.whole("SatTolerance") / 100.0);
    const Hsl zero = RGBToHSL(redOf(from), greenOf(from), blueOf(from));
    return eachPixel(bits, region, 0, [&](Pixel& to, int, int) {
        const Hsl hsl = RGBToHSL(to.c[2], to.c[1], to.c[0]);
        const int d2 = distance(to, from);
        if (std::abs(double(hsl.h) - zero.h) <= th && std::abs(double(hsl.s) - zero.s) <= ts && d2 <= T)
            draw(to, a.whole("To"), static_cast<float>(1 - double(d2) / T));
    });
}

Bits replaceL(const Bits& bits, const Region& region, const Given& a)
{
    const int T = limitOf(a.whole("ApplyTolerance")), tl = roundEven(a.whole("LumTolerance") * 2.55),
              from = a.whole("From");
    const int lum0 = (redOf(from) + greenOf(from) + blueOf(from)) / 3;
    return eachPixel(bits, region, 0, [&](Pixel& to, int, int) {
        const int d2 = distance(to, from);
        if (std::abs((to.c[0] + to.c[1] + to.c[2]) / 3 - lum0) <= tl && d2 <= T)
            draw(to, a.whole("To"), static_cast<float>(1 - double(d2) / T));
    });
}

Bits shift(const Bits& bits, const Region& region, const Given& a)
{
    const int T = limitOf(a.whole("Tolerance"));
    return eachPixel(bits, region, 0, [&](Pixel& to, int, int) {
        const int d2 = distance(to, a.whole("Color"));
        if (d2 >= T) return;
        const double k = 1 - double(d2) / T;
        for (std::uint8_t* c = to.c; c < to.c + 3; ++c) *c = toByte((clamp(*c + a.whole("Amount")) - *c) * k + *c);
    });
}

Bits rotateH(const Bits& bits, const Region& region, const Given& a)
{
    const float o = static_cast<float>(a.whole("Offset") / 16.67),
                s = static_cast<float>(a.whole("Saturation") / 100.0);
    return eachPixel(bits, region, 0, [&](Pixel& to, int, int) {
        const Hsl hsl = RGBToHSL(to.c[2], to.c[1], to.c[0]);
        float h = static_cast<float>(double(hsl.h) + o);
        if (h > 5) h = static_cast<float>(h - 6.0);
        store(to, HSLToRGB(h, static_cast<float>(double(s) * hsl.s), hsl.l));
    });
}

Bits colorize(const Bits& bits, const Region& region, const Given& a)
{
    const auto h = static_cast<float>(a.number("Hue")), s = static_cast<float>(a.number("Saturation")),
               l = static_cast<float>(a.number("Luminosity"));
    return eachPixel(bits, region, 0, [&](Pixel& to, int, int) {
        store(to, HSLToRGB(h, s, static_cast<float>((to.c[0] + to.c[1] + to.c[2]) / 765.0 * l)));
    });
}

Bits stretchH(const Bits& bits, const Region& region, const Given& a)
{
    const float o = static_cast<float>(a.whole("Offset") / 16.67),
                s = static_cast<float>(a.whole("Saturation") / 100.0),
                fq = static_cast<float>(a.whole("Stretch") / 10.0);
    return eachPixel(bits, region, 0, [&](Pixel& to, int, int) {
        const float l = static_cast<float>((to.c[2] + to.c[1] + to.c[0]) / 765.0);
        float h = static_cast<float>(std::sin(double(fq) * l) * 3 + o);
        if (h < -1)
            h = static_cast<float>(h + 6.0);
        else if (h > 5)
            h = static_cast<float>(h - 6.0);
        store(to, HSLToRGB(h, s, l));
    });
}

} // namespace

Definitions distanceDefinitions()
{
    return {{"ISOLATE", isolate}, {"REPLACE", replace}, {"ReplaceHS", replaceHS}, {"ReplaceL", replaceL},
            {"Shift", shift},     {"RotateH", rotateH}, {"COLORIZE", colorize},   {"StretchH", stretchH}};
}

DialogTrials distanceDialogs()
{
    // clang-format off
    return {
        {0, "Color [Colorize]: Hue 0..100, 0; Saturation 0..100, 50; Luminosity 0..100, 100",
         "COLORIZE", {0.0, 0.5, 1.0}, {144 / 40.0, 0.5, 1.0}, {60, 50, 100}},
        {14, "Color [Isolate]: Tolerance 0..200, 100; 2 wells; picks a colour",
         "ISOLATE", {kWhite, 0, 100}, {kMeadow, kWhite, 70}, {70}, {kMeadow, kWhite}},
        {16, "Color [Replace]: Tolerance 0..200, 100; 2 wells; picks a colour",
         "REPLACE", {kWhite, 0, 100}, {kRoof, 0xDC3C28, 80}, {80}, {kRoof, colourOf(40, 60, 220)}},
        {17, "Color [Replace Hue/Sat.]: Hue Tolerance 0..100, 50; Sat. Tolerance 0..100, 50; Apply Tolerance 0..200, 100; 2 wells; picks a colour",
         "ReplaceHS", {kWhite, 0, 50, 50, 100}, {kMeadow, 0x1EA0F0, 20, 60, 120}, {20, 60, 120}, {kMeadow, colourOf(240, 160, 30)}},
        {18, "Color [Replace Lum.]: Lum. Tolerance 0..100, 50; Apply Tolerance 0..200, 100; 2 wells; picks a colour",
         "ReplaceL", {kWhite, 0, 50, 100}, {kSky, 0x781478, 30, 150}, {30, 150}, {kSky, colourOf(120, 20, 120)}},
        {21, "Color [Shift]: Shift -255..255, 0; Tolerance 0..200, 100; 1 well; picks a colour",
         "Shift", {kWhite, 0, 100}, {kSky, 90, 150}, {90, 150}, {kSky, kWhite}},
        {22, "Color [Hue rotation]: Offset 0..100, 0; Saturation 0..100, 100",
         "RotateH", {0, 100}, {33, 100}, {33, 100}},
        {24, "Color [Hue stretch]: Offset 0..100, 0; Saturation 0..100, 100; Stretch factor 0..100, 0",
         "StretchH", {0, 100, 0}, {20, 80, 40}, {20, 80, 40}},
    };
    // clang-format on
}

} // namespace velara
