#include "engine/cBitFilter.h"
#include "pixels/numbers.h"
#include "pixels/threads/parallelFor.h"
#include <algorithm>
#include <chrono>
#include <cmath>

namespace velara {

namespace {

constexpr std::uint32_t kReportEvery = 10; // milliseconds

std::uint32_t steadyMilliseconds()
{
    using namespace std::chrono;
    return static_cast<std::uint32_t>(duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count());
}

} // namespace

cBitFilter::cBitFilter() : clock(steadyMilliseconds) {}

Box cBitFilter::GetBounds(int Margin) const
{
    const Rect r = region_.bounds();
    return {r.left + Margin, r.right - Margin - 1, r.top + Margin, r.bottom - Margin - 1};
}

float cBitFilter::Angle(int X, int Y)
{
    if (X == 0) return static_cast<float>(Y > 0 ? kPi / 2.0 : -kPi / 2.0);
    const double a = std::atan(static_cast<double>(Y) / X);
    return static_cast<float>(X < 0 ? a + kPi : a);
}

void cBitFilter::eachPiece(int y0, int y1, Cut cut, const Bits& picture, const std::function<void(int, int)>& piece)
{
    if (y0 >= y1) return;
    const auto number = [&](int y) { return (y - cut.origin - (y < cut.origin ? cut.rows - 1 : 0)) / cut.rows; };
    const std::int64_t first = number(y0);
    const auto begin = [&](int i) {
        return static_cast<int>(std::clamp<std::int64_t>(cut.origin + (first + i) * cut.rows, y0, y1));
    };
    const auto count = static_cast<int>(number(y1 - 1) - first + 1);
    parallelFor(
        count, cut.alone ? count : turnsTogether(cut.rows * picture.width()),
        [&](int i) { piece(begin(i), begin(i + 1)); },
        [&](int i) {
            for (int y = begin(i); y < begin(i + 1); ++y) progressDue(y, picture.maxY());
        });
}

/// The progress rule: reports row `done` of a run whose last row is `of`. A run of a single row is 100 percent done.
void cBitFilter::progressDue(std::int64_t done, std::int64_t of)
{
    if (clock() - lastProgress_ <= kReportEvery) return;
    lastProgress_ = clock();
    report(of == 0 ? 100 : static_cast<int>(done * 100 / of));
}

void cBitFilter::report(int percent)
{
    if (Progress) Progress(percent);
}

Random cBitFilter::nextRandom() { return Random(randomSeed_++); }

} // namespace velara
