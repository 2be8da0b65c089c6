// Black and white by error diffusion with Stucki's kernel, thresholded at the picture's own mean.
#include "engine/colour/kernels_colour.h"
#include "engine/passes.h"
#include "engine/stylise/kernels_stucki.h"
#include "pixels/numbers.h"

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

/// Diffuses row by row; rows come in order, spans from left to right. A pixel's error goes right at once, and down at
/// the end of its row: sums of integers do not depend on the order.
class Stucki {
  public:
    Stucki(const Bits& in, int mean, int divisor)
        : stride_(in.stride()), width_(in.width()), maxY_(in.maxY()), mean_(mean), divisor_(divisor), scale_(divisor),
          shares_(mean), values_(width_),
          errors_(width_), incoming_{StuckiRow(width_), StuckiRow(width_), StuckiRow(width_)}
    {
    }

    void span(const Pixel* from, Pixel* to, int x0, int x1, int y)
    {
        moveTo(y);
        std::int16_t* values = values_.data();
        stuckiKernels().greys(from, values, x0, x1);
        const int inner = std::min(x1, width_ - 1);
        if (divisor_ == 10) // the plain dither
            diffuse(x0, inner, [](int error) { return error; });
        else
            diffuse(x0, inner, [this](int error) { return scale_[error]; });
        if (x1 == width_) // the last column receives nothing from its left
            values[inner] = static_cast<std::int16_t>(values[inner] + scale_[incoming(y)[inner]]);
        stuckiKernels().output({from, stride_, to, x0, x1}, values, mean_, errors_.data());
    }

  private:
    std::int16_t* incoming(int y) { return incoming_[static_cast<std::size_t>(y) % 3].data(); }

    /// Turns the greys of x0..x1-1 into values before clamping.
    template <class Scaled> void diffuse(int x0, int x1, Scaled scaled)
    {
        const std::int16_t *const next = shares_.next(), *const after = shares_.after(), *const above = incoming(y_);
        const std::int16_t* const errors = errors_.data();
        std::int16_t* const values = values_.data();
        int fromLast = errors[x0 - 1] * 8 / 42, fromBefore = errors[x0 - 2] * 4 / 42, onward = errors[x0 - 1] * 4 / 42;
        for (int x = x0; x < x1; ++x) {
            const int value = values[x] + scaled(above[x] + fromBefore + fromLast);
            values[x] = static_cast<std::int16_t>(value);
            fromBefore = onward;
            fromLast = next[value];
            onward = after[value];
        }
    }

    void moveTo(int y)
    {
        if (y_ < 0) y_ = y;
        for (; y_ < y; ++y_) {
            // The last row receives nothing from above, and the last two pass nothing down.
            if (y_ < maxY_ - 1) stuckiKernels().spread(errors_.data(), incoming(y_ + 1), incoming(y_ + 2), width_);
            if (y_ == maxY_ - 2 || y_ == maxY_ - 1) incoming_[static_cast<std::size_t>(maxY_) % 3].clear();
            errors_.clear();
        }
    }

    const std::ptrdiff_t stride_;
    const int width_, maxY_, mean_, divisor_;
    const Scale scale_;
    const Shares shares_;
    StuckiRow values_, errors_, incoming_[3];
    int y_ = -1;
};

} // namespace

Bits cBitFilter::StuckiBW(int Divisor)
{
    const Bits in = bits_;
    const std::int64_t sum =
        sumOfRows(in, [&](const Pixel* row) { return colourKernels().sumOfThirds(row, in.width()); });
    if (in.isNull()) return eachSpan(0, divideByZero); // no pixel exists that could raise it
    const std::int64_t count = std::int64_t{in.width()} * in.height();
    if (Divisor == 0) return eachSpan(0, divideByZero);
    return eachSpan(0, [stucki = Stucki(in, static_cast<int>(sum / count), Divisor)](const Pixel* from, Pixel* to,
                                                                                     int x0, int x1, int y) mutable {
        stucki.span(from, to, x0, x1, y);
    });
}

} // namespace velara
