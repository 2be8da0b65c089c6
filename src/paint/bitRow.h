// Runs of equal bits in a row of words, bit x % 64 of word x / 64, lowest first.
#pragma once
#include <algorithm>
#include <bit>
#include <cstdint>

namespace velara {

/// The first bit of that value from `from` on, or `to` when there is none before.
inline int nextBit(const std::uint64_t* row, int from, int to, bool value)
{
    const std::uint64_t flip = value ? 0 : ~std::uint64_t(0);
    for (int x = from; x < to; x = (x / 64 + 1) * 64) {
        const std::uint64_t rest = (row[x / 64] ^ flip) >> (x % 64);
        if (rest) return std::min(x + std::countr_zero(rest), to);
    }
    return to;
}

/// The start of the run of set bits that ends with bit x, which is set.
inline int runStart(const std::uint64_t* row, int x)
{
    for (;;) {
        const int ones = std::countl_one(row[x / 64] << (63 - x % 64));
        if (ones <= x % 64 || x < 64) return x - ones + 1;
        x -= ones; // the highest bit of the word before
        if (!(row[x / 64] >> 63)) return x + 1;
    }
}

/// Sets or clears the bits from up to but not including to.
inline void setRun(std::uint64_t* row, int from, int to, bool value)
{
    for (int x = from; x < to;) {
        const int end = std::min(to, (x / 64 + 1) * 64);
        const std::uint64_t mask = (~std::uint64_t(0) >> (64 - (end - x))) << (x % 64);
        row[x / 64] = value ? row[x / 64] | mask : row[x / 64] & ~mask;
        x = end;
    }
}

} // namespace velara
