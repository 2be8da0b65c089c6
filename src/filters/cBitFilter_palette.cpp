// PaletteApply: the palette's nearest colours, with a reduced error diffusion.
#include "filters/PairTables.h"
#include "filters/mPalette.h"
#include "filters/numbers.h"
#include "filters/passes.h"
#include <climits>
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
        const auto lanes = [](int v) { return Lanes{v, v, v, v}; };
        Lanes least = lanes(INT_MAX);
        for (int block = cube.first; block < cube.end; ++block) {
            Lanes far = {};
            for (int i = 0; i < 3; ++i) {
                const Lanes d = candidates_[std::size_t(block)].part[i] - lanes(p.c[i]);
                far += d < 0 ? -d : d;
            }
            const Lanes key = (far << 16) + (Lanes{0, 1, 2, 3} + lanes((block - cube.first) * kLanes));
            least = key < least ? key : least;
        }
        const int best = std::min(std::min(least[0], least[1]), std::min(least[2], least[3])) & 0xFFFF;
        const Candidates& c = candidates_[std::size_t(cube.first + best / kLanes)];
        const auto part = [&](int i) { return static_cast<std::uint8_t>(c.part[i][best % kLanes]); };
        return {{part(0), part(1), part(2), 0}};
    }

  private:
    static constexpr int kBits = 4, kShift = 8 - kBits, kSide = 1 << kShift, kFarthest = 3 * 255;
    static constexpr int kLanes = 4;
    using Lanes = int __attribute__((vector_size(kLanes * sizeof(int))));
    struct Cube {
        int first = 0, end = 0; // of candidates_
    };
    struct Candidates {
        Lanes part[3]; // blue, green, red; the last one fills up a block
    };

    static Pixel asPixel(const PaletteColor& c) { return {{toByte(c.blue), toByte(c.green), toByte(c.red), 0}}; }

    /// Keeps what can be as near to a colour of p's cube as the entry that is nearest to all of them.
    Cube candidatesOf(const Pixel& p)
    {
        const auto distances = [&](const PaletteColor& c) {
            const int parts[] = {c.blue, c.green, c.red};
            int near = 0, far = 0;
            for (int i = 0; i < 3; ++i) {
                const int low = p.c[i] & ~(kSide - 1), high = low + kSide - 1;
                near += std::max({low - parts[i], parts[i] - high, 0});
                far += std::max(std::abs(parts[i] - low), std::abs(parts[i] - high));
            }
            return std::pair(near, far);
        };
        int reach = kFarthest;
        for (const PaletteColor& c : colours_) reach = std::min(reach, distances(c).second);
        const int first = static_cast<int>(candidates_.size());
        int count = 0;
        for (const PaletteColor& c : colours_) {
            if (distances(c).first > reach) continue;
            if (count % kLanes == 0) candidates_.emplace_back();
            for (int i = count++ % kLanes; i < kLanes; ++i) {
                Lanes(&part)[3] = candidates_.back().part;
                part[0][i] = c.blue, part[1][i] = c.green, part[2][i] = c.red;
            }
        }
        return {first, static_cast<int>(candidates_.size())};
    }

    std::vector<PaletteColor> colours_;
    bool bytesOnly_ = false; // and few enough
    std::vector<Cube> cubes_{std::size_t{1} << 3 * kBits};
    std::vector<Candidates> candidates_;
};

constexpr int kUnseen = 3; // an error of all channels that is not spread

inline std::uint8_t clamp32(int v) { return static_cast<std::uint8_t>(std::min(std::max(v, 0), 255)); }

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
        for (const Span s : region.spans(y)) {
            const int x0 = std::max(s.x0, box.xmin), end = std::min(s.x1, box.xmax + 1);
            Pixel p = x0 < end ? row[x0] : Pixel{}; // kept at hand: the next one waits for its share of the error
            for (int x = x0; x < end; ++x) {
                const Pixel found = nearest(p);
                to[x] = pixelFrom((wordOf(found) & ~kFourthByte) | (wordOf(to[x]) & kFourthByte));
                int error[3], size = 0;
                for (int c = 0; c < 3; ++c) error[c] = p.c[c] - found.c[c], size += std::abs(error[c]);
                const auto spread = [&](Pixel& on, int weight) {
                    std::uint32_t word = wordOf(on) & kFourthByte;
                    for (int c = 0; c < 3; ++c)
                        word |= std::uint32_t{clamp32(on.c[c] + error[c] * weight / 16)} << 8 * c;
                    on = pixelFrom(word);
                };
                Pixel next = row[x + 1]; // may be margin
                if (size > kUnseen) {
                    if (x < source.maxX()) spread(next, 7), row[x + 1] = next;
                    if (y < source.maxY() && x >= 1 && x < source.maxX()) spread(below[x], 4);
                }
                p = next;
            }
        }
        progressDue(y, source.maxY());
    }
    report(100);
    if (bits_.sharesWith(before)) bits_ = source; // unless a yield has brought another picture
    return out;
}

} // namespace velara
