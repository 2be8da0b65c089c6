// Flood fill by runs. Which pixels belong depends on the region, the done pixels and the colours before the fill, so
// the order of visits does not matter and the result equals that of a queue of single pixels.
#include "paint/ChannelTables.h"
#include "paint/Painter.h"
#include "paint/kernels_fill.h"
#include "pixels/numbers.h"
#include "region/spanWalk.h"
#include <bit>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace velara {

namespace {

constexpr int kNearlyItself = 10; // a fill colour closer than this to the seed in all channels fills the seed only

int difference(const Pixel& a, const Pixel& b)
{
    return std::abs(a.c[0] - b.c[0]) + std::abs(a.c[1] - b.c[1]) + std::abs(a.c[2] - b.c[2]);
}

bool isNearlyItself(const Pixel& a, const Pixel& b)
{
    return std::abs(a.c[0] - b.c[0]) < kNearlyItself && std::abs(a.c[1] - b.c[1]) < kNearlyItself &&
           std::abs(a.c[2] - b.c[2]) < kNearlyItself;
}

/// One bit for each pixel that may still be filled; rows are computed when first used.
class OpenPixels {
  public:
    OpenPixels(const Bits& bits, const Region& region, const Pixel& seed, int tolerance, DoneBits* done)
        : bits_(bits), region_(region), seed_(seed), tolerance_(tolerance), done_(done),
          words_((static_cast<std::size_t>(bits.width()) + 63) / 64),
          rows_(new std::uint64_t[words_ * static_cast<std::size_t>(bits.height())]),
          known_(static_cast<std::size_t>(bits.height()))
    {
    }

    std::uint64_t* row(int y)
    {
        std::uint64_t* words = rows_.get() + static_cast<std::size_t>(y) * words_;
        if (!known_[static_cast<std::size_t>(y)]) make(y, words);
        known_[static_cast<std::size_t>(y)] = true;
        return words;
    }
    bool test(int x, int y)
    {
        return x >= 0 && y >= 0 && x < bits_.width() && y < bits_.height() && (row(y)[x / 64] >> (x % 64) & 1);
    }

  private:
    void make(int y, std::uint64_t* words)
    {
        std::fill_n(words, words_, 0);
        const Pixel* pixels = bits_.row(y);
        eachSpanWithin(region_, y, 0, bits_.width(), [&](int x0, int x1) {
            for (int x = x0; x < x1;) {
                const int end = std::min(x1, (x / 64 + 1) * 64);
                words[x / 64] |= pixelsLike(pixels + x, end - x, seed_, tolerance_) << (x % 64);
                x = end;
            }
        });
        if (!done_) return;
        const std::uint64_t* done = done_->row(y);
        for (std::size_t i = 0; i < words_; ++i) words[i] &= ~done[i];
    }

    const Bits& bits_;
    const Region& region_;
    const Pixel seed_;
    const int tolerance_;
    DoneBits* done_;
    const std::size_t words_;
    std::unique_ptr<std::uint64_t[]> rows_;
    std::vector<bool> known_;
};

/// to = to + from, by bytes, saturated at 255.
void addPixels(const Pixel* from, Pixel* to, int count)
{
    const auto* source = reinterpret_cast<const std::uint8_t*>(from);
    auto* target = reinterpret_cast<std::uint8_t*>(to);
    for (int i = 0; i < 4 * count; ++i) target[i] = static_cast<std::uint8_t>(std::min(source[i] + target[i], 255));
}

} // namespace

struct Painter::Seed {
    int x, y;
    Pixel colour; // before the first blend
};

/// Calls write(y, x0, x1) for all pixels connected to the seed's neighbours. The seed itself, already blended but not
/// marked as done, is written again when a neighbour reaches it and its new colour still matches.
template <class Writer> void Painter::flood(const Seed& seed, int tolerance, const Region& region, Writer write)
{
    struct Segment {
        int y, x0, x1;
    };
    if (!done_.isFor(bits_.width(), bits_.height())) CreateDoneBitsTable();
    OpenPixels open(bits_, region, seed.colour, tolerance, &done_);
    const auto take = [&](int y, int x0, int x1) {
        touch(y, x0, x1);
        write(y, x0, x1);
    };
    // Every pixel that touches the fill is visited once, whether it is taken or not.
    const auto meet = [&](int y, int x0, int x1) {
        if (y < 0 || y > bits_.maxY()) return;
        open.row(y); // with what was done before
        eachSpanWithin(region, y, std::max(x0, 0), std::min(x1, bits_.width()),
                       [&](int from, int to) { setRun(done_.row(y), from, to, true); });
    };
    const bool seedOpen = region.contains(seed.x, seed.y) && !done_.test(seed.x, seed.y) &&
                          difference(std::as_const(bits_).at(seed.x, seed.y), seed.colour) <= tolerance;
    setRun(open.row(seed.y), seed.x, seed.x + 1, false);

    std::vector<Segment> segments;
    bool reached = false;
    for (const auto& [dx, dy] : {std::pair(-1, 0), std::pair(1, 0), std::pair(0, -1), std::pair(0, 1)})
        if (open.test(seed.x + dx, seed.y + dy)) {
            segments.push_back({seed.y + dy, seed.x + dx, seed.x + dx + 1});
            reached = true;
        }
    meet(seed.y, seed.x - 1, seed.x);
    meet(seed.y, seed.x + 1, seed.x + 2);
    meet(seed.y - 1, seed.x, seed.x + 1);
    meet(seed.y + 1, seed.x, seed.x + 1);
    if (reached && seedOpen) take(seed.y, seed.x, seed.x + 1);
    while (!segments.empty()) {
        const auto [y, x0, x1] = segments.back();
        segments.pop_back();
        std::uint64_t* row = open.row(y);
        for (int x = nextBit(row, x0, x1, true); x < x1; x = nextBit(row, x, x1, true)) {
            const int from = runStart(row, x), to = nextBit(row, x, bits_.width(), false);
            setRun(row, from, to, false);
            take(y, from, to);
            meet(y, from - 1, to + 1);
            meet(y - 1, from, to);
            meet(y + 1, from, to);
            if (y > 0) segments.push_back({y - 1, from, to});
            if (y < bits_.maxY()) segments.push_back({y + 1, from, to});
            x = std::min(to, x1);
        }
    }
}

