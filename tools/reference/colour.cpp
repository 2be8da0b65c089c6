// Definitions of the colour filters: channel arithmetic, tables, grey, contrast, recipes.
#include "engine/colour/mPalette.h"
#include "pixels/numbers.h"
#include "tools/reference/definitions.h"
#include "tools/reference/dialogTrials.h"
#include <algorithm>
#include <cmath>

namespace velara {
namespace {

const std::string kChannels[] = {"Blue", "Green", "Red"}; // as in argument names

int third(const Pixel& p) { return (p.c[0] + p.c[1] + p.c[2]) / 3; }
std::uint8_t limited(std::int64_t v) { return static_cast<std::uint8_t>(v < 0 ? 0 : v > 255 ? 255 : v); }
double greyWeight(const Pixel& p) { return 0.707 * p.c[1] + 0.071 * p.c[0] + 0.222 * p.c[2]; }

/// f(channel value, channel number) for the three channels of each pixel.
template <class Function> Bits eachChannel(const Bits& bits, const Region& region, Function f)
{
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        for (int c = 0; c < 3; ++c) to.c[c] = static_cast<std::uint8_t>(f(bits.at(x, y).c[c], c));
    });
}

Bits invert(const Bits& bits, const Region& region, const Given&)
{
    return eachChannel(bits, region, [](int v, int) { return 255 - v; });
}

Bits brightness(const Bits& bits, const Region& region, const Given& a)
{
    return eachChannel(bits, region, [&](int v, int) { return limited(std::int64_t(v) + a.whole("Level")); });
}

Bits shiftRGB(const Bits& bits, const Region& region, const Given& a)
{
    return eachChannel(bits, region, [&](int v, int c) { return limited(std::int64_t(v) + a.whole(kChannels[c])); });
}

Bits killChannel(const Bits& bits, const Region& region, const Given& a)
{
    return eachChannel(bits, region, [&](int v, int c) { return a.flag("Kill" + kChannels[c]) ? 0 : v; });
}

Bits specialColors(const Bits& bits, const Region& region, const Given& a)
{
    return eachChannel(bits, region, [&](int v, int c) { return a.flag("Keep" + kChannels[c]) ? v : 0; });
}

Bits swapRGB(const Bits& bits, const Region& region, const Given& a)
{
    int from[3], kill[3];
    for (int c = 0; c < 3; ++c)
        from[c] = toByte(a.whole("Source" + kChannels[c])), kill[c] = toByte(a.whole("Kill" + kChannels[c]));
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        for (int c = 0; c < 3; ++c) {
            if (from[c] > 3) throw RuntimeError(Fault::OutOfRange);
            int v = bits.at(x, y).c[from[c]];
            if (a.flag("Invert" + kChannels[c])) v = 255 - v;
            to.c[c] = static_cast<std::uint8_t>(v & ~kill[c]);
        }
    });
}

Bits swapBanks(const Bits& bits, const Region& region, const Given& a)
{
    constexpr int kFrom[5][3] = {{1, 2, 0}, {2, 0, 1}, {1, 0, 2}, {2, 1, 0}, {0, 2, 1}};
    const int mode = a.whole("Mode");
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        for (int c = 0; c < 3; ++c)
            if (mode >= 1 && mode <= 5) to.c[c] = bits.at(x, y).c[kFrom[mode - 1][c]];
    });
}

Bits threshold(const Bits& bits, const Region& region, const Given& a)
{
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        const std::uint8_t v = third(bits.at(x, y)) <= a.whole("Level") ? 0 : 255;
        to.c[0] = to.c[1] = to.c[2] = v;
    });
}

Bits gammaCorrection(const Bits& bits, const Region& region, const Given& a)
{
    const float g = static_cast<float>((a.whole("Level") + 100.0) / 100);
    return eachChannel(bits, region,
                       [&](int v, int) { return g <= 0 ? 0 : roundEven(std::pow(v / 255.0, 1.0 / g) * 255); });
}

Bits reduction(const Bits& bits, const Region& region, const Given& a)
{
    const int s = a.whole("Level") + 1;
    return eachChannel(bits, region, [&](int v, int) { return std::min(255, s * roundEven(quotient(v, s))); });
}

Bits greyScale(const Bits& bits, const Region& region, const Given&)
{
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        to.c[0] = to.c[1] = to.c[2] = static_cast<std::uint8_t>(roundEven(greyWeight(bits.at(x, y))));
    });
}

