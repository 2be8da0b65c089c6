// Definitions of the filters that move pixels.
#include "pixels/numbers.h"
#include "tools/reference/definitions.h"
#include "tools/reference/dialogTrials.h"

namespace velara {
namespace {

constexpr double kDegree = 0.017453288659453392;

void take(Pixel& to, const Pixel& from) { std::copy(from.c, from.c + 3, to.c); }
void black(Pixel& to) { std::fill(to.c, to.c + 3, std::uint8_t(0)); }

/// Every pixel of the box, selected or not; body(to, x, y).
template <class Body> Bits eachOfBox(const Bits& bits, const Region& region, Body body)
{
    Bits out = bits;
    const Rect box = region.bounds().intersected({0, 0, bits.width(), bits.height()});
    for (int y = box.top; y < box.bottom; ++y)
        for (int x = box.left; x < box.right; ++x) body(out.at(x, y), x, y);
    return out;
}

/// The common rule: source(x, y, sx, sy) sets the source position, and the region is tested there.
template <class Source> Bits eachSource(const Bits& bits, const Region& region, bool clean, Source source)
{
    return eachOfBox(bits, region, [&](Pixel& to, int x, int y) {
        int sx = 0, sy = 0;
        source(x, y, sx, sy);
        if (sx >= 0 && sy >= 0 && sx < bits.width() && sy < bits.height() && region.contains(sx, sy))
            take(to, bits.at(sx, sy));
        else if (clean)
            black(to);
    });
}

Bits rotate(const Bits& bits, const Region& region, const Given& a)
{
    const int cx = bits.maxX() / 2, cy = bits.maxY() / 2;
    const double angle = a.whole("Degrees") * kDegree;
    const float cs = static_cast<float>(std::cos(angle)), sn = static_cast<float>(std::sin(angle));
    return eachSource(bits, region, a.flag("Clean"), [&](int x, int y, int& sx, int& sy) {
        const double dx = x - cx, dy = y - cy;
        sx = roundEven(dx * cs - dy * sn + cx);
        sy = roundEven(dx * sn + dy * cs + cy);
    });
}

Bits rotateSmooth(const Bits& bits, const Region& region, const Given& a)
{
    const int cx = bits.maxX() / 2, cy = bits.maxY() / 2;
    const double angle = a.whole("Degrees") * kDegree;
    const float cs = static_cast<float>(std::cos(angle)), sn = static_cast<float>(std::sin(angle));
    return eachOfBox(bits, region, [&](Pixel& to, int x, int y) {
        const double dx = x - cx, dy = y - cy;
        const double sxf = dx * cs - dy * sn + cx, syf = dx * sn + dy * cs + cy;
        const int ix = static_cast<int>(std::floor(sxf)), iy = static_cast<int>(std::floor(syf));
        black(to);
        if (ix < 0 || iy < 0 || ix >= bits.width() || iy >= bits.height()) return;
        const double fx = static_cast<float>(sxf - ix), fy = static_cast<float>(syf - iy);
        for (int c = 0; c < 3; ++c) {
            const int top = roundEven((1 - fy) * bits.at(ix, iy).c[c] + fy * bits.at(ix, iy + 1).c[c]);
            const int next = roundEven((1 - fy) * bits.at(ix + 1, iy).c[c] + fy * bits.at(ix + 1, iy + 1).c[c]);
            to.c[c] = clamp(roundEven((1 - fx) * top + fx * next));
        }
    });
}

Bits flip(const Bits& bits, const Region&, const Given& a)
{
    Bits out = bits;
    for (int y = 0; y < bits.height(); ++y)
        for (int x = 0; x < bits.width(); ++x)
            take(out.at(x, y),
                 bits.at(a.flag("Horizontal") ? bits.maxX() - x : x, a.flag("Vertical") ? bits.maxY() - y : y));
    return out;
}

Bits stretch(const Bits& bits, const Region& region, const Given& a)
{
    const int cx = bits.maxX() / 2, cy = bits.maxY() / 2;
    const float fx = static_cast<float>(a.whole("Horizontal") / 100.0 + 1),
                fy = static_cast<float>(a.whole("Vertical") / 100.0 + 1);
    std::vector<int> X, Y;
    for (int x = 0; x <= bits.maxX(); ++x) X.push_back(roundEven((x - cx) * double(fx) + cx));
    for (int y = 0; y <= bits.maxY(); ++y) Y.push_back(roundEven((y - cy) * double(fy) + cy));
    return eachSource(bits, region, a.flag("Clean"), [&](int x, int y, int& sx, int& sy) {
        sx = X[x];
        sy = Y[y];
    });
}

Bits fold(const Bits& bits, const Region& region, const Given& a)
{
    const int cx = bits.maxX() / 2, cy = bits.maxY() / 2;
    const double horizontal = a.whole("Horizontal"), vertical = a.whole("Vertical");
    return eachSource(bits, region, a.flag("Clean"), [&](int x, int y, int& sx, int& sy) {
        if (bits.maxX() == 0 || bits.maxY() == 0) throw RuntimeError(Fault::DivisionByZero);
        const double dx = x - cx, dy = y - cy;
        sx = roundEven(((dy / 100 * vertical) / bits.maxY() + 1) * dx + cx);
        sy = roundEven(((dx / 100 * horizontal) / bits.maxX() + 1) * dy + cy);
    });
}

float angle(int X, int Y)
{
    if (X == 0) return static_cast<float>(Y > 0 ? 3.141592f / 2.0 : -(3.141592f / 2.0));
    return static_cast<float>(std::atan(double(Y) / X) + (X < 0 ? 3.141592025756836 : 0.0));
}

Bits bend(const Bits& bits, const Region& region, const Given& a)
{
    const int cx = bits.maxX() / 2, cy = bits.maxY() / 2;
    const float k = static_cast<float>(a.whole("RadiusFactor") / 100.0 + 2);
    return eachSource(bits, region, a.flag("Clean"), [&](int x, int y, int& sx, int& sy) {
        const int dx = x - cx, dy = y - cy;
        const double r = std::sqrt(double(dx) * dx + double(dy) * dy);
        const float rad = static_cast<float>(k * r);
        float t = -angle(dy, dx);
        if (dy < 0 || dx > 0) t = static_cast<float>(t + 6.283184051513672);
        sx = roundEven((t * double(bits.maxX())) / 6.283184051513672);
        sy = roundEven(bits.maxY() - double(rad));
    });
}

Bits twirl(const Bits& bits, const Region& region, const Given& a)
{
    const int cx = bits.maxX() / 2, cy = bits.maxY() / 2;
    if (cx == 0) throw RuntimeError(Fault::DivisionByZero);
    const float k = static_cast<float>((a.whole("Level") / 10.0) / cx);
    const float a0 = static_cast<float>(a.whole("OffsetDegrees") * kDegree);
    return eachSource(bits, region, a.flag("Clean"), [&](int x, int y, int& sx, int& sy) {
        const int dx = x - cx, dy = y - cy;
        const int r = roundEven(std::sqrt(double(dx) * dx + double(dy) * dy));
        sx = cx;
        sy = cy;
        if (r == 0) return;
        const float t = static_cast<float>(angle(dx, dy) - r * double(k));
        sx = roundEven(r * std::cos(double(t) + a0) + cx);
        sy = roundEven(r * std::sin(double(t) + a0) + cy);
    });
}

Bits waves(const Bits& bits, const Region& region, const Given& a)
{
    const float amplitude = static_cast<float>(a.whole("Amplitude") * 0.25);
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        const int sy =
            roundEven(amplitude * std::sin((double(y) * a.whole("Frequency") + a.whole("StartDegree")) * kDegree) + y);
        take(to, bits.at(x, std::clamp(sy, 0, bits.maxY())));
    });
}

