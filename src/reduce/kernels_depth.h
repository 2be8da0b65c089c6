// Vector kernels of the depths whose colours need no search. n pixels; fourth bytes are copied. Rows past the cache's
// size are written around it.
#pragma once
#include "pixels/Bits.h"

namespace velara {

/// Black or white: from a channel sum of 383 on white is nearer.
void blackOrWhite(const Pixel* from, Pixel* to, int n);
/// The high five bits of each channel, repeated in the low three.
void highBits(const Pixel* from, Pixel* to, int n);

} // namespace velara
