// Look-up by two bytes at once: one table of 65536 entries is faster per pixel than two look-ups in 256.
#pragma once
#include <cstddef>
#include <vector>

namespace velara {

/// f(low, high) of all pairs of bytes, at low | high << 8.
template <class T, class Function> std::vector<T> pairTable(Function f)
{
    std::vector<T> table(65536);
    std::size_t i = 0;
    for (int high = 0; high < 256; ++high)
        for (int low = 0; low < 256; ++low) table[i++] = static_cast<T>(f(low, high));
    return table;
}

} // namespace velara
