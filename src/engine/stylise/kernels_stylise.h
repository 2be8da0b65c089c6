// Vector kernels of the stylising filters that use single pixels.
#pragma once
#include "engine/SpanOf.h"

namespace velara {

struct StyliseKernels {
    /// Keeps the channel that is greater than both others and clears those; a tie for the greatest leaves the pixel
    /// unchanged.
    void (*strongest)(SpanOf);
    /// bright where all three channels are above 127, dark where none is; mixed pixels are kept. 0x00RRGGBB.
    void (*twoTone)(SpanOf, std::uint32_t bright, std::uint32_t dark);
};
const StyliseKernels& styliseKernels();

} // namespace velara
