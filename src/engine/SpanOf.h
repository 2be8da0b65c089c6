// The argument of a vector kernel: a span of one row.
#pragma once
#include "pixels/Bits.h"

namespace velara {

/// Passed by value, so that a kernel's stores cannot alias it. A kernel writes the pixels x0..x1-1 of the row at to.
/// Both pointers are to x = 0; the source's rows above and below lie stride pixels away and may be margin. The fourth
/// byte comes from the source unless the kernel says otherwise. Copied member by member: a copy is then taken apart
/// into registers, where a plain structure stays in memory, and each row waits for it behind its non-temporal stores.
struct SpanOf {
    SpanOf(const Pixel* source, std::ptrdiff_t toNextRow, Pixel* target, int first, int end)
        : from(source), stride(toNextRow), to(target), x0(first), x1(end)
    {
    }
    SpanOf(const SpanOf& s) : from(s.from), stride(s.stride), to(s.to), x0(s.x0), x1(s.x1) {}

    const Pixel* from;
    std::ptrdiff_t stride;
    Pixel* to;
    int x0, x1;
};

/// A colour 0x00BBGGRR as a pixel's four bytes 0x00RRGGBB: blue in the lowest, the fourth zero.
constexpr std::uint32_t pixelOf(std::int32_t colour)
{
    const auto c = static_cast<std::uint32_t>(colour);
    return (c >> 16 & 0xFF) | (c & 0xFF00) | (c & 0xFF) << 16;
}

} // namespace velara
