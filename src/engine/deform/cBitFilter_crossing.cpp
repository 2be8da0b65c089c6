// The calling pattern of the warps whose columns and rows move independently: row by row, with non-temporal stores.
#include "engine/deform/kernels_warp.h"
#include "engine/passes.h"
#include "pixels/threads/Copies.h"

namespace velara {

namespace {

/// -1 for what holds, 0 for what doesn't, by column.
struct Marks {
    std::vector<std::int32_t> selected, inside;
    const Span* of = nullptr; // the spans that they were made for
};

/// Marks in marks.inside which of the columns x0..x1-1 have a selected source in a row with these spans. limited: the
/// sources, moved into the picture.
void markInside(std::span<const Span> spans, int width, int x0, int x1, const std::int32_t* columns,
                const std::int32_t* limited, Marks& marks)
{
    if (!spans.empty() && marks.of == spans.data()) return; // rows of a band have the same spans
    marks.of = spans.empty() ? nullptr : spans.data();
    std::int32_t *const inside = marks.inside.data(), *const selected = marks.selected.data();
    if (spans.size() <= 1) {
        const int first = spans.empty() ? 0 : std::max(spans[0].x0, 0);
        const int end = spans.empty() ? 0 : std::min(spans[0].x1, width);
        return markWithin(columns, first, end, x0, x1, inside);
    }
    std::fill_n(selected, width, 0);
    for (const Span s : spans)
        for (int x = std::max(s.x0, 0); x < std::min(s.x1, width); ++x) selected[x] = -1;
    for (int x = x0; x < x1; ++x) inside[x] = limited[x] == columns[x] ? selected[limited[x]] : 0;
}

} // namespace

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
    Copies<Marks> marks([width] { return Marks{std::vector<std::int32_t>(width), std::vector<std::int32_t>(width)}; });
    eachPiece(box.ymin, box.ymax + 1, {}, in, [&](int y, int) {
        const Pixel* from = in.row(y);
        Pixel* to = written.row(y);
        copyPixels(from, to, -Bits::kMargin, box.xmin);
        copyPixels(from, to, box.xmax + 1, in.width() + Bits::kMargin);
        const int sy = rows[y];
        const auto spans = sy >= 0 && sy <= in.maxY() ? region.spans(sy) : std::span<const Span>();
        marks.lend([&](Marks& own) {
            markInside(spans, in.width(), box.xmin, box.xmax + 1, columns.data(), limited.data(), own);
            takeColumns({from, in.stride(), to, box.xmin, box.xmax + 1}, in.row(spans.empty() ? 0 : sy), limited.data(),
                        own.inside.data(), Clean);
        });
    });
    copyRows(in, out, box.ymax + 1, in.height() + Bits::kMargin);
    report(100);
    return out;
}

} // namespace velara
