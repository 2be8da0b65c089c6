// Definitions of the neighbourhood filters.
#include "pixels/numbers.h"
#include "pixels/random.h"
#include "tools/reference/definitions.h"
#include "tools/reference/dialogTrials.h"
#include <algorithm>
#include <cmath>
#include <sstream>

namespace velara {
namespace {

using Wide = std::int64_t;

/// The picture with checked reads: OutOfRange beyond the margin.
struct Source {
    const Bits& bits;
    int at(Wide x, Wide y, int c) const
    {
        if (x < -2 || y < -2 || x >= bits.width() + 2 || y >= bits.height() + 2) throw RuntimeError(Fault::OutOfRange);
        return bits.at(int(x), int(y)).c[c];
    }
    Wide ring(int x, int y, int c) const
    {
        Wide sum = -at(x, y, c);
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx) sum += at(x + dx, y + dy, c);
        return sum;
    }
    Wide cross(int x, int y, int c) const
    {
        return at(x - 1, y, c) + at(x + 1, y, c) + at(x, y - 1, c) + at(x, y + 1, c);
    }
};

Wide divided(Wide a, Wide b)
{
    if (b == 0) throw RuntimeError(Fault::DivisionByZero);
    return a / b;
}

/// value(source, x, y, channel) for channels 0 to 2.
template <class Value> Bits perChannel(const Bits& bits, const Region& region, int margin, Value value)
{
    const Source source{bits};
    return eachPixel(bits, region, margin, [&](Pixel& to, int x, int y) {
        for (int c = 0; c < 3; ++c) to.c[c] = value(source, x, y, c);
    });
}

Bits sharpen(const Bits& bits, const Region& region, const Given& a)
{
    const Wide level = a.whole("Level");
    return perChannel(bits, region, 1, [&](const Source& s, int x, int y, int c) {
        return clamp(divided(s.at(x, y, c) * (124 - level) - 2 * s.ring(x, y, c), 108 - level));
    });
}

Bits soften(const Bits& bits, const Region& region, const Given& a)
{
    const Wide k = 101 - Wide{a.whole("Level")};
    return perChannel(bits, region, 1, [&](const Source& s, int x, int y, int c) {
        return toByte(double(divided(s.at(x, y, c) * k + s.cross(x, y, c), k + 4)));
    });
}

Bits edgeEnhance(const Bits& bits, const Region& region, const Given& a)
{
    const Wide level = a.whole("Level");
    return perChannel(bits, region, 0, [&](const Source& s, int x, int y, int c) {
        return clamp(divided(s.at(x, y, c) * (level + 9) - s.ring(x, y, c), level + 1));
    });
}

Bits blurs(const Bits& bits, const Region& region, const Given& a)
{
    const Wide r = a.whole("Radius");
    return perChannel(bits, region, 0, [&](const Source& s, int x, int y, int c) {
        return static_cast<std::uint8_t>((s.at(x - r, y - r, c) + s.at(x, y - r, c) + s.at(x + r, y - r, c) +
                                          s.at(x - r, y, c) + s.at(x + r, y, c) + s.at(x - r, y + r, c) +
                                          s.at(x, y + r, c) + s.at(x + r, y + r, c)) /
                                         8);
    });
}

/// Over the centre and the neighbours for which counts(dx, dy) is true.
template <class Counts> Bits ranked(const Bits& bits, const Region& region, int margin, int mode, Counts counts)
{
    return perChannel(bits, region, margin, [&](const Source& s, int x, int y, int c) {
        int best = mode == 0 ? 255 : 0;
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx) {
                if (!counts(dx, dy)) continue;
                if (mode == 0) best = std::min(best, s.at(x + dx, y + dy, c));
                if (mode == 1) best = std::max(best, s.at(x + dx, y + dy, c));
            }
        return static_cast<std::uint8_t>(best);
    });
}

Bits dilate(const Bits& bits, const Region& region, const Given&)
{
    return ranked(bits, region, 0, 1, [](int, int) { return true; });
}

Bits erode(const Bits& bits, const Region& region, const Given&)
{
    return ranked(bits, region, 0, 0, [](int, int) { return true; });
}