Bits lens(const Bits& bits, const Region& region, const Given& a)
{
    const float centreX = static_cast<float>(a.number("CenterX")), centreY = static_cast<float>(a.number("CenterY"));
    const float radius = static_cast<float>(a.number("Radius"));
    const int px = roundEven(bits.maxX() * double(centreX)), py = roundEven(bits.maxY() * double(centreY));
    const int R = roundEven(std::max(bits.maxX(), bits.maxY()) * double(radius));
    const double D = static_cast<float>((150.0 - a.whole("Magnify")) * R / 150);
    const double limit = std::nearbyint(double(R) * R - D * D);
    if (R <= 0) return bits;
    return eachPixel(bits, region, 0, [&](Pixel& to, int x, int y) {
        const double ox = double(x) - px, oy = double(y) - py;
        if (std::abs(ox) > R || std::abs(oy) > R || !(ox * ox + oy * oy < limit)) return;
        const int z = roundEven(std::sqrt(double(R) * R - ox * ox - oy * oy));
        const long long sx = 1LL * divide(roundEven(D * ox), z) + px, sy = 1LL * divide(roundEven(D * oy), z) + py;
        if (sx < -2 || sy < -2 || sx > bits.width() + 1 || sy > bits.height() + 1)
            throw RuntimeError(Fault::OutOfRange);
        take(to, bits.at(static_cast<int>(sx), static_cast<int>(sy)));
    });
}

Bits tile(const Bits& bits, const Region& region, const Given& a)
{
    const int factor = a.whole("Factor");
    if (factor == 0) throw RuntimeError(Fault::DivisionByZero);
    const int tw = std::max(roundEven(bits.maxX() / double(factor)), 1);
    const int th = std::max(roundEven(bits.maxY() / double(factor)), 1);
    const float rx = static_cast<float>(bits.maxX() / double(tw)), ry = static_cast<float>(bits.maxY() / double(th));
    Bits out = bits;
    const Rect box = region.bounds();
    for (int Y = box.top; Y < box.bottom; Y += th)
        for (int X = box.left; X < box.right; X += tw)
            for (int y = Y; y <= Y + th; ++y)
                for (int x = X; x <= X + tw; ++x) {
                    if (x < 0 || y < 0 || x > bits.maxX() || y > bits.maxY() || !region.contains(x, y)) continue;
                    take(out.at(x, y), bits.at(roundEven((x - X) * double(rx)), roundEven((y - Y) * double(ry))));
                }
    return out;
}

