#include "pixels/numbers.h"
#include "region/RegionBuilder.h"
#include <algorithm>
#include <limits>

namespace velara {

namespace {

using Band = std::span<const Span>;

/// Merges two rows of spans edge by edge; a piece between two edges is kept when keep(inside a, inside b).
template <class Keep> void combineRows(RegionBuilder& out, Band a, Band b, Keep keep)
{
    const auto edge = [](Band row, std::size_t i) -> std::int64_t { // each span has two; none left: beyond the right
        return i / 2 < row.size() ? (i % 2 ? row[i / 2].x1 : row[i / 2].x0) : std::numeric_limits<std::int64_t>::max();
    };
    std::size_t i = 0, j = 0;
    int start = 0;
    bool inside = false;
    while (i < 2 * a.size() || j < 2 * b.size()) {
        const std::int64_t ea = edge(a, i), eb = edge(b, j), x = std::min(ea, eb);
        i += ea == x;
        j += eb == x;
        const bool now = keep(i % 2 == 1, j % 2 == 1);
        if (now && !inside) start = static_cast<int>(x);
        if (inside && !now) out.add(start, static_cast<int>(x));
        inside = now;
    }
}

/// Cuts the bands of both regions into strips within which neither changes. Data is Region::Data, which is private.
template <class Data, class Keep> Region combineBands(const Data& a, const Data& b, Keep keep)
{
    constexpr std::int64_t kNone = std::numeric_limits<std::int64_t>::max();
    RegionBuilder out;
    std::size_t i = 0, j = 0;
    std::int64_t y = std::numeric_limits<std::int64_t>::min();
    while ((i < a.bands.size() || j < b.bands.size()) && !out.overflows()) {
        const auto top = [y](const Data& d, std::size_t k) {
            return k < d.bands.size() ? std::max<std::int64_t>(d.bands[k].top, y) : kNone;
        };
        y = std::min(top(a, i), top(b, j));
        const auto covers = [y, &top](const Data& d, std::size_t k) { return top(d, k) == y; };
        const auto end = [&](const Data& d, std::size_t k) {
            return k == d.bands.size() ? kNone : covers(d, k) ? d.bands[k].bottom : std::int64_t(d.bands[k].top);
        };
        const std::int64_t bottom = std::min(end(a, i), end(b, j));
        combineRows(out, covers(a, i) ? a.of(a.bands[i]) : Band(), covers(b, j) ? b.of(b.bands[j]) : Band(), keep);
        out.endBand(static_cast<int>(y), static_cast<int>(bottom));
        if (i < a.bands.size() && a.bands[i].bottom == bottom) ++i;
        if (j < b.bands.size() && b.bands[j].bottom == bottom) ++j;
        y = bottom;
    }
    return out.take();
}

} // namespace

Rect Rect::intersected(const Rect& other) const
{
    const Rect r{std::max(left, other.left), std::max(top, other.top), std::min(right, other.right),
                 std::min(bottom, other.bottom)};
    return r.isEmpty() ? Rect{} : r;
}

Rect Rect::united(const Rect& other) const
{
    if (isEmpty()) return other.isEmpty() ? Rect{} : other;
    if (other.isEmpty()) return *this;
    return {std::min(left, other.left), std::min(top, other.top), std::max(right, other.right),
            std::max(bottom, other.bottom)};
}

void Region::Data::indexRows()
{
    constexpr std::size_t kFewBands = 8;
    constexpr std::size_t kRowsABand = 8; // at the most, on the average: the index is no larger than the bands
    const std::int64_t rows = std::int64_t{box.bottom} - box.top;
    if (bands.size() <= kFewBands || rows > static_cast<std::int64_t>(bands.size() * kRowsABand)) return;
    bandOf.assign(static_cast<std::size_t>(rows), kNoBand);
    for (std::uint32_t i = 0; i < bands.size(); ++i)
        std::fill(bandOf.begin() + (bands[i].top - box.top), bandOf.begin() + (bands[i].bottom - box.top), i);
}

std::span<const Span> Region::Data::row(int y) const
{
    if (!bandOf.empty()) {
        if (y < box.top || y >= box.bottom) return {};
        const std::uint32_t band = bandOf[static_cast<std::size_t>(y - box.top)];
        return band == kNoBand ? std::span<const Span>() : of(bands[band]);
    }
    auto band = std::upper_bound(bands.begin(), bands.end(), y, [](int v, const Band& b) { return v < b.top; });
    if (band == bands.begin() || y >= (--band)->bottom) return {};
    return of(*band);
}

void RegionBuilder::endBand(int top, int bottom)
{
    auto& bands = data_->bands;
    auto& spans = data_->spans;
    Rect& box = data_->box;
    const std::size_t count = spans.size() - first_;
    if (count == 0) return;
    if (!bands.empty() && bands.back().bottom == top &&
        std::ranges::equal(data_->of(bands.back()), std::span(spans).subspan(first_))) {
        bands.back().bottom = bottom;
        spans.resize(first_);
    } else {
        bands.push_back({top, bottom, first_, count});
        box = box.united({spans[first_].x0, top, spans.back().x1, bottom});
    }
    box.bottom = bottom;
    first_ = spans.size();
}

Region RegionBuilder::take()
{
    Region region;
    if (!overflows()) {
        data_->indexRows();
        region.data_ = std::move(data_);
    }
    data_ = std::make_shared<Region::Data>();
    first_ = 0;
    return region;
}

Region Region::rectangle(int left, int top, int right, int bottom)
{
    const auto [l, r] = std::minmax(left, right);
    const auto [t, b] = std::minmax(top, bottom);
    RegionBuilder out;
    if (t != b) out.add(l, r);
    out.endBand(t, b);
    return out.take();
}

bool Region::isEmpty() const { return !data_ || data_->bands.empty(); }

Rect Region::bounds() const { return data_ ? data_->box : Rect{}; }

std::size_t Region::rectangleCount() const { return data_ ? data_->spans.size() : 0; }

std::span<const Span> Region::spans(int y) const { return data_ ? data_->row(y) : std::span<const Span>(); }

bool Region::contains(int x, int y) const
{
    const auto row = spans(y);
    const auto after = std::upper_bound(row.begin(), row.end(), x, [](int v, const Span& s) { return v < s.x0; });
    return after != row.begin() && x < std::prev(after)->x1;
}

void Region::forEachRectangle(const std::function<void(const Rect&)>& visit) const
{
    if (!data_) return;
    for (const Data::Band& band : data_->bands)
        for (const Span s : data_->of(band)) visit({s.x0, band.top, s.x1, band.bottom});
}

Region Region::combined(const Region& other, Combine mode) const
{
    static const Data none;
    const Data &a = data_ ? *data_ : none, &b = other.data_ ? *other.data_ : none;
    switch (mode) {
    case Combine::And:
        return combineBands(a, b, [](bool p, bool q) { return p && q; });
    case Combine::Or:
        return combineBands(a, b, [](bool p, bool q) { return p || q; });
    case Combine::Xor:
        return combineBands(a, b, [](bool p, bool q) { return p != q; });
    case Combine::Diff:
        return combineBands(a, b, [](bool p, bool q) { return p && !q; });
    case Combine::Copy:
        break;
    }
    return *this;
}

template <class MapX, class MapY> Region Region::mapped(MapX mapX, MapY mapY) const
{
    if (!data_) return {};
    RegionBuilder out;
    for (const Data::Band& band : data_->bands) {
        const int top = mapY(band.top), bottom = mapY(band.bottom);
        if (top == bottom) continue;
        for (const Span s : data_->of(band)) out.add(mapX(s.x0), mapX(s.x1));
        out.endBand(top, bottom);
    }
    return out.take();
}

Region Region::translated(int dx, int dy) const
{
    const auto fits = [](std::int64_t v) { return v == static_cast<std::int32_t>(v); };
    const Rect box = bounds();
    if (!fits(std::int64_t(box.left) + dx) || !fits(std::int64_t(box.right) + dx) ||
        !fits(std::int64_t(box.top) + dy) || !fits(std::int64_t(box.bottom) + dy))
        return *this;
    return mapped([dx](int x) { return x + dx; }, [dy](int y) { return y + dy; });
}

Region Region::scaled(double factor) const
{
    const auto scale = [factor](int v) {
        constexpr double low = std::numeric_limits<int>::min(), high = std::numeric_limits<int>::max();
        return static_cast<int>(std::clamp(roundToEven(v * factor), low, high));
    };
    return mapped(scale, scale);
}

bool operator==(const Region& a, const Region& b)
{
    if (a.isNull() || b.isNull()) return a.isNull() == b.isNull();
    return a.data_ == b.data_ || (a.data_->spans == b.data_->spans && a.data_->bands == b.data_->bands);
}

} // namespace velara
