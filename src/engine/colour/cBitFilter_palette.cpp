// PaletteApply: the palette's nearest colours, with a reduced error diffusion.
#include "engine/colour/lookUps.h"
#include "engine/colour/mPalette.h"
#include "engine/passes.h"
#include "pixels/Register.h"
#include "pixels/nearest/NearestColours.h"
#include "pixels/numbers.h"

namespace velara {

namespace {

/// NearestColor of a pixel in the low bytes of a register, faster when all entries are bytes.
class Nearest {
  public:
    Nearest()
    {
        const std::vector<PaletteColor>& all = PaletteColors();
        const auto isByte = [](const PaletteColor& c) { return ((c.red | c.green | c.blue) & ~255) == 0; };
        if (all.empty() || all.size() > NearestColours::kMost || !std::all_of(all.begin(), all.end(), isByte)) return;
        std::vector<Pixel> pixels;
        std::transform(all.begin(), all.end(), std::back_inserter(pixels), asPixel);
        nearest_ = std::make_unique<NearestColours>(pixels, Distance::Sum);
        colours_ = std::move(pixels);
    }
    /// The palette's colour, its fourth byte 0. Overflow if it isn't made of bytes; OutOfRange without a palette.
    Register operator()(Register p)
    {
        return inRegister(nearest_ ? colours_[std::size_t((*nearest_)(p))] : oneByOne(wordOf(p)));
    }

  private:
    [[gnu::noinline, gnu::cold]] static Pixel oneByOne(int word)
    {
        const auto p = std::bit_cast<Pixel>(word);
        return asPixel(NearestColor(p.c[2], p.c[1], p.c[0]));
    }
    static Pixel asPixel(const PaletteColor& c) { return {{toByte(c.blue), toByte(c.green), toByte(c.red), 0}}; }

    std::vector<Pixel> colours_;
    std::unique_ptr<NearestColours> nearest_; // null unless all are bytes, and few enough
};

constexpr int kUnseen = 3; // a total error over the channels that is not diffused

struct Columns {
    int begin, end;
};

/// The loop over the pixels, with error diffusion.
class Diffusion {
  public:
    Diffusion(Bits& source, Bits& out) : source_(source), out_(out) {}

    /// Rows from y on, each with its columns. Every pixel depends on the one before it, so several rows are
    /// interleaved, each far enough behind the one above that its errors have arrived.
    static constexpr int kAbreast = 6;
    void rows(int y, const std::array<Columns, kAbreast>& columns)
    {
        Columns step = {kLag * kAbreast, source_.maxX()}; // after the left column, before the last one
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
        Register p = inRegister(from[columns.begin < columns.end ? columns.begin : 0]);
        for (int x = columns.begin; x < columns.end; ++x) {
            const bool inner = x < source_.maxX();
            p = pixel(p, from + x, to + x, inner, inner && low && x >= 1);
        }
    }

  private:
    static constexpr int kLag = 2; // 1 would be correct, but each step would wait for the row above

    void abreast(int y, Columns step)
    {
        const auto stride = source_.stride() - kLag;
        Pixel *from = source_.row(y), *to = out_.row(y);
        Register p[kAbreast];
        for (int i = 0; i < kAbreast; ++i) p[i] = inRegister(from[step.begin + i * stride]);
        for (int x = step.begin; x < step.end; ++x)
#pragma GCC unroll 6 // kAbreast
            for (int i = 0; i < kAbreast; ++i)
                p[i] = pixel(p[i], from + x + i * stride, to + x + i * stride, true, true);
    }

    /// p: the pixel at from. Returns the one after it, errors added, which is in a register for the next step.
    [[gnu::always_inline]] Register pixel(Register p, Pixel* from, Pixel* to, bool toRight, bool toBelow)
    {
        const Register found = nearest_(p);
        *to = pixelFrom(static_cast<std::uint32_t>(wordOf(found)) |
                        (static_cast<std::uint32_t>(wordOf(p)) & kFourthByte));
        const Register next = inRegister(from[1]); // may be margin
        if (errorOf(p, found) <= kUnseen) return next;
        Pixel& below = from[source_.stride()];
        const Register both = plusError(joined(next, inRegister(below)), p, found);
        if (toBelow) below = std::bit_cast<Pixel>(secondWordOf(both));
        if (!toRight) return next;
        from[1] = std::bit_cast<Pixel>(wordOf(both));
        return both;
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
    if (box.isEmpty()) {
        report(100);
        return before;
    }
    Bits source = before, out = Bits::uninitialized(before.width(), before.height());
    copyRows(before, out, -Bits::kMargin, box.ymin);
    copyRows(before, out, box.ymax + 1, before.height() + Bits::kMargin);
    Diffusion diffusion(source, out);
    const auto columnsOf = [&](const Span& s) {
        return Columns{std::max(s.x0, box.xmin), std::min(s.x1, box.xmax + 1)};
    };
    /// What is beside a single span, or all of the row.
    const auto copyAround = [&](int y) {
        const int first = -Bits::kMargin, last = before.width() + Bits::kMargin;
        const auto spans = region.spans(y);
        const Columns own = spans.size() == 1 ? columnsOf(spans.front()) : Columns{last, last};
        copyPixels(before.row(y), out.row(y), first, std::min(own.begin, last));
        copyPixels(before.row(y), out.row(y), std::max(own.end, first), last);
    };
    for (int y = box.ymin; y <= box.ymax;) {
        std::array<Columns, Diffusion::kAbreast> columns;
        int rows = 0;
        for (; rows < Diffusion::kAbreast && y + rows <= box.ymax; ++rows) {
            const auto spans = region.spans(y + rows);
            if (spans.size() != 1) break;
            columns[std::size_t(rows)] = columnsOf(spans.front());
        }
        const int end = y + (rows == Diffusion::kAbreast ? rows : 1);
        for (int row = y; row < end; ++row) copyAround(row);
        if (rows == Diffusion::kAbreast)
            diffusion.rows(y, columns);
        else
            for (const Span s : region.spans(y)) diffusion.row(y, columnsOf(s));
        for (; y < end; ++y) progressDue(y, source.maxY());
    }
    report(100);
    if (bits_.sharesWith(before)) bits_ = source; // unless Progress has set another picture
    return out;
}

} // namespace velara
