// Pasting a source: with a colour key, by its own mask, or as ink.
#include "paint/Painter.h"
#include "pixels/numbers.h"
#include "region/spanWalk.h"
#include "seams/ToolStores.h"

namespace velara {

/// Calls row(from, to, count) for each run of the source that lies over the picture and within region. An overlap of a
/// single column or row counts as none.
template <class Row> void Painter::paste(int x, int y, const Bits& source, const Region& region, Row row)
{
    const auto last = [](int at, int size) {
        return static_cast<int>(std::min<std::int64_t>(std::int64_t(at) + size - 1, 1 << 30));
    };
    const Rect target =
        Rect{x, y, last(x, source.width()), last(y, source.height())}.intersected({0, 0, bits_.maxX(), bits_.maxY()});
    if (target.isEmpty()) return;
    for (int py = target.top; py <= target.bottom; ++py)
        eachSpanWithin(region, py, target.left, target.right + 1, [&](int x0, int x1) {
            touch(py, x0, x1);
            row(source.row(py - y) + (x0 - x), bits_.row(py) + x0, x1 - x0);
        });
}

void Painter::BitsPaint(int x, int y, const Bits& source, Colour key, int opacity, bool useRegion)
{
    if (bits_.isNull() || source.isNull()) return;
    const Bits held = source; // in case it is the picture itself
    const Region& region = begin(useRegion ? selection_.working() : selection_.RegionMain());
    const Table* table = blend(opacity);
    const auto isKey = [key](const Pixel& p) { return colourOf(p.c[2], p.c[1], p.c[0]) == (key & 0xFFFFFF); };
    paste(x, y, held, region, [&](const Pixel* from, Pixel* to, int count) {
        if (key == -1) return blendRun(from, to, count, opacity, table);
        for (int i = 0; i < count; ++i)
            if (!isKey(from[i])) blendRun(from + i, to + i, 1, opacity, table);
    });
}

void Painter::BitsPaintPreMasked(int x, int y, const Bits& source, int opacity, bool useRegion)
{
    if (bits_.isNull() || source.isNull()) return;
    const Bits held = source;
    const Region& region = begin(useRegion ? selection_.working() : selection_.RegionMain());
    const Table* table = blend(opacity);
    paste(x, y, held, region, [&](const Pixel* from, Pixel* to, int count) {
        for (int i = 0; i < count;) { // runs of pixels to paint
            int end = i;
            while (end < count && from[end].c[3] != 255) ++end;
            blendRun(from + i, to + i, end - i, opacity, table);
            for (i = end; i < count && from[i].c[3] == 255;) ++i;
        }
    });
}

void Painter::BitsBWMask(int x, int y, const Bits& mask, Colour colour, int opacity)
{
    if (bits_.isNull() || mask.isNull()) return;
    const Bits held = mask;
    const double op = opacity / 100.0;
    const int components[] = {blueOf(colour), greenOf(colour), redOf(colour)};
    paste(x, y, held, working(), [&](const Pixel* from, Pixel* to, int count) {
        for (int i = 0; i < count; ++i) {
            const int m = from[i].c[0];
            if (m >= kMaskPaper) continue;
            const double a = (1 - double(m) / kMaskPaper) * op;
            for (int c = 0; c < 3; ++c) to[i].c[c] = toByte(to[i].c[c] * (1 - a) + components[c] * a);
        }
    });
}

} // namespace velara
