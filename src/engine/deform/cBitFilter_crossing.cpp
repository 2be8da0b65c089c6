// The calling pattern of the warps whose columns and rows move independently: row by row, with non-temporal stores.
#include "engine/deform/kernels_warp.h"
#include "engine/passes.h"

namespace velara {

Bits cBitFilter::eachCrossing(bool Clean, const std::vector<std::int32_t>& columns,
                              const std::vector<std::int32_t>& rows)
{
    const Bits in = bits_;
    const Region region = region_;
    const Box box = insidePicture(GetBounds(0), in);
    if (box.isEmpty()) {
        report(100);
        return in;
    }
    const auto width = static_cast<std::size_t>(in.width());
    std::vector<std::int32_t> limited(width);
    for (int x = box.xmin; x <= box.xmax; ++x) limited[x] = std::clamp(columns[x], 0, in.maxX());
    Bits out = Bits::uninitialized(in.width(), in.height());
    copyRows(in, out, -Bits::kMargin, box.ymin);
    const WrittenRows written(out);
    constexpr int kRows = 16; // share the thread's own tables
    eachPiece(box.ymin, box.ymax + 1, {kRows}, in, [&](int y0, int y1) {
        std::vector<std::int32_t> selected(width), inside(width);
        for (int y = y0; y < y1; ++y) {
            const Pixel* from = in.row(y);
            Pixel* to = written.row(y);
            copyPixels(from, to, -Bits::kMargin, box.xmin);
            copyPixels(from, to, box.xmax + 1, in.width() + Bits::kMargin);
            const int sy = rows[y];
            const auto spans = sy >= 0 && sy <= in.maxY() ? region.spans(sy) : std::span<const Span>();
            if (spans.size() <= 1) {
                const int first = spans.empty() ? 0 : std::max(spans[0].x0, 0);
                const int end = spans.empty() ? 0 : std::min(spans[0].x1, in.width());
                for (int x = box.xmin; x <= box.xmax; ++x) inside[x] = -(columns[x] >= first && columns[x] < end);
            } else {
                std::fill(selected.begin(), selected.end(), 0);
                for (const Span s : spans)
                    for (int x = std::max(s.x0, 0); x < std::min(s.x1, in.width()); ++x) selected[x] = -1;
                for (int x = box.xmin; x <= box.xmax; ++x)
                    inside[x] = limited[x] == columns[x] ? selected[limited[x]] : 0;
            }
            takeColumns({from, in.stride(), to, box.xmin, box.xmax + 1}, in.row(spans.empty() ? 0 : sy), limited.data(),
                        inside.data(), Clean);
        }
    });
    copyRows(in, out, box.ymax + 1, in.height() + Bits::kMargin);
    report(100);
    return out;
}

} // namespace velara
