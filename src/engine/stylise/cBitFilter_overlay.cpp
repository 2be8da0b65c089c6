// Lays a picture over the picture, once or tiled.
#include "engine/deform/passes_warp.h"
#include "engine/stylise/kernels_generate.h"
#include "pixels/threads/parallelFor.h"

namespace velara {

namespace {

/// The colour as the low bytes of a pixel's word, or -1.
std::int32_t keyWord(Colour colour)
{
    return colour == -1 ? -1 : redOf(colour) << 16 | greenOf(colour) << 8 | blueOf(colour);
}

/// How an overlay is laid: part of it and rest of what is there, but where it has the key's colour.
struct Laying {
    float rest, part;
    std::int32_t key;

    void exactly(const Pixel* from, const Pixel* over, int n, Pixel* to) const
    {
        if (!overlayPixels(from, over, rest, part, key, n, to)) throw RuntimeError(Fault::Overflow);
    }
    void pixels(const Pixel* from, const Pixel* over, int n, Pixel* to) const
    {
        if (rest < 0 || rest > 1) return exactly(from, over, n, to);
        eachRun(0, n, [&](int x, int count) { someNearly(from + x, over + x, count, to + x); });
    }

  private:
    /// n <= kPlaces pixels in single precision, and exactly those whose rounding is not certain.
    void someNearly(const Pixel* from, const Pixel* over, int n, Pixel* to) const
    {
        const std::uint64_t doubtful = overlayNearly(from, over, rest, part, key, n, to);
        if (doubtful == 0) return;
        constexpr int kReadBeyond = 7;
        Pixel some[kPlaces], above[kPlaces + kReadBeyond];
        int count = 0;
        eachPlace(doubtful, n, [&](int i) {
            some[count] = from[i];
            above[count++] = over[i];
        });
        exactly(some, above, count, some);
        count = 0;
        eachPlace(doubtful, n, [&](int i) { to[i] = some[count++]; });
    }
};

} // namespace

Bits cBitFilter::TileMask(const Bits& Overlay, int Left, int Top, bool Tiled, int Transparency, Colour KeyColor)
{
    const Bits in = bits_, overlay = Overlay;
    const Region region = region_;
    if (overlay.isNull()) throw RuntimeError(Fault::OutOfRange);
    const float a = static_cast<float>(Transparency / 100.0), b = static_cast<float>(1.0 - a);
    const Laying laying{a, b, keyWord(KeyColor)};
    // Without Tiled the step leaves the picture, so that there is one pass.
    const std::int64_t stepX = Tiled ? overlay.width() : std::int64_t(in.maxX()) - Left + 1;
    const std::int64_t stepY = Tiled ? overlay.height() : std::int64_t(in.maxY()) - Top + 1;
    const auto firstFrom = [](std::int64_t origin, std::int64_t step) { // skips the tiles before the picture
        return origin < 0 && step > 0 ? origin + -origin / step * step : origin;
    };
    if (in.isNull()) {
        report(100);
        return in;
    }
    Bits out = Bits::uninitialized(in.width(), in.height());
    const WrittenRows rows(out);
    int below = -Bits::kMargin; // the rows above are written
    for (std::int64_t Y = Tiled ? firstFrom(Top, stepY) : Top; Y <= in.maxY(); Y += stepY) {
        const int y0 = static_cast<int>(std::max<std::int64_t>(Y, 0));
        const int y1 = static_cast<int>(std::min<std::int64_t>(Y + overlay.height(), in.height()));
        if (y0 < y1) {
            copyRows(in, out, below, y0);
            below = y1;
        }
        parallelFor(std::max(y1 - y0, 0), turnsTogether(in.width()), [&](int i) {
            const int y = y0 + i;
            Pixel* to = rows.row(y);
            int copied = -Bits::kMargin;
            for (const Span s : region.spans(y))
                for (std::int64_t X = Tiled ? firstFrom(Left, stepX) : Left; X <= in.maxX(); X += stepX) {
                    const int x0 = static_cast<int>(std::max<std::int64_t>({X, s.x0, 0}));
                    const int x1 = static_cast<int>(std::min<std::int64_t>({X + overlay.width(), s.x1, in.width()}));
                    const Pixel* over = overlay.row(static_cast<int>(y - Y));
                    if (x0 >= x1) continue;
                    copyPixels(in.row(y), to, copied, x0);
                    laying.pixels(in.row(y) + x0, over + (x0 - X), x1 - x0, to + x0);
                    copied = x1;
                }
            copyPixels(in.row(y), to, copied, in.width() + Bits::kMargin);
        });
        progressDue(Y - Top, std::int64_t(in.maxY()) - Top);
    }
    copyRows(in, out, below, in.height() + Bits::kMargin);
    report(100);
    return out;
}

} // namespace velara
