// Filters that work cell by cell: blocks of one colour, and dots on black.
#include "engine/passes.h"
#include "engine/stylise/CellSums.h"
#include "pixels/RuntimeError.h"
#include "pixels/numbers.h"
#include <array>
#include <ranges>

namespace velara {

namespace {

constexpr Pixel kBlack = {{0, 0, 0, 0}};
constexpr std::uint64_t kExactSums = 1 << 23; // quotients of smaller sums are safe in singles

/// The columns from the first to the last that is selected in some of the rows y to end-1, inside the given ones; empty
/// where none is.
Span columnsOf(const Region& region, int y, int end, Span inside)
{
    Span all{inside.x1, inside.x0};
    for (; y < end; ++y) {
        const auto spans = region.spans(y);
        if (spans.empty()) continue;
        all.x0 = std::clamp(spans.front().x0, inside.x0, all.x0);
        all.x1 = std::max(all.x1, std::min(spans.back().x1, inside.x1));
    }
    return all;
}

/// The colours of a row of blocks, and the colour carried from pixel to pixel: it changes only at the start of a block,
/// so a span that begins inside a block continues with the colour of the previous block, in this row or the last one.
class Blocks {
  public:
    Blocks(const Bits& in, const Region& region, int size)
        : in_(in), region_(region), size_(size), sums_(in.width(), 0, size, size), means_(sums_.cells().size()),
          line_(static_cast<std::size_t>(in.width()))
    {
    }

    void span(const Pixel* from, Pixel* to, int x0, int x1, int y)
    {
        const int start = firstBlock(x0, x1);
        if (y / size_ != band_) {
            mix(y / size_);
            if (start != x0) held_ = leftBefore(x0, y);
        }
        for (int x = x0; x < start; ++x) to[x] = {{held_.c[0], held_.c[1], held_.c[2], from[x].c[3]}};
        if (start == x1) return;
        cellKernels().paintLine({from, in_.stride(), to, start, x1}, line_.data());
        held_ = line_[static_cast<std::size_t>(x1) - 1];
    }

  private:
    /// The first column from x0 on at which a block begins; x1 where none does before it.
    int firstBlock(int x0, int x1) const
    {
        return static_cast<int>(std::min<std::int64_t>((std::int64_t{x0} + size_ - 1) / size_ * size_, x1));
    }

    /// The colour that the spans before a pixel leave.
    Pixel leftBefore(int x, int y) const
    {
        for (int row = y; row >= 0; --row)
            for (const Span s : std::views::reverse(region_.spans(row))) {
                const int x0 = std::max(s.x0, 0), x1 = std::min(s.x1, in_.width());
                if (x0 >= x1 || (row == y && x0 >= x)) continue;
                if (firstBlock(x0, x1) < x1) return meanAt(x1 - 1, row);
            }
        return kBlack;
    }

    /// The mean of the block that has a pixel.
    Pixel meanAt(int x, int y) const
    {
        const int x0 = x - x % size_, y0 = y - y % size_;
        const int x1 = x0 + std::min(size_, in_.width() - x0), y1 = y0 + std::min(size_, in_.height() - y0);
        std::array<std::uint64_t, 3> sums{};
        for (y = y0; y < y1; ++y)
            for (x = x0; x < x1; ++x)
                for (std::size_t c = 0; c < 3; ++c) sums[c] += in_.row(y)[x].c[c];
        const auto count = static_cast<std::uint64_t>(x1 - x0) * static_cast<std::uint64_t>(y1 - y0);
        Pixel mean = kBlack;
        for (std::size_t c = 0; c < 3; ++c) mean.c[c] = static_cast<std::uint8_t>(sums[c] / count);
        return mean;
    }

