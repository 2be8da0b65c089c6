#include "tools/reference/paintTwins.h"
#include "pixels/numbers.h"
#include <cmath>
#include <cstdlib>

namespace velara {

namespace {

int channel(Colour colour, int c) { return c == 0 ? blueOf(colour) : c == 1 ? greenOf(colour) : redOf(colour); }

} // namespace

void PaintTwin::CreateDoneBitsTable()
{
    done.assign(static_cast<std::size_t>(bits.width() + 2),
                std::vector<bool>(static_cast<std::size_t>(bits.height() + 2), false));
}

/// Every pixel of the dab in order, in the region or not.
template <class Body> void PaintTwin::disc(int x, int y, int size, Body body)
{
    const int r = roundEven(size * 0.5);
    for (int dy = -r; dy <= r; ++dy)
        for (int dx = -r; dx <= r; ++dx)
            if (dx * dx + dy * dy < r * r + 1)
                body(x + dx, y + dy, inside(x + dx, y + dy) && region.contains(x + dx, y + dy));
}

void PaintTwin::BitsBrush(int x, int y, int size, int opacity, Colour colour)
{
    const double op = opacity / 100.0, inv = 1 - op;
    disc(x, y, size, [&](int px, int py, bool in) {
        if (!in || done[px][py]) return;
        done[px][py] = true;
        for (int c = 0; c < 3; ++c) bits.at(px, py).c[c] = toByte(bits.at(px, py).c[c] * inv + op * channel(colour, c));
    });
}

void PaintTwin::BitsBrightness(int x, int y, int size, int percent, bool lighten)
{
    const double p = percent / 100.0;
    disc(x, y, size, [&](int px, int py, bool in) {
        if (!in || done[px][py]) return;
        done[px][py] = true;
        for (auto& v : {&bits.at(px, py).c[0], &bits.at(px, py).c[1], &bits.at(px, py).c[2]})
            *v = lighten ? static_cast<std::uint8_t>(std::min(255, roundEven((1 + p) * *v))) : toByte((1 - p) * *v);
    });
}

void PaintTwin::BitsMasked(int x, int y, const Bits& source, int size, int opacity)
{
    const double op = opacity / 100.0, inv = 1 - op;
    const int tw = source.width() + 1, th = source.height() + 1; // upper bounds of the array
    disc(x, y, size, [&](int px, int py, bool in) {
        if (!in || done[px][py]) return;
        done[px][py] = true;
        for (int c = 0; c < 3; ++c)
            bits.at(px, py).c[c] = toByte(source.at(px % tw, py % th).c[c] * op + bits.at(px, py).c[c] * inv);
    });
}

void PaintTwin::BitsSoften(int x, int y, int size, int strength, bool repeat)
{
    const int n = roundEven(10 - strength / 10.0);
    disc(x, y, size, [&](int px, int py, bool in) {
        if (!in || (done[px][py] && !repeat)) return;
        done[px][py] = true;
        for (int c = 0; c < 3; ++c) {
            const auto v = [&](int i, int j) { return int(bits.at(i, j).c[c]); };
            bits.at(px, py).c[c] =
                toByte(divide(v(px, py - 1) + v(px, py + 1) + v(px - 1, py) + v(px + 1, py) + v(px, py) * n, n + 4));
        }
    });
}

void PaintTwin::BitsSharpen(int x, int y, int size, int strength)
{
    const int n = roundEven(15 - strength / 15.0);
    disc(x, y, size, [&](int px, int py, bool in) {
        if (!in || done[px][py]) return;
        done[px][py] = true;
        int result[3];
        for (int c = 0; c < 3; ++c) {
            const auto v = [&](int i, int j) { return int(bits.at(i, j).c[c]); };
            result[c] = divide(v(px, py) * n - v(px, py - 1) - v(px, py + 1) - v(px - 1, py) - v(px + 1, py), n - 4);
        }
        for (int c = 0; c < 3; ++c) bits.at(px, py).c[c] = clamp(result[c]);
    });
}

void PaintTwin::BitsAirbrush(int x, int y, int size, int opacity, int density, int softness, Colour colour)
{
    const int r = roundEven(size * 0.5);
    const double op = opacity / 100.0, limitOf = density / 100.0, soft = 1 - softness / 100.0;
    disc(x, y, size, [&](int px, int py, bool in) {
        const double rnd = random.single(drawn++);
        if (!in || !(rnd < limitOf)) return;
        const double dx = px - x, dy = py - y, a = (1 - std::sqrt(dx * dx + dy * dy) * soft / r) * op;
        for (int c = 0; c < 3; ++c)
            bits.at(px, py).c[c] = toByte(bits.at(px, py).c[c] * (1 - a) + channel(colour, c) * a);
    });
}

template <class Body> void PaintTwin::alongLine(int x1, int y1, int x2, int y2, int size, Body body)
{
    const int dx = x2 - x1, dy = y2 - y1, n = std::max(std::abs(dx), std::abs(dy)) + 1;
    const double step = size / 10.0;
    const float stepX = static_cast<float>(double(dx) / n * step), stepY = static_cast<float>(double(dy) / n * step);
    float px = static_cast<float>(x1), py = static_cast<float>(y1);
    for (int i = 0, count = roundEven(n / step); i <= count; ++i) {
        body(roundEven(px), roundEven(py));
        px += stepX;
        py += stepY;
    }
}

void PaintTwin::BitsBrushLine(int x1, int y1, int x2, int y2, int size, int strength, Colour colour, int mode)
{
    alongLine(x1, y1, x2, y2, size, [&](int x, int y) {
        if (mode == 0) BitsBrush(x, y, size, strength, colour);
        if (mode == 1) BitsSoften(x, y, size, strength, false);
        if (mode == 2) BitsSoften(x, y, size, strength, true);
        if (mode == 3) BitsSharpen(x, y, size, strength);
        if (mode == 4) BitsBrightness(x, y, size, strength, true);
        if (mode == 5) BitsBrightness(x, y, size, strength, false);
    });
}

void PaintTwin::BitsMaskedLine(int x1, int y1, int x2, int y2, int size, int opacity, const Bits& source)
{
    alongLine(x1, y1, x2, y2, size, [&](int x, int y) { BitsMasked(x, y, source, size, opacity); });
}

void PaintTwin::plot(double& px, double& py, Colour colour, int opacity)
{
    const int s = std::max(1, roundEven(opacity * 2.55));
    if (px == std::floor(px)) px += 0.001;
    if (py == std::floor(py)) py += 0.001;
    const double a = px - 0.5, b = py - 0.5, c = b + 1;
    const int ix = roundEven(a), iy = roundEven(b), iy2 = roundEven(c);
    const double wx = ((ix + 0.5) - a) * 255, wx2 = 255 - wx, wy = iy + 0.5 - b, wy2 = (c - iy2) + 0.5;
    const auto blend = [&](int x, int y, double weight) {
        if (!inside(x, y) || !region.contains(x, y)) return;
        const double f = (toByte(weight) / 255.0 * s) / 255;
        for (int i = 0; i < 3; ++i)
            bits.at(x, y).c[i] = toByte(bits.at(x, y).c[i] - (bits.at(x, y).c[i] - channel(colour, i)) * f);
    };
    blend(ix, iy, wx * wy);
    blend(ix + 1, iy, wx2 * wy);
    blend(ix, iy2, wx * wy2);
    blend(ix + 1, iy2, wx2 * wy2);
}

void PaintTwin::BitsLine(int x1, int y1, int x2, int y2, Colour colour, int opacity)
{
    const int dx = x2 - x1, dy = y2 - y1, n = std::max(std::abs(dx), std::abs(dy)) + 1;
    const double sx = double(dx) / n / 2, sy = double(dy) / n / 2;
    double px = x1, py = y1, t = 0;
    while (t < n) {
        t += 0.5;
        px += sx;
        py += sy;
        plot(px, py, colour, opacity);
    }
}

void PaintTwin::BitsRectangle(int x1, int y1, int x2, int y2, Colour colour, int opacity)
{
    BitsLine(x1, y1, x2, y1, colour, opacity);
    BitsLine(x2, y1, x2, y2, colour, opacity);
    BitsLine(x2, y2, x1, y2, colour, opacity);
    BitsLine(x1, y2, x1, y1, colour, opacity);
}

void PaintTwin::BitsEllipse(int cx, int cy, int rx, int ry, Colour colour, int opacity)
{
    const int m = std::max(rx, ry);
    const float step = static_cast<float>(m == 0 ? 0.534070725 : 0.534070725 / m);
    double a = 0;
    while (a < 6.283185) {
        a += step;
        double px = rx * std::cos(a) + cx, py = ry * std::sin(a) + cy;
        plot(px, py, colour, opacity);
    }
}

void PaintTwin::BitsPolygon(int cx, int cy, int x, int y, int sides, Colour colour, int opacity)
{
    const double pi = std::acos(-1.0), dx = x - cx, dy = y - cy, radius = std::hypot(dx, dy);
    double angle = dx == 0 ? (dy > 0 ? pi / 2 : -pi / 2) : std::atan(dy / dx);
    if (dx < 0) angle += pi;
    for (int i = 1; i <= sides; ++i) {
        const double at = angle + i * 2 * pi / sides;
        const int nx = roundEven(cx + radius * std::cos(at)), ny = roundEven(cy + radius * std::sin(at));
        BitsLine(x, y, nx, ny, colour, opacity);
        x = nx;
        y = ny;
    }
}

template <class Body> void PaintTwin::overlap(int x, int y, const Bits& source, const Region& test, Body body)
{
    const int sw = source.width() - 1, sh = source.height() - 1, w = bits.width() - 1, h = bits.height() - 1;
    if (sw == 0 || sh == 0 || w == 0 || h == 0) return;
    const int left = std::max(x, 0), top = std::max(y, 0), right = std::min(x + sw, w), bottom = std::min(y + sh, h);
    if (right <= left || bottom <= top) return;
    for (int px = left; px <= right; ++px)
        for (int py = top; py <= bottom; ++py)
            if (test.contains(px, py)) body(bits.at(px, py), source.at(px - x, py - y));
}

void PaintTwin::BitsPaint(int x, int y, const Bits& source, Colour key, int opacity, bool useRegion)
{
    const double op = opacity / 100.0, inv = 1 - op;
    overlap(x, y, source, useRegion ? region : limit, [&](Pixel& to, const Pixel& from) {
        if (key != -1 && from.c[0] == blueOf(key) && from.c[1] == greenOf(key) && from.c[2] == redOf(key)) return;
        for (int c = 0; c < 3; ++c) to.c[c] = toByte(from.c[c] * op + to.c[c] * inv);
    });
}

void PaintTwin::BitsPaintPreMasked(int x, int y, const Bits& source, int opacity, bool useRegion)
{
    const double op = opacity / 100.0, inv = 1 - op;
    overlap(x, y, source, useRegion ? region : limit, [&](Pixel& to, const Pixel& from) {
        if (from.c[3] == 255) return;
        for (int c = 0; c < 3; ++c) to.c[c] = toByte(from.c[c] * op + to.c[c] * inv);
    });
}

void PaintTwin::BitsBWMask(int x, int y, const Bits& mask, Colour colour, int opacity)
{
    const double op = opacity / 100.0;
    overlap(x, y, mask, region, [&](Pixel& to, const Pixel& from) {
        const int m = from.c[0];
        if (m >= 190) return;
        const double a = (1 - m / 190.0) * op;
        for (int c = 0; c < 3; ++c) to.c[c] = toByte(to.c[c] * (1 - a) + channel(colour, c) * a);
    });
}

/// The queue of single pixels; accept(pixel, x, y) writes.
template <class Accept> void PaintTwin::queue(int x, int y, const Pixel& seed, int tolerance, Accept accept)
{
    std::vector<std::pair<int, int>> points{{x, y}};
    for (std::size_t read = 0; read < points.size(); ++read) {
        const auto [px, py] = points[read];
        for (const auto& [nx, ny] :
             {std::pair(px - 1, py), std::pair(px + 1, py), std::pair(px, py - 1), std::pair(px, py + 1)}) {
            if (!inside(nx, ny) || !region.contains(nx, ny) || done[nx][ny]) continue;
            done[nx][ny] = true;
            Pixel& p = bits.at(nx, ny);
            const int difference =
                std::abs(p.c[0] - seed.c[0]) + std::abs(p.c[1] - seed.c[1]) + std::abs(p.c[2] - seed.c[2]);
            if (difference > tolerance) continue;
            accept(p, nx, ny);
            points.emplace_back(nx, ny);
        }
    }
}

void PaintTwin::BitsFill(int x, int y, Colour colour, int tolerance, int opacity)
{
    const double op = opacity / 100.0, inv = 1 - op;
    const Pixel seed = bits.at(x, y);
    bool near = true;
    for (int c = 0; c < 3; ++c) {
        if (region.contains(x, y)) bits.at(x, y).c[c] = toByte(channel(colour, c) * op + seed.c[c] * inv);
        near = near && std::abs(channel(colour, c) - seed.c[c]) < 10;
    }
    if (near) return;
    queue(x, y, seed, tolerance, [&](Pixel& p, int, int) {
        for (int c = 0; c < 3; ++c) p.c[c] = clamp(roundEven(p.c[c] * inv + roundEven(channel(colour, c) * op)));
    });
}

void PaintTwin::BitsFillTexture(int x, int y, const Bits& source, int tolerance, int opacity)
{
    const double inv = 1 - opacity / 100.0, op = 1 - inv;
    const int tw = source.width() + 2, th = source.height() + 2;
    const Pixel seed = bits.at(x, y), first = source.at(x % tw, y % th);
    bool differs = false;
    for (int c = 0; c < 3; ++c) {
        if (region.contains(x, y)) bits.at(x, y).c[c] = toByte(first.c[c] * op + seed.c[c] * inv);
        differs = differs || std::abs(first.c[c] - seed.c[c]) > 9;
    }
    if (!differs) return;
    queue(x, y, seed, tolerance, [&](Pixel& p, int px, int py) {
        for (int c = 0; c < 3; ++c)
            p.c[c] = clamp(toByte(source.at(px % tw, py % th).c[c] * op) + toByte(p.c[c] * inv));
    });
}

} // namespace velara
