// Filters that work cell by cell: blocks of one colour, and dots on black.
#include "filters/CellSums.h"
#include "filters/RuntimeError.h"
#include "filters/numbers.h"
#include "filters/passes.h"
#include <bit>

namespace velara {

namespace {

constexpr Pixel kBlack = {{0, 0, 0, 0}};

/// The colours of a row of blocks, and the colour that is held from pixel to pixel: it is renewed at the start of a
/// block alone, so a span that begins inside a block goes on with the colour of the block before, in the row or in the
/// last.
class Blocks {
  public:
    Blocks(const Bits& in, const Region& region, int size)
        : in_(in), region_(region), size_(size), sums_(in.width(), 0, size, size),
          line_(static_cast<std::size_t>(in.width()))
    {
    }

    void span(const Pixel* from, Pixel* to, int x0, int x1, int y)
    {
        if (y / size_ != band_) mix(y / size_);
        const int start = static_cast<int>(std::min<std::int64_t>((std::int64_t{x0} + size_ - 1) / size_ * size_, x1));
        for (int x = x0; x < start; ++x) to[x] = {{held_.c[0], held_.c[1], held_.c[2], from[x].c[3]}};
        if (start == x1) return;
        cellKernels().paintLine({from, in_.stride(), to, start, x1}, line_.data());
        held_ = line_[static_cast<std::size_t>(x1) - 1];
    }

  private:
    /// The means of the blocks that selected pixels of the band may ask for, the region being ignored in them.
    void mix(int band)
    {
        band_ = band;
        const int y0 = band * size_,
                  y1 = static_cast<int>(std::min<std::int64_t>(std::int64_t{y0} + size_, in_.height()));
        int x0 = in_.width(), x1 = 0;
        for (int y = y0; y < y1; ++y) {
            const auto spans = region_.spans(y);
            if (spans.empty()) continue;
            x0 = std::clamp(spans.front().x0, 0, x0);
            x1 = std::max(x1, std::min(spans.back().x1, in_.width()));
        }
        if (x0 >= x1) return;
        x0 = x0 / size_ * size_;
        x1 = static_cast<int>(std::min<std::int64_t>((std::int64_t{x1} + size_ - 1) / size_ * size_, in_.width()));
        sums_.clear();
        for (int y = y0; y < y1; ++y) {
            sums_.add(in_.row(y), x0, x1);
            sums_.rowDone();
        }
        sums_.finish();
        RepeatedDivider divided;
        for (int x = x0; x < x1;) {
            const CellSum& sum = sums_.cells()[static_cast<std::size_t>(x / size_)];
            Pixel colour = kBlack;
            for (int c = 0; c < 3; ++c) colour.c[c] = static_cast<std::uint8_t>(divided(sum.c[c], sum.count));
            for (const int end = size_ < x1 - x ? x + size_ : x1; x < end; ++x)
                line_[static_cast<std::size_t>(x)] = colour;
        }
    }

    const Bits in_;
    const Region region_;
    const int size_;
    CellSums sums_;
    std::vector<Pixel> line_;
    Pixel held_ = kBlack;
    int band_ = -1;
};

void blacken(const Pixel* from, Pixel* to, int x0, int x1)
{
    for (int x = x0; x < x1; ++x) to[x] = {{0, 0, 0, from[x].c[3]}};
}

} // namespace

Bits cBitFilter::PIXELIZE(int Size)
{
    if (Size == 0) return eachSpan(0, divideByZero);
    if (Size < 0) return eachSpan(0, blacken); // the blocks have no pixels
    if (Size == 1) return eachSpan(0, copyPixels);
    return eachSpan(0, [blocks = Blocks(bits_, region_, Size)](const Pixel* from, Pixel* to, int x0, int x1,
                                                               int y) mutable { blocks.span(from, to, x0, x1, y); });
}

namespace {

/// How bright a spot is at an offset from its centre, and the bytes that follow from it.
class Spot {
  public:
    Spot(int radius, int limit) : radius_(radius), limit_(limit)
    {
        if (radius > kMostTabled || limit <= 0) return; // beyond the dialogs, and too large for tables
        std::vector<int> rowOf(2 * static_cast<std::size_t>(radius * radius) + 1, -1);
        for (int oy = -radius; oy < radius; ++oy)
            for (int ox = -radius; ox < radius; ++ox) {
                int& row = rowOf[static_cast<std::size_t>(ox * ox + oy * oy)];
                if (row < 0) row = addRow(ox, oy);
                rows_.push_back(static_cast<std::uint32_t>(256 * row));
            }
    }

