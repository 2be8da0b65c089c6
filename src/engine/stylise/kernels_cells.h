// Vector kernels of the filters that work cell by cell.
#pragma once
#include "engine/SpanOf.h"

namespace velara {

/// The sums of the three channels, and the pixel count as the fourth.
struct CellSum {
    std::uint64_t c[4] = {};
    std::uint64_t count() const { return c[3]; }
};

struct CellKernels {
    /// Adds the three channels of each pixel of some rows, and 1 as the fourth, to the four sums of its column.
    void (*addColumns)(const Pixel* from, std::ptrdiff_t stride, int rows, std::uint16_t* sums, int count);
    /// Adds `side` columns to each cell, a new cell every `step` columns. What one call adds to a cell fits in 32 bits.
    void (*addCells)(const std::uint16_t* columns, std::int64_t step, std::int64_t side, CellSum* cells,
                     std::size_t count);
    /// round(c / parts) of the sums, half to even, or c \ parts if whole; at most 255. All sums must be below 2^23, so
    /// that quotients in singles are on the right side of each half and each integer.
    void (*meansOf)(const CellSum* cells, std::int32_t parts, bool whole, Pixel* means, std::size_t count);
    /// The means, rounded down, of blocks of two by two pixels, into both of their columns x0..x1-1 of line; x0 is
    /// even. A last column of its own is a block of two.
    void (*meansOfFours)(const Pixel* upper, const Pixel* lower, Pixel* line, int x0, int x1);
    /// The means, rounded, of cells of three by three pixels, two columns apart, into both of their first columns
    /// x0..x1-1 of line; a cell's sum is divided by parts, the last cell's, which has fewer columns, by lastParts. At
    /// most 255.
    void (*meansOfNines)(const Pixel* upper, std::ptrdiff_t stride, std::int32_t parts, std::int32_t lastParts,
                         Pixel* line, int x0, int x1);
    /// round(c * factors[x]) of the line's colours, half to even; at most 255.
    void (*paintScaled)(SpanOf, const Pixel* line, const float* factors);
    /// The colours of the line at to's columns, with the source's fourth bytes.
    void (*paintLine)(SpanOf, const Pixel* line);
};
const CellKernels& cellKernels();

} // namespace velara
