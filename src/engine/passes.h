// The calling patterns of the filters. A filter is the body of a loop that is written here.
#pragma once
#include "engine/cBitFilter.h"
#include "pixels/RuntimeError.h"
#include "pixels/memory/checkSize.h"
#include "pixels/threads/WrittenRows.h"
#include <algorithm>
#include <atomic>
#include <cstring>
#include <emmintrin.h>
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

/// Copies the columns x0 to x1-1.
inline void copyPixels(const Pixel* from, Pixel* to, int x0, int x1)
{
    if (x1 > x0) std::memcpy(to + x0, from + x0, sizeof(Pixel) * static_cast<std::size_t>(x1 - x0));
}

/// The same by non-temporal stores, in whole cache lines: for pictures that do not fit into the cache and whose other
/// pixels are written the same way.
inline void streamPixels(const Pixel* from, Pixel* to, int x0, int x1)
{
    constexpr int kLine = 16; // pixels
    while (x0 < x1 && reinterpret_cast<std::uintptr_t>(to + x0) % (kLine * sizeof(Pixel)) != 0) {
        to[x0] = from[x0];
        ++x0;
    }
    for (; x0 + kLine <= x1; x0 += kLine)
        for (int i = 0; i < kLine; i += 4)
            _mm_stream_si128(reinterpret_cast<__m128i*>(to + x0 + i),
                             _mm_loadu_si128(reinterpret_cast<const __m128i*>(from + x0 + i)));
    copyPixels(from, to, x0, x1);
}

/// Copies the rows y0 to y1-1, margin columns included.
inline void copyRows(const Bits& from, Bits& to, int y0, int y1)
{
    if (y1 > y0)
        std::memcpy(to.row(y0) - Bits::kMargin, from.row(y0) - Bits::kMargin,
                    sizeof(Pixel) * static_cast<std::size_t>(y1 - y0) * static_cast<std::size_t>(from.stride()));
}

/// Zeroes the margin of two pixels around the picture.
inline void clearMargin(Bits& bits)
{
    const auto columns = static_cast<std::size_t>(bits.stride());
    for (const int y : {-2, -1, bits.height(), bits.height() + 1})
        std::memset(bits.row(y) - Bits::kMargin, 0, sizeof(Pixel) * columns);
    for (int y = 0; y < bits.height(); ++y) {
        std::memset(bits.row(y) - Bits::kMargin, 0, sizeof(Pixel) * Bits::kMargin);
        std::memset(bits.row(y) + bits.width(), 0, sizeof(Pixel) * Bits::kMargin);
    }
}

/// A kernel for arguments that divide by zero: it faults at the first pixel, so an empty selection doesn't.
[[noreturn]] inline void divideByZero(const Pixel*, Pixel*, int, int) { throw RuntimeError(Fault::DivisionByZero); }

/// Paints black, keeping the fourth byte.
inline void blacken(const Pixel* from, Pixel* to, int x0, int x1)
{
    for (int x = x0; x < x1; ++x) to[x] = {{0, 0, 0, from[x].c[3]}};
}

/// Each selected pixel by itself, the region's spans row by row. kernel(source row, target row, x0, x1), optionally
/// with the row's y as a fifth argument, writes all four bytes of each pixel of x0..x1-1; both pointers are to x = 0,
/// and the rows above and below are bits().stride() pixels away. Pixels outside of the box or of the region are copied.
/// margin shrinks the box. A kernel that changes from call to call gets its rows in order.
template <class Kernel> Bits cBitFilter::eachSpan(int margin, Kernel&& kernel, Cut cut)
{
    using Shared = const std::remove_reference_t<Kernel>&;
    if constexpr (std::is_invocable_v<Shared, const Pixel*, Pixel*, int, int> ||
                  std::is_invocable_v<Shared, const Pixel*, Pixel*, int, int, int>) {
        return eachSpanOf(margin, cut, [&]() -> Shared { return kernel; });
    } else {
        cut.alone = true;
        return eachSpanOf(margin, cut, [&]() -> Kernel& { return kernel; });
    }
}

/// The same with a kernel for each piece: make() gives it.
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
    const auto copy = in.sizeInBytes() >= kPastTheCache ? streamPixels : copyPixels;
    copyRows(in, out, -Bits::kMargin, box.ymin);
    eachPiece(box.ymin, box.ymax + 1, cut, in, [&](int y0, int y1) {
        decltype(auto) kernel = make();
        for (int y = y0; y < y1; ++y) {
            const Pixel* from = in.row(y);
            Pixel* to = rows.row(y);
            int copied = -Bits::kMargin;
            for (const Span s : region.spans(y)) {
                const int x0 = std::max(s.x0, box.xmin), x1 = std::min(s.x1, box.xmax + 1);
                if (x0 >= x1) continue;
                copy(from, to, copied, x0);
                if constexpr (std::is_invocable_v<decltype(kernel), const Pixel*, Pixel*, int, int, int>)
                    kernel(from, to, x0, x1, y);
                else
                    kernel(from, to, x0, x1);
                copied = x1;
            }
            copy(from, to, copied, in.width() + Bits::kMargin);
        }
    });
    copyRows(in, out, box.ymax + 1, in.height() + Bits::kMargin);
    report(100);
    return out;
}

/// A pass over the whole picture that writes nothing: the sum of row(source row), with progress and the final report.
template <class Row> std::int64_t cBitFilter::sumOfRows(const Bits& in, Row&& row)
{
    std::atomic<std::int64_t> sum = 0;
    eachPiece(0, in.height(), {}, in, [&](int y0, int y1) {
        for (int y = y0; y < y1; ++y) sum.fetch_add(row(in.row(y)), std::memory_order_relaxed);
    });
    report(100);
    return sum;
}

} // namespace velara
