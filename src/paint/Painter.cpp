// The round dabs of the brushes, and what all primitives share.
#include "paint/Painter.h"
#include "pixels/numbers.h"
#include "region/spanWalk.h"
#include "seams/SetupValues.h"
#include <cstdlib>

namespace velara {

namespace {

/// The largest whole number whose square is at most v >= 0.
std::int64_t wholeRoot(std::int64_t v)
{
    auto root = static_cast<std::int64_t>(std::sqrt(static_cast<double>(v)));
    while (root * root > v) --root;
    while ((root + 1) * (root + 1) <= v) ++root;
    return root;
}

int channelOf(Colour colour, int c) { return colour >> (16 - 8 * c) & 255; } // blue, green, red

} // namespace

const Region& Painter::begin(const Region& region)
{
    touched_.fit(bits_.width(), bits_.height());
    return region;
}

void Painter::touch(int y, int x0, int x1)
{
    touched_.mark(y, x0, x1);
    changed_ = changed_.united({x0, y, x1, y + 1});
}

Colour Painter::BitsGetPixel(int x, int y) const
{
    if (bits_.isNull()) return -1;
    if (x < 0 || y < 0 || x >= bits_.width() || y >= bits_.height()) return 0;
    const Pixel& p = std::as_const(bits_).at(x, y);
    return colourOf(p.c[2], p.c[1], p.c[0]);
}

const Painter::Table* Painter::blend(int opacity)
{
    if (opacity == blendOpacity_ && !blend_.empty()) return blend_.data();
    const double op = opacity / 100.0, inv = 1 - op;
    blend_.resize(256);
    blendOpacity_ = -1; // in case of a failure
    for (int source = 0; source < 256; ++source)
        for (int old = 0; old < 256; ++old)
            blend_[static_cast<std::size_t>(source)][static_cast<std::size_t>(old)] = toByte(source * op + old * inv);
    blendOpacity_ = opacity;
    return blend_.data();
}

/// Blends from into to, three channels of each pixel.
void Painter::blendRun(const Pixel* from, Pixel* to, int count, int opacity, const Table* table)
{
    if (opacity == 100) {
        for (int i = 0; i < count; ++i) to[i] = {{from[i].c[0], from[i].c[1], from[i].c[2], to[i].c[3]}};
        return;
    }
    for (int i = 0; i < count; ++i)
        for (int c = 0; c < 3; ++c) to[i].c[c] = table[from[i].c[c]][to[i].c[c]];
}

void Painter::applyTables(const Tables& tables, int y, int x0, int x1)
{
    Pixel* row = bits_.row(y);
    for (int x = x0; x < x1; ++x)
        for (std::size_t c = 0; c < 3; ++c) row[x].c[c] = tables[c][row[x].c[c]];
}

/// Calls row(y, x0, x1) for the runs of the dab within region and picture, top to bottom, left to right.
template <class Row> void Painter::eachDiscRow(const Region& region, int x, int y, int size, Row row)
{
    const std::int64_t r = roundEven(size * 0.5);
    const std::int64_t top = std::max<std::int64_t>(0, y - r), bottom = std::min<std::int64_t>(bits_.maxY(), y + r);
    for (std::int64_t py = top; py <= bottom; ++py) {
        const std::int64_t reach = wholeRoot(r * r - (py - y) * (py - y));
        const std::int64_t x0 = std::max<std::int64_t>(0, x - reach);
        const std::int64_t x1 = std::min<std::int64_t>(bits_.width(), x + reach + 1);
        if (x0 < x1)
            eachSpanWithin(region, static_cast<int>(py), static_cast<int>(x0), static_cast<int>(x1),
                           [&](int from, int to) { row(static_cast<int>(py), from, to); });
    }
}

/// The same for the pixels that are not done yet; marks them as done.
template <class Row> void Painter::eachFreshRun(const Region& region, int x, int y, int size, Row row)
{
    if (!done_.isFor(bits_.width(), bits_.height())) CreateDoneBitsTable();
    eachDiscRow(region, x, y, size, [&](int py, int x0, int x1) {
        done_.claim(py, x0, x1, [&](int from, int to) {
            touch(py, from, to);
            row(py, from, to);
        });
    });
}

Painter::Dab Painter::brushDab(int size, int opacity, Colour colour)
{
    const double op = opacity / 100.0, inv = 1 - op;
    Tables tables;
    for (int c = 0; c < 3; ++c)
        for (int v = 0; v < 256; ++v)
            tables[static_cast<std::size_t>(c)][static_cast<std::size_t>(v)] =
                toByte(v * inv + op * channelOf(colour, c));
    return [=, this, &region = working()](int x, int y) {
        eachFreshRun(region, x, y, size, [&](int py, int x0, int x1) { applyTables(tables, py, x0, x1); });
    };
}

Painter::Dab Painter::brightnessDab(int size, int percent, bool lighten)
{
    const double p = percent / 100.0;
    Table table;
    for (int v = 0; v < 256; ++v)
        table[static_cast<std::size_t>(v)] =
            lighten ? toByte(std::min(255.0, roundToEven((1 + p) * v))) : toByte((1 - p) * v);
    const Tables tables{table, table, table};
    return [=, this, &region = working()](int x, int y) {
        eachFreshRun(region, x, y, size, [&](int py, int x0, int x1) { applyTables(tables, py, x0, x1); });
    };
}

/// The source is tiled with a period of its size plus one: the first margin column and row belong to it.
Painter::Dab Painter::maskedDab(int size, int opacity, const Bits& source)
{
    if (source.isNull()) return [](int, int) {};
    const int tileW = source.width() + 1, tileH = source.height() + 1;
    const Table* table = blend(opacity);
    return [=, this, &region = working()](int x, int y) {
        eachFreshRun(region, x, y, size, [&](int py, int x0, int x1) {
            const Pixel* from = source.row(py % tileH);
            Pixel* to = bits_.row(py);
            for (int px = x0; px < x1;) {
                const int column = px % tileW, count = std::min(x1 - px, tileW - column);
                blendRun(from + column, to + px, count, opacity, table);
                px += count;
            }
        });
    };
}

/// kernel(centre, sum of the four neighbours) by channel, each pixel in place from left to right.
template <class Kernel> void Painter::eachDabPixel(int y, int x0, int x1, Kernel kernel)
{
    const std::ptrdiff_t stride = bits_.stride();
    Pixel* row = bits_.row(y);
    for (Pixel* p = row + x0; p < row + x1; ++p)
        for (int c = 0; c < 3; ++c)
            p->c[c] = kernel(p->c[c], p[-stride].c[c] + p[stride].c[c] + p[-1].c[c] + p[1].c[c]);
}

Painter::Dab Painter::softenDab(int size, int strength, bool repeat)
{
    const int n = roundEven(10 - strength / 10.0), divisor = n + 4;
    if (n < 0) throw RuntimeError(divisor == 0 ? Fault::DivisionByZero : Fault::Overflow);
    std::vector<std::uint8_t> quotients(static_cast<std::size_t>(255 * divisor + 1));
    for (std::size_t i = 0; i < quotients.size(); ++i)
        quotients[i] = static_cast<std::uint8_t>(i / static_cast<std::size_t>(divisor));
    const auto soften = [=, this](int py, int x0, int x1) {
        eachDabPixel(py, x0, x1,
                     [&](int centre, int around) { return quotients[static_cast<std::size_t>(around + centre * n)]; });
    };
    return [=, this, &region = working()](int x, int y) {
        if (!repeat) return eachFreshRun(region, x, y, size, soften);
        if (!done_.isFor(bits_.width(), bits_.height())) CreateDoneBitsTable();
        eachDiscRow(region, x, y, size, [&](int py, int x0, int x1) {
            setRun(done_.row(py), x0, x1, true);
            touch(py, x0, x1);
            soften(py, x0, x1);
        });
    };
}

Painter::Dab Painter::sharpenDab(int size, int strength)
{
    const int n = roundEven(15 - strength / 15.0), divisor = n - 4;
    if (divisor == 0) throw RuntimeError(Fault::DivisionByZero);
    return [=, this, &region = working()](int x, int y) {
        eachFreshRun(region, x, y, size, [&](int py, int x0, int x1) {
            eachDabPixel(py, x0, x1, [&](int centre, int around) { return clamp((centre * n - around) / divisor); });
        });
    };
}

void Painter::BitsBrush(int x, int y, int size, int opacity, Colour colour)
{
    if (!bits_.isNull()) brushDab(size, opacity, colour)(x, y);
}

void Painter::BitsBrightness(int x, int y, int size, int percent, bool lighten)
{
    if (!bits_.isNull()) brightnessDab(size, percent, lighten)(x, y);
}

void Painter::BitsMasked(int x, int y, const Bits& source, int size, int opacity)
{
    if (!bits_.isNull()) maskedDab(size, opacity, source)(x, y);
}

void Painter::BitsSoften(int x, int y, int size, int strength, bool repeat)
{
    if (!bits_.isNull()) softenDab(size, strength, repeat)(x, y);
}

void Painter::BitsSharpen(int x, int y, int size, int strength)
{
    if (!bits_.isNull()) sharpenDab(size, strength)(x, y);
}

/// Dabs a tenth of the size apart. The steps are singles, and so are the sums.
void Painter::alongLine(int x1, int y1, int x2, int y2, int size, const Dab& place)
{
    const auto short16 = [](std::int64_t v) {
        if (v < -32768 || v > 32767) throw RuntimeError(Fault::Overflow);
        return static_cast<int>(v);
    };
    const int dx = short16(std::int64_t(x2) - x1), dy = short16(std::int64_t(y2) - y1);
    const int n = std::max(std::abs(dx), std::abs(dy)) + 1;
    const double step = size / 10.0;
    const auto stepX = static_cast<float>(double(dx) / n * step), stepY = static_cast<float>(double(dy) / n * step);
    const int count = roundEven(quotient(n, step));
    auto px = static_cast<float>(x1), py = static_cast<float>(y1);
    for (int i = 0; i <= count; ++i) {
        place(roundEven(px), roundEven(py));
        px += stepX;
        py += stepY;
    }
}

Painter::Dab Painter::dabOf(int mode, int size, int strength, Colour colour)
{
    switch (mode) {
    case BrushMode::Paint:
        return brushDab(size, strength, colour);
    case BrushMode::Soften:
    case BrushMode::SoftenOver:
        return softenDab(size, strength, mode == BrushMode::SoftenOver);
    case BrushMode::Sharpen:
        return sharpenDab(size, strength);
    case BrushMode::Lighten:
    case BrushMode::Darken:
        return brightnessDab(size, strength, mode == BrushMode::Lighten);
    default:
        return [](int, int) {};
    }
}

void Painter::BitsBrushDab(int x, int y, int size, int strength, Colour colour, int mode)
{
    if (!bits_.isNull()) dabOf(mode, size, strength, colour)(x, y);
}

void Painter::BitsBrushLine(int x1, int y1, int x2, int y2, int size, int strength, Colour colour, int mode)
{
    if (!bits_.isNull()) alongLine(x1, y1, x2, y2, size, dabOf(mode, size, strength, colour));
}

void Painter::BitsMaskedLine(int x1, int y1, int x2, int y2, int size, int opacity, const Bits& source)
{
    if (!bits_.isNull()) alongLine(x1, y1, x2, y2, size, maskedDab(size, opacity, source));
}

/// One random number for each pixel of the dab, whether it may be painted or not.
void Painter::BitsAirbrush(int x, int y, int size, int opacity, int density, int softness, Colour colour)
{
    if (bits_.isNull()) return;
    const std::int64_t r = roundEven(size * 0.5);
    if (r == 0) throw RuntimeError(Fault::DivisionByZero);
    const double op = opacity / 100.0, drops = density / 100.0, soft = 1 - softness / 100.0;
    const Region& region = working();
    for (std::int64_t dy = -r; dy <= r; ++dy) {
        const std::int64_t reach = wholeRoot(r * r - dy * dy), py = y + dy;
        const std::uint32_t first = drawn_ + static_cast<std::uint32_t>(reach - x);
        drawn_ += static_cast<std::uint32_t>(2 * reach + 1);
        const std::int64_t left = std::max<std::int64_t>(0, x - reach);
        const std::int64_t right = std::min<std::int64_t>(bits_.width(), x + reach + 1);
        if (py < 0 || py > bits_.maxY() || left >= right) continue;
        Pixel* row = bits_.row(static_cast<int>(py));
        eachSpanWithin(region, static_cast<int>(py), static_cast<int>(left), static_cast<int>(right),
                       [&](int x0, int x1) {
                           touch(static_cast<int>(py), x0, x1);
                           for (int px = x0; px < x1; ++px) {
                               if (!(random_.single(first + static_cast<std::uint32_t>(px)) < drops)) continue;
                               const std::int64_t dx = px - x;
                               const double a = (1 - std::sqrt(static_cast<double>(dx * dx + dy * dy)) * soft / r) * op;
                               for (int c = 0; c < 3; ++c)
                                   row[px].c[c] = toByte(row[px].c[c] * (1 - a) + channelOf(colour, c) * a);
                           }
                       });
    }
}

} // namespace velara
