// The number conversions of the engine: rounding, byte conversion, division, clamping. No other place rounds.
#pragma once
#include "pixels/RuntimeError.h"
#include <cmath>
#include <cstdint>
#include <limits>

namespace velara {

constexpr float kPi = 3.141592f;                           // double value 3.141592025756836
constexpr float kTwoPi = 6.283184f;                        // double value 6.283184051513672
constexpr double kDegreesToRadians = 0.017453288659453392; // of kPi

/// Nearest whole number, halves to the even neighbour (2.5 gives 2), as a double.
inline double roundToEven(double v) { return std::nearbyint(v); }

/// The same as a 32-bit integer. Raises Overflow outside of its range, NaN included.
inline std::int32_t roundEven(double v)
{
    const double r = std::nearbyint(v);
    if (!(r >= std::numeric_limits<std::int32_t>::min() && r <= std::numeric_limits<std::int32_t>::max()))
        throw RuntimeError(Fault::Overflow);
    return static_cast<std::int32_t>(r);
}

/// Rounded to a byte. Raises Overflow outside of 0..255.
inline std::uint8_t toByte(double v)
{
    const double r = std::nearbyint(v);
    if (!(r >= 0 && r <= 255)) throw RuntimeError(Fault::Overflow);
    return static_cast<std::uint8_t>(r);
}

/// v limited to 0..255.
constexpr std::uint8_t clamp(std::int64_t v) { return static_cast<std::uint8_t>(v < 0 ? 0 : v > 255 ? 255 : v); }

/// Division that truncates toward zero. Raises DivisionByZero; INT_MIN \ -1 raises Overflow.
constexpr std::int32_t divide(std::int32_t a, std::int32_t b)
{
    if (b == 0) throw RuntimeError(Fault::DivisionByZero);
    if (b == -1 && a == std::numeric_limits<std::int32_t>::min()) throw RuntimeError(Fault::Overflow);
    return a / b;
}

/// Floating division. Raises DivisionByZero.
inline double quotient(double a, double b)
{
    if (b == 0) throw RuntimeError(Fault::DivisionByZero);
    return a / b;
}

} // namespace velara