    /// The means of those blocks that selected pixels of the band may use, region ignored.
    void mix(int band)
    {
        band_ = band;
        const int y0 = band * size_,
                  y1 = static_cast<int>(std::min<std::int64_t>(std::int64_t{y0} + size_, in_.height()));
        auto [x0, x1] = columnsOf(region_, y0, y1, {0, in_.width()});
        if (x0 >= x1) return;
        x0 = x0 / size_ * size_;
        x1 = static_cast<int>(std::min<std::int64_t>((std::int64_t{x1} + size_ - 1) / size_ * size_, in_.width()));
        if (size_ == 2 && y1 == y0 + 2)
            return cellKernels().meansOfFours(in_.row(y0), in_.row(y0 + 1), line_.data(), x0, x1);
        sums_.clear();
        for (int y = y0, rows; y < y1; y += rows) {
            rows = std::min(y1 - y, CellSums::kRowsTogether);
            sums_.add(in_.row(y), in_.stride(), rows, x0, x1);
            sums_.rowsDone(rows);
        }
        sums_.finish();
        const auto first = static_cast<std::size_t>(x0 / size_), last = static_cast<std::size_t>((x1 - 1) / size_);
        average(first, last); // the last one may be narrower
        average(last, last + 1);
        for (std::size_t k = first; k <= last; ++k)
            for (const int end = size_ < x1 - x0 ? x0 + size_ : x1; x0 < end; ++x0)
                line_[static_cast<std::size_t>(x0)] = means_[k];
    }

    /// The means of the blocks first to last-1, which all have the same number of pixels.
    void average(std::size_t first, std::size_t last)
    {
        if (first == last) return;
        const CellSum* cells = sums_.cells().data();
        const std::uint64_t count = cells[first].count();
        if (255 * count < kExactSums)
            return cellKernels().meansOf(cells + first, static_cast<std::int32_t>(count), true, &means_[first],
                                         last - first);
        for (std::size_t k = first; k < last; ++k)
            for (int c = 0; c < 3; ++c) means_[k].c[c] = static_cast<std::uint8_t>(cells[k].c[c] / count);
    }

    const Bits in_;
    const Region region_;
    const int size_;
    CellSums sums_;
    std::vector<Pixel> means_, line_; // of the blocks, and of the pixels of a row
    Pixel held_ = kBlack;
    int band_ = -1;
};

/// Rows of a piece: whole rows of cells, enough that its own tables are worth it.
std::int64_t wholeCells(std::int64_t step)
{
    constexpr std::int64_t kRows = 64;
    return (kRows + step - 1) / step * step;
}

} // namespace

Bits cBitFilter::PIXELIZE(int Size)
{
    if (Size == 0) return eachSpan(0, divideByZero);
    if (Size < 0) return eachSpan(0, blacken); // the blocks contain no pixels
    if (Size == 1) return eachSpan(0, copyPixels);
    const Bits in = bits_;
    const Region region = region_;
    return eachSpanOf(0, {wholeCells(Size)}, [&] {
        return [blocks = Blocks(in, region, Size)](const Pixel* from, Pixel* to, int x0, int x1, int y) mutable {
            blocks.span(from, to, x0, x1, y);
        };
    });
}

namespace {

/// The brightness of a dot at an offset from its centre.
class Spot {
  public:
    Spot(int radius, int limit) : radius_(radius), limit_(limit)
    {
        if (radius > kMostTabled || limit <= 0) return; // outside the dialogs' range and too large for tables
        std::vector<float> factors(2 * static_cast<std::size_t>(radius * radius) + 1, kNone);
        for (int oy = -radius; oy < radius; ++oy)
            for (int ox = -radius; ox < radius; ++ox) {
                float& factor = factors[static_cast<std::size_t>(ox * ox + oy * oy)];
                if (factor == kNone) factor = exactFactor(ox, oy);
                rows_.push_back(factor);
            }
        if (std::ranges::find(rows_, kNone) != rows_.end()) rows_.clear();
    }

