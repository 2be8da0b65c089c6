// Definitions of the stylising filters.
#include "pixels/RuntimeError.h"
#include "pixels/numbers.h"
#include "tools/reference/definitions.h"
#include "tools/reference/dialogTrials.h"
#include <cmath>

namespace velara {
namespace {

using Wide = std::int64_t;

void paint(Pixel& to, Colour colour)
{
    const int parts[] = {blueOf(colour), greenOf(colour), redOf(colour)};
    for (int c = 0; c < 3; ++c) to.c[c] = static_cast<std::uint8_t>(parts[c]);
}

Bits sketch(const Bits& bits, const Region& region, const Given& a)
{
    const int level = a.whole("Level");
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        int e = 0;
        for (int c = 0; c < 3; ++c) {
            e += 9 * bits.at(x, y).c[c];
            for (int dy = -1; dy <= 1; ++dy)
                for (int dx = -1; dx <= 1; ++dx) e -= bits.at(x + dx, y + dy).c[c];
        }
        const bool on = (e + 765) / 3 > level;
        if (a.flag("Mono"))
            paint(to, on ? 0xFFFFFF : 0);
        else if (on)
            paint(to, a.whole("Color"));
    });
}

Bits thermique(const Bits& bits, const Region& region, const Given&)
{
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        const auto* c = bits.at(x, y).c;
        if (c[0] < c[2] && c[1] < c[2])
            to.c[1] = to.c[0] = 0;
        else if (c[0] < c[1] && c[2] < c[1])
            to.c[2] = to.c[0] = 0;
        else if (c[1] < c[0] && c[2] < c[0])
            to.c[2] = to.c[1] = 0;
    });
}

Bits twoTone(const Bits& bits, const Region& region, Colour bright, Colour dark)
{
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        const auto* c = bits.at(x, y).c;
        if (c[0] > 127.5 && c[1] > 127.5 && c[2] > 127.5) paint(to, bright);
        if (c[0] < 127.5 && c[1] < 127.5 && c[2] < 127.5) paint(to, dark);
    });
}

Bits xblack(const Bits& bits, const Region& region, const Given&) { return twoTone(bits, region, 0, 0xFFFFFF); }
Bits photocop(const Bits& bits, const Region& region, const Given&) { return twoTone(bits, region, 0xFFFFFF, 0); }

/// The first `count` of the windows at the pixel's corners.
Bits quadrants(const Bits& bits, const Region& region, int count, int best)
{
    static constexpr int corners[4][2] = {{-2, -2}, {0, -2}, {-2, 0}, {0, 0}};
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        for (int c = 0; c < 3; ++c) {
            int least = best;
            for (int q = 0; q < count; ++q) {
                int values[9], sum = 0, deviation = 0;
                for (int i = 0; i < 9; ++i) {
                    values[i] = bits.at(x + corners[q][0] + i % 3, y + corners[q][1] + i / 3).c[c];
                    sum += values[i];
                }
                for (const int v : values) deviation += std::abs(v - sum / 9);
                if (deviation >= least) continue;
                least = deviation;
                to.c[c] = static_cast<std::uint8_t>(sum / 9);
            }
        }
    });
}

Bits dissolve(const Bits& bits, const Region& region, const Given&) { return quadrants(bits, region, 4, 999999); }
Bits painting(const Bits& bits, const Region& region, const Given&) { return quadrants(bits, region, 3, 99999); }

Bits stuckiBW(const Bits& bits, const Region& region, const Given& a)
{
    const Wide divisor = a.whole("Divisor");
    const int maxX = bits.maxX(), maxY = bits.maxY();
    const auto grey = [&](int x, int y) {
        const auto* c = bits.at(x, y).c;
        return (c[0] + c[1] + c[2]) / 3;
    };
    Wide sum = 0;
    for (int y = 0; y <= maxY; ++y)
        for (int x = 0; x <= maxX; ++x) sum += grey(x, y);
    const Wide mean = sum / (Wide{bits.width()} * bits.height());

    Bits out = bits;
    std::vector<int> e1(bits.width()), e2(bits.width()), e3(bits.width());
    const Rect box = region.bounds();
    for (int y = std::max(box.top, 0); y < std::min(box.bottom, bits.height()); ++y) {
        for (int x = std::max(box.left, 0); x < std::min(box.right, bits.width()); ++x) {
            if (!region.contains(x, y)) continue;
            if (divisor == 0) throw RuntimeError(Fault::DivisionByZero);
            const int v = clamp(grey(x, y) + 10 * e1[x] / divisor), o = v >= mean ? 255 : 0, e = v - o;
            for (int c = 0; c < 3; ++c) out.at(x, y).c[c] = static_cast<std::uint8_t>(o);
            const auto part = [e](int w) { return e * w / 42; };
            if (x < maxX - 1) e1[x + 1] += part(8);
            if (x < maxX - 2) e1[x + 2] += part(4);
            if (y < maxY - 1) {
                if (x > 1) e2[x - 2] += part(2);
                if (x > 0) e2[x - 1] += part(4);
                e2[x] += part(8);
                if (x < maxX - 1) e2[x + 1] += part(4);
                if (x < maxX - 2) e2[x + 2] += part(2);
            }
            if (y < maxY - 2) {
                if (x > 1) e3[x - 2] += part(1);
                if (x > 0) e3[x - 1] += part(2);
                e3[x] += part(4);
                if (x < maxX - 1) e3[x + 1] += part(2);
                if (x < maxX - 2) e3[x + 2] += part(1);
            }
        }
        e1 = e2, e2 = e3;
        std::fill(e3.begin(), e3.end(), 0);
    }
    return out;
}