void Painter::BitsFill(int x, int y, Colour colour, int tolerance, int opacity)
{
    if (x < 0 || y < 0 || x >= bits_.width() || y >= bits_.height()) return;
    const double op = opacity / 100.0, inv = 1 - op;
    const Pixel target{{static_cast<std::uint8_t>(blueOf(colour)), static_cast<std::uint8_t>(greenOf(colour)),
                        static_cast<std::uint8_t>(redOf(colour)), 0}};
    const Seed seed{x, y, std::as_const(bits_).at(x, y)};
    const Region& region = working();
    if (region.contains(x, y)) {
        touch(y, x, x + 1);
        for (int c = 0; c < 3; ++c) bits_.row(y)[x].c[c] = toByte(target.c[c] * op + seed.colour.c[c] * inv);
    }
    if (isNearlyItself(target, seed.colour)) return;

    Tables tables;
    for (std::size_t c = 0; c < 3; ++c)
        for (int v = 0; v < 256; ++v)
            tables[c][static_cast<std::size_t>(v)] = clamp(roundEven(v * inv + roundEven(target.c[c] * op)));
    if (opacity == 100)
        return flood(seed, tolerance, region, [&, to = std::bit_cast<std::uint32_t>(target)](int py, int x0, int x1) {
            for (Pixel *p = bits_.row(py) + x0, *end = p + (x1 - x0); p < end; ++p) // as words: vectors do several
                *p = std::bit_cast<Pixel>((std::bit_cast<std::uint32_t>(*p) & 0xFF000000) | to);
        });
    const ChannelTables channels(tables);
    flood(seed, tolerance, region, [&](int py, int x0, int x1) { channels.apply(bits_.row(py) + x0, x1 - x0); });
}

void Painter::BitsFillTexture(int x, int y, const Bits& source, int tolerance, int opacity)
{
    if (x < 0 || y < 0 || x >= bits_.width() || y >= bits_.height() || source.isNull()) return;
    const Bits held = source;
    const int tileW = held.width() + 2, tileH = held.height() + 2;
    const double inv = 1 - opacity / 100.0, op = 1 - inv;
    const Seed seed{x, y, std::as_const(bits_).at(x, y)};
    const Region& region = working();
    const Pixel first = held.at(x % tileW, y % tileH);
    if (region.contains(x, y)) {
        touch(y, x, x + 1);
        for (int c = 0; c < 3; ++c) bits_.row(y)[x].c[c] = toByte(first.c[c] * op + seed.colour.c[c] * inv);
    }
    if (isNearlyItself(first, seed.colour)) return;

    Table share, rest; // of the source and of the old value
    for (std::size_t v = 0; v < 256; ++v) {
        share[v] = toByte(static_cast<double>(v) * op);
        rest[v] = toByte(static_cast<double>(v) * inv);
    }
    Bits tile = held; // what the texture gives to each of its pixels
    for (int row = 0; opacity != 100 && row < tileH; ++row)
        for (Pixel *p = tile.row(row), *end = p + tileW; p < end; ++p)
            *p = {{share[p->c[0]], share[p->c[1]], share[p->c[2]], 0}};
    const ChannelTables channels(Tables{rest, rest, rest});
    flood(seed, tolerance, region, [&](int py, int x0, int x1) {
        const Pixel* row = std::as_const(tile).row(py % tileH);
        for (int px = x0; px < x1;) {
            const int column = px % tileW, count = std::min(x1 - px, tileW - column);
            const Pixel* from = row + column;
            Pixel* to = bits_.row(py) + px;
            if (opacity == 100) {
                blendRun(from, to, count, opacity, nullptr);
            } else {
                channels.apply(to, count);
                addPixels(from, to, count);
            }
            px += count;
        }
    });
}

} // namespace velara