    /// True when round(s * factor) in singles gives the byte of each sum s from 0 to 255.
    bool isTabled() const { return !rows_.empty(); }
    /// The factors at the offsets -radius to radius-1 in row oy.
    const float* factors(std::int64_t oy) const { return rows_.data() + (oy + radius_) * 2 * radius_; }

    /// The byte in plain arithmetic. Overflow where it is out of byte range.
    std::uint8_t at(std::int64_t ox, std::int64_t oy, double sum) const
    {
        const std::int64_t distance = ox * ox + oy * oy;
        return distance > limit_ ? std::uint8_t{0} : toByte(brightness(distance) * sum);
    }

  private:
    static constexpr int kMostTabled = 32;
    static constexpr float kNone = -1;

    float brightness(std::int64_t distance) const
    {
        return static_cast<float>(1 - quotient(static_cast<double>(distance), limit_));
    }

    /// Products in singles may round a value next to a half onto it. An adjacent float that gives all 256 bytes
    /// correctly is used instead.
    float exactFactor(int ox, int oy) const
    {
        const std::int64_t distance = ox * ox + oy * oy;
        if (distance > limit_) return 0;
        const float f = brightness(distance), up = std::nextafter(f, 2.0f), down = std::nextafter(f, 0.0f);
        for (const float factor : {f, up, down, std::nextafter(up, 2.0f), std::nextafter(down, 0.0f)}) {
            int sum = 0;
            while (sum < 256 && std::nearbyint(static_cast<float>(sum) * factor) == at(ox, oy, sum)) ++sum;
            if (sum == 256) return factor;
        }
        return kNone;
    }

    const int radius_, limit_;
    std::vector<float> rows_;
};

/// Cells of 2*radius+1 pixels a side, 2*radius apart, from the corner of the box. A later cell overwrites the shared
/// row and column of an earlier one, so each pixel gets its byte from the last cell that contains it.
class Dots {
  public:
    Dots(const Bits& in, const Region& region, const Box& box, int radius, const Spot& spot, float gain)
        : in_(in), region_(region), box_(box), radius_(radius), step_(2 * std::int64_t{radius}), gain_(gain),
          spot_(spot), sums_(in.width(), box.xmin, step_, step_ + 1), means_(sums_.cells().size()),
          line_(static_cast<std::size_t>(in.width())), factors_(line_.size())
    {
    }

    void span(const Pixel* from, Pixel* to, int x0, int x1, int y)
    {
        const std::int64_t band = (std::int64_t{y} - box_.ymin) / step_;
        if (band != band_) mix(band);
        const std::int64_t oy = std::int64_t{y} - box_.ymin - band * step_ - radius_;
        if (!plain_) return literally(from, to, x0, x1, oy);
        if (y != factorsOf_) spread(y, oy);
        factorsOf_ = y;
        cellKernels().paintScaled({from, in_.stride(), to, x0, x1}, line_.data(), factors_.data());
    }

  private:
    std::int64_t leftOf(std::size_t cell) const { return box_.xmin + static_cast<std::int64_t>(cell) * step_; }
    int firstColumn() const { return std::max(box_.xmin, 0); }
    int endColumn() const { return std::min(box_.xmax + 1, in_.width()); }
    Span columns(int y, std::int64_t end) const
    {
        return columnsOf(region_, y, static_cast<int>(end), {firstColumn(), endColumn()});
    }

    void literally(const Pixel* from, Pixel* to, int x0, int x1, std::int64_t oy) const
    {
        for (int x = x0; x < x1; ++x) {
            const auto cell = static_cast<std::size_t>((std::int64_t{x} - box_.xmin) / step_);
            to[x] = spotPixel(cell, x - leftOf(cell) - radius_, oy);
            to[x].c[3] = from[x].c[3];
        }
    }

