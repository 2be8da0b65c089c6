// A filter object over a picture that is selected whole, with a clock that stands.
#pragma once
#include "filters/cBitFilter.h"

namespace velara {

inline cBitFilter filterOf(const Bits& bits)
{
    cBitFilter filter;
    filter.clock = [] { return 0u; };
    filter.setBits(bits);
    filter.setBitsRegion(Region::rectangle(0, 0, bits.width(), bits.height()));
    return filter;
}

} // namespace velara