int marginOf(int mode) { return int(std::clamp<Wide>(1 - Wide{mode}, -5, 1 << 20)); }

Bits rankFilterN4(const Bits& bits, const Region& region, const Given& a)
{
    const int mode = a.whole("Mode");
    return ranked(bits, region, marginOf(mode), mode,
                  [](int dx, int dy) { return std::abs(dx) != std::abs(dy) || (dx == 0 && dy == 0); });
}

Bits rankFilterND(const Bits& bits, const Region& region, const Given& a)
{
    const int mode = a.whole("Mode");
    return ranked(bits, region, marginOf(mode), mode, [](int dx, int dy) { return std::abs(dx) == std::abs(dy); });
}

Bits contour(const Bits& bits, const Region& region, const Given& a)
{
    const int level = a.whole("Level");
    const Colour background = a.whole("Background");
    const Source s{bits};
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        int v[3];
        for (int c = 0; c < 3; ++c) v[c] = clamp(8 * s.at(x, y, c) - s.ring(x, y, c) + 255);
        const int parts[] = {blueOf(background), greenOf(background), redOf(background)};
        const bool edge = (v[0] + v[1] + v[2]) / 3 < level;
        for (int c = 0; c < 3; ++c) to.c[c] = static_cast<std::uint8_t>(edge ? v[c] : parts[c]);
    });
}

Bits embossed(const Bits& bits, const Region& region, int weight, int sign)
{
    const float w = static_cast<float>(weight / 10.0);
    const Source s{bits};
    Bits out = bits;
    const Rect box = region.bounds();
    for (int y = box.top; y < box.bottom; ++y)
        for (int x = box.left; x < box.right; ++x) {
            if (!region.contains(x, y) || x < 0 || y < 0 || x > bits.maxX() || y > bits.maxY()) continue;
            if (x == bits.maxX()) {
                for (int c = 0; c < 3; ++c) out.at(x, y).c[c] = out.at(bits.maxX() - 1, y).c[c];
            } else if (y == bits.maxY()) {
                for (int c = 0; c < 3; ++c) out.at(x, y).c[c] = out.at(x, bits.maxY() - 1).c[c];
            } else {
                Wide sum = 0;
                for (int c = 0; c < 3; ++c) {
                    const int d = sign * (s.at(x, y, c) - s.at(x + 1, y + 1, c));
                    sum += roundEven(std::abs(d * double(w) + 128));
                }
                for (int c = 0; c < 3; ++c) out.at(x, y).c[c] = clamp(sum / 3);
            }
        }
    return out;
}

Bits emboss(const Bits& bits, const Region& region, const Given& a)
{
    return embossed(bits, region, a.whole("Weight"), 1);
}

Bits engrave(const Bits& bits, const Region& region, const Given& a)
{
    return embossed(bits, region, a.whole("Weight"), -1);
}

Bits relief(const Bits& bits, const Region& region, const Given&)
{
    static constexpr int kernel[3][3] = {{2, 1, 0}, {1, 1, -1}, {0, -1, -2}};
    const Source s{bits};
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        for (int c = 1; c <= 3; ++c) {
            int sum = 0;
            for (int i = 0; i < 3; ++i)
                for (int j = 0; j < 3; ++j) sum += kernel[i][j] * s.at(x + j - 1, y + i - 1, c);
            to.c[c] = clamp(sum / 2 + 50);
        }
    });
}

std::vector<std::vector<int>> maskOf(std::string text)
{
    std::vector<std::vector<int>> mask(1);
    std::replace(text.begin(), text.end(), '/', '\n');
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line); mask.emplace_back()) {
        std::istringstream numbers(line);
        for (int number; numbers >> number;) mask.back().push_back(number);
    }
    mask.pop_back();
    return mask;
}