    Pixel spotPixel(std::size_t cell, std::int64_t ox, std::int64_t oy) const
    {
        const CellSum& sum = sums_.cells()[cell];
        const std::int32_t parts = partsOf(sum.count());
        Pixel out{};
        for (int c = 0; c < 3; ++c) {
            const auto s = static_cast<double>(sum.c[c]);
            out.c[c] = spot_.at(ox, oy, parts > 0 ? std::min(roundToEven(s / parts), 255.0) : s);
        }
        return out;
    }

    std::int32_t partsOf(std::uint64_t count) const { return roundEven(quotient(static_cast<double>(count), gain_)); }

    /// The colours of a row of cells. plain_ says whether its line can be painted in singles.
    void mix(std::int64_t band)
    {
        band_ = band;
        const std::int64_t top = box_.ymin + band * step_, end = std::min<std::int64_t>(top + step_ + 1, in_.height());
        plain_ = spot_.isTabled();
        if (plain_ && step_ == 2 && top >= 0 && mixNines(static_cast<int>(top))) return;
        sums_.clear();
        for (int y = static_cast<int>(std::max<std::int64_t>(top, 0)), rows; y < end; y += rows) {
            rows = std::min(static_cast<int>(end) - y, CellSums::kRowsTogether);
            addSelected(y, rows);
            sums_.rowsDone(rows);
        }
        sums_.finish();
        const auto& cells = sums_.cells();
        for (std::size_t i = 0; i < cells.size();) { // runs of cells with equal pixel counts
            std::size_t next = i;
            while (next < cells.size() && cells[next].count() == cells[i].count()) ++next;
            mixRun(i, next, top);
            i = next;
        }
        if (!plain_) return;
        const Span row = columns(static_cast<int>(std::max<std::int64_t>(top, 0)), end);
        auto cell = static_cast<std::size_t>((std::int64_t{row.x0} - box_.xmin) / step_);
        for (int x = row.x0; x < row.x1; ++cell)
            for (const auto stop = std::min<std::int64_t>(leftOf(cell) + step_, row.x1); x < stop; ++x)
                line_[static_cast<std::size_t>(x)] = means_[cell];
    }

    /// Adds the selected pixels of some rows, at most kRowsTogether: those that all rows have together.
    void addSelected(int first, int rows)
    {
        Span common{0, in_.width()};
        for (int y = first; y < first + rows; ++y) {
            const auto spans = region_.spans(y);
            const Span only = spans.size() == 1 ? spans.front() : Span{0, 0};
            common = {std::max(common.x0, only.x0), std::min(common.x1, only.x1)};
        }
        if (common.x0 >= common.x1) common = {in_.width(), in_.width()};
        const auto add = [&](int y, int count, int x0, int x1) {
            if (x0 < x1) sums_.add(in_.row(y), in_.stride(), count, x0, x1);
        };
        add(first, rows, common.x0, common.x1);
        for (int y = first; y < first + rows; ++y)
            for (const Span s : region_.spans(y)) {
                add(y, 1, std::max(s.x0, 0), std::min(s.x1, common.x0));
                add(y, 1, std::max(s.x0, common.x1), std::min(s.x1, in_.width()));
            }
    }

    /// The line of a row of cells of three by three pixels that are all selected, but for what is outside of the
    /// picture to the right. False where it is not such a row.
    bool mixNines(int top)
    {
        const int x0 = box_.xmin, x1 = endColumn();
        if (x0 < 0 || top + 3 > in_.height()) return false;
        for (int y = top; y < top + 3; ++y) {
            const auto spans = region_.spans(y);
            if (spans.size() != 1 || spans[0].x0 > x0 || spans[0].x1 < x1) return false;
        }
        const auto parts = partsOf(9), lastParts = partsOf((x1 - x0) % 2 == 0 ? 6 : 3);
        if (lastParts <= 0) return false;
        cellKernels().meansOfNines(in_.row(top), in_.stride(), parts, lastParts, line_.data(), x0, x1);
        return true;
    }

