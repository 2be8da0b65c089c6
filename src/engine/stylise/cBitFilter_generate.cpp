// The generators: light, noise, scan lines, grid and texture.
#include "engine/colour/kernels_colour.h"
#include "engine/deform/passes_disc.h"
#include "engine/deform/passes_warp.h"
#include "engine/stylise/kernels_generate.h"
#include "pixels/numbers.h"
#include <span>
#include <utility>

namespace velara {

namespace {

/// Each channel value blended with a colour; -1 where the result is out of byte range.
using BlendTables = std::array<std::array<std::int16_t, 256>, 3>;

BlendTables blendTables(Colour colour, float part, float rest)
{
    const int parts[] = {blueOf(colour), greenOf(colour), redOf(colour)};
    BlendTables tables;
    for (int c = 0; c < 3; ++c)
        for (int v = 0; v < 256; ++v) {
            const double blend = roundToEven(v * static_cast<double>(rest) + parts[c] * static_cast<double>(part));
            tables[c][v] = blend >= 0 && blend <= 255 ? static_cast<std::int16_t>(blend) : std::int16_t(-1);
        }
    return tables;
}

Pixel blended(const BlendTables& tables, Pixel pixel)
{
    for (int c = 0; c < 3; ++c) {
        const int v = tables[c][pixel.c[c]];
        if (v < 0) throw RuntimeError(Fault::Overflow);
        pixel.c[c] = static_cast<std::uint8_t>(v);
    }
    return pixel;
}

/// The first position at or after x that is a multiple of step from origin.
std::int64_t nextLine(std::int64_t origin, std::int64_t step, std::int64_t x)
{
    return x <= origin ? origin : origin + (x - origin + step - 1) / step * step;
}

} // namespace

Bits cBitFilter::Light(float CenterX, float CenterY, float Radius, int Intensity, int Definition)
{
    const Disc disc(bits_, CenterX, CenterY, Radius);
    const float q = static_cast<float>(1 - Definition / 100.0);
    const double R = disc.radius;
    const float slope = static_cast<float>(q * static_cast<double>(Intensity) / R);
    const bool isSafe = std::abs(double(Intensity)) * (1 + std::abs(q)) < 3800 && R < 1 << 20;
    return eachOfDisc(disc, R * R, [&](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        const double oy = static_cast<double>(y) - disc.y;
        for (int first = x0; first < x1; first += kPlaces) {
            const int n = std::min(kPlaces, x1 - first);
            const std::uint64_t doubtful = isSafe ? lightPixels(static_cast<float>(Intensity), slope, first - disc.x,
                                                                y - disc.y, from + first, n, to + first)
                                                  : kAllPlaces;
            eachPlace(doubtful, n, [&](int i) {
                const int x = first + i;
                const double ox = static_cast<double>(x) - disc.x;
                const std::int64_t k = roundEven((1 - q * std::sqrt(ox * ox + oy * oy) / R) * Intensity);
                to[x] = from[x];
                for (std::uint8_t& c : std::span(to[x].c, 3)) // below 0 the value wraps around: kept on purpose
                    c = static_cast<std::uint8_t>(std::min<std::int64_t>(c + k, 255));
            });
        }
    });
}

Bits cBitFilter::NOISE(int Amount, bool Equalized)
{
    const int width = bits_.width();
    const std::ptrdiff_t stride = bits_.stride();
    const Random random = nextRandom();
    const double span = 2.0 * Amount + 1;
    return eachSpan(0, [&](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        const auto number = static_cast<std::uint32_t>(y) * static_cast<std::uint32_t>(width);
        if (Amount >= 0 && Amount <= 127)
            return noisePixels({from, stride, to, x0, x1}, random, number, Amount, Equalized);
        for (int x = x0; x < x1; ++x) {
            const std::uint32_t pixel = number + static_cast<std::uint32_t>(x);
            to[x] = from[x];
            for (const int c : {2, 1, 0}) { // red is drawn first
                const double rnd = random.single(Equalized ? pixel : 3 * pixel + static_cast<std::uint32_t>(2 - c));
                to[x].c[c] = clamp(roundEven(from[x].c[c] + (rnd * span - Amount)));
            }
        }
    });
}

Bits cBitFilter::Scanlines(int Level)
{
    const std::uint32_t plus = clamp(-std::int64_t(Level)) * 0x00010101u, minus = clamp(Level) * 0x00010101u;
    const int first = GetBounds(0).ymin;
    return eachSpan(0, [&, stride = bits_.stride()](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        const bool isLine = (std::int64_t(y) - first) % 2 == 0;
        colourKernels().add({from, stride, to, x0, x1}, isLine ? plus : 0, isLine ? minus : 0);
    });
}

Bits cBitFilter::Grid(int HorizontalStep, int VerticalStep, bool ForceMargins, Colour Color, int Opacity)
{
    if (HorizontalStep < 1 || VerticalStep < 1) throw RuntimeError(Fault::OutOfRange);
    const float part = static_cast<float>(Opacity / 255.0), rest = static_cast<float>(1.0 - part);
    const BlendTables tables = blendTables(Color, part, rest);
    const Box box = GetBounds(0);
    const int maxX = bits_.maxX(), maxY = bits_.maxY();
    return eachSpan(0, [&](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        if ((std::int64_t(y) - box.ymin) % VerticalStep == 0 || (ForceMargins && y == maxY)) {
            for (int x = x0; x < x1; ++x) to[x] = blended(tables, from[x]);
            return;
        }
        copyPixels(from, to, x0, x1);
        for (std::int64_t x = nextLine(box.xmin, HorizontalStep, x0); x < x1; x += HorizontalStep)
            to[x] = blended(tables, from[x]);
        if (ForceMargins && x1 > maxX) to[maxX] = blended(tables, from[maxX]);
    });
}

Bits cBitFilter::Texturize(const Bits& Texture)
{
    // Tiles overlap by a row and a column, later ones on top: the last row and column never show.
    const Bits texture = Texture;
    const int columns = texture.maxX(), rows = texture.maxY();
    if (columns < 1 || rows < 1) throw RuntimeError(Fault::OutOfRange);
    // Rows of factors for all four bytes (128 keeps the fourth), repeated to form runs long enough for vectors.
    constexpr int kShortRun = 512;
    const int repeats = columns < kShortRun ? kShortRun / columns + 1 : 1;
    Bits factors = Bits::uninitialized(columns * repeats, rows);
    for (int y = 0; y < rows; ++y)
        for (int x = 0; x < columns * repeats; ++x) {
            const std::uint8_t factor = texture.at(x % columns, y).c[0];
            factors.at(x, y) = {{factor, factor, factor, 128}};
        }
    const Box box = GetBounds(0);
    return eachSpan(0, [&](const Pixel* from, Pixel* to, int x0, int x1, int y) {
        const Pixel* row = std::as_const(factors).row(static_cast<int>((std::int64_t(y) - box.ymin) % rows));
        for (int x = x0; x < x1;) {
            const int at = static_cast<int>((std::int64_t(x) - box.xmin) % factors.width());
            const int n = std::min(x1 - x, factors.width() - at);
            multiplyPixels(from + x, row + at, n, to + x);
            x += n;
        }
    });
}

} // namespace velara
