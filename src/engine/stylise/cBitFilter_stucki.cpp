// Black and white by error diffusion with Stucki's kernel, thresholded at the picture's own mean.
#include "engine/colour/kernels_colour.h"
#include "engine/passes.h"
#include "engine/stylise/kernels_stucki.h"
#include "pixels/numbers.h"
#include "pixels/threads/inWaves.h"
#include "pixels/threads/parallelFor.h"
#include <span>

namespace velara {

namespace {

/// What a value before clamping passes to the right: e*8 \ 42 to the next pixel, e*4 \ 42 to the one after.
class Shares {
  public:
    explicit Shares(int mean) : next_(kCount), after_(kCount)
    {
        for (int value = kLeast; value < kLeast + kCount; ++value) {
            const int v = clamp(value), e = v >= mean ? v - 255 : v;
            next_[value - kLeast] = static_cast<std::int16_t>(e * 8 / 42);
            after_[value - kLeast] = static_cast<std::int16_t>(e * 4 / 42);
        }
    }
    const std::int16_t* next() const { return next_.data() - kLeast; }
    const std::int16_t* after() const { return after_.data() - kLeast; }

  private:
    // Errors sum up to 255 at most, so at most 2550 is passed on (divisor 1), added to a grey of 0 to 255.
    static constexpr int kLeast = -2560, kCount = 2560 + 2560 + 256;
    std::vector<std::int16_t> next_, after_;
};

/// (10 * error) \ divisor for every sum of errors. divisor must not be 0.
class Scale {
  public:
    explicit Scale(int divisor)
    {
        for (int e = -kMost; e <= kMost; ++e)
            scaled_[static_cast<std::size_t>(e + kMost)] = static_cast<std::int16_t>(divide(10 * e, divisor));
    }
    int operator[](int error) const { return scaled_[static_cast<std::size_t>(error + kMost)]; }

  private:
    static constexpr int kMost = 255;
    std::int16_t scaled_[2 * kMost + 1];
};

constexpr int kRows = 4;     // of a turn: worked on side by side, since each pixel waits for the one to its left
constexpr int kAtOnce = 128; // columns
constexpr int kBehind = 32;  // so many more columns is a row behind the one above: what that passes down reaches two

/// A row under way.
struct Line {
    int y;
    const Pixel* from;
    Pixel* to;
    std::span<const Span> spans; // those not done yet, first
    alignas(64) std::int16_t values[kAtOnce + StuckiRow::kPad];
    alignas(64) std::int16_t incoming[kAtOnce + StuckiRow::kPad];
    int fromLast = 0, fromBefore = 0, onward = 0;
};

/// A pixel's error goes right at once, and down when those of the rows below ask for it: sums of integers do not depend
/// on the order. Rows are diffused in turns of kRows, which follow one another.
class Stucki {
  public:
    Stucki(const Bits& in, const Box& box, int mean, int divisor)
        : stride_(in.stride()), width_(in.width()), maxY_(in.maxY()), mean_(mean), divisor_(divisor), box_(box),
          atOnce_(std::clamp(turnsTogether(1) / kBehind * kBehind, kBehind, kAtOnce)), scale_(divisor), shares_(mean),
          rows_(static_cast<std::size_t>(threadCount() * kRows + 2), StuckiParts(width_))
    {
    }

    void turn(int i, Line (&lines)[kRows], Wave& wave)
    {
        const int rows = std::min(kRows, box_.ymax + 1 - lines[0].y);
        for (int step = 0;; ++step) {
            Line* whole[kRows];
            int count = 0;
            for (int k = 0; k < rows; ++k) {
                const int first = (step - k) * atOnce_ - k * kBehind;
                const int x0 = std::max(first, 0), x1 = std::min(first + atOnce_, width_);
                if (x0 >= x1) continue;
                if (k == 0 && !wave.follow(i, std::min(x1 + 2, width_))) return;
                if (isWhole(lines[k], first)) {
                    prepare(lines[k], x0, x0, x1);
                    whole[count++] = &lines[k];
                } else {
                    diffuseParts(lines[k], x0, x1);
                }
            }
            diffuseTogether(whole, count);
            for (int k = 0; k < count; ++k) {
                const int x0 = (step - (whole[k] - lines)) * atOnce_ - (whole[k] - lines) * kBehind;
                finish(*whole[k], x0, x0, x0 + atOnce_);
            }
            const int end = (step - rows + 2) * atOnce_ - (rows - 1) * kBehind; // of the lowest row
            if (end >= width_) return;
            if (end > 0) wave.reach(i, end);
        }
    }