Bits glass(const Bits& bits, const Region& region, const Given& a)
{
    const std::string& style = a.text("Style");
    const int mode = a.whole("Mode");
    const Rect box = region.bounds();
    int keptX = 0, keptY = 0; // of the previous pixel
    return eachSource(bits, region, false, [&](int x, int y, int& sx, int& sy) {
        const double n = double(y - box.top) * box.width() + (x - box.left) + 1;
        double toX = keptX, toY = keptY;
        if (style == "slanting" && mode == 0) toX = x - 3 * std::sin(n), toY = y;
        if (style == "slanting" && mode == 1) toX = x, toY = y - 10 * std::sin(n);
        if (style == "vertical" && mode == 0) toX = 2 * std::tan(double(x)) + x, toY = y;
        if (style == "vertical" && mode == 1) toX = x - 3 * std::sin(double(x)), toY = y;
        if (style == "vertical" && mode == 2) toX = x - 10 * std::cos(double(x)), toY = y;
        if (style == "horizontal" && mode == 0) toX = x, toY = 2 * std::tan(double(y)) + y;
        if (style == "horizontal" && mode == 1) toX = x, toY = y - 3 * std::sin(double(y));
        if (style == "horizontal" && mode == 2) toX = x, toY = y - 10 * std::cos(double(y));
        if (style == "squary" && mode == 0) toX = 2 * std::tan(double(x)) + x, toY = 2 * std::tan(double(y)) + y;
        if (style == "squary" && mode == 1) toX = x - 5 * std::sin(double(x)), toY = y - 5 * std::sin(double(y));
        if (style == "squary" && mode == 2) toX = x - 10 * std::cos(double(x)), toY = y - 10 * std::cos(double(y));
        if (style == "curtain" && mode == 0) toX = std::tan(double(y)), toY = y;
        if (style == "curtain" && mode == 1) toX = std::tan(double(x)), toY = y;
        if (style == "curtain" && mode == 2) toX = std::tan(double(y)) * std::tan(double(x)), toY = y;
        if (style == "curtain" && mode == 3) toX = x, toY = std::tan(double(x)) + std::tan(double(y));
        keptX = sx = roundEven(toX);
        keptY = sy = roundEven(toY);
    });
}

} // namespace

Definitions deformDefinitions()
{
    return {
        {"ROTATE", rotate}, {"RotateSmooth", rotateSmooth},
        {"Flip", flip},     {"STRETCH", stretch},
        {"FOLD", fold},     {"BEND", bend},
        {"TWIRL", twirl},   {"WAVES", waves},
        {"LENS", lens},     {"TILE", tile},
        {"GLASS", glass},
    };
}

DialogTrials deformDialogs()
{
    using namespace std::string_literals;
    // clang-format off
    return {
        {27, "Deformation [Lens]: Diameter 1..100, 50; Magnify factor 0..100, 50; picks the centre",
         "LENS", {0.5, 0.5, 50 / 300.0, 50}, {double(0.3f), double(0.62f), 60 / 300.0, 80}, {60, 80}, kBlackWhite, {.centerX = 0.3f, .centerY = 0.62f}},
        {28, "Deformation [Waves]: Frequency 0..100, 25; Amplitude 1..100, 25; Start degree 0..360, 0",
         "WAVES", {25, 25, 0}, {3, 60, 90}, {3, 60, 90}},
        {29, "Deformation [Bend]: Radius factor -200..200, 0; option Clean back",
         "BEND", {0, false}, {120, true}, {120}, kBlackWhite, kOption},
        {30, "Deformation [Fold]: Horizontal factor -100..100, 0; Vertical factor -100..100, 0; option Clean back",
         "FOLD", {0, 0, false}, {60, -40, true}, {60, -40}, kBlackWhite, kOption},
        {31, "Deformation [Rotate]: Degrees -180..180, 0; option Clean back",
         "ROTATE", {0, false}, {30, true}, {30}, kBlackWhite, kOption},
        {32, "Deformation [Stretch]: Horizontal factor -100..100, 0; Vertical factor -100..100, 0; option Clean back",
         "STRETCH", {0, 0, false}, {60, 30, true}, {60, 30}, kBlackWhite, kOption},
        {33, "Deformation [Tile]: Factor 2..50, 2",
         "TILE", {2}, {4}, {4}},
        {34, "Deformation [Twirl]: Level -100..100, 0; Offset degrees -180..180, 0; option Clean back",
         "TWIRL", {0, 0, false}, {40, 20, true}, {40, 20}, kBlackWhite, kOption},
        {39, "Behind Glass: glass",
         "GLASS", {"slanting"s, 0}, {"squary"s, 2}, {}, kBlackWhite, {.style = "squary", .mode = 2}},
        {40, "Behind Curtain: curtain",
         "GLASS", {"curtain"s, 0}, {"curtain"s, 3}, {}, kBlackWhite, {.mode = 3}},
    };
    // clang-format on
}

} // namespace velara
