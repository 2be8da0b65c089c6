// Division of small numbers by a divisor known only at run time, as a multiplication that keeps the high half.
#pragma once
#include <bit>
#include <cstdint>

namespace velara {

/// floor(n / divisor) for -kMostBelow <= n <= kMostBelow, on 16-bit lanes: with u = 2*n + twiceBias in 16 bits, floor(n
/// / divisor) = ((u * multiplier >> 16) >> shift) - bias. Exact, since the doubled, biased numerator stays below 2^15
/// and the multiplier exceeds 2^(15+shift) / divisor by less than one.
struct ShortDivider {
    static constexpr int kMostBelow = 4080;
    static constexpr int kGreatest = 4096; // greater divisors give the same: 0 or -1

    /// divisor >= 1.
    explicit constexpr ShortDivider(std::int64_t divisor)
    {
        const auto d = static_cast<std::uint32_t>(divisor < kGreatest ? divisor : kGreatest);
        shift = std::bit_width(d - 1);
        multiplier = static_cast<std::uint16_t>(((1u << (15 + shift)) + d - 1) / d);
        const std::uint32_t times = (kMostBelow + d - 1) / d;
        bias = static_cast<std::int16_t>(times);
        twiceBias = static_cast<std::int16_t>(2 * times * d);
    }

    /// The same for a single number.
    constexpr int operator()(int n) const
    {
        const auto u = static_cast<std::uint16_t>(2 * n + twiceBias);
        return static_cast<int>((u * std::uint32_t{multiplier} >> 16) >> shift) - bias;
    }

    std::uint16_t multiplier = 0;
    std::int16_t bias = 0, twiceBias = 0;
    int shift = 0;
};

} // namespace velara
