// Definitions of the filters that draw lights, noise, lines, gradients and overlays.
#include "pixels/numbers.h"
#include "pixels/random.h"
#include "tools/reference/definitions.h"
#include "tools/reference/dialogTrials.h"

namespace velara {
namespace {

Bits light(const Bits& bits, const Region& region, const Given& a)
{
    const float centreX = static_cast<float>(a.number("CenterX")), centreY = static_cast<float>(a.number("CenterY"));
    const float radius = static_cast<float>(a.number("Radius"));
    const int px = roundEven(bits.maxX() * double(centreX)), py = roundEven(bits.maxY() * double(centreY));
    const int R = roundEven(std::max(bits.maxX(), bits.maxY()) * double(radius));
    const float q = static_cast<float>(1 - a.whole("Definition") / 100.0);
    if (R <= 0) return bits;
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        const double ox = double(x) - px, oy = double(y) - py;
        if (!(ox * ox + oy * oy < double(R) * R)) return;
        const long long k = roundEven((1 - q * std::sqrt(ox * ox + oy * oy) / R) * a.whole("Intensity"));
        for (int c = 0; c < 3; ++c) to.c[c] = static_cast<std::uint8_t>(std::min(to.c[c] + k, 255LL) & 255);
    });
}

Bits noise(const Bits& bits, const Region& region, const Given& a)
{
    const int amount = a.whole("Amount");
    const double span = 2.0 * amount + 1;
    const Random random(cBitFilter::kRandomSeed);
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        const auto pixel = static_cast<std::uint32_t>(y * bits.width() + x);
        for (int c = 2; c >= 0; --c) {
            const double rnd =
                random.single(a.flag("Equalized") ? pixel : 3 * pixel + static_cast<std::uint32_t>(2 - c));
            to.c[c] = clamp(roundEven(to.c[c] + (rnd * span - amount)));
        }
    });
}

Bits scanlines(const Bits& bits, const Region& region, const Given& a)
{
    return eachPixel(bits, region, 0, [&](Pixel& to, int, int y) {
        if ((y - region.bounds().top) % 2 == 0)
            for (int c = 0; c < 3; ++c) to.c[c] = clamp(1LL * to.c[c] - a.whole("Level"));
    });
}

Bits grid(const Bits& bits, const Region& region, const Given& args)
{
    const long long stepX = args.whole("HorizontalStep"), stepY = args.whole("VerticalStep");
    if (stepX < 1 || stepY < 1) throw RuntimeError(Fault::OutOfRange);
    const Colour colour = args.whole("Color");
    const float a = static_cast<float>(args.whole("Opacity") / 255.0), b = static_cast<float>(1.0 - a);
    const Rect box = region.bounds();
    Bits out = bits;
    const auto draw = [&](long long x, long long y) {
        if (x < 0 || y < 0 || x > bits.maxX() || y > bits.maxY()) return;
        const int X = static_cast<int>(x), Y = static_cast<int>(y);
        if (!region.contains(X, Y)) return;
        for (int c = 0; c < 3; ++c)
            out.at(X, Y).c[c] = toByte(bits.at(X, Y).c[c] * double(b) + (colour >> (16 - 8 * c) & 255) * double(a));
    };
    const auto across = [&](long long y) {
        for (int x = box.left; x < box.right; ++x) draw(x, y);
    };
    const auto down = [&](long long x) {
        for (int y = box.top; y < box.bottom; ++y) draw(x, y);
    };
    for (long long y = box.top; y < box.bottom; y += stepY) across(y);
    if (args.flag("ForceMargins")) across(bits.maxY());
    for (long long x = box.left; x < box.right; x += stepX) down(x);
    if (args.flag("ForceMargins")) down(bits.maxX());
    return out;
}

Bits gradient(const Bits& bits, const Region& region, const Given& a, bool linear)
{
    const double x1 = a.whole("X1"), y1 = a.whole("Y1"), dxx = a.whole("X2") - x1, dyy = a.whole("Y2") - y1;
    const double D = std::sqrt(dxx * dxx + dyy * dyy);
    if (D == 0) return bits;
    const int R = roundEven(D);
    const float op = static_cast<float>(a.whole("Opacity") / 100.0), nop = static_cast<float>(1.0 - op);
    float freq = static_cast<float>((a.whole("Repeat") - 1.0) * 3.141592025756836);
    if (R < freq) freq = static_cast<float>(R);
    double angle = dxx != 0 ? std::atan(dyy / dxx) : (dyy > 0 ? 1 : -1) * 90 * 0.017453288659453392;
    if (dxx < 0)
        angle += 3.141592f;
    else if (dyy < 0)
        angle += 6.283184f;
    const float cr = static_cast<float>(std::cos(angle) / R), sr = static_cast<float>(std::sin(angle) / R);
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        const double rx = x - x1, ry = y - y1;
        float t = static_cast<float>(linear ? ry * sr + rx * cr : std::sqrt(rx * rx + ry * ry) / R);
        if (freq > 0) t = static_cast<float>(std::pow(std::sin(double(freq) * t), 2));
        if (t > 1) t = 1;
        if (t < 0) t = 0;
        const float u = static_cast<float>(1.0 - t);
        for (int c = 0; c < 3; ++c) {
            const int shift = 16 - 8 * c;
            const double col1 = a.whole("Color1") == -1 ? to.c[c] : a.whole("Color1") >> shift & 255;
            const double col2 = a.whole("Color2") == -1 ? to.c[c] : a.whole("Color2") >> shift & 255;
            to.c[c] = toByte(to.c[c] * double(nop) + (col1 * u + col2 * t) * double(op));
        }
    });
}

