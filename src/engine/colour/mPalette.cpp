#include "engine/colour/mPalette.h"
#include "pixels/RuntimeError.h"
#include <cstdlib>

namespace velara {

std::vector<PaletteColor>& PaletteColors()
{
    static std::vector<PaletteColor> colours;
    return colours;
}

PaletteColor NearestColor(std::int32_t red, std::int32_t green, std::int32_t blue)
{
    const auto& colours = PaletteColors();
    if (colours.empty()) throw RuntimeError(Fault::OutOfRange);
    const PaletteColor* best = &colours.front();
    std::int64_t least = 3 * 255;
    for (const PaletteColor& c : colours) {
        const std::int64_t d = std::abs(std::int64_t(red) - c.red) + std::abs(std::int64_t(green) - c.green) +
                               std::abs(std::int64_t(blue) - c.blue);
        if (d >= least) continue;
        best = &c;
        least = d;
        if (d == 0) break;
    }
    return *best;
}

} // namespace velara
