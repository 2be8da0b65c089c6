// Walking the part of a region's row that lies between two columns.
#pragma once
#include "region/Region.h"
#include <algorithm>

namespace velara {

/// Calls visit(from, to) for the spans of row y within columns [x0, x1), from left to right.
template <class Visit> void eachSpanWithin(const Region& region, int y, int x0, int x1, Visit visit)
{
    const std::span<const Span> row = region.spans(y);
    for (auto s = std::ranges::upper_bound(row, x0, {}, &Span::x1); s != row.end() && s->x0 < x1; ++s)
        visit(std::max(s->x0, x0), std::min(s->x1, x1));
}

} // namespace velara
