// Vector kernels of the filters that work cell by cell.
#pragma once
#include "filters/SpanOf.h"

namespace velara {

/// The three channels' sums and the number of the pixels.
struct CellSum {
    std::uint64_t c[3] = {}, count = 0;
};

struct CellKernels {
    /// Adds the three channels of each pixel, and 1 as the fourth, to the four sums of its column.
    void (*addColumns)(const Pixel* from, std::uint16_t* sums, int count);
    /// Adds up `side` columns for each cell, a new one every `step` columns. 32 bits hold what one call adds to a cell.
    void (*addCells)(const std::uint16_t* columns, std::int64_t step, std::int64_t side, CellSum* cells,
                     std::size_t count);
    /// The colours of the line at to's columns, with the source's fourth bytes.
    void (*paintLine)(SpanOf, const Pixel* line);
};
const CellKernels& cellKernels();

} // namespace velara
