// Look-up by two channels at once: one table of 65536 entries costs less a pixel than two of 256.
#pragma once
#include "filters/Bits.h"
#include "filters/kernels_colour.h"
#include <array>
#include <vector>

namespace velara {

using ByteTable = std::array<std::uint8_t, 256>;

/// f(low, high) of all pairs of bytes, at low | high << 8.
template <class T, class Function> std::vector<T> pairTable(Function f)
{
    std::vector<T> table(65536);
    std::size_t i = 0;
    for (int high = 0; high < 256; ++high)
        for (int low = 0; low < 256; ++low) table[i++] = static_cast<T>(f(low, high));
    return table;
}

/// Calls body(from, to, n) for blocks of the columns x0..x1-1. The blocks of a long span are staged, so that they are
/// written past the cache as whole lines.
template <class Body> void inBlocks(const Pixel* from, Pixel* to, int x0, int x1, Body body)
{
    constexpr int kBlock = 1024; // as many as are written past the cache
    constexpr std::uintptr_t kCacheLine = 64;
    Pixel staged[kBlock];
    if (x1 - x0 >= 2 * kBlock) {
        const std::uintptr_t over = reinterpret_cast<std::uintptr_t>(to + x0) % kCacheLine;
        const int head = static_cast<int>((kCacheLine - over) % kCacheLine / sizeof(Pixel));
        body(from + x0, to + x0, head);
        x0 += head;
    }
    for (; x1 - x0 >= kBlock; x0 += kBlock) {
        body(from + x0, staged, kBlock);
        colourKernels().copyPast(staged, to + x0, kBlock);
    }
    if (x1 > x0) body(from + x0, to + x0, x1 - x0);
}

/// The three channels through one table.
class ThroughTable {
  public:
    explicit ThroughTable(const ByteTable& table)
        : table_(table), pairs_(pairTable<std::uint16_t>([&](int a, int b) { return table[a] | table[b] << 8; }))
    {
    }
    void operator()(const Pixel* from, Pixel* to, int x0, int x1) const
    {
        inBlocks(from, to, x0, x1, [this](const Pixel* p, Pixel* q, int n) {
            for (int i = 0; i < n; ++i) {
                const std::uint16_t low = pairs_[std::size_t(p[i].c[0] | p[i].c[1] << 8)];
                q[i] = {{static_cast<std::uint8_t>(low), static_cast<std::uint8_t>(low >> 8), table_[p[i].c[2]],
                         p[i].c[3]}};
            }
        });
    }

  private:
    ByteTable table_;
    std::vector<std::uint16_t> pairs_;
};

} // namespace velara
