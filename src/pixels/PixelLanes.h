// A pixel as four 32-bit integers in one vector register, for error diffusion.
#pragma once
#include "pixels/Register.h"

namespace velara {

inline Lanes absolute(Lanes v) { return v < 0 ? -v : v; }
inline Lanes limited(Lanes v, int least, int most)
{
    v = v < least ? Lanes{} + least : v;
    return v > most ? Lanes{} + most : v;
}

/// The three channels as one number, without the fourth byte.
inline std::uint32_t channelBits(const Pixel& p) { return std::bit_cast<std::uint32_t>(p) & 0xFFFFFF; }
/// Low byte of each lane.
inline Pixel narrow(Lanes v)
{
    const auto bytes = std::bit_cast<detail::Bytes>(v);
    const auto low = __builtin_shufflevector(bytes, bytes, 0, 4, 8, 12, 0, 4, 8, 12, 0, 4, 8, 12, 0, 4, 8, 12);
    return std::bit_cast<Pixel>(std::bit_cast<Lanes>(low)[0]);
}

} // namespace velara
