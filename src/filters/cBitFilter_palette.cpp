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
        bytesOnly_ = colours_.size() < 0x10000 && std::all_of(colours_.begin(), colours_.end(), isByte);
    }
    /// The palette's colour as bytes. Overflow if it is none; OutOfRange without a palette.
    Pixel operator()(const Pixel& p)
    {
        if (colours_.empty() || !bytesOnly_) return asPixel(NearestColor(p.c[2], p.c[1], p.c[0]));
        Cube& cube = cubes_[std::size_t(p.c[0] >> kShift | p.c[1] >> kShift << kBits | p.c[2] >> kShift << 2 * kBits)];
        if (cube.end == 0) cube = candidatesOf(p);
        // The least of distance << 16 | position, lane by lane: the earlier of two equals wins.
        std::uint32_t least[kLanes];
        std::fill_n(least, kLanes, ~0u);
        for (std::uint32_t block = cube.first; block < cube.end; ++block) {
            const Candidates& c = candidates_[block];
            for (std::uint32_t i = 0; i < kLanes; ++i) {
                const int d =
                    std::abs(p.c[0] - c.part[0][i]) + std::abs(p.c[1] - c.part[1][i]) + std::abs(p.c[2] - c.part[2][i]);
                least[i] = std::min(least[i], std::uint32_t(d) << 16 | (block - cube.first) * kLanes | i);
            }
        }
        const std::uint32_t best = *std::min_element(least, least + kLanes) & 0xFFFF;
        const Candidates& c = candidates_[cube.first + best / kLanes];
        const auto part = [&](int i) { return static_cast<std::uint8_t>(c.part[i][best % kLanes]); };
        return {{part(0), part(1), part(2), 0}};
    }

  private:
    static constexpr int kBits = 5, kShift = 8 - kBits, kSide = 1 << kShift, kFarthest = 3 * 255;
    static constexpr std::uint32_t kLanes = 8;
    struct Cube {
        std::uint32_t first = 0, end = 0; // of candidates_
    };
    struct Candidates {
        int part[3][kLanes]; // blue, green, red; the last one fills up a block
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
        std::uint32_t count = 0;
        for (const PaletteColor& c : colours_) {
            if (distances(asPixel(c)).first > reach) continue;
            if (count % kLanes == 0) candidates_.emplace_back();
            for (std::uint32_t i = count++ % kLanes; i < kLanes; ++i) {
                int(&part)[3][kLanes] = candidates_.back().part;
                part[0][i] = c.blue, part[1][i] = c.green, part[2][i] = c.red;
            }
        }
        return {first, static_cast<std::uint32_t>(candidates_.size())};
    }

    std::vector<PaletteColor> colours_;
    bool bytesOnly_ = false; // and few enough
    std::vector<Cube> cubes_{std::size_t{1} << 3 * kBits};
    std::vector<Candidates> candidates_;
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
