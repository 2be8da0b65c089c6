#include "region/outline.h"
#include "region/cBitRegion.h"
#include <QImage>
#include <algorithm>
#include <cstdlib>

namespace velara {

/// Cuts the interior found so far to the row moved by shift.
void FrameSpans::keepInterior(std::span<const Span> row, int shift, int left, int right)
{
    scratch_.clear();
    auto mine = interior_.begin();
    auto other = std::ranges::lower_bound(row, left - shift, {}, &Span::x1);
    while (mine != interior_.end() && other != row.end() && other->x0 + std::int64_t(shift) < right) {
        const std::int64_t o0 = other->x0 + std::int64_t(shift), o1 = other->x1 + std::int64_t(shift);
        const std::int64_t x0 = std::max<std::int64_t>(mine->x0, o0), x1 = std::min<std::int64_t>(mine->x1, o1);
        if (x0 < x1) scratch_.push_back({static_cast<int>(x0), static_cast<int>(x1)});
        if (mine->x1 < o1)
            ++mine;
        else
            ++other;
    }
    interior_.swap(scratch_);
}

std::span<const Span> FrameSpans::row(int y, int left, int right)
{
    const std::span<const Span> covered = region_.spans(y);
    interior_.assign(1, {left, right});
    for (const auto& [row, shift] :
         {std::pair(covered, width_), std::pair(covered, -width_), std::pair(region_.spans(y - height_), 0),
          std::pair(region_.spans(y + height_), 0)})
        keepInterior(row, shift, left, right);

    // What is covered and not interior.
    scratch_.clear();
    auto inner = interior_.begin();
    for (auto s = std::ranges::upper_bound(covered, left, {}, &Span::x1); s != covered.end() && s->x0 < right; ++s) {
        int x = std::max(s->x0, left);
        const int end = std::min(s->x1, right);
        while (inner != interior_.end() && inner->x1 <= x) ++inner;
        for (auto i = inner; x < end; ++i) {
            const bool hit = i != interior_.end() && i->x0 < end;
            const int stop = hit ? i->x0 : end;
            if (x < stop) scratch_.push_back({x, stop});
            if (!hit) break;
            x = std::max(x, i->x1);
        }
    }
    return scratch_;
}

void drawOutline(QImage& device, const Region& region, int dx, int dy, int n, const Rect& part)
{
    const Rect box = region.bounds();
    const Rect view = part.intersected({0, 0, device.width(), device.height()});
    const std::int64_t top = std::max<std::int64_t>(view.top, std::int64_t(box.top) + dy);
    const std::int64_t bottom = std::min<std::int64_t>(view.bottom, std::int64_t(box.bottom) + dy);
    if (view.isEmpty() || top >= bottom) return;
    constexpr QRgb kColours[] = {0xFF000000, 0xFFFFFFFF};
    FrameSpans frame(region, 1, 1);
    for (int y = static_cast<int>(top); y < bottom; ++y) {
        QRgb* line = reinterpret_cast<QRgb*>(device.scanLine(y));
        for (const Span s : frame.row(y - dy, view.left - dx, view.right - dx))
            for (int x = s.x0 + dx; x < s.x1 + dx; ++x) line[x] = kColours[isStripe(n, x, y)];
    }
}

/// Here, since what has no window needs no QImage.
void cBitRegion::DrawToDC(QImage& device, int x, int y, const Rect& part) const
{
    drawOutline(device, scaled_, x, y, brush_, part);
}

} // namespace velara
