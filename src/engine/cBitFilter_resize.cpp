// The two resizes.
#include "engine/deform/kernels_resample.h"
#include "engine/passes.h"
#include "pixels/numbers.h"
#include <cmath>

namespace velara {

namespace {

/// The ratio of a source extent to a target extent, rounded to single.
float ratio(int from, int to) { return static_cast<float>(static_cast<double>(from) / to); }

/// The source positions of the targets along one axis: the pixel and the fraction beyond it.
struct Axis {
    float step;
    std::vector<std::int32_t> at; // padded for vectors
    std::vector<double> beyond;
    std::vector<float> single;         // beyond
    std::vector<std::int32_t> unclear; // targets whose part is not clear, ascending

    Axis(int count, float step)
        : step(step), at(static_cast<std::size_t>(count + kBlended)), beyond(at.size()), single(at.size())
    {
        for (int i = 0; i < count; ++i) {
            const double s = static_cast<double>(i) * step;
            at[i] = static_cast<int>(std::floor(s));
            beyond[i] = s - at[i];
            single[i] = static_cast<float>(beyond[i]);
        }
        std::fill(at.begin() + count, at.end(), at[static_cast<std::size_t>(count - 1)]);
    }
    void findUnclear()
    {
        for (int i = 0; i < static_cast<int>(at.size()) - kBlended; ++i)
            if (!isClear(beyond[i])) unclear.push_back(i);
    }
    /// Whether all targets but the first lie between pairs of sources beside one another, with clear parts.
    bool isOfPairs() const
    {
        const int count = static_cast<int>(at.size()) - kBlended;
        if (count <= kLeastOfPairs || !unclear.empty()) return false;
        for (int i = 2; i < count; ++i)
            if (at[i] != at[i - 1] + 2) return false;
        return true;
    }
};

/// A row of targets, a few at a time: the pixels of the source that they lie between, blended from two rows, stay in
/// the first-level cache.
class RowBlender {
  public:
    RowBlender(const Axis& columns, int width)
        : columns_(columns), width_(width), line_(static_cast<std::size_t>(width + kBlended))
    {
        constexpr int kSources = 2048;
        constexpr double kMost = 1024;
        together_ =
            kBlended * std::max(1, static_cast<int>(std::min(kMost, kSources / double{columns.step}) / kBlended));
        blended_.resize(4 * static_cast<std::size_t>(together_ * double{columns.step} + 2 + kBlended));
    }
    /// The row is right until the next call.
    const Pixel* row(const Pixel* upper, const Pixel* lower, double part)
    {
        const auto rows = isClear(part) ? blendRows : blendRowsExactly;
        auto unclear = columns_.unclear.begin();
        for (int x = 0; x < width_; x += together_) {
            const int n = std::min(together_, width_ - x), first = columns_.at[x];
            rows(upper + first, lower + first, part, columns_.at[x + n - 1] + 2 - first, blended_.data());
            const float* const from = blended_.data() - 4 * std::ptrdiff_t{first};
            blendColumns(from, columns_.at.data() + x, columns_.single.data() + x, n, line_.data() + x);
            for (; unclear != columns_.unclear.end() && *unclear < x + n; ++unclear)
                line_[*unclear] =
                    blendColumn(from + 4 * std::ptrdiff_t{columns_.at[*unclear]}, columns_.beyond[*unclear]);
        }
        return line_.data();
    }

    /// Its first pixel alone.
    Pixel first(const Pixel* upper, const Pixel* lower, double part)
    {
        blendRowsExactly(upper, lower, part, 2, blended_.data());
        return blendColumn(blended_.data(), columns_.beyond[0]);
    }

  private:
    const Axis& columns_;
    const int width_;
    int together_;
    std::vector<float> blended_;
    std::vector<Pixel> line_;
};

} // namespace

void cBitFilter::BitsResample(const Bits& Source, int NewWidth, int NewHeight)
{
    checkSize(NewWidth, NewHeight);
    const Bits in = Source;
    if (in.isNull()) throw RuntimeError(Fault::OutOfRange);
    Axis columns(NewWidth, ratio(in.maxX(), NewWidth));
    const Axis rows(NewHeight, ratio(in.maxY(), NewHeight));
    columns.findUnclear();
    Bits out = Bits::uninitialized(NewWidth, NewHeight);
    clearMargin(out);
    const WrittenRows targets(out);
    const bool streams = out.sizeInBytes() >= kPastTheCache, ofPairs = columns.isOfPairs();
    const auto copy = streams ? streamPixels : copyPixels;
    Copies<RowBlender> blenders([&] { return RowBlender(columns, NewWidth); });
    eachPiece(0, NewHeight, {}, out, [&](int y, int) {
        const Pixel *const upper = in.row(rows.at[y]), *const lower = in.row(rows.at[y] + 1);
        const double part = rows.beyond[y];
        blenders.lend([&](RowBlender& own) {
            if (!ofPairs || !isClear(part)) return copy(own.row(upper, lower, part), targets.row(y), 0, NewWidth);
            const int first = columns.at[1];
            blendPairs(upper + first, lower + first, part, columns.single.data() + 1, NewWidth - 1, streams,
                       targets.row(y) + 1);
            targets.row(y)[0] = own.first(upper, lower, part);
        });
    });
    bits_ = out;
    report(100);
}

void cBitFilter::BitsResize(const Bits& Source, int NewWidth, int NewHeight)
{
    checkSize(NewWidth, NewHeight);
    const Bits in = Source;
    if (in.isNull()) throw RuntimeError(Fault::OutOfRange);
    const Axis columns(NewWidth, ratio(in.width(), NewWidth)), rows(NewHeight, ratio(in.height(), NewHeight));
    Bits out = Bits::uninitialized(NewWidth, NewHeight);
    clearMargin(out);
    const WrittenRows targets(out);
    eachPiece(0, NewHeight, {}, out, [&](int y, int) {
        const Pixel* from = in.row(rows.at[y]);
        Pixel* to = targets.row(y);
        for (int x = 0; x < NewWidth; ++x) {
            to[x] = from[columns.at[x]];
            to[x].c[3] = 0;
        }
    });
    bits_ = out;
    report(100);
}

} // namespace velara
