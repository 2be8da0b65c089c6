// PaletteApply: the palette's nearest colours, with a reduced error diffusion.
#include "filters/mPalette.h"
#include "filters/numbers.h"
#include "filters/passes.h"
#include <cstdlib>

namespace velara {

namespace {

/// NearestColor of bytes, faster: the colours are cut into cubes, and each cube knows the few entries of the palette
/// that may be nearest to one of its colours.
class NearestColours {
  public:
    NearestColours() : colours_(PaletteColors())
    {
        const auto isByte = [](const PaletteColor& c) { return ((c.red | c.green | c.blue) & ~255) == 0; };
        bytesOnly_ = std::all_of(colours_.begin(), colours_.end(), isByte);
    }
    /// The palette's colour as bytes. Overflow if it is none; OutOfRange without a palette.
    Pixel operator()(const Pixel& p)
    {
        if (colours_.empty() || !bytesOnly_) return asPixel(NearestColor(p.c[2], p.c[1], p.c[0]));
        Cube& cube = cubes_[std::size_t(p.c[0] >> kShift | p.c[1] >> kShift << kBits | p.c[2] >> kShift << 2 * kBits)];
        if (cube.end == 0) cube = candidatesOf(p);
        int least = kFarthest;
        Pixel best = asPixel(colours_.front());
        for (std::uint32_t i = cube.first; i < cube.end; ++i) {
            const Pixel c = candidates_[i];
            const int d = std::abs(p.c[0] - c.c[0]) + std::abs(p.c[1] - c.c[1]) + std::abs(p.c[2] - c.c[2]);
            best = d < least ? c : best;
            least = std::min(d, least);
        }
        return best;
    }

  private:
    static constexpr int kBits = 5, kShift = 8 - kBits, kSide = 1 << kShift, kFarthest = 3 * 255;
    struct Cube {
        std::uint32_t first = 0, end = 0; // of candidates_
    };

    static Pixel asPixel(const PaletteColor& c) { return {{toByte(c.blue), toByte(c.green), toByte(c.red), 0}}; }

    /// Keeps what can be as near to a colour of p's cube as the entry that is nearest to all of them.
    Cube candidatesOf(const Pixel& p)
    {
        const auto distances = [&](const Pixel& c) {
            int near = 0, far = 0;
            for (int i = 0; i < 3; ++i) {
                const int low = p.c[i] & ~(kSide - 1), high = low + kSide - 1;
                near += std::max({low - c.c[i], c.c[i] - high, 0});
                far += std::max(std::abs(c.c[i] - low), std::abs(c.c[i] - high));
            }
            return std::pair(near, far);
        };
        int reach = kFarthest;
        for (const PaletteColor& c : colours_) reach = std::min(reach, distances(asPixel(c)).second);
        const auto first = static_cast<std::uint32_t>(candidates_.size());
        for (const PaletteColor& c : colours_)
            if (distances(asPixel(c)).first <= reach) candidates_.push_back(asPixel(c));
        return {first, static_cast<std::uint32_t>(candidates_.size())};
    }

    std::vector<PaletteColor> colours_;
    bool bytesOnly_ = false;
    std::vector<Cube> cubes_{std::size_t{1} << 3 * kBits};
    std::vector<Pixel> candidates_;
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
