#include "engine/deform/SourceMask.h"
#include <utility>

namespace velara {

SourceMask::SourceMask(const Region& region, const Rect& rect, int width, int height)
    : words_(static_cast<std::size_t>(width + 31) / 32), columns_(static_cast<std::size_t>(width >> kCellBits) + 2),
      width_(width), height_(height), bits_(words_ * static_cast<std::size_t>(height)),
      sums_(columns_ * (static_cast<std::size_t>(height >> kCellBits) + 2))
{
    constexpr int kCell = 1 << kCellBits;
    std::vector<std::int32_t> more(columns_); // by cell: how many pixels more than the one before it has of whole spans
    for (int y = rect.top; y < rect.bottom; ++y) {
        std::uint32_t* bits = bits_.data() + static_cast<std::size_t>(y) * words_;
        std::int32_t* counts = sums_.data() + (static_cast<std::size_t>(y >> kCellBits) + 1) * columns_ + 1;
        for (const Span s : region.spans(y)) {
            const int x0 = std::max(s.x0, rect.left), x1 = std::min(s.x1, rect.right);
            if (x0 >= x1) continue;
            const int word = x0 >> 5, lastWord = (x1 - 1) >> 5;
            const std::uint32_t first = ~0U << (x0 & 31), last = ~0U >> (31 - ((x1 - 1) & 31));
            bits[word] |= word == lastWord ? first & last : first;
            if (word < lastWord) {
                std::fill(bits + word + 1, bits + lastWord, ~0U);
                bits[lastWord] |= last;
            }
            const int cell = x0 >> kCellBits, lastCell = x1 >> kCellBits; // the latter has what is beyond whole cells
            counts[cell] -= x0 & (kCell - 1);
            counts[lastCell] += x1 & (kCell - 1);
            more[std::size_t(cell)] += kCell;
            more[std::size_t(lastCell)] -= kCell;
        }
        if ((y & (kCell - 1)) != kCell - 1 && y + 1 < rect.bottom) continue;
        std::int32_t whole = 0;
        for (std::size_t i = 0; i + 1 < columns_; ++i) counts[i] += whole += std::exchange(more[i], 0);
    }
    for (std::size_t i = columns_; i < sums_.size(); ++i) // the first column stays 0: nothing is to its left
        if (i % columns_ != 0) sums_[i] += sums_[i - 1] + sums_[i - columns_] - sums_[i - columns_ - 1];
}

Rect innerRectangle(const Region& region, const Rect& rect)
{
    const int middle = rect.left + rect.width() / 2, start = rect.top + rect.height() / 2;
    Rect all{rect.left, start, rect.right, start}, best;
    const auto area = [](const Rect& r) { return std::int64_t{r.width()} * r.height(); };
    const auto joins = [&](int y) {
        if (y < rect.top || y >= rect.bottom) return false;
        for (const Span s : region.spans(y))
            if (s.x0 <= middle && middle < s.x1) {
                all.left = std::max(all.left, s.x0);
                all.right = std::min(all.right, s.x1);
                return true;
            }
        return false;
    };
    for (bool up = true, down = true; up || down;) {
        if (down && (down = joins(all.bottom))) ++all.bottom;
        if (up && (up = joins(all.top - 1))) --all.top;
        if (area(all) > area(best)) best = all;
    }
    return best;
}

} // namespace velara
