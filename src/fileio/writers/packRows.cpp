#include "fileio/writers/packRows.h"
#include <cstring>

namespace velara {

namespace {

std::uint32_t wordOf(const Pixel& pixel)
{
    std::uint32_t word = 0;
    std::memcpy(&word, &pixel, sizeof word);
    return word;
}

/// Each word's fourth byte is overwritten by the next pixel; the last one has no room for it.
template <class Turn> void pack(const Pixel* row, std::uint8_t* to, int width, Turn turn)
{
    int x = 0;
    for (; x < width - 1; ++x, to += 3) {
        const std::uint32_t word = turn(wordOf(row[x]));
        std::memcpy(to, &word, sizeof word);
    }
    const std::uint32_t word = turn(wordOf(row[x]));
    std::memcpy(to, &word, 3);
}

} // namespace

void packRow24(const Pixel* row, std::uint8_t* to, int width, Order order)
{
    if (order == Order::BlueFirst) return pack(row, to, width, [](std::uint32_t word) { return word; });
    pack(row, to, width, [](std::uint32_t word) { return __builtin_bswap32(word) >> 8; });
}

} // namespace velara
