// Point filters by table: spans in blocks, and one table for all three channels.
#pragma once
#include "engine/colour/kernels_colour.h"
#include "pixels/Bits.h"
#include "pixels/pairTable.h"
#include <array>
#include <bit>

namespace velara {

using ByteTable = std::array<std::uint8_t, 256>;

/// Calls body(from, to, n) for blocks of the columns x0..x1-1. Blocks of a long span are staged in a buffer and written
/// as whole cache lines by non-temporal stores.
template <class Body> void inBlocks(const Pixel* from, Pixel* to, int x0, int x1, Body body)
{
    constexpr int kBlock = 1024; // the span length from which non-temporal stores are used
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

/// A pixel's four bytes as one word, and back: assembled in a register, a pixel needs a single store.
inline std::uint32_t wordOf(const Pixel& p) { return std::bit_cast<std::uint32_t>(p); }
inline Pixel pixelFrom(std::uint32_t word) { return std::bit_cast<Pixel>(word); }

/// A grey, with the fourth byte of p.
inline Pixel greyPixel(std::uint8_t grey, const Pixel& p)
{
    return pixelFrom(grey * 0x00010101u | (wordOf(p) & kFourthByte));
}

/// All three channels through one table.
class ThroughTable {
  public:
    explicit ThroughTable(const ByteTable& table) : table_(table) {}
    void operator()(const SpanOf& s) const { colourKernels().table(s, table_.data()); }

  private:
    alignas(64) ByteTable table_;
};

} // namespace velara
