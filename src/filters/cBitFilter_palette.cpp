// PaletteApply: the palette's nearest colours, with a reduced error diffusion.
#include "filters/mPalette.h"
#include "filters/numbers.h"
#include "filters/passes.h"
#include <cstdlib>

namespace velara {

namespace {

/// NearestColor with a memory of colours asked before.
class NearestColours {
  public:
    /// The palette's colour as bytes, with the fourth of p.
    Pixel operator()(const Pixel& p)
    {
        const std::uint32_t key = p.c[0] | p.c[1] << 8 | std::uint32_t(p.c[2]) << 16;
        Known& known = known_[key * 2654435769u >> (32 - kBits)];
        if (known.key != key) known = {key, look(p)};
        return {{known.found.c[0], known.found.c[1], known.found.c[2], p.c[3]}};
    }

  private:
    static constexpr int kBits = 15;
    struct Known {
        std::uint32_t key = 0xFFFFFFFF; // no colour
        Pixel found{};
    };
    static Pixel look(const Pixel& p)
    {
        const PaletteColor c = NearestColor(p.c[2], p.c[1], p.c[0]);
        return {{toByte(c.blue), toByte(c.green), toByte(c.red), 0}};
    }
    std::vector<Known> known_{std::size_t{1} << kBits};
};

} // namespace

Bits cBitFilter::PaletteApply()
{
    const Bits before = bits_;
    const Region region = region_;
    const Box box = insidePicture(GetBounds(0), before);
    Bits source = before, out = before;
    NearestColours nearest;
    for (int y = box.ymin; y <= box.ymax; ++y) {
        Pixel *row = source.row(y), *below = source.row(std::min(y + 1, source.maxY())), *to = out.row(y);
        for (const Span s : region.spans(y))
            for (int x = std::max(s.x0, box.xmin), end = std::min(s.x1, box.xmax + 1); x < end; ++x) {
                const Pixel found = nearest(row[x]);
                std::copy_n(found.c, 3, to[x].c);
                int error[3];
                for (int c = 0; c < 3; ++c) error[c] = row[x].c[c] - found.c[c];
                if (std::abs(error[1]) + std::abs(error[2]) + std::abs(error[0]) <= 3) continue;
                const auto spread = [&](Pixel& p, int weight) {
                    for (int c = 0; c < 3; ++c) p.c[c] = clamp(p.c[c] + error[c] * weight / 16);
                };
                if (x < source.maxX()) spread(row[x + 1], 7);
                if (y < source.maxY() && x >= 1 && x < source.maxX()) spread(below[x], 4);
            }
        progressDue(y, source.maxY());
    }
    report(100);
    if (bits_.sharesWith(before)) bits_ = source; // unless a yield has brought another picture
    return out;
}

} // namespace velara
