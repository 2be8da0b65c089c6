// A picture laid over the picture, tiled or once.
#include "filters/numbers.h"
#include "filters/passes.h"

namespace velara {

namespace {

/// Blends the columns x0..x1-1 of an overlay row, its column 0 at column left, over a row of the picture.
struct OverlayBlend {
    float a, b; // parts of the picture and of the overlay
    bool keyed;
    std::uint8_t key[3];

    void operator()(const Pixel* from, const Pixel* over, std::int64_t left, int x0, int x1, Pixel* to) const
    {
        for (int x = x0; x < x1; ++x) {
            const Pixel& o = over[x - left];
            if (keyed && std::memcmp(o.c, key, 3) == 0) continue;
            for (int c = 0; c < 3; ++c)
                to[x].c[c] = toByte(static_cast<double>(from[x].c[c]) * a + static_cast<double>(o.c[c]) * b);
        }
    }
};

} // namespace

Bits cBitFilter::TileMask(const Bits& Overlay, int Left, int Top, bool Tiled, int Transparency, Colour KeyColor)
{
    const Bits in = bits_, overlay = Overlay;
    const Region region = region_;
    if (overlay.isNull()) throw RuntimeError(Fault::OutOfRange);
    const float a = static_cast<float>(Transparency / 100.0), b = static_cast<float>(1.0 - a);
    const OverlayBlend blend{a,
                             b,
                             KeyColor != -1,
                             {static_cast<std::uint8_t>(blueOf(KeyColor)), static_cast<std::uint8_t>(greenOf(KeyColor)),
                              static_cast<std::uint8_t>(redOf(KeyColor))}};
    // Without Tiled the step leads past the picture, which makes one pass.
    const std::int64_t stepX = Tiled ? overlay.width() : std::int64_t(in.maxX()) - Left + 1;
    const std::int64_t stepY = Tiled ? overlay.height() : std::int64_t(in.maxY()) - Top + 1;
    const auto firstFrom = [](std::int64_t origin, std::int64_t step) { // skips the tiles before the picture
        return origin < 0 && step > 0 ? origin + -origin / step * step : origin;
    };
    Bits out = in;
    for (std::int64_t Y = Tiled ? firstFrom(Top, stepY) : Top; Y <= in.maxY(); Y += stepY) {
        const int y0 = static_cast<int>(std::max<std::int64_t>(Y, 0));
        const int y1 = static_cast<int>(std::min<std::int64_t>(Y + overlay.height(), in.height()));
        for (int y = y0; y < y1; ++y) {
            Pixel* to = out.row(y);
            for (const Span s : region.spans(y))
                for (std::int64_t X = Tiled ? firstFrom(Left, stepX) : Left; X <= in.maxX(); X += stepX) {
                    const auto x0 = std::max<std::int64_t>({X, s.x0, 0});
                    const auto x1 = std::min<std::int64_t>({X + overlay.width(), s.x1, in.width()});
                    blend(in.row(y), overlay.row(static_cast<int>(y - Y)), X, static_cast<int>(x0),
                          static_cast<int>(x1), to);
                }
        }
        progressDue(Y - Top, std::int64_t(in.maxY()) - Top);
    }
    report(100);
    return out;
}

} // namespace velara