Bits oldPhoto(const Bits& bits, const Region& region, const Given&)
{
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        to.c[1] = to.c[2] = static_cast<std::uint8_t>(roundEven(greyWeight(bits.at(x, y))));
    });
}

Bits rotateL(const Bits& bits, const Region& region, const Given& a)
{
    const float ph = static_cast<float>(a.whole("Offset") / 10.0), fq = static_cast<float>(a.whole("Steps") / 2.5);
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        float u = static_cast<float>(std::sin(greyWeight(bits.at(x, y)) / 255 * fq + ph) * 127.5 + 127.5);
        if (u > 255)
            u = static_cast<float>(u - 255.0);
        else if (u < 0)
            u = static_cast<float>(u + 255.0);
        to.c[0] = to.c[1] = to.c[2] = toByte(u);
    });
}

Bits saturation(const Bits& bits, const Region& region, const Given& a)
{
    const float k = static_cast<float>(a.whole("Level") / 100.0);
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        const Pixel& p = bits.at(x, y);
        for (int c = 0; c < 3; ++c) to.c[c] = limited(roundEven(double(p.c[c] - third(p)) * k + p.c[c]));
    });
}

Bits contrast(const Bits& bits, const Region& region, const Given& a)
{
    std::int64_t sum = 0, count = 0;
    for (int y = 0; y < bits.height(); ++y)
        for (int x = 0; x < bits.width(); ++x) sum += third(bits.at(x, y)), ++count;
    const int M = static_cast<int>(sum / count);
    const float f = static_cast<float>((a.whole("Level") + 100.0) / 100);
    const auto table = [&](int i) { return roundEven(double(i - M) * f + M); };
    const auto outside = [](int v) { return v < 0 || v > 255; };
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        int b = table(bits.at(x, y).c[0]), g = table(bits.at(x, y).c[1]), r = table(bits.at(x, y).c[2]);
        while (outside(b) || outside(g) || outside(r)) {
            if (b <= 0 && g <= 0 && r <= 0) b = 0, g = 0, r = 0;
            if (b >= 255 && g >= 255 && r >= 255) b = 255, g = 255, r = 255;
            if (b < 0) {
                g += b / 2;
                r += b / 2;
                b = 0;
            }
            if (b > 255) {
                g += (b - 255) / 2;
                r += (b - 255) / 2;
            }
            if (g < 0) {
                r += g / 2;
                b = std::min(b, 255) + g / 2;
                g = 0;
            } else
                b = std::min(b, 255);
            if (g > 255) {
                r += (g - 255) / 2;
                b += (g - 255) / 2;
            }
            if (r < 0) {
                g = std::min(g, 255) + r / 2;
                b += r / 2;
                r = 0;
            } else
                g = std::min(g, 255);
            if (r > 255) {
                const int t = (r - 255) / 2;
                r = 255;
                g += t;
                b += t;
            }
        }
        to.c[0] = std::uint8_t(b), to.c[1] = std::uint8_t(g), to.c[2] = std::uint8_t(r);
    });
}

Bits equalize(const Bits& bits, const Region& region, const Given&)
{
    int hist[256] = {}, sum = 0, i = 0;
    for (int y = 0; y < bits.height(); ++y)
        for (int x = 0; x < bits.width(); ++x) {
            const Pixel& p = bits.at(x, y);
            ++hist[roundEven(0.586 * p.c[1] + 0.113 * p.c[0] + 0.301 * p.c[2])];
        }
    const int half = bits.width() * bits.height() / 2;
    while ((sum += hist[i]) <= half) ++i;
    const int m = hist[i] / 2 <= sum - half ? i - 1 : i;
    const double a = quotient(127, 255 - m), b = quotient(127, m - 1);
    return eachChannel(bits, region, [&](int v, int) { return v >= m ? toByte((v - m) * a + 128) : toByte(v * b); });
}

