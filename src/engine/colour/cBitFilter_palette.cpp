// PaletteApply: the palette's nearest colours, with a reduced error diffusion.
#include "engine/colour/lookUps.h"
#include "engine/colour/mPalette.h"
#include "engine/passes.h"
#include "pixels/Register.h"
#include "pixels/nearest/NearestColours.h"
#include "pixels/numbers.h"
#include "pixels/threads/Copies.h"
#include "pixels/threads/WrittenRows.h"
#include "pixels/threads/inWaves.h"
#include <limits>

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

constexpr int kAbreast = 6, kLag = 2; // rows at once, and columns from one to the next: 1 would wait for the row above

/// Rows that are done together: kAbreast, each with its columns, or a single one.
struct Group {
    int y = 0, rows = 1;
    std::array<Columns, kAbreast> columns{};
};

/// A turn of the loop over the pixels, with error diffusion.
class Diffusion {
  public:
    Diffusion(const WrittenRows& source, const WrittenRows& out, int maxX, int maxY, Nearest& nearest)
        : source_(source), out_(out), maxX_(maxX), maxY_(maxY), nearest_(nearest)
    {
    }

    /// Every pixel depends on the one before it, so the rows are interleaved, each far enough behind the one above that
    /// its errors have arrived; the first one behind the last of the turn before.
    void rows(const Group& group, int turn, Wave& wave)
    {
        constexpr int kFollowing = 256; // columns, from one look at the turn before to the next
        const auto& columns = group.columns;
        Columns step = {kLag * kAbreast, maxX_}; // after the left column, before the last one
        for (int i = 0; i < kAbreast; ++i) {
            step.begin = std::max(step.begin, columns[std::size_t(i)].begin + kLag * i);
            step.end = std::min(step.end, columns[std::size_t(i)].end + kLag * i);
        }
        if (step.begin > step.end || group.y + kAbreast > maxY_) step = {};
        if (!wave.follow(turn, step.begin + kLag)) return;
        for (int i = 0; i < kAbreast; ++i) row(group.y + i, {columns[std::size_t(i)].begin, step.begin - kLag * i});
        Register p[kAbreast];
        for (int i = 0; i < kAbreast; ++i) p[i] = inRegister(source_.row(group.y)[step.begin + i * slant()]);
        for (int x = step.begin; x < step.end; x += kFollowing) {
            const int end = std::min(x + kFollowing, step.end);
            if (!wave.follow(turn, end + kLag)) return;
            abreast(group.y, {x, end}, p);
            wave.reach(turn, end - kLag * (kAbreast - 1));
        }
        if (!wave.follow(turn, kAll)) return;
        for (int i = 0; i < kAbreast; ++i) {
            const auto [begin, end] = columns[std::size_t(i)];
            row(group.y + i, {std::max(begin, step.end - kLag * i), end});
        }
    }

    void row(int y, Columns columns)
    {
        const bool low = y < maxY_;
        Pixel *from = source_.row(y), *to = out_.row(y);
        Register p = inRegister(from[columns.begin < columns.end ? columns.begin : 0]);
        for (int x = columns.begin; x < columns.end; ++x) {
            const bool inner = x < maxX_;
            p = pixel(p, from + x, to + x, inner, inner && low && x >= 1);
        }
    }

    static constexpr int kAll = std::numeric_limits<int>::max(); // columns: the turn before has ended

  private:
    std::ptrdiff_t slant() const { return source_.stride() - kLag; }

    void abreast(int y, Columns step, Register (&pixels)[kAbreast])
    {
        Pixel *from = source_.row(y), *to = out_.row(y);
        Register p[kAbreast]; // in registers
        std::copy_n(pixels, kAbreast, p);
        for (int x = step.begin; x < step.end; ++x)
#pragma GCC unroll 6 // kAbreast
            for (int i = 0; i < kAbreast; ++i)
                p[i] = pixel(p[i], from + x + i * slant(), to + x + i * slant(), true, true);
        std::copy_n(p, kAbreast, pixels);
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

    const WrittenRows source_, out_;
    const int maxX_, maxY_;
    Nearest& nearest_;
};

/// kAbreast rows where each of them has one span, else row by row.
template <class ColumnsOf> std::vector<Group> groupsOf(const Region& region, const Box& box, ColumnsOf columnsOf)
{
    std::vector<Group> groups;
    for (int y = box.ymin; y <= box.ymax; y += groups.back().rows) {
        Group group{y};
        int rows = 0;
        for (; rows < kAbreast && y + rows <= box.ymax; ++rows) {
            const auto spans = region.spans(y + rows);
            if (spans.size() != 1) break;
            group.columns[std::size_t(rows)] = columnsOf(spans.front());
        }
        if (rows == kAbreast) group.rows = rows;
        groups.push_back(group);
    }
    return groups;
}

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
    const int first = -Bits::kMargin, last = before.width() + Bits::kMargin, end = before.height() + Bits::kMargin;
    Bits source = Bits::uninitialized(before.width(), before.height());
    Bits out = Bits::uninitialized(before.width(), before.height());
    copyRows(before, out, -Bits::kMargin, box.ymin);
    copyRows(before, out, box.ymax + 1, end);
    copyRows(before, source, -Bits::kMargin, box.ymin + 1);
    copyRows(before, source, box.ymax + 2, end);
    const WrittenRows from(source), to(out);
    const auto columnsOf = [&](const Span& s) {
        return Columns{std::max(s.x0, box.xmin), std::min(s.x1, box.xmax + 1)};
    };
    /// What is beside a single span, or all of the row.
    const auto copyAround = [&](int y) {
        const auto spans = region.spans(y);
        const Columns own = spans.size() == 1 ? columnsOf(spans.front()) : Columns{last, last};
        copyPixels(before.row(y), to.row(y), first, std::min(own.begin, last));
        copyPixels(before.row(y), to.row(y), std::max(own.end, first), last);
    };
    const std::vector<Group> groups = groupsOf(region, box, columnsOf);
    Copies<Nearest> tables([] { return Nearest(); });
    const auto turn = [&](int i, Wave& wave) {
        const Group& group = groups[std::size_t(i)];
        for (int y = group.y; y < group.y + group.rows; ++y) {
            copyAround(y);
            copyPixels(before.row(y + 1), from.row(y + 1), first, last); // its errors go there
        }
        tables.lend([&](Nearest& nearest) {
            Diffusion diffusion(from, to, source.maxX(), source.maxY(), nearest);
            if (group.rows == kAbreast) return diffusion.rows(group, i, wave);
            if (!wave.follow(i, Diffusion::kAll)) return;
            for (const Span s : region.spans(group.y)) diffusion.row(group.y, columnsOf(s));
        });
    };
    inWaves(static_cast<int>(groups.size()), std::int64_t{kAbreast} * source.width(), turn, [&](int i) {
        const Group& group = groups[std::size_t(i)];
        for (int y = group.y; y < group.y + group.rows; ++y) progressDue(y, source.maxY());
    });
    report(100);
    if (bits_.sharesWith(before)) bits_ = source; // unless Progress has set another picture
    return out;
}

} // namespace velara
