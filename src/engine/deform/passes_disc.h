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
    const std::int64_t R = disc.radius;
    const int ymin = static_cast<int>(std::max<std::int64_t>(disc.y - R, 0));
    const int ymax = static_cast<int>(std::min<std::int64_t>(disc.y + R, in.maxY()));
    if (R <= 0 || ymin > ymax) {
        report(100);
        return in;
    }
    Bits out = Bits::uninitialized(in.width(), in.height());
    const WrittenRows rows(out);
    const auto copy = copyBetween(in);
    // The columns from the first to the last in a row of the disc; empty where it has none.
    const auto columns = [&](int y) -> Span {
        const double oy = static_cast<double>(y) - disc.y;
        const double room = limit - oy * oy; // the limit of ox * ox
        if (room <= 0) return {0, 0};
        // The largest |ox| whose square is below room.
        double reach = std::min(std::ceil(std::sqrt(room)), static_cast<double>(R));
        while (reach >= 0 && !(reach * reach + oy * oy < limit)) --reach;
        const auto wide = static_cast<std::int64_t>(reach);
        return {static_cast<int>(std::max<std::int64_t>(disc.x - wide, 0)),
                static_cast<int>(std::min<std::int64_t>(disc.x + wide, in.maxX())) + 1};
    };
    const auto row = [&](int y) {
        const Span inside = columns(y);
        const Pixel* from = in.row(y);
        Pixel* to = rows.row(y);
        int copied = -Bits::kMargin;
        for (const Span s : region.spans(y)) {
            const int x0 = std::max(s.x0, inside.x0), x1 = std::min(s.x1, inside.x1);
            if (x0 >= x1) continue;
            copy(from, to, copied, x0);
            kernel(from, to, x0, x1, y);
            copied = x1;
        }
        copy(from, to, copied, in.width() + Bits::kMargin);
    };
    copyRows(in, out, -Bits::kMargin, ymin);
    parallelFor(
        ymax - ymin + 1, turnsTogether(in.width()), [&](int i) { row(ymin + i); },
        [&](int i) { progressDue(ymin + i - disc.y + R, 2 * R); });
    copyRows(in, out, ymax + 1, in.height() + Bits::kMargin);
    report(100);
    return out;
}

} // namespace velara
