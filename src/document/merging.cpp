#include "document/merging.h"
#include "pixels/fitSize.h"

namespace velara {

Bits merged(cBitFilter& filter, const Merging& m)
{
    if (m.overlay.isNull()) return filter.bits();
    return filter.TileMask(m.overlay, m.left, m.top, m.tiled, m.transparency, m.key);
}

namespace {

/// The overlay's column (or row) at a coordinate of the picture, or -1; it extends right and down from its corner.
int overlaid(std::int64_t place, int corner, int size, bool tiled)
{
    const std::int64_t at = place - corner;
    if (at < 0 || (!tiled && at >= size)) return -1;
    return static_cast<int>(at % size);
}

} // namespace

Bits mergedView(const Bits& picture, const Region& region, const Merging& m, QSize box)
{
    if (picture.isNull()) return picture;
    const QSize size = fitSize({picture.width(), picture.height()}, box).expandedTo({1, 1});
    const auto placed = [](int at, int of, int shown) { return static_cast<int>(std::int64_t(at) * of / shown); };
    // Both pictures at the view's size. Outside the overlay the picture lies over itself, which changes nothing.
    Bits below(size.width(), size.height());
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            below.at(x, y) =
                picture.at(placed(x, picture.width(), size.width()), placed(y, picture.height(), size.height()));
    if (m.overlay.isNull()) return below;
    Bits above = below;
    for (int y = 0; y < size.height(); ++y) {
        const int py = placed(y, picture.height(), size.height());
        const int oy = overlaid(py, m.top, m.overlay.height(), m.tiled);
        if (oy < 0) continue;
        const auto spans = region.spans(py);
        auto span = spans.begin();
        for (int x = 0; x < size.width(); ++x) {
            const int px = placed(x, picture.width(), size.width());
            while (span != spans.end() && span->x1 <= px) ++span;
            const int ox = overlaid(px, m.left, m.overlay.width(), m.tiled);
            if (ox >= 0 && span != spans.end() && span->x0 <= px) above.at(x, y) = m.overlay.at(ox, oy);
        }
    }
    cBitFilter filter;
    filter.clock = [] { return 0u; };
    filter.setBits(below);
    filter.setBitsRegion(Region::rectangle(0, 0, size.width(), size.height()));
    return filter.TileMask(above, 0, 0, false, m.transparency, m.key);
}

} // namespace velara
