#include "batch/RowSteps.h"
#include <algorithm>
#include <cstring>
#include <exception>

namespace velara {

namespace {

constexpr int kBandPixels = 1 << 17; // with its result it stays in the cache of a core

std::size_t bytesOfRow(const Bits& bits) { return sizeof(Pixel) * static_cast<std::size_t>(bits.stride()); }

} // namespace

bool RowSteps::serve(const CommandLine& line)
{
    if (line.steps.empty()) return true;
    return !line.verbose && std::ranges::all_of(line.steps, [](const LineStep& step) { return step.rows.has_value(); });
}

RowSteps::RowSteps(const std::vector<LineStep>& steps, Bits& picture)
    : steps_(steps), rows_(picture), width_(picture.width()), height_(picture.height())
{
    for (const LineStep& step : steps) reach_ += step.rows->reach;
}

int RowSteps::take(int rows)
{
    if (steps_.empty()) return rows;
    const int ready = rows == height_ ? rows : rows - reach_ - Bits::kMargin;
    const int most = std::max(1, kBandPixels / width_);
    while (done_ + most <= ready || (rows == height_ && done_ < height_)) finish(std::min(done_ + most, height_));
    return done_;
}

/// The row with its margin, also where the result is there already.
const Pixel* RowSteps::asRead(int y) const
{
    return y >= 0 && y < done_ ? above_.row(y - done_ + above_.height()) : rows_.row(y);
}

Bits RowSteps::band(int from, int to) const
{
    Bits band = Bits::uninitialized(width_, to - from);
    for (int y = -Bits::kMargin; y < to - from + Bits::kMargin; ++y)
        std::memcpy(band.row(y) - Bits::kMargin, asRead(from + y) - Bits::kMargin, bytesOfRow(band));
    return band;
}

void RowSteps::finish(int to)
{
    const int first = std::max(0, done_ - reach_), end = std::min(height_, to + reach_);
    cBitFilter filter;
    filter.setBits(band(first, end));
    filter.setBitsRegion(Region::rectangle(0, 0, width_, end - first));
    for (const LineStep& step : steps_)
        naming(step.text, [&] {
            try {
                step.rows->take(filter);
            } catch (...) {
                throwFailure(std::current_exception());
            }
        });
    const int kept = std::min(to, reach_ + Bits::kMargin);
    above_ = band(to - kept, to);
    const Bits result = filter.bits();
    for (int y = done_; y < to; ++y)
        std::memcpy(rows_.row(y), result.row(y - first), sizeof(Pixel) * static_cast<std::size_t>(width_));
    done_ = to;
}

} // namespace velara
