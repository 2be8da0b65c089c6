#include "filters/Region.h"
#include <algorithm>

namespace velara {

Rect Rect::intersected(const Rect& other) const
{
    const Rect r{std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
                 std::min(bottom, other.bottom)};
    return r.isEmpty() ? Rect{} : r;
}

/// The rectangles of the QRegion again as bands, so that a row is found by binary search.
struct Region::Data {
    struct Band {
        int top, bottom;
        std::size_t first, count;
    };

    explicit Data(const QRegion& r) : region(r)
    {
        spans.reserve(static_cast<std::size_t>(r.rectCount()));
        for (const QRect& rect : r) {
            if (bands.empty() || bands.back().top != rect.top())
                bands.push_back({rect.top(), rect.bottom() + 1, spans.size(), 0});
            spans.push_back({rect.left(), rect.right() + 1});
            ++bands.back().count;
        }
    }

    std::span<const Span> row(int y) const
    {
        auto band = std::upper_bound(bands.begin(), bands.end(), y, [](int v, const Band& b) { return v < b.top; });
        if (band == bands.begin() || y >= (--band)->bottom) return {};
        return {spans.data() + band->first, band->count};
    }

    QRegion region;
    std::vector<Band> bands;
    std::vector<Span> spans;
};

Region::Region(const QRegion& region) : data_(std::make_shared<Data>(region)) {}

Region Region::rectangle(int left, int top, int right, int bottom)
{
    const auto [l, r] = std::minmax(left, right);
    const auto [t, b] = std::minmax(top, bottom);
    if (l == r || t == b) return Region(QRegion());
    return Region(QRegion(QRect(QPoint(l, t), QPoint(r - 1, b - 1))));
}

bool Region::isEmpty() const { return !data_ || data_->region.isEmpty(); }

Rect Region::bounds() const
{
    if (isEmpty()) return {};
    const QRect r = data_->region.boundingRect();
    return {r.left(), r.top(), r.right() + 1, r.bottom() + 1};
}

std::span<const Span> Region::spans(int y) const { return data_ ? data_->row(y) : std::span<const Span>(); }

bool Region::contains(int x, int y) const
{
    const auto row = spans(y);
    const auto after = std::upper_bound(row.begin(), row.end(), x, [](int v, const Span& s) { return v < s.x0; });
    return after != row.begin() && x < std::prev(after)->x1;
}

const QRegion& Region::toQRegion() const
{
    static const QRegion none;
    return data_ ? data_->region : none;
}

Region Region::combined(const Region& other, Combine mode) const
{
    const QRegion &a = toQRegion(), &b = other.toQRegion();
    switch (mode) {
    case Combine::And:
        return Region(a & b);
    case Combine::Or:
        return Region(a | b);
    case Combine::Xor:
        return Region(a ^ b);
    case Combine::Diff:
        return Region(a - b);
    case Combine::Copy:
        break;
    }
    return *this;
}

Region Region::translated(int dx, int dy) const { return data_ ? Region(data_->region.translated(dx, dy)) : Region(); }

bool operator==(const Region& a, const Region& b) { return a.isNull() == b.isNull() && a.toQRegion() == b.toQRegion(); }

} // namespace velara
