// PaletteApply: the palette's nearest colours, with a reduced error diffusion.
#include "engine/colour/lookUps.h"
#include "engine/colour/mPalette.h"
#include "engine/passes.h"
#include "pixels/numbers.h"
#include <bit>
#include <climits>
#include <cstdlib>

namespace velara {

namespace {

constexpr int kLanes = 4;
using Lanes = int __attribute__((vector_size(kLanes * sizeof(int)))); // blue, green, red and the fourth byte
using Bytes = std::uint8_t __attribute__((vector_size(16)));

inline Lanes absolute(Lanes v) { return v < 0 ? -v : v; }
inline Lanes wide(const Pixel& p)
{
    const Bytes bytes = std::bit_cast<Bytes>(Lanes{static_cast<int>(wordOf(p))});
    return std::bit_cast<Lanes>(
        __builtin_shufflevector(bytes, Bytes{}, 0, 16, 16, 16, 1, 16, 16, 16, 2, 16, 16, 16, 3, 16, 16, 16));
}
inline Pixel narrow(Lanes v)
{
    const Bytes bytes = std::bit_cast<Bytes>(v);
    const Bytes low = __builtin_shufflevector(bytes, bytes, 0, 4, 8, 12, 0, 4, 8, 12, 0, 4, 8, 12, 0, 4, 8, 12);
    return pixelFrom(static_cast<std::uint32_t>(std::bit_cast<Lanes>(low)[0]));
}

/// NearestColor of bytes, faster: the colours are cut into cubes, and each cube knows the few entries of the palette
/// that may be nearest to one of its colours.
class NearestColours {
  public:
    NearestColours()
    {
        const std::vector<PaletteColor>& all = PaletteColors();
        const auto isByte = [](const PaletteColor& c) { return ((c.red | c.green | c.blue) & ~255) == 0; };
        if (all.size() >= 0x10000 || !std::all_of(all.begin(), all.end(), isByte)) return;
        for (const PaletteColor& c : all) colours_.push_back(asPixel(c));
    }
    /// The palette's colour as bytes. Overflow if it is none; OutOfRange without a palette.
    Lanes operator()(Lanes p)
    {
        if (colours_.empty()) return oneByOne(p);
        Cube& cube = cubes_[std::size_t(p[0] >> kShift | p[1] >> kShift << kBits | p[2] >> kShift << 2 * kBits)];
        if (cube.end == 0) cube = candidatesOf(p);
        // The least of distance << 16 | position, lane by lane: the earlier of two equals wins.
        const Lanes parts[] = {__builtin_shufflevector(p, p, 0, 0, 0, 0), __builtin_shufflevector(p, p, 1, 1, 1, 1),
                               __builtin_shufflevector(p, p, 2, 2, 2, 2)};
        Lanes least = Lanes{} + INT_MAX, at = {0, 1, 2, 3};
        for (int block = cube.first; block < cube.end; ++block)
            for (const Lanes(&part)[3] : candidates_[std::size_t(block)].parts) {
                Lanes far = {};
                for (int i = 0; i < 3; ++i) far += absolute(part[i] - parts[i]);
                const Lanes key = (far << 16) + at;
                least = key < least ? key : least;
                at += kLanes;
            }
        const Lanes other = __builtin_shufflevector(least, least, 2, 3, 0, 1);
        least = other < least ? other : least;
        const int best = std::min(least[0], least[1]) & 0xFFFF;
        return candidates_[std::size_t(cube.first + best / kInBlock)].colour[best % kInBlock];
    }

  private:
    static constexpr int kBits = 4, kShift = 8 - kBits, kSide = 1 << kShift, kFarthest = 3 * 255;
    static constexpr int kInBlock = 2 * kLanes; // enough for most cubes of a palette of 256: the loop is foreseen
    struct Cube {
        int first = 0, end = 0; // of candidates_
    };
    struct Candidates {
        Lanes parts[kInBlock / kLanes][3]; // blue, green, red; the last one fills up a block
        Lanes colour[kInBlock];
    };

