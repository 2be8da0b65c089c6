// Tone: tables, grey, contrast, saturation and the measurements of a picture's brightness.
#include "engine/colour/kernels_colour.h"
#include "engine/colour/lookUps.h"
#include "engine/passes.h"
#include "pixels/numbers.h"
#include "pixels/threads/parallelFor.h"
#include <mutex>

namespace velara {

namespace {

template <class Function> ByteTable byteTable(Function f)
{
    ByteTable table;
    for (int i = 0; i < 256; ++i) table[std::size_t(i)] = f(i);
    return table;
}

/// The histogram of round(brightnessOf) over all pixels.
std::array<std::int64_t, 256> histogram(const Bits& bits)
{
    constexpr int kRows = 64;
    std::array<std::int64_t, 256> all{};
    std::mutex guard;
    parallelFor((bits.height() + kRows - 1) / kRows, turnsTogether(kRows * bits.width()), [&](int piece) {
        std::array<std::array<std::uint32_t, 256>, 4> counts{}; // with one table, runs of equal pixels would wait
        constexpr int kRun = 1024;                              // pixels, whose greys stay in the first cache
        std::array<Pixel, kRun> greys{};
        for (int y = piece * kRows; y < std::min((piece + 1) * kRows, bits.height()); ++y)
            for (int x = 0; x < bits.width(); x += kRun) {
                const int n = std::min(kRun, bits.width() - x);
                colourKernels().brightness(bits.row(y) + x, n, greys.data());
                for (int i = 0; i < n; ++i) ++counts[std::size_t(i & 3)][greys[std::size_t(i)].c[0]];
            }
        const std::lock_guard lock(guard);
        for (const auto& part : counts)
            for (std::size_t i = 0; i < 256; ++i) all[i] += part[i];
    });
    return all;
}

int thirdOf(const Pixel& p) { return (p.c[0] + p.c[1] + p.c[2]) / 3; }

/// f(third of each pixel's sum), in row order.
template <class Function> void eachThird(const Bits& bits, Function f)
{
    for (int y = 0; y < bits.height(); ++y)
        for (int x = 0; x < bits.width(); ++x) f(thirdOf(bits.row(y)[x]));
}

} // namespace

Bits cBitFilter::CONTRAST(int Level)
{
    const Bits in = bits_;
    const std::int64_t sum =
        sumOfRows(in, [&](const Pixel* row) { return colourKernels().sumOfThirds(row, in.width()); });
    report(100);
    if (in.isNull()) throw RuntimeError(Fault::DivisionByZero);
    const auto mean = static_cast<int>(sum / (std::int64_t(in.width()) * in.height()));
    const float f = static_cast<float>((Level + 100.0) / 100);
    StretchTable to{};
    for (std::size_t i = 0; i < 256; ++i) {
        to.entries[i] = roundEven(double(int(i) - mean) * f + mean);
        to.limited[i] = clamp(to.entries[i]);
        to.isWide |= std::abs(std::int64_t{to.entries[i]}) > StretchTable::kMostNarrow;
    }
    // The entry of the mean is the mean, and the others rise or fall evenly from there.
    const auto isByte = [&](int i) { return to.entries[std::size_t(i)] == to.limited[std::size_t(i)]; };
    int low = mean, high = mean;
    while (low > 0 && isByte(low - 1)) --low;
    while (high < 255 && isByte(high + 1)) ++high;
    to.low = static_cast<std::uint8_t>(low);
    to.high = static_cast<std::uint8_t>(high);
    return eachSpan(0, [&](const SpanOf& s) { colourKernels().stretch(s, to); });
}

Bits cBitFilter::SATURATION(int Level)
{
    const float k = static_cast<float>(Level / 100.0);
    const auto literal = [=](const Pixel* from, Pixel* to, int x0, int x1) {
        for (int x = x0; x < x1; ++x) {
            const int grey = thirdOf(from[x]);
            to[x].c[3] = from[x].c[3];
            for (int c = 0; c < 3; ++c) to[x].c[c] = clamp(roundEven(double(from[x].c[c] - grey) * k + from[x].c[c]));
        }
    };
    constexpr int kMostForSingles = 1000;
    if (Level < -kMostForSingles || Level > kMostForSingles) return eachSpan(0, literal);
    // (c - grey)*Level/100 has two decimals: only exact halves are critical. Where k equals Level/100 exactly, so are
    // singles; elsewhere k is off to one side and every half rounds to that side, so k is moved a little further.
    const double beyond = 100.0 * k - Level;
    constexpr float kStep = 0x1p-20f;
    const float moved = beyond == 0 ? k : (beyond > 0) == (k > 0) ? k * (1 + kStep) : k * (1 - kStep);
    return eachSpan(0, [=](const SpanOf& s) { colourKernels().saturate(s, moved, beyond == 0); });
}

Bits cBitFilter::GammaCorrection(int Level)
{
    const float gamma = static_cast<float>((Level + 100.0) / 100);
    return eachSpan(0, ThroughTable(byteTable([=](int i) {
                        return gamma <= 0 ? std::uint8_t{0} : toByte(std::pow(i / 255.0, 1.0 / gamma) * 255);
                    })));
}

Bits cBitFilter::Reduction(int Level)
{
    const std::int64_t step = std::int64_t(Level) + 1;
    return eachSpan(0, ThroughTable(byteTable([=](int i) {
                        const double steps = roundToEven(quotient(i, double(step)));
                        return clamp(static_cast<std::int64_t>(double(step) * steps));
                    })));
}

Bits cBitFilter::GreyScale()
{
    return eachSpan(0, [](const SpanOf& s) { colourKernels().grey(s, kFourthByte); });
}

Bits cBitFilter::OLDPHOTO()
{
    return eachSpan(0, [](const SpanOf& s) { colourKernels().grey(s, kFourthByte | 255); });
}

Bits cBitFilter::Threshold(int Level)
{
    const int bound = Level < 0 ? -1 : 3 * std::min(Level, 255) + 2;
    return eachSpan(0, [=](const SpanOf& s) { colourKernels().threshold(s, bound); });
}

/// Moves the median to 128 with two straight lines. A median of 1 or 255 divides by zero.
Bits cBitFilter::Equalize()
{
    const Bits in = bits_;
    const auto counts = histogram(in);
    const std::int64_t half = std::int64_t(in.width()) * in.height() / 2;
    std::int64_t sum = 0;
    int i = 0;
    while (i < 256 && (sum += counts[std::size_t(i)]) <= half) ++i;
    if (i == 256) throw RuntimeError(Fault::OutOfRange); // no pixels
    const int median = counts[std::size_t(i)] / 2 <= sum - half ? i - 1 : i;
    const double above = quotient(127, 255 - median), below = quotient(127, median - 1);
    return eachSpan(0, ThroughTable(byteTable([=](int c) {
                        return c >= median ? toByte((c - median) * above + 128) : toByte(c * below);
                    })));
}

int cBitFilter::GetLMax() const
{
    int most = 0;
    eachThird(bits_, [&](int v) { most = std::max(most, v); });
    return most;
}

int cBitFilter::GetLMin() const
{
    int least = 255;
    eachThird(bits_, [&](int v) { least = std::min(least, v); });
    return least;
}

int cBitFilter::GetLMed() const
{
    std::int64_t sum = 0;
    eachThird(bits_, [&](int v) { sum += v; });
    return bits_.isNull() ? 0 : static_cast<int>(sum / (std::int64_t(bits_.width()) * bits_.height()));
}

} // namespace velara
