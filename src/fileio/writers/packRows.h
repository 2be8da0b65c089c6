// Rows of three bytes a pixel, as most files hold them.
#pragma once
#include "fileio/disk/ByteSink.h"
#include "pixels/Bits.h"
#include <algorithm>
#include <vector>

namespace velara {

enum class Order { BlueFirst, RedFirst };

/// Three bytes of each of W pixels, one after the other.
void packRow24(const Pixel* row, std::uint8_t* to, int width, Order order);

/// Writes rows of `pitch` bytes in bands that stay in the processor's cache. pack(y, to) makes row y of the picture,
/// 0 is the top one, and sets every byte. False when `to` ends it.
template <class Pack> bool writeRows(ByteSink& to, int height, std::size_t pitch, bool bottomUp, Pack&& pack)
{
    constexpr std::size_t kBand = 256 << 10;
    const int together = static_cast<int>(std::clamp<std::size_t>(kBand / pitch, 1, static_cast<std::size_t>(height)));
    std::vector<std::uint8_t> band(pitch * static_cast<std::size_t>(together));
    to.expect(static_cast<std::int64_t>(pitch) * height);
    for (int done = 0; done < height;) {
        const int rows = std::min(together, height - done);
        if (!to.awaitRow(bottomUp ? height - 1 - done : done + rows - 1)) return false;
        for (int i = 0; i < rows; ++i)
            pack(bottomUp ? height - 1 - done - i : done + i, band.data() + pitch * static_cast<std::size_t>(i));
        if (!to.write(band.data(), pitch * static_cast<std::size_t>(rows))) return false;
        done += rows;
    }
    return true;
}

} // namespace velara