    [[gnu::noinline, gnu::cold]] static Lanes oneByOne(Lanes p)
    {
        return wide(asPixel(NearestColor(p[2], p[1], p[0])));
    }
    static Pixel asPixel(const PaletteColor& c) { return {{toByte(c.blue), toByte(c.green), toByte(c.red), 0}}; }

    /// Keeps what is nearest to one of the colours of p's cube: what no other entry beats at all of them.
    [[gnu::noinline, gnu::cold]] Cube candidatesOf(Lanes p)
    {
        const Lanes low = p & ~(kSide - 1), high = low + (kSide - 1);
        const auto sum = [](Lanes v) { return v[0] + v[1] + v[2]; };
        int reach = kFarthest;
        for (const Pixel& c : colours_) {
            const Lanes toLow = absolute(wide(c) - low), toHigh = absolute(wide(c) - high);
            reach = std::min(reach, sum(toLow > toHigh ? toLow : toHigh));
        }
        std::vector<Lanes> near; // some entry is nearer to the farthest colour than the others are to the nearest
        for (const Pixel& c : colours_) {
            const Lanes below = low - wide(c), above = wide(c) - high, outside = below > above ? below : above;
            if (sum(outside < 0 ? Lanes{} : outside) <= reach) near.push_back(wide(c));
        }
        // How much farther one entry is than another is, in each channel, at its greatest at an end of the cube.
        const auto beaten = [&](const Lanes& c) {
            return std::any_of(near.begin(), near.end(), [&](const Lanes& by) {
                const Lanes atLow = absolute(by - low) - absolute(c - low);
                const Lanes atHigh = absolute(by - high) - absolute(c - high);
                const int most = sum(atLow > atHigh ? atLow : atHigh);
                return most < 0 || (most == 0 && &by < &c);
            });
        };
        const int first = static_cast<int>(candidates_.size());
        int count = 0;
        for (const Lanes& c : near) {
            if (beaten(c)) continue;
            if (count % kInBlock == 0) candidates_.emplace_back();
            for (int i = count++ % kInBlock; i < kInBlock; ++i) {
                Candidates& block = candidates_.back();
                for (int part = 0; part < 3; ++part) block.parts[i / kLanes][part][i % kLanes] = c[part];
                block.colour[i] = c;
            }
        }
        return {first, static_cast<int>(candidates_.size())};
    }

    std::vector<Pixel> colours_; // empty unless all are bytes, and few enough
    std::vector<Cube> cubes_{std::size_t{1} << 3 * kBits};
    std::vector<Candidates> candidates_;
};

constexpr Lanes kColour = {-1, -1, -1, 0};
constexpr int kUnseen = 3; // an error of all channels that is not spread

/// The channels with a sixteenth of the error given, cut towards zero, and clamped to bytes.
inline Lanes plusSixteenth(Lanes v, Lanes error)
{
    v += (error + ((error >> 31) & 15)) >> 4;
    v = v < 0 ? Lanes{} : v;
    return v > 255 ? Lanes{} + 255 : v;
}

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
            Lanes p = wide(x0 < end ? row[x0] : Pixel{}); // kept at hand: the next one waits for its share of the error
            for (int x = x0; x < end; ++x) {
                const Lanes found = nearest(p);
                to[x] = pixelFrom((wordOf(narrow(found)) & ~kFourthByte) | (wordOf(to[x]) & kFourthByte));
                const Lanes error = (p - found) & kColour, size = absolute(error);
                Lanes next = wide(row[x + 1]); // may be margin
                if (size[0] + size[1] + size[2] > kUnseen) {
                    if (x < source.maxX()) row[x + 1] = narrow(next = plusSixteenth(next, error * 7));
                    if (y < source.maxY() && x >= 1 && x < source.maxX())
                        below[x] = narrow(plusSixteenth(wide(below[x]), error * 4));
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