  private:
    StuckiParts& partsOf(int y) { return rows_[static_cast<std::size_t>(y - box_.ymin + 2) % rows_.size()]; }

    /// All of the columns from x0 on, as many as go together, are selected, and the last column isn't among them.
    bool isWhole(const Line& line, int x0) const
    {
        return x0 >= box_.xmin && x0 >= 0 && x0 + atOnce_ <= box_.xmax + 1 && x0 + atOnce_ < width_ &&
               !line.spans.empty() && line.spans.front().x0 <= x0 && line.spans.front().x1 >= x0 + atOnce_;
    }

    /// What x0..x1-1 receive from above; origin is where the line's numbers begin.
    void receive(Line& line, int origin, int x0, int x1)
    {
        std::int16_t* const to = line.incoming - origin;
        if (line.y == maxY_) { // the last row receives nothing from above
            std::fill(to + x0, to + x1, std::int16_t{0});
            return;
        }
        const StuckiParts &above = partsOf(line.y - 1), &aboveThat = partsOf(line.y - 2);
        stuckiKernels().incoming(above, aboveThat, to, x0, x1);
        const int last = width_ - 1; // the last column receives nothing from its left
        if (x1 == width_) to[last] = static_cast<std::int16_t>(above.eight.data()[last] + aboveThat.four.data()[last]);
    }
    void prepare(Line& line, int origin, int x0, int x1)
    {
        receive(line, origin, x0, x1);
        stuckiKernels().greys(line.from, line.values - origin, x0, x1);
        begin(line, x0);
    }
    /// Takes over what the two pixels to the left of x pass on.
    void begin(Line& line, int x)
    {
        const StuckiParts& parts = partsOf(line.y);
        line.fromLast = parts.eight.data()[x - 1];
        line.fromBefore = parts.four.data()[x - 2];
        line.onward = parts.four.data()[x - 1];
    }
    void finish(Line& line, int origin, int x0, int x1)
    {
        stuckiKernels().output({line.from, stride_, line.to, x0, x1}, line.values - origin, mean_, partsOf(line.y));
    }

    /// The selected ones of x0..x1-1.
    void diffuseParts(Line& line, int x0, int x1)
    {
        partsOf(line.y).clear(x0, x1);
        receive(line, x0, x0, x1);
        while (!line.spans.empty()) {
            const Span span = line.spans.front();
            const int a = std::max({span.x0, box_.xmin, x0}), b = std::min({span.x1, box_.xmax + 1, x1});
            if (a < b) diffusePart(line, x0, a, b);
            if (span.x1 > x1) return; // goes on
            line.spans = line.spans.subspan(1);
        }
    }
    void diffusePart(Line& line, int origin, int x0, int x1)
    {
        stuckiKernels().greys(line.from, line.values - origin, x0, x1);
        begin(line, x0);
        const int inner = std::min(x1, width_ - 1);
        Line* const one[] = {&line};
        diffuseScaled<1>(one, x0 - origin, inner - origin);
        if (x1 == width_) { // the last column receives nothing from its left
            std::int16_t& value = line.values[inner - origin];
            value = static_cast<std::int16_t>(value + scale_[line.incoming[inner - origin]]);
        }
        finish(line, origin, x0, x1);
    }