Bits gradientLinear(const Bits& bits, const Region& region, const Given& a) { return gradient(bits, region, a, true); }

Bits gradientCircular(const Bits& bits, const Region& region, const Given& a)
{
    return gradient(bits, region, a, false);
}

Bits texturize(const Bits& bits, const Region& region, const Given& a)
{
    const Bits& texture = a.picture("Texture");
    const int tx = texture.maxX(), ty = texture.maxY();
    if (tx < 1 || ty < 1) throw RuntimeError(Fault::OutOfRange);
    const Rect box = region.bounds();
    Bits out = bits;
    for (int Y = box.top; Y < box.bottom; Y += ty)
        for (int X = box.left; X < box.right; X += tx)
            for (int j = 0; j <= ty; ++j)
                for (int i = 0; i <= tx; ++i) {
                    const int x = X + i, y = Y + j;
                    if (x < 0 || y < 0 || x > bits.maxX() || y > bits.maxY() || !region.contains(x, y)) continue;
                    const float f = static_cast<float>(texture.at(i, j).c[0] / 128.0);
                    for (int c = 0; c < 3; ++c) out.at(x, y).c[c] = clamp(roundEven(bits.at(x, y).c[c] * double(f)));
                }
    return out;
}

Bits tileMask(const Bits& bits, const Region& region, const Given& args)
{
    const Bits& overlay = args.picture("Overlay");
    const long long left = args.whole("Left"), top = args.whole("Top");
    const Colour key = args.whole("KeyColor");
    const long long stepX = args.flag("Tiled") ? overlay.width() : bits.maxX() - left + 1;
    const long long stepY = args.flag("Tiled") ? overlay.height() : bits.maxY() - top + 1;
    const float a = static_cast<float>(args.whole("Transparency") / 100.0), b = static_cast<float>(1.0 - a);
    Bits out = bits;
    for (long long Y = top; Y <= bits.maxY(); Y += stepY)
        for (long long X = left; X <= bits.maxX(); X += stepX)
            for (int j = 0; j < overlay.height(); ++j)
                for (int i = 0; i < overlay.width(); ++i) {
                    const long long x = X + i, y = Y + j;
                    if (x < 0 || y < 0 || x > bits.maxX() || y > bits.maxY()) continue;
                    if (!region.contains(static_cast<int>(x), static_cast<int>(y))) continue;
                    const Pixel& o = overlay.at(i, j);
                    if (key != -1 && o.c[2] == (key & 255) && o.c[1] == (key >> 8 & 255) && o.c[0] == (key >> 16 & 255))
                        continue;
                    const Pixel& from = bits.at(static_cast<int>(x), static_cast<int>(y));
                    for (int c = 0; c < 3; ++c)
                        out.at(static_cast<int>(x), static_cast<int>(y)).c[c] =
                            toByte(from.c[c] * double(a) + o.c[c] * double(b));
                }
    return out;
}

} // namespace

Definitions generateDefinitions()
{
    return {
        {"Light", light},
        {"NOISE", noise},
        {"Scanlines", scanlines},
        {"Grid", grid},
        {"GradientLinear", gradientLinear},
        {"GradientCircular", gradientCircular},
        {"Texturize", texturize},
        {"TileMask", tileMask},
    };
}

DialogTrials generateDialogs()
{
    // clang-format off
    return {
        {35, "Special [Grid]: Horizontal step 1..250, 25; Vertical step 1..250, 25; Opacity 0..255, 128; option Force margins; 1 well",
         "Grid", {25, 25, false, 0, 128}, {60, 40, true, 0x00FFFF, 200}, {60, 40, 200}, {kBlack, colourOf(255, 255, 0)}, kOption},
        {36, "Special [Light]: Extension 1..100, 50; Intensity 0..500, 250; Definition 0..100, 0; picks the centre",
         "Light", {0.5, 0.5, 50 / 300.0, 250, 0}, {0.75, double(0.22f), 80 / 300.0, 400, 20}, {80, 400, 20}, kBlackWhite, {.centerX = 0.75f, .centerY = 0.22f}},
        {37, "Special [Noise]: Intensity 0..100, 25; option Equalized",
         "NOISE", {25, false}, {60, true}, {60}, kBlackWhite, kOption},
        {38, "Special [Scanlines]: Opacity 0..255, 128",
         "Scanlines", {128}, {220}, {220}},
    };
    // clang-format on
}

} // namespace velara
