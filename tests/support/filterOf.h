// An engine with a picture and a stopped clock, and an operation run on it by name.
#pragma once
#include "engine/operations.h"

namespace velara {

inline cBitFilter filterOf(const Bits& bits, const Region& region)
{
    cBitFilter filter;
    filter.clock = [] { return 0u; };
    filter.setBits(bits);
    filter.setBitsRegion(region);
    return filter;
}

/// The whole picture is selected.
inline cBitFilter filterOf(const Bits& bits)
{
    return filterOf(bits, Region::rectangle(0, 0, bits.width(), bits.height()));
}

/// The engine's picture after the operation.
inline Bits run(std::string_view name, const Arguments& arguments, const Bits& bits, const Region& region)
{
    cBitFilter filter = filterOf(bits, region);
    findOperation(name)->call(filter, arguments);
    return filter.bits();
}

} // namespace velara
