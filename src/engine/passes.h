// The calling patterns of the filters. A filter is the body of a loop that is written here.
#pragma once
#include "engine/SpanOf.h"
#include "engine/cBitFilter.h"
#include "engine/copyPixels.h"
#include "pixels/RuntimeError.h"
#include "pixels/memory/checkSize.h"
#include "pixels/threads/Copies.h"
#include "pixels/threads/WrittenRows.h"
#include <algorithm>
#include <atomic>
#include <type_traits>

namespace velara {

/// The part of box that lies inside the picture.
inline Box insidePicture(const Box& box, const Bits& bits)
{
    return {std::max(box.xmin, 0), std::min(box.xmax, bits.maxX()), std::max(box.ymin, 0),
            std::min(box.ymax, bits.maxY())};
}

/// Pictures of at least this many bytes do not fit into the cache.
constexpr std::size_t kPastTheCache = 16 << 20;

/// A kernel for arguments that divide by zero: it faults at the first pixel, so an empty selection doesn't.
[[noreturn]] inline void divideByZero(const Pixel*, Pixel*, int, int) { throw RuntimeError(Fault::DivisionByZero); }

/// Paints black, keeping the fourth byte.
inline void blacken(const Pixel* from, Pixel* to, int x0, int x1)
{
    for (int x = x0; x < x1; ++x) to[x] = {{0, 0, 0, from[x].c[3]}};
}

/// copy(source row, target row, x0, x1) for what lies between the selected parts of a picture's rows.
inline auto copyBetween(const Bits& in)
{
    // The kernels prefetch two rows ahead, too: another distance would leave out what lies between the two.
    return [streams = in.sizeInBytes() >= kPastTheCache,
            ahead = 2 * std::ptrdiff_t{in.stride()}](const Pixel* from, Pixel* to, int x0, int x1) {
        streams ? streamPixelsAhead(from, to, x0, x1, ahead) : copyPixels(from, to, x0, x1);
    };
}

/// Calls a kernel of eachSpan in the form that it has.
template <class Kernel> void callWith(Kernel& kernel, const SpanOf& s, int y)
{
    if constexpr (std::is_invocable_v<Kernel&, const SpanOf&>)
        kernel(s);
    else if constexpr (std::is_invocable_v<Kernel&, const Pixel*, Pixel*, int, int, int>)
        kernel(s.from, s.to, s.x0, s.x1, y);
    else
        kernel(s.from, s.to, s.x0, s.x1);
}
template <class Kernel>
concept SpanKernel =
    std::is_invocable_v<Kernel, const SpanOf&> || std::is_invocable_v<Kernel, const Pixel*, Pixel*, int, int> ||
    std::is_invocable_v<Kernel, const Pixel*, Pixel*, int, int, int>;

/// Each selected pixel by itself, the region's spans row by row. kernel(SpanOf), or kernel(source row, target row, x0,
/// x1), optionally with the row's y as a fifth argument, writes all four bytes of each pixel of x0..x1-1; both pointers
/// are to x = 0, and the rows above and below are bits().stride() pixels away. Pixels outside of the box or of the
/// region are copied. margin shrinks the box. A kernel that changes from call to call gets its rows in order.
template <class Kernel> Bits cBitFilter::eachSpan(int margin, Kernel&& kernel, Cut cut)
{
    using Shared = const std::remove_reference_t<Kernel>&;
    if constexpr (SpanKernel<Shared>) {
        return eachSpanOf(margin, cut, [&]() -> Shared { return kernel; });
    } else {
        cut.alone = true;
        return eachSpanOf(margin, cut, [&]() -> Kernel& { return kernel; });
    }
}

/// The same with a kernel for each thread: make() gives it. It goes from piece to piece, in any order; where make()
/// gives a reference, all have the same one.
template <class Make> Bits cBitFilter::eachSpanOf(int margin, Cut cut, Make&& make)
{
    const Bits in = bits_; // keeps the source, even if Progress calls setBits
    const Region region = region_;
    const Box box = insidePicture(GetBounds(margin), in);
    if (box.isEmpty()) {
        report(100);
        return in;
    }
    Bits out = Bits::uninitialized(in.width(), in.height());
    const WrittenRows rows(out);
    const auto copy = copyBetween(in);
    copyRows(in, out, -Bits::kMargin, box.ymin);
    using Kernel = decltype(make());
    const auto rowsBy = [&](int y0, int y1, auto& kernel) {
        for (int y = y0; y < y1; ++y) {
            const Pixel* from = in.row(y);
            Pixel* to = rows.row(y);
            int copied = -Bits::kMargin;
            for (const Span s : region.spans(y)) {
                const int x0 = std::max(s.x0, box.xmin), x1 = std::min(s.x1, box.xmax + 1);
                if (x0 >= x1) continue;
                copy(from, to, copied, x0);
                callWith(kernel, {from, in.stride(), to, x0, x1}, y);
                copied = x1;
            }
            copy(from, to, copied, in.width() + Bits::kMargin);
        }
    };
    if constexpr (std::is_reference_v<Kernel>) {
        eachPiece(box.ymin, box.ymax + 1, cut, in, [&](int y0, int y1) { rowsBy(y0, y1, make()); });
    } else {
        Copies<Kernel> kernels(make);
        eachPiece(box.ymin, box.ymax + 1, cut, in,
                  [&](int y0, int y1) { kernels.lend([&](Kernel& own) { rowsBy(y0, y1, own); }); });
    }
    copyRows(in, out, box.ymax + 1, in.height() + Bits::kMargin);
    report(100);
    return out;
}

/// A pass over the whole picture that writes nothing: the sum of row(source row), with progress.
template <class Row> std::int64_t cBitFilter::sumOfRows(const Bits& in, Row&& row)
{
    std::atomic<std::int64_t> sum = 0;
    eachPiece(0, in.height(), {}, in, [&](int y0, int y1) {
        for (int y = y0; y < y1; ++y) sum.fetch_add(row(in.row(y)), std::memory_order_relaxed);
    });
    return sum;
}

} // namespace velara
