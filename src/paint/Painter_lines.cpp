// Lines and outlines, antialiased by overlapping half steps.
#include "paint/Painter.h"
#include "pixels/numbers.h"
#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace velara {

/// What a line is drawn with, the rows of the region that it last crossed, and what it has touched.
struct Painter::Ink {
    Ink(Painter& painter, Colour colour, int opacity)
        : region(painter.working()), components{blueOf(colour), greenOf(colour), redOf(colour)},
          strength(roundEven(opacity * 2.55)), changed(painter.changed_)
    {
        if (strength == 0) strength = 1;
    }
    ~Ink() { changed = changed.united(box); }

    bool allows(int x, int y)
    {
        Row& row = rows[y & 1];
        if (row.y != y) row = {y, region.spans(y)};
        if (row.spans.size() == 1) return x >= row.spans[0].x0 && x < row.spans[0].x1;
        const auto after = std::ranges::upper_bound(row.spans, x, {}, &Span::x0);
        return after != row.spans.begin() && x < std::prev(after)->x1;
    }
    void touch(int x, int y)
    {
        box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1), std::max(box.bottom, y + 1)};
    }

    struct Row {
        std::int64_t y = std::numeric_limits<std::int64_t>::min();
        std::span<const Span> spans;
    };
    const Region& region;
    int components[3]; // blue, green, red
    int strength;      // 1 to 255
    Row rows[2];
    Rect box{std::numeric_limits<int>::max(), std::numeric_limits<int>::max(), 0, 0};
    Rect& changed;
};

/// Distributes a point over the four pixels around it by bilinear weights. Whole coordinates are moved a little, so
/// that no weight rounds from a tie.
void Painter::plot(Ink& ink, double& px, double& py)
{
    if (px == std::trunc(px)) px += 0.001;
    if (py == std::trunc(py)) py += 0.001;
    const double a = px - 0.5, b = py - 0.5, c = b + 1;
    const int ix = roundEven(a), iy = roundEven(b), iy2 = roundEven(c);
    const double left = ((ix + 0.5) - a) * 255, right = 255 - left;
    const double top = iy + 0.5 - b, bottom = (c - iy2) + 0.5;
    const struct {
        std::int64_t x;
        int y;
        double weight;
    } pixels[] = {{ix, iy, left * top},
                  {std::int64_t(ix) + 1, iy, right * top},
                  {ix, iy2, left * bottom},
                  {std::int64_t(ix) + 1, iy2, right * bottom}};
    for (const auto& p : pixels) {
        if (p.x < 0 || p.x > bits_.maxX() || p.y < 0 || p.y > bits_.maxY()) continue;
        const int x = static_cast<int>(p.x);
        if (!ink.allows(x, p.y)) continue;
        touched_.markPixel(x, p.y);
        ink.touch(x, p.y);
        const double f = (toByte(p.weight) / 255.0 * ink.strength) / 255;
        Pixel& pixel = bits_.row(p.y)[x];
        for (int i = 0; i < 3; ++i) pixel.c[i] = toByte(pixel.c[i] - (pixel.c[i] - ink.components[i]) * f);
    }
}

void Painter::BitsLine(int x1, int y1, int x2, int y2, Colour colour, int opacity)
{
    if (bits_.isNull()) return;
    Ink ink(*this, colour, opacity);
    const double dx = double(x2) - x1, dy = double(y2) - y1, n = std::max(std::abs(dx), std::abs(dy)) + 1;
    const double stepX = dx / n / 2, stepY = dy / n / 2;
    double px = x1, py = y1;
    for (double t = 0; t < n;) {
        t += 0.5;
        px += stepX;
        py += stepY;
        plot(ink, px, py);
    }
}

void Painter::BitsRectangle(int x1, int y1, int x2, int y2, Colour colour, int opacity)
{
    BitsLine(x1, y1, x2, y1, colour, opacity);
    BitsLine(x2, y1, x2, y2, colour, opacity);
    BitsLine(x2, y2, x1, y2, colour, opacity);
    BitsLine(x1, y2, x1, y1, colour, opacity);
}

constexpr double kMostRadius = 1 << 21; // far larger than any picture; a step round it takes its time

void Painter::BitsEllipse(int centreX, int centreY, int radiusX, int radiusY, Colour colour, int opacity)
{
    if (bits_.isNull()) return;
    Ink ink(*this, colour, opacity);
    const double m = std::abs(static_cast<double>(std::max(radiusX, radiusY)));
    if (m > kMostRadius) return;
    const auto step = static_cast<float>(0.534070725 / (m == 0 ? 1 : m));
    for (double a = 0; a < 6.283185;) {
        a += step;
        double px = radiusX * std::cos(a) + centreX, py = radiusY * std::sin(a) + centreY;
        plot(ink, px, py);
    }
}

/// One side for each step round the circle, with half a step of slack so that the last one closes it despite rounding.
void Painter::BitsPolygon(int centreX, int centreY, int cornerX, int cornerY, int sides, Colour colour, int opacity)
{
    if (bits_.isNull() || sides < 1) return;
    const double dx = double(cornerX) - centreX, dy = double(cornerY) - centreY, radius = std::sqrt(dx * dx + dy * dy);
    const double start =
        dx == 0 ? (dy > 0 ? 1 : -1) * std::numbers::pi / 2 : std::atan(dy / dx) + (dx < 0 ? std::numbers::pi : 0);
    const double turn = 2 * std::numbers::pi, step = turn / sides;
    int x = cornerX, y = cornerY;
    for (double angle = step; angle < turn + step / 2; angle += step) {
        const int nextX = roundEven(centreX + radius * std::cos(start + angle));
        const int nextY = roundEven(centreY + radius * std::sin(start + angle));
        BitsLine(x, y, nextX, nextY, colour, opacity);
        x = nextX;
        y = nextY;
    }
}

} // namespace velara
