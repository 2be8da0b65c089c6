// Vector kernel of the flood fill.
#pragma once
#include "pixels/Bits.h"

namespace velara {

/// Bit i: whether the channels of pixel i differ from the seed's by at most tolerance in all. count is 1 to 64.
std::uint64_t pixelsLike(const Pixel* pixels, int count, Pixel seed, int tolerance);

} // namespace velara
