#include "tools/reference/Dice.h"

namespace velara {

Bits Dice::bits(int width, int height)
{
    Bits bits(width, height);
    std::uint8_t* byte = bits.data();
    for (std::size_t i = 0; i < bits.sizeInBytes(); ++i) byte[i] = static_cast<std::uint8_t>(next());
    return bits;
}

Bits Dice::smallBits(int most)
{
    const int width = within(1, most), height = within(1, most);
    return bits(width, height);
}

Bits Dice::patches(int width, int height, int noise)
{
    Bits patched = bits(width, height);
    const int cell = within(2, 10);
    const std::uint32_t salt = next();
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const std::uint32_t patch =
                (static_cast<std::uint32_t>(y / cell * 37 + x / cell) * 2654435761u + salt) >> 29;
            for (int c = 0; c < 3; ++c)
                patched.at(x, y).c[c] = static_cast<std::uint8_t>(patch % 3 * 90 + next() % std::uint32_t(noise + 1));
        }
    return patched;
}

Region Dice::region(int width, int height)
{
    Region all = Region::rectangle(0, 0, 0, 0);
    for (int i = within(1, 4); i > 0; --i) {
        const int left = within(-3, width), top = within(-3, height);
        const int right = left + within(1, width), bottom = top + within(1, height);
        const Region part =
            oneIn(2) ? Region::ellipse(left, top, right, bottom) : Region::rectangle(left, top, right, bottom);
        all = all.combined(part, Combine::Or);
    }
    return all;
}

} // namespace velara
