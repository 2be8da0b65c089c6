// Vector kernels of the filters that work cell by cell.
#pragma once
#include "engine/SpanOf.h"

namespace velara {

/// The sums of the three channels, and the number of the pixels as the fourth.
struct CellSum {
    std::uint64_t c[4] = {};
    std::uint64_t count() const { return c[3]; }
};

struct CellKernels {
    /// Adds the three channels of each pixel, and 1 as the fourth, to the four sums of its column.
    void (*addColumns)(const Pixel* from, std::uint16_t* sums, int count);
    /// Adds up `side` columns for each cell, a new one every `step` columns. 32 bits hold what one call adds to a cell.
    void (*addCells)(const std::uint16_t* columns, std::int64_t step, std::int64_t side, CellSum* cells,
                     std::size_t count);
    /// round(c / parts) of the sums, halves to the even neighbour, or c \ parts if whole; at most 255. All sums below
    /// 2^23, so that quotients in singles lie on the right side of each half and each whole number.
    void (*meansOf)(const CellSum* cells, std::int32_t parts, bool whole, Pixel* means, std::size_t count);
    /// round(c * factors[x]) of the line's colours, halves to the even neighbour; at most 255.
    void (*paintScaled)(SpanOf, const Pixel* line, const float* factors);
    /// The colours of the line at to's columns, with the source's fourth bytes.
    void (*paintLine)(SpanOf, const Pixel* line);
};
const CellKernels& cellKernels();

} // namespace velara
