#include "document/undo/StepNote.h"
#include "pixels/fitSize.h"
#include <QSize>
#include <algorithm>
#include <array>

namespace velara {

namespace {

constexpr int kSamples = 3; // a side of those averaged to a pixel

/// The positions along a side of size pixels, kSamples for each of shown.
std::vector<int> placesOf(int size, int shown)
{
    std::vector<int> places;
    for (int i = 0; i < shown * kSamples; ++i)
        places.push_back(static_cast<int>((std::int64_t(2 * i + 1) * size) / (2 * shown * kSamples)));
    return places;
}

} // namespace

Bits smallCopy(const Bits& picture)
{
    if (picture.isNull()) return {};
    const QSize size = fitSize({picture.width(), picture.height()}, {StepNote::kSmallSide, StepNote::kSmallSide})
                           .boundedTo({picture.width(), picture.height()})
                           .expandedTo({1, 1});
    const auto columns = placesOf(picture.width(), size.width()), rows = placesOf(picture.height(), size.height());
    Bits small(size.width(), size.height());
    std::vector<std::array<int, 3>> sums(static_cast<std::size_t>(size.width()));
    for (int y = 0; y < size.height(); ++y) {
        std::ranges::fill(sums, std::array<int, 3>{});
        for (int i = 0; i < kSamples; ++i) {
            const Pixel* from = picture.row(rows[static_cast<std::size_t>(y * kSamples + i)]);
            for (std::size_t x = 0; x < columns.size(); ++x)
                for (std::size_t c = 0; c < 3; ++c) sums[x / kSamples][c] += from[columns[x]].c[c];
        }
        for (int x = 0; x < size.width(); ++x) {
            small.at(x, y).c[3] = 255; // opaque on whatever it is drawn
            for (std::size_t c = 0; c < 3; ++c)
                small.at(x, y).c[c] =
                    static_cast<std::uint8_t>(sums[static_cast<std::size_t>(x)][c] / (kSamples * kSamples));
        }
    }
    return small;
}

} // namespace velara