    bool isTabled() const { return !rows_.empty(); }
    /// The byte of the sum s (0 to 255) at (ox, oy) is tables()[offsets(oy)[ox + radius] + s].
    const std::uint32_t* offsets(std::int64_t oy) const { return rows_.data() + (oy + radius_) * 2 * radius_; }
    const std::uint8_t* tables() const { return tables_.data(); }

    /// The same by definition. Overflow where a byte does not hold it.
    std::uint8_t at(std::int64_t ox, std::int64_t oy, double sum) const
    {
        const std::int64_t distance = ox * ox + oy * oy;
        if (distance > limit_) return 0;
        const auto f = static_cast<float>(1 - quotient(static_cast<double>(distance), limit_));
        return toByte(f * sum);
    }

  private:
    static constexpr int kMostTabled = 32;
    int addRow(int ox, int oy)
    {
        for (int sum = 0; sum < 256; ++sum) tables_.push_back(at(ox, oy, sum));
        return static_cast<int>(tables_.size() / 256) - 1;
    }

    const int radius_, limit_;
    std::vector<std::uint32_t> rows_;
    std::vector<std::uint8_t> tables_;
};

/// Cells of 2*radius+1 pixels a side, 2*radius apart, from the corner of the box on. A later cell paints over the
/// shared row and column of an earlier one, so each pixel gets its byte from the last cell that has it.
class Dots {
  public:
    Dots(const Bits& in, const Region& region, const Box& box, int radius, int limit, float gain)
        : in_(in), region_(region), box_(box), radius_(radius), step_(2 * std::int64_t{radius}), gain_(gain),
          spot_(radius, limit), sums_(in.width(), box.xmin, step_, step_ + 1)
    {
    }

    void span(const Pixel* from, Pixel* to, int x0, int x1, int y)
    {
        const std::int64_t band = (std::int64_t{y} - box_.ymin) / step_;
        if (band != band_) mix(band);
        const std::int64_t oy = std::int64_t{y} - box_.ymin - band * step_ - radius_;
        auto cell = static_cast<std::size_t>((std::int64_t{x0} - box_.xmin) / step_);
        for (int x = x0; x < x1; ++cell) {
            const std::int64_t start = box_.xmin + static_cast<std::int64_t>(cell) * step_;
            const int end = static_cast<int>(std::min<std::int64_t>(x1, start + step_));
            const Colours& colours = cells_[cell];
            if (spot_.isTabled() && colours.isSmall)
                fromTables(colours, spot_.offsets(oy) + (x - start), from, to, x, end);
            else
                for (; x < end; ++x) to[x] = literally(colours, x - start - radius_, oy, from[x]);
            x = end;
        }
    }

  private:
    struct Colours {
        std::uint64_t c[3];
        bool isSmall; // all within a byte
    };

    void fromTables(const Colours& colours, const std::uint32_t* offset, const Pixel* from, Pixel* to, int x,
                    int end) const
    {
        const std::uint8_t* const tables = spot_.tables();
        const std::uint8_t *const blue = tables + colours.c[0], *const green = tables + colours.c[1],
                                  *const red = tables + colours.c[2];
        for (; x < end; ++x, ++offset)
            to[x] = std::bit_cast<Pixel>(static_cast<std::uint32_t>(blue[*offset] | green[*offset] << 8 |
                                                                    red[*offset] << 16 | from[x].c[3] << 24));
    }