Bits pixelize(const Bits& bits, const Region& region, const Given& a)
{
    const Wide size = a.whole("Size");
    Pixel held{{0, 0, 0, 0}};
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        if (size == 0) throw RuntimeError(Fault::DivisionByZero);
        const Wide bx = x / size * size, by = y / size * size;
        if (x % size == 0) {
            Wide sums[3] = {}, count = 0;
            for (Wide i = by; i < by + size && i <= bits.maxY(); ++i)
                for (Wide j = bx; j < bx + size && j <= bits.maxX(); ++j, ++count)
                    for (int c = 0; c < 3; ++c) sums[c] += bits.at(int(j), int(i)).c[c];
            for (int c = 0; c < 3 && count > 0; ++c) held.c[c] = static_cast<std::uint8_t>(sums[c] / count);
        }
        for (int c = 0; c < 3; ++c) to.c[c] = held.c[c];
    });
}

Bits halftone(const Bits& bits, const Region& region, const Given& a)
{
    const double r = a.whole("Radius");
    const int limit = roundEven(quotient(r + a.whole("Definition"), r) * r * r);
    const float gain = static_cast<float>((a.whole("Intensity") + 100.0) / 100);
    const Wide radius = a.whole("Radius");
    Bits out = bits;
    if (radius < 0) return out;
    const auto counts = [&](Wide x, Wide y) {
        return x >= 0 && y >= 0 && x <= bits.maxX() && y <= bits.maxY() && region.contains(int(x), int(y));
    };
    const Rect box = region.bounds();
    if (box.intersected({0, 0, bits.width(), bits.height()}).isEmpty()) return out;
    for (Wide y = box.top; y < std::min(box.bottom, bits.height()); y += 2 * radius)
        for (Wide x = box.left; x < std::min(box.right, bits.width()); x += 2 * radius) {
            Wide sums[3] = {}, count = 0;
            for (Wide i = std::max<Wide>(y, 0); i <= std::min<Wide>(y + 2 * radius, bits.maxY()); ++i)
                for (Wide j = std::max<Wide>(x, 0); j <= std::min<Wide>(x + 2 * radius, bits.maxX()); ++j) {
                    if (!counts(j, i)) continue;
                    ++count;
                    for (int c = 0; c < 3; ++c) sums[c] += bits.at(int(j), int(i)).c[c];
                }
            const int n = roundEven(quotient(double(count), gain));
            for (Wide& sum : sums)
                if (n > 0) sum = std::min(roundEven(double(sum) / n), 255);
            for (Wide ty = std::max<Wide>(y, 0); ty <= std::min<Wide>(y + 2 * radius, bits.maxY()); ++ty)
                for (Wide tx = std::max<Wide>(x, 0); tx <= std::min<Wide>(x + 2 * radius, bits.maxX()); ++tx) {
                    if (!counts(tx, ty)) continue;
                    const Wide ox = tx - x - radius, oy = ty - y - radius, d2 = ox * ox + oy * oy;
                    Pixel& to = out.at(int(tx), int(ty));
                    if (d2 > limit) {
                        to = {{0, 0, 0, to.c[3]}};
                        continue;
                    }
                    const float f = static_cast<float>(1 - quotient(double(d2), limit));
                    for (int c = 0; c < 3; ++c) to.c[c] = toByte(f * double(sums[c]));
                }
        }
    return out;
}

} // namespace

Definitions styliseDefinitions()
{
    return {{"Dissolve", dissolve},   {"PAINTING", painting}, {"PIXELIZE", pixelize},
            {"Halftone", halftone},   {"SKETCH", sketch},     {"StuckiBW", stuckiBW},
            {"THERMIQUE", thermique}, {"XBLACK", xblack},     {"PHOTOCOP", photocop}};
}

DialogTrials styliseDialogs()
{
    // clang-format off
    return {
        {7, "Definition [Halftone]: Radius 1..25, 1; Definition 0..100, 50; Intensity 0..100, 0",
         "Halftone", {1, 50, 0}, {4, 50, 40}, {4, 50, 40}},
        {8, "Definition [Pixelaze]: Pixel size 1..25, 2",
         "PIXELIZE", {2}, {10}, {10}},
        {12, "Edges [Sketch]: Weight 0..255, 255; option B/W; 1 well",
         "SKETCH", {255, false, 0}, {40, true, 0x782846}, {40}, {kBlack, colourOf(70, 40, 120)}, kOption},
    };
    // clang-format on
}

} // namespace velara
