// Random displacement of pixels. The region is tested at the source, not at the target.
#include "engine/neighbours/kernels_diffuse.h"
#include "engine/passes.h"
#include "pixels/numbers.h"
#include "pixels/threads/parallelFor.h"
#include <bit>

namespace velara {

namespace {

/// The part of the region inside the picture, as a bit mask.
PixelMask maskOf(const Region& region, const Bits& bits)
{
    PixelMask mask{{}, (bits.width() + 31) / 32};
    mask.words.resize(static_cast<std::size_t>(mask.wordsPerRow) * static_cast<std::size_t>(bits.height()));
    for (int y = 0; y < bits.height(); ++y) {
        std::uint32_t* const row =
            mask.words.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(mask.wordsPerRow);
        for (const Span s : region.spans(y))
            for (int x = std::max(s.x0, 0), end = std::min(s.x1, bits.width()); x < end;) {
                const int first = x % 32, count = std::min(32 - first, end - x);
                row[x / 32] |= (~0u >> (32 - count)) << first;
                x += count;
            }
    }
    return mask;
}

/// The widest span of each row of the box, and from the first to the last one.
class WidestSpans {
  public:
    WidestSpans(const Region& region, const Box& box) : box_(box)
    {
        for (int y = box.ymin; y <= box.ymax; ++y) {
            Span widest{0, 0};
            const auto spans = region.spans(y);
            for (const Span s : spans)
                if (s.x1 - s.x0 > widest.x1 - widest.x0) widest = s;
            rows_.push_back({widest, spans.empty() ? widest : Span{spans.front().x0, spans.back().x1}});
        }
    }

    /// True when the region covers all of the part of the rectangle inside the box. False negatives are possible.
    bool cover(const Box& part) const
    {
        const int x0 = std::max(part.xmin, box_.xmin), x1 = std::min(part.xmax, box_.xmax) + 1;
        return all(part, [=](const Row& row) { return row.widest.x0 <= x0 && row.widest.x1 >= x1; });
    }
    /// True when the region has nothing of the rectangle. False negatives are possible.
    bool miss(const Box& part) const
    {
        return all(part, [&](const Row& row) { return row.extent.x1 <= part.xmin || row.extent.x0 > part.xmax; });
    }

  private:
    struct Row {
        Span widest, extent;
    };
    template <class Holds> bool all(const Box& part, Holds holds) const
    {
        const int y0 = std::max(part.ymin, box_.ymin), y1 = std::min(part.ymax, box_.ymax);
        return std::all_of(rows_.begin() + (y0 - box_.ymin), rows_.begin() + (y1 + 1 - box_.ymin), holds);
    }

    const Box box_;
    std::vector<Row> rows_;
};

/// The same in plain arithmetic, for ranges of any size and the remainder of a vector.
void diffuseLiterally(SpanOf s, int y, int horizontal, int vertical, Random random, std::uint32_t first,
                      const Sources& among)
{
    const auto hx = static_cast<float>(horizontal / 2.0), hy = static_cast<float>(vertical / 2.0);
    for (int x = s.x0; x < s.x1; ++x) {
        const std::uint32_t number = first + 2 * static_cast<std::uint32_t>(x);
        const int sx = roundEven(double{random.single(number)} * horizontal + x - hx);
        const int sy = roundEven(double{random.single(number + 1)} * vertical + y - hy);
        s.to[x] = s.from[x];
        if (sx < among.x0 || sx >= among.x1 || sy < among.y0 || sy >= among.y1) continue;
        if (among.mask && !among.mask->contains(sx, sy)) continue;
        std::memcpy(s.to[x].c, s.from[(sy - y) * s.stride + sx].c, 3);
    }
}

bool isSmall(int range) { return std::abs(std::int64_t{range}) <= Displacement::kMostRange; }

// The sources of a pixel are many rows apart: blocks of this size keep them in the first-level cache.
constexpr int kBlockRows = 64, kBlockColumns = 128;

} // namespace

Bits cBitFilter::DIFFUSE(int HorizontalRange, int VerticalRange)
{
    const Bits in = bits_;
    const Region region = region_;
    const Box box = insidePicture(GetBounds(0), in);
    const Random random = nextRandom();
    if (box.isEmpty()) return eachSpan(0, copyPixels);
    const bool small = isSmall(HorizontalRange) && isSmall(VerticalRange);
    const WidestSpans widest(region, box);
    const PixelMask mask = widest.cover(box) ? PixelMask() : maskOf(region, in);
    const Sources whole{box.xmin, box.xmax + 1, box.ymin, box.ymax + 1, nullptr};

    Bits out = Bits::uninitialized(in.width(), in.height());
    copyRows(in, out, -Bits::kMargin, box.ymin);
    constexpr int reach = Displacement::kMostRange / 2 + 1;
    const WrittenRows rows(out);
    const auto run = [&](SpanOf span, int y, const Sources& among) {
        const std::uint32_t first = 2 * static_cast<std::uint32_t>(y) * static_cast<std::uint32_t>(in.width());
        if (small) span.x0 = diffusePixels(span, y, {HorizontalRange, VerticalRange, random, first}, among);
        diffuseLiterally(span, y, HorizontalRange, VerticalRange, random, first, among);
    };
    const auto block = [&](int top, int bottom) {
        Sources among = whole;
        for (int x = among.x0; x < among.x1; x += kBlockColumns) {
            const int end = std::min(x + kBlockColumns, among.x1);
            const Box reached{x - reach, end + reach, top - reach, bottom + reach};
            if (small && widest.miss(reached)) { // all stay
                for (int y = top; y <= bottom; ++y) copyPixels(in.row(y), rows.row(y), x, end);
                continue;
            }
            among.mask = mask.words.empty() || (small && widest.cover(reached)) ? nullptr : &mask;
            for (int y = top; y <= bottom; ++y) run({in.row(y), in.stride(), rows.row(y), x, end}, y, among);
        }
        for (int y = top; y <= bottom; ++y) {
            copyPixels(in.row(y), rows.row(y), -Bits::kMargin, among.x0);
            copyPixels(in.row(y), rows.row(y), among.x1, in.width() + Bits::kMargin);
        }
    };
    const auto bottomOf = [&](int i) { return std::min(box.ymin + (i + 1) * kBlockRows - 1, box.ymax); };
    parallelFor((box.ymax - box.ymin) / kBlockRows + 1, turnsTogether(kBlockRows * in.width()),
                [&](int i) { block(box.ymin + i * kBlockRows, bottomOf(i)); },
                [&](int i) { progressDue(bottomOf(i), in.maxY()); });
    copyRows(in, out, box.ymax + 1, in.height() + Bits::kMargin);
    report(100);
    return out;
}

} // namespace velara