Bits maskFilter(const Bits& bits, const Region& region, const Given& a)
{
    constexpr const char* kAdd[] = {"AddBlue", "AddGreen", "AddRed"}; // by channel
    const auto mask = maskOf(a.text("Mask"));
    const int M = int(mask.size()) - 1, half = M / 2;
    const Source s{bits};
    const Rect box = region.bounds();
    Wide xmin = box.left - half, xmax = box.right - 1 - half, ymin = box.top - half, ymax = box.bottom - 1 - half;
    if (a.flag("Clip")) {
        xmin = std::max<Wide>(xmin, 0), ymin = std::max<Wide>(ymin, 0);
        xmax = std::min<Wide>(xmax, bits.maxX() - M), ymax = std::min<Wide>(ymax, bits.maxY() - M);
    }
    Bits out = bits;
    for (Wide y = ymin; y <= ymax; ++y)
        for (Wide x = xmin; x <= xmax; ++x) {
            const int tx = int(x) + half, ty = int(y) + half;
            if (!region.contains(tx, ty) || tx < 0 || ty < 0 || tx > bits.maxX() || ty > bits.maxY()) continue;
            const Wide divisor = roundEven(a.number("Divisor"));
            if (divisor == 0) throw RuntimeError(Fault::DivisionByZero);
            for (int c = 0; c < 3; ++c) {
                Wide sum = 0;
                for (int i = 0; i <= M; ++i)
                    for (int j = 0; j <= M; ++j) sum += Wide{s.at(x + i, y + j, c)} * mask[j][i];
                out.at(tx, ty).c[c] = clamp(sum / divisor + a.whole(kAdd[c]));
            }
        }
    return out;
}

/// The first run of a new object: a pixel's column uses the random number at twice its index, its row the next.
Bits diffuse(const Bits& bits, const Region& region, const Given& a)
{
    const int h = a.whole("HorizontalRange"), v = a.whole("VerticalRange");
    const float hx = static_cast<float>(h / 2.0), hy = static_cast<float>(v / 2.0);
    const Random random(cBitFilter::kRandomSeed);
    Bits out = bits;
    const Rect picture{0, 0, bits.width(), bits.height()}, box = region.bounds().intersected(picture);
    for (int y = box.top; y < box.bottom; ++y)
        for (int x = box.left; x < box.right; ++x) {
            const auto number = static_cast<std::uint32_t>(2 * (y * bits.width() + x));
            const int sx = roundEven(double(random.single(number)) * h + x - hx);
            const int sy = roundEven(double(random.single(number + 1)) * v + y - hy);
            if (!region.contains(sx, sy) || !picture.contains(sx, sy)) continue;
            for (int c = 0; c < 3; ++c) out.at(x, y).c[c] = bits.at(sx, sy).c[c];
        }
    return out;
}

} // namespace

Definitions neighbourDefinitions()
{
    return {{"DIFFUSE", diffuse},
            {"SHARPEN", sharpen},
            {"SOFTEN", soften},
            {"EDGEENHANCE", edgeEnhance},
            {"Blurs", blurs},
            {"DILATE", dilate},
            {"ERODE", erode},
            {"CONTOUR", contour},
            {"EMBOSS", emboss},
            {"ENGRAVE", engrave},
            {"RELIEF", relief},
            {"RankFilterN4", rankFilterN4},
            {"RankFilterND", rankFilterND},
            {"MaskFilter", maskFilter}};
}

DialogTrials neighbourDialogs()
{
    // clang-format off
    return {
        {5, "Definition [Diffuse]: Horizontal range 0..50, 2; Vertical range 0..50, 2",
         "DIFFUSE", {2, 2}, {30, 6}, {30, 6}},
        {6, "Adjust [Blur]: Level 0..2, 0",
         "Blurs", {0}, {2}, {2}},
        {9, "Edges [Emboss]: Weight 0..50, 10",
         "EMBOSS", {10}, {20}, {20}},
        {10, "Edges [Engrave]: Weight 0..50, 10",
         "ENGRAVE", {10}, {45}, {45}},
        {11, "Edges [Contour]: Weight 0..255, 255; 1 well",
         "CONTOUR", {255, 0}, {200, 0xC8F0FF}, {200}, {kBlack, colourOf(255, 240, 200)}},
        {19, "Adjust [Sharpen]: Level 0..100, 0",
         "SHARPEN", {0}, {60}, {60}},
        {20, "Adjust [Soften]: Level 0..100, 0",
         "SOFTEN", {0}, {100}, {100}},
    };
    // clang-format on
}

} // namespace velara