Bits classyColors(const Bits& bits, const Region& region, const Given& a)
{
    const auto mean = [](int u, int v) { return toByte((u * 0.99 + v * 0.99) / 2); };
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        const auto* c = bits.at(x, y).c;
        const int mode = a.whole("Mode");
        if (mode == 0 || mode == 1) to.c[1] = mean(c[2], c[1]), to.c[2] = c[1];
        if (mode == 0) to.c[0] = toByte(std::atan(double(c[1])) * (c[0] / 1.9));
        if (mode == 2) to.c[2] = mean(c[2], c[0]), to.c[0] = c[2];
        if (mode == 3) to.c[1] = mean(c[1], c[0]), to.c[0] = c[1];
        if (mode == 6) {
            to.c[0] = toByte(c[2] / 2.0 + c[0] / 4.0);
            to.c[1] = toByte(c[2] / 4.0 + c[1] / 2.0);
            to.c[2] = toByte(c[1] / 4.0 + c[0] / 2.0);
        }
        if (mode == 7) {
            const int t = roundEven((c[0] * 0.99 * 2 + c[2] * 0.99) / 12);
            for (int i = 0; i < 3; ++i) to.c[i] = static_cast<std::uint8_t>(std::abs(~(c[(i + 1) % 3] - t)) & 255);
        }
        if (mode == 8) to.c[0] = c[1], to.c[1] = c[2];
        if (mode == 10) to.c[0] = toByte(c[1] / 2.0), to.c[1] = toByte(c[2] / 2.0);
        if (mode == 11) to.c[2] = 170, to.c[1] = c[0], to.c[0] = c[1];
    });
}

Bits paletteApply(const Bits& bits, const Region& region, const Given&)
{
    Bits own = bits;
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        const Pixel p = own.at(x, y);
        const PaletteColor n = NearestColor(p.c[2], p.c[1], p.c[0]);
        const int found[] = {n.blue, n.green, n.red};
        int e[3], all = 0;
        for (int c = 0; c < 3; ++c) {
            to.c[c] = static_cast<std::uint8_t>(found[c]);
            e[c] = p.c[c] - found[c];
            all += std::abs(e[c]);
        }
        if (all <= 3) return;
        for (int c = 0; c < 3; ++c) {
            if (x < bits.maxX()) own.at(x + 1, y).c[c] = limited(own.at(x + 1, y).c[c] + e[c] * 7 / 16);
            if (y < bits.maxY() && x >= 1 && x < bits.maxX())
                own.at(x, y + 1).c[c] = limited(own.at(x, y + 1).c[c] + e[c] * 4 / 16);
        }
    });
}

} // namespace

Definitions colourDefinitions()
{
    return {
        {"Invert", invert},           {"BRIGHTNESS", brightness},       {"ShiftRGB", shiftRGB},
        {"KillChannel", killChannel}, {"SpecialColors", specialColors}, {"SwapRGB", swapRGB},
        {"SwapBanks", swapBanks},     {"Threshold", threshold},         {"GammaCorrection", gammaCorrection},
        {"Reduction", reduction},     {"GreyScale", greyScale},         {"OLDPHOTO", oldPhoto},
        {"RotateL", rotateL},         {"SATURATION", saturation},       {"CONTRAST", contrast},
        {"Equalize", equalize},       {"ClassyColors", classyColors},   {"PaletteApply", paletteApply},
    };
}

DialogTrials colourDialogs()
{
    // clang-format off
    return {
        {1, "Adjust [Brightness]: Level -100..250, 0",
         "BRIGHTNESS", {0}, {60}, {60}},
        {2, "Adjust [Contrast]: Level -100..250, 0",
         "CONTRAST", {0}, {60}, {60}},
        {3, "Adjust [Saturation]: Level -100..250, 0",
         "SATURATION", {0}, {100}, {100}},
        {4, "Adjust [Gamma correction]: Gamma 0..2, 1, by 0.01",
         "GammaCorrection", {0}, {-50}, {-50}},
        {13, "Edges [Threshold]: Cut value 0..255, 128",
         "Threshold", {128}, {100}, {100}},
        {15, "Color [Reduction]: Level 0..255, 0",
         "Reduction", {0}, {63}, {63}},
        {23, "Color [Grey rotation]: Offset 0..100, 0; Steps 0..100, 25",
         "RotateL", {0, 25}, {40, 60}, {40, 60}},
        {25, "Color [RGB levels]: Red -255..255, 0; Green -255..255, 0; Blue -255..255, 0",
         "ShiftRGB", {0, 0, 0}, {60, -20, -80}, {60, -20, -80}},
        {26, "Color [RGB banks]: banks",
         "SwapRGB", {2, 1, 0, false, false, false, 0, 0, 0}, {1, 0, 2, false, true, false, 0, 0, 255}, {}, kBlackWhite, {.channel = {1, 0, 2}, .invert = {false, true, false}, .kill = {false, false, true}}},
    };
    // clang-format on
}

} // namespace velara