    Pixel literally(const Colours& colours, std::int64_t ox, std::int64_t oy, const Pixel& source) const
    {
        Pixel out = source;
        for (int c = 0; c < 3; ++c) out.c[c] = spot_.at(ox, oy, static_cast<double>(colours.c[c]));
        return out;
    }

    /// The colours of a row of cells.
    void mix(std::int64_t band)
    {
        band_ = band;
        const std::int64_t top = box_.ymin + band * step_, end = std::min<std::int64_t>(top + step_ + 1, in_.height());
        sums_.clear();
        for (int y = static_cast<int>(std::max<std::int64_t>(top, 0)); y < end; ++y) {
            for (const Span s : region_.spans(y)) {
                const int x0 = std::max(s.x0, 0), x1 = std::min(s.x1, in_.width());
                if (x0 < x1) sums_.add(in_.row(y), x0, x1);
            }
            sums_.rowDone();
        }
        sums_.finish();
        cells_.resize(sums_.cells().size());
        for (std::size_t i = 0; i < cells_.size(); ++i) {
            mixInto(cells_[i], sums_.cells()[i]);
            if (!cells_[i].isSmall) checkSharedEdges(cells_[i], box_.xmin + static_cast<std::int64_t>(i) * step_, top);
        }
    }

    void mixInto(Colours& out, const CellSum& sum)
    {
        if (sum.count != count_) {
            count_ = sum.count;
            parts_ = roundEven(quotient(static_cast<double>(count_), gain_));
        }
        std::uint64_t all = 0;
        for (int c = 0; c < 3; ++c) {
            const std::uint64_t n = sum.c[c];
            out.c[c] = parts_ > 0 ? std::min<std::uint64_t>(nearest(n, static_cast<std::uint64_t>(parts_)), 255) : n;
            all |= out.c[c];
        }
        out.isSmall = all < 256;
    }

    /// n / divisor to the nearest, halves to the even neighbour.
    std::uint64_t nearest(std::uint64_t n, std::uint64_t divisor)
    {
        const std::uint64_t q = divided_(n, divisor), twice = 2 * (n - q * divisor);
        return q + (twice > divisor || (twice == divisor && q % 2 == 1));
    }

    /// A sum that no byte holds raises its fault even where the next cell paints over it.
    void checkSharedEdges(const Colours& colours, std::int64_t left, std::int64_t top) const
    {
        for (std::int64_t i = 0; i <= step_; ++i)
            for (const auto& [x, y] : {std::pair{left + step_, top + i}, std::pair{left + i, top + step_}})
                if (x >= 0 && y >= 0 && x < in_.width() && y < in_.height() &&
                    region_.contains(static_cast<int>(x), static_cast<int>(y)))
                    literally(colours, x - left - radius_, y - top - radius_, Pixel());
    }

    const Bits in_;
    const Region region_;
    const Box box_;
    const std::int64_t radius_, step_;
    const double gain_;
    const Spot spot_;
    CellSums sums_;
    std::vector<Colours> cells_;
    RepeatedDivider divided_;
    std::uint64_t count_ = ~std::uint64_t{0};
    std::int32_t parts_ = 0;
    std::int64_t band_ = -1;
};

} // namespace

Bits cBitFilter::Halftone(int Radius, int Definition, int Intensity)
{
    const double radius = Radius;
    const std::int32_t limit = roundEven(quotient(radius + Definition, radius) * radius * radius);
    const auto gain = static_cast<float>((Intensity + 100.0) / 100);
    const Box box = GetBounds(0);
    if (Radius < 0 || insidePicture(box, bits_).isEmpty()) return eachSpan(0, copyPixels);
    if (gain == 0) throw RuntimeError(Fault::DivisionByZero); // each cell divides, those without a pixel too
    return eachSpan(
        0, [dots = Dots(bits_, region_, box, Radius, limit, gain)](const Pixel* from, Pixel* to, int x0, int x1,
                                                                   int y) mutable { dots.span(from, to, x0, x1, y); });
}

} // namespace velara