    /// The cells first to last-1, which all have the same number of pixels.
    void mixRun(std::size_t first, std::size_t last, std::int64_t top)
    {
        const auto& cells = sums_.cells();
        const std::uint64_t count = cells[first].count();
        const std::int32_t parts = partsOf(count);
        if (count * 255 >= kExactSums) plain_ = false;
        if (parts > 0) {
            if (plain_) cellKernels().meansOf(&cells[first], parts, false, &means_[first], last - first);
            return;
        }
        // Too few pixels to divide by: the sums are used unchanged.
        for (; first < last; ++first) {
            const std::uint64_t* c = cells[first].c;
            for (int i = 0; i < 3; ++i) means_[first].c[i] = static_cast<std::uint8_t>(c[i]);
            if (std::max({c[0], c[1], c[2]}) < 256) continue;
            plain_ = false;
            checkSharedEdges(first, leftOf(first), top);
        }
    }

    /// An overflowing sum raises its fault even where the next cell overwrites it.
    void checkSharedEdges(std::size_t cell, std::int64_t left, std::int64_t top) const
    {
        for (std::int64_t i = 0; i <= step_; ++i)
            for (const auto& [x, y] : {std::pair{left + step_, top + i}, std::pair{left + i, top + step_}})
                if (x >= 0 && y >= 0 && x < in_.width() && y < in_.height() &&
                    region_.contains(static_cast<int>(x), static_cast<int>(y)))
                    spotPixel(cell, x - left - radius_, y - top - radius_);
    }

    /// The dot's row, repeated over the columns of a row.
    void spread(int y, std::int64_t oy)
    {
        const float* row = spot_.factors(oy);
        const auto period = static_cast<int>(step_);
        const auto [from, x1] = columns(y, y + 1);
        constexpr int kLine = 16;       // of singles: elsewhere each copied vector would lie across two
        constexpr int kShortCopy = 256; // longer ones go through string instructions, which begin slowly
        const int x0 = from - (from - firstColumn()) % kLine;
        const auto phase = static_cast<int>((std::int64_t{x0} - box_.xmin) % step_);
        float* to = factors_.data() + x0;
        int done = std::min(period, x1 - x0);
        for (int i = 0; i < done; ++i) to[i] = row[(i + phase) % period];
        const int most = std::max(kShortCopy / period, 1) * period;
        for (int n = done; done < x1 - x0; done += n, n = std::min(done, most))
            std::copy_n(to, std::min(n, x1 - x0 - done), to + done);
    }

    const Bits in_;
    const Region region_;
    const Box box_;
    const std::int64_t radius_, step_;
    const double gain_;
    const Spot& spot_;
    CellSums sums_;
    std::vector<Pixel> means_, line_; // of the cells, and of the pixels of a row
    std::vector<float> factors_;
    bool plain_ = false;
    std::int64_t band_ = -1;
    int factorsOf_ = -1;
};

} // namespace

Bits cBitFilter::Halftone(int Radius, int Definition, int Intensity)
{
    const double radius = Radius;
    const std::int32_t limit = roundEven(quotient(radius + Definition, radius) * radius * radius);
    const auto gain = static_cast<float>((Intensity + 100.0) / 100);
    const Box box = GetBounds(0);
    if (Radius < 0 || insidePicture(box, bits_).isEmpty()) return eachSpan(0, copyPixels);
    if (gain == 0) throw RuntimeError(Fault::DivisionByZero); // every cell divides, also one without pixels
    const Bits in = bits_;
    const Region region = region_;
    const Spot spot(Radius, limit);
    return eachSpanOf(0, {wholeCells(2 * std::int64_t{Radius}), box.ymin}, [&] {
        return [dots = Dots(in, region, box, Radius, spot, gain)](const Pixel* from, Pixel* to, int x0, int x1,
                                                                  int y) mutable { dots.span(from, to, x0, x1, y); };
    });
}

} // namespace velara
