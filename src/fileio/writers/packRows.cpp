#include "fileio/writers/packRows.h"
#include <cstring>
#include <hwy/highway.h>

namespace velara {

void packRow24(const Pixel* row, std::uint8_t* to, int width, Order order)
{
    namespace hn = hwy::HWY_NAMESPACE; // the baseline's: memory is what limits it
    constexpr int kTogether = 4; // pixels; their twelve bytes are stored as sixteen, the last four are overwritten
    alignas(16) static constexpr std::uint8_t kPlaces[][16] = {{0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, 0, 0, 0, 0},
                                                               {2, 1, 0, 6, 5, 4, 10, 9, 8, 14, 13, 12, 0, 0, 0, 0}};
    const std::uint8_t* places = kPlaces[order == Order::RedFirst];
    const hn::FixedTag<std::uint8_t, 16> d;
    const auto packed = hn::Load(d, places);
    int x = 0;
    for (; 3 * (width - x) >= 16; x += kTogether)
        hn::StoreU(hn::TableLookupBytes(hn::LoadU(d, reinterpret_cast<const std::uint8_t*>(row + x)), packed), d,
                   to + std::ptrdiff_t{3} * x);
    for (; x < width; ++x)
        for (int i = 0; i < 3; ++i) to[std::ptrdiff_t{3} * x + i] = row[x].c[places[i]];
}

} // namespace velara
