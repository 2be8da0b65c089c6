#include "ui/widgets/ColourTable.h"
#include "fileio/load/ColourTablePicture.h"
#include <algorithm>

namespace velara {

namespace {

constexpr int kApart[] = {1, kTableSide, kTableSide* kTableSide}; // steps of blue, green and red, in the table

} // namespace

std::shared_ptr<const ColourTable> ColourTable::of(const Bits& picture)
{
    if (picture.isNull() || picture.width() != kTableWidth || picture.height() != kTableHeight) return {};
    const auto table = std::make_shared<ColourTable>();
    table->colours_.reserve(std::size_t{kTableWidth} * kTableSide);
    for (int y = 0; y < kTableSide; ++y)
        for (int x = 0; x < kTableWidth; ++x) {
            const Pixel high = picture.row(y)[x], low = picture.row(y + kTableSide)[x];
            const auto level = [&](int c) { return static_cast<float>(high.c[c] << 8 | low.c[c]) / 257; };
            table->colours_.push_back(Colour{level(0), level(1), level(2), 0});
        }
    for (int level = 0; level < 256; ++level) {
        const int step = std::min(level * (kTableSide - 1) / 255, kTableSide - 2);
        const int fraction = (level * (kTableSide - 1) - step * 255) * kWhole / 255;
        table->places_[static_cast<std::size_t>(level)] = {step, fraction};
    }
    return table;
}

/// In the tetrahedron of the cube of eight colours that is reached by going along the axes in the order of the
/// fractions, the largest first.
inline std::uint32_t ColourTable::converted(std::uint32_t pixel) const
{
    const Place b = places_[pixel & 255], g = places_[pixel >> 8 & 255], r = places_[pixel >> 16 & 255];
    int first = b.fraction << 2, second = g.fraction << 2 | 1, third = r.fraction << 2 | 2; // with their axes
    const auto order = [](int& high, int& low) {
        const int most = std::max(high, low);
        low = std::min(high, low);
        high = most;
    };
    order(first, second);
    order(second, third);
    order(first, second);
    const Colour* at = colours_.data() + r.step * kApart[2] + g.step * kApart[1] + b.step;
    const auto part = [](int of) { return static_cast<float>(of); };
    Colour sum = *at * part(kWhole - (first >> 2));
    at += kApart[first & 3];
    sum += *at * part((first >> 2) - (second >> 2));
    at += kApart[second & 3];
    sum += *at * part((second >> 2) - (third >> 2));
    at += kApart[third & 3];
    sum += *at * part(third >> 2);
    using Whole = int __attribute__((vector_size(16)));
    const auto level = __builtin_convertvector(sum * (1.0F / kWhole) + 0.5F, Whole);
    return 0xff000000U | static_cast<std::uint32_t>(level[2] << 16 | level[1] << 8 | level[0]);
}

void ColourTable::convert(QImage& image) const
{
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<std::uint32_t*>(image.scanLine(y));
        std::uint32_t last = line[0], shown = converted(last);
        for (int x = 0; x < image.width(); ++x) {
            if (line[x] != last) shown = converted(last = line[x]); // neighbours are often alike
            line[x] = shown;
        }
    }
}

} // namespace velara
