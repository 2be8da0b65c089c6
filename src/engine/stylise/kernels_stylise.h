// Vector kernels of the stylising filters that look at one pixel alone.
#pragma once
#include "engine/SpanOf.h"

namespace velara {

struct StyliseKernels {
    /// Keeps the channel that is greater than both others and clears those; a tie for the top stays.
    void (*strongest)(SpanOf);
    /// bright where all three channels are above 127, dark where none is; pixels of both kinds stay. 0x00RRGGBB.
    void (*twoTone)(SpanOf, std::uint32_t bright, std::uint32_t dark);
};
const StyliseKernels& styliseKernels();

} // namespace velara
