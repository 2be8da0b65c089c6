// PaletteApply: the palette's nearest colours, with a reduced error diffusion.
#include "engine/colour/lookUps.h"
#include "engine/colour/mPalette.h"
#include "engine/passes.h"
#include "pixels/NearestColours.h"
#include "pixels/PixelLanes.h"
#include "pixels/numbers.h"

namespace velara {

namespace {

/// NearestColor as lanes, faster where all entries are bytes.
class Nearest {
  public:
    Nearest()
    {
        const std::vector<PaletteColor>& all = PaletteColors();
        const auto isByte = [](const PaletteColor& c) { return ((c.red | c.green | c.blue) & ~255) == 0; };
        if (all.empty() || all.size() > NearestColours::kMost || !std::all_of(all.begin(), all.end(), isByte)) return;
        std::vector<Pixel> pixels;
        std::transform(all.begin(), all.end(), std::back_inserter(pixels), asPixel);
        std::transform(pixels.begin(), pixels.end(), std::back_inserter(colours_), wide);
        nearest_ = std::make_unique<NearestColours>(pixels, Distance::Sum);
    }
    /// The palette's colour as bytes. Overflow if it is none; OutOfRange without a palette.
    Lanes operator()(Lanes p) { return nearest_ ? colours_[std::size_t((*nearest_)(p))] : oneByOne(p); }

  private:
    [[gnu::noinline, gnu::cold]] static Lanes oneByOne(Lanes p)
    {
        return wide(asPixel(NearestColor(p[2], p[1], p[0])));
    }
    static Pixel asPixel(const PaletteColor& c) { return {{toByte(c.blue), toByte(c.green), toByte(c.red), 0}}; }

    std::vector<Lanes> colours_;
    std::unique_ptr<NearestColours> nearest_; // null unless all are bytes, and few enough
};

constexpr Lanes kColour = {-1, -1, -1, 0};
constexpr int kUnseen = 3; // an error of all channels that is not spread

/// The channels with a sixteenth of the error given, cut towards zero, and clamped to bytes.
inline Lanes plusSixteenth(Lanes v, Lanes error) { return limited(v + ((error + ((error >> 31) & 15)) >> 4), 0, 255); }

struct Columns {
    int begin, end;
};

/// The loop over the pixels, with the errors that they pass on.
class Diffusion {
  public:
    Diffusion(Bits& source, Bits& out) : source_(source), out_(out) {}

    /// Rows from y on that stand abreast, with the columns of each: one column behind the other, each pixel comes after
    /// the two above it whose errors it and the next one have to have, and waits for the one before it together with
    /// the rows' others.
    static constexpr int kAbreast = 4;
    void rows(int y, const std::array<Columns, kAbreast>& columns)
    {
        Columns step = {kLag * kAbreast, source_.maxX()}; // past the left column, before the last one
        for (int i = 0; i < kAbreast; ++i) {
            step.begin = std::max(step.begin, columns[std::size_t(i)].begin + kLag * i);
            step.end = std::min(step.end, columns[std::size_t(i)].end + kLag * i);
        }
        if (step.begin > step.end || y + kAbreast > source_.maxY()) step = {};
        for (int i = 0; i < kAbreast; ++i) row(y + i, {columns[std::size_t(i)].begin, step.begin - kLag * i});
        abreast(y, step);
        for (int i = 0; i < kAbreast; ++i) {
            const auto [begin, end] = columns[std::size_t(i)];
            row(y + i, {std::max(begin, step.end - kLag * i), end});
        }
    }

    void row(int y, Columns columns)
    {
        const bool low = y < source_.maxY();
        Pixel *from = source_.row(y), *to = out_.row(y);
        Lanes p = wide(columns.begin < columns.end ? from[columns.begin] : Pixel{});
        for (int x = columns.begin; x < columns.end; ++x) {
            const bool inner = x < source_.maxX();
            p = pixel(p, from + x, to + x, inner, inner && low && x >= 1);
        }
    }

  private:
    static constexpr int kLag = 2;

    void abreast(int y, Columns step)
    {
        const auto stride = source_.stride() - kLag;
        Pixel *from = source_.row(y), *to = out_.row(y);
        std::array<Lanes, kAbreast> p;
        for (int i = 0; i < kAbreast; ++i) p[std::size_t(i)] = wide(from[step.begin + i * stride]);
        for (int x = step.begin; x < step.end; ++x)
#pragma GCC unroll 4
            for (int i = 0; i < kAbreast; ++i)
                p[std::size_t(i)] = pixel(p[std::size_t(i)], from + x + i * stride, to + x + i * stride, true, true);
    }

    /// p: what stands at from. Gives what then stands after it, which is at hand for the next one.
    [[gnu::always_inline]] Lanes pixel(Lanes p, Pixel* from, Pixel* to, bool toRight, bool toBelow)
    {
        const Lanes found = nearest_(p);
        *to = pixelFrom((wordOf(narrow(found)) & ~kFourthByte) | (wordOf(*to) & kFourthByte));
        const Lanes error = (p - found) & kColour, size = absolute(error);
        const Lanes next = wide(from[1]); // may be margin
        if (size[0] + size[1] + size[2] <= kUnseen) return next;
        Pixel& below = from[source_.stride()];
        if (toBelow) below = narrow(plusSixteenth(wide(below), error * 4));
        if (!toRight) return next;
        const Lanes changed = plusSixteenth(next, error * 7);
        from[1] = narrow(changed);
        return changed;
    }

    Bits &source_, &out_;
    Nearest nearest_;
};

} // namespace

Bits cBitFilter::PaletteApply()
{
    const Bits before = bits_;
    const Region region = region_;
    const Box box = insidePicture(GetBounds(0), before);
    Bits source = before, out = before;
    Diffusion diffusion(source, out);
    const auto columnsOf = [&](const Span& s) {
        return Columns{std::max(s.x0, box.xmin), std::min(s.x1, box.xmax + 1)};
    };
    for (int y = box.ymin; y <= box.ymax;) {
        std::array<Columns, Diffusion::kAbreast> columns;
        int rows = 0;
        for (; rows < Diffusion::kAbreast && y + rows <= box.ymax; ++rows) {
            const auto spans = region.spans(y + rows);
            if (spans.size() != 1) break;
            columns[std::size_t(rows)] = columnsOf(spans.front());
        }
        if (rows == Diffusion::kAbreast)
            diffusion.rows(y, columns);
        else
            for (const Span s : region.spans(y)) diffusion.row(y, columnsOf(s));
        for (const int end = y + (rows == Diffusion::kAbreast ? rows : 1); y < end; ++y) progressDue(y, source.maxY());
    }
    report(100);
    if (bits_.sharesWith(before)) bits_ = source; // unless a yield has brought another picture
    return out;
}

} // namespace velara
