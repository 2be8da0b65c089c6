#include "tools/reference/Dice.h"

namespace velara {

std::uint64_t checksum(const void* bytes, std::size_t count, std::uint64_t before)
{
    const auto* byte = static_cast<const std::uint8_t*>(bytes);
    for (std::size_t i = 0; i < count; ++i) before = (before ^ byte[i]) * 0x100000001B3u;
    return before;
}

Dice::Dice(std::string_view name) : random_(checksum(name.data(), name.size())) {}

int Dice::within(int low, int high)
{
    const auto count = static_cast<std::uint64_t>(std::int64_t{high} - low + 1);
    const std::uint64_t draw = count >> 24 ? next() * std::uint64_t{1 << 24} + next() : next();
    return static_cast<int>(low + static_cast<std::int64_t>(draw % count));
}

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