    void diffuseTogether(Line* const* lines, int count)
    {
        if (count == 4) return diffuseScaled<4>(lines, 0, atOnce_);
        if (count == 3) return diffuseScaled<3>(lines, 0, atOnce_);
        if (count == 2) return diffuseScaled<2>(lines, 0, atOnce_);
        if (count == 1) return diffuseScaled<1>(lines, 0, atOnce_);
    }
    template <int kLines> void diffuseScaled(Line* const* lines, int x0, int x1)
    {
        if (divisor_ == 10) // the plain dither
            diffuse<kLines>(lines, x0, x1, [](int error) { return error; });
        else
            diffuse<kLines>(lines, x0, x1, [this](int error) { return scale_[error]; });
    }
    /// Turns the greys into values before clamping, of several rows that don't depend on one another here.
    template <int kLines, class Scaled> void diffuse(Line* const* lines, int x0, int x1, Scaled scaled)
    {
        const std::int16_t *const next = shares_.next(), *const after = shares_.after();
        std::int16_t* values[kLines];
        const std::int16_t* above[kLines];
        int fromLast[kLines], fromBefore[kLines], onward[kLines];
        for (int k = 0; k < kLines; ++k) {
            values[k] = lines[k]->values;
            above[k] = lines[k]->incoming;
            fromLast[k] = lines[k]->fromLast;
            fromBefore[k] = lines[k]->fromBefore;
            onward[k] = lines[k]->onward;
        }
        for (int x = x0; x < x1; ++x)
            for (int k = 0; k < kLines; ++k) {
                const int value = values[k][x] + scaled(above[k][x] + fromBefore[k] + fromLast[k]);
                values[k][x] = static_cast<std::int16_t>(value);
                fromBefore[k] = onward[k];
                fromLast[k] = next[value];
                onward[k] = after[value];
            }
    }

    const std::ptrdiff_t stride_;
    const int width_, maxY_, mean_, divisor_;
    const Box box_;
    const int atOnce_;
    const Scale scale_;
    const Shares shares_;
    std::vector<StuckiParts> rows_; // the last ones, each in the place of one that nobody needs any more
};

/// Copies what of a row is not selected, and the margin's columns.
void copyOthers(const Line& line, const Box& box, int width, bool streams)
{
    const auto copy = streams ? streamPixels : copyPixels;
    int copied = -Bits::kMargin;
    for (const Span s : line.spans) {
        const int x0 = std::max(s.x0, box.xmin), x1 = std::min(s.x1, box.xmax + 1);
        if (x0 >= x1) continue;
        copy(line.from, line.to, copied, x0);
        copied = x1;
    }
    copy(line.from, line.to, copied, width + Bits::kMargin);
}

} // namespace

Bits cBitFilter::StuckiBW(int Divisor)
{
    const Bits in = bits_;
    const std::int64_t sum =
        sumOfRows(in, [&](const Pixel* row) { return colourKernels().sumOfThirds(row, in.width()); });
    if (in.isNull()) return eachSpan(0, divideByZero); // no pixel exists that could raise it
    const std::int64_t count = std::int64_t{in.width()} * in.height();
    if (Divisor == 0) return eachSpan(0, divideByZero);
    const Box box = insidePicture(GetBounds(0), in);
    if (box.isEmpty()) {
        report(100);
        return in;
    }
    const Region region = region_;
    Stucki stucki(in, box, static_cast<int>(sum / count), Divisor);
    Bits out = Bits::uninitialized(in.width(), in.height());
    copyRows(in, out, -Bits::kMargin, box.ymin);
    const WrittenRows rows(out);
    const auto firstOf = [&](int i) { return box.ymin + i * kRows; };
    const auto turn = [&](int i, Wave& wave) {
        Line lines[kRows];
        for (int y = firstOf(i), k = 0; y <= std::min(firstOf(i) + kRows - 1, box.ymax); ++y, ++k) {
            lines[k].y = y;
            lines[k].from = in.row(y);
            lines[k].to = rows.row(y);
            lines[k].spans = region.spans(y);
            copyOthers(lines[k], box, in.width(), in.sizeInBytes() >= kPastTheCache);
        }
        stucki.turn(i, lines, wave);
    };
    inWaves((box.ymax - box.ymin) / kRows + 1, std::int64_t{kRows} * in.width(), turn, [&](int i) {
        for (int y = firstOf(i); y <= std::min(firstOf(i) + kRows - 1, box.ymax); ++y) progressDue(y, in.maxY());
    });
    copyRows(in, out, box.ymax + 1, in.height() + Bits::kMargin);
    report(100);
    return out;
}

} // namespace velara
