#include "fileio/writers/packRows.h"
#include <cstring>

namespace velara {

namespace {

/// A byte's place among those of four pixels, for the twelve bytes of four in the file; the last four say nothing.
using Lanes = std::uint8_t __attribute__((vector_size(16)));
constexpr Lanes kBlueFirst{0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 0, 0, 0, 0};
constexpr Lanes kRedFirst{2, 1, 0, 6, 5, 4, 10, 9, 8, 14, 13, 12, 0, 0, 0, 0};

} // namespace

void packRow24(const Pixel* row, std::uint8_t* to, int width, Order order)
{
    constexpr int kTogether = 4, kTaken = 6; // sixteen bytes are written, the room of six pixels
    const Lanes places = order == Order::BlueFirst ? kBlueFirst : kRedFirst;
    int x = 0;
    for (; x <= width - kTaken; x += kTogether, to += 3 * kTogether) {
        Lanes four;
        std::memcpy(&four, row + x, sizeof four);
        four = __builtin_shuffle(four, places);
        std::memcpy(to, &four, sizeof four);
    }
    for (; x < width; ++x)
        for (int c = 0; c < 3; ++c) *to++ = row[x].c[order == Order::BlueFirst ? c : 2 - c];
}

} // namespace velara
