// The calling pattern of the filters that work on a disc.
#pragma once
#include "engine/passes.h"
#include "pixels/numbers.h"
#include "pixels/threads/parallelFor.h"

namespace velara {

/// A disc in pixels, from a centre in fractions of the picture's size and a radius in fractions of its longer side.
struct Disc {
    std::int32_t x, y, radius;

    Disc(const Bits& bits, float CenterX, float CenterY, float Radius)
        : x(roundEven(static_cast<double>(bits.maxX()) * CenterX)),
          y(roundEven(static_cast<double>(bits.maxY()) * CenterY)),
          radius(roundEven(static_cast<double>(std::max(bits.maxX(), bits.maxY())) * Radius))
    {
    }
};

/// The selected pixels inside the picture whose squared distance from the disc's centre is below limit, within the
/// square of the disc's radius. kernel(source row, target row, x0, x1, y) as in eachSpan. A radius of 0 or less changes
/// nothing.
template <class Kernel> Bits cBitFilter::eachOfDisc(const Disc& disc, double limit, Kernel&& kernel)
{
    const Bits in = bits_;
    const Region region = region_;
    Bits out = in;
    const std::int64_t R = disc.radius;
    const int ymin = static_cast<int>(std::max<std::int64_t>(disc.y - R, 0));
    const int ymax = static_cast<int>(std::min<std::int64_t>(disc.y + R, in.maxY()));
    const WrittenRows rows(out);
    const auto row = [&](int y) {
        const double oy = static_cast<double>(y) - disc.y;
        const double room = limit - oy * oy; // the limit of ox * ox
        if (room <= 0) return;
        // The largest |ox| whose square is below room.
        double reach = std::min(std::ceil(std::sqrt(room)), static_cast<double>(R));
        while (reach >= 0 && !(reach * reach + oy * oy < limit)) --reach;
        const auto xmin = std::max<std::int64_t>(disc.x - static_cast<std::int64_t>(reach), 0);
        const auto xmax = std::min<std::int64_t>(disc.x + static_cast<std::int64_t>(reach), in.maxX());
        for (const Span s : region.spans(y)) {
            const int x0 = static_cast<int>(std::max<std::int64_t>(s.x0, xmin));
            const int x1 = static_cast<int>(std::min<std::int64_t>(s.x1, xmax + 1));
            if (x0 < x1) kernel(in.row(y), rows.row(y), x0, x1, y);
        }
    };
    if (R > 0 && ymin <= ymax)
        parallelFor(
            ymax - ymin + 1, turnsTogether(2 * R), [&](int i) { row(ymin + i); },
            [&](int i) { progressDue(ymin + i - disc.y + R, 2 * R); });
    report(100);
    return out;
}

} // namespace velara
