// Vector kernels of the rank filters.
#pragma once
#include "engine/SpanOf.h"

namespace velara {

/// The pixel itself with its eight neighbours, its four side neighbours, or its four diagonal neighbours.
enum class RankWindow { Square, Sides, Diagonals };

struct RankKernels {
    void (*least)(SpanOf, RankWindow);
    void (*greatest)(SpanOf, RankWindow);
};
const RankKernels& rankKernels();

} // namespace velara
