// A pixel as four 32-bit integers in one vector register, for error diffusion.
#pragma once
#include "pixels/Bits.h"
#include <bit>
#include <smmintrin.h>

namespace velara {

using Lanes = int __attribute__((vector_size(16))); // blue, green, red and the fourth byte

inline Lanes absolute(Lanes v) { return v < 0 ? -v : v; }
inline Lanes limited(Lanes v, int least, int most)
{
    v = v < least ? Lanes{} + least : v;
    return v > most ? Lanes{} + most : v;
}

namespace detail {
using Bytes = std::uint8_t __attribute__((vector_size(16)));
}

/// The three channels as one number, without the fourth byte.
inline std::uint32_t channelBits(const Pixel& p) { return std::bit_cast<std::uint32_t>(p) & 0xFFFFFF; }
inline __m128i inRegister(const Pixel& p) { return _mm_cvtsi32_si128(std::bit_cast<int>(p)); }
inline Lanes wide(const Pixel& p) { return std::bit_cast<Lanes>(_mm_cvtepu8_epi32(inRegister(p))); }
/// Low byte of each lane.
inline Pixel narrow(Lanes v)
{
    const auto bytes = std::bit_cast<detail::Bytes>(v);
    const auto low = __builtin_shufflevector(bytes, bytes, 0, 4, 8, 12, 0, 4, 8, 12, 0, 4, 8, 12, 0, 4, 8, 12);
    return std::bit_cast<Pixel>(std::bit_cast<Lanes>(low)[0]);
}

} // namespace velara
