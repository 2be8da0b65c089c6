#include "reduce/palettes.h"
#include <algorithm>
#include <array>

namespace velara {

namespace {

/// 0xRRGGBB, as tables are easier to read.
constexpr Colour fromRgb(int rgb) { return colourOf(rgb >> 16 & 255, rgb >> 8 & 255, rgb & 255); }

constexpr std::array kVga{0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0x808080,
                          0xC0C0C0, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
constexpr std::array kSystemFirst{0x000000, 0x800000, 0x008000, 0x808000, 0x000080,
                                  0x800080, 0x008080, 0xC0C0C0, 0xC0DCC0, 0xA6CAF0};
constexpr std::array kSystemLast{0xFFFBF0, 0xA0A0A4, 0x808080, 0xFF0000, 0x00FF00,
                                 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};

/// Level i of count equal steps, 0 to 255.
constexpr int level(int i, int levels) { return levels < 2 ? 0 : (i * 255 + (levels - 1) / 2) / (levels - 1); }

struct Levels {
    int red, green, blue;
    int colours() const { return red * green * blue; }
};

/// The largest split into levels that fits; green gets the most, as the eye tells its levels apart best.
Levels levelsFor(int count)
{
    Levels best{2, 2, 2};
    for (int green = 2; green <= count; ++green)
        for (int red = std::max(green - 2, 2); red <= green; ++red)
            for (int blue = std::max(green - 2, 2); blue <= red; ++blue)
                if (const Levels l{red, green, blue}; l.colours() <= count && l.colours() > best.colours()) best = l;
    return best;
}

/// Too few colours for levels of blue.
Palette planeOfColours(int red, int green)
{
    Palette palette;
    for (int r = 0; r < red; ++r)
        for (int g = 0; g < green; ++g) {
            const int redLevel = level(r, red), greenLevel = level(g, green);
            palette.push_back(colourOf(redLevel, greenLevel, (redLevel + greenLevel + 1) / 2));
        }
    return palette;
}

Palette cubeOfColours(const Levels& l)
{
    Palette palette;
    for (int r = 0; r < l.red; ++r)
        for (int g = 0; g < l.green; ++g)
            for (int b = 0; b < l.blue; ++b)
                palette.push_back(colourOf(level(r, l.red), level(g, l.green), level(b, l.blue)));
    return palette;
}

} // namespace

Palette blackAndWhite() { return {0x000000, 0xFFFFFF}; }

Palette vgaColours()
{
    Palette palette;
    std::ranges::transform(kVga, std::back_inserter(palette), fromRgb);
    return palette;
}

Palette halftoneColours()
{
    Palette palette;
    std::ranges::transform(kSystemFirst, std::back_inserter(palette), fromRgb);
    for (int i = 10; i < 246; ++i) palette.push_back(colourOf((i & 7) << 5, (i & 56) << 2, i & 192));
    std::ranges::transform(kSystemLast, std::back_inserter(palette), fromRgb);
    return palette;
}

Palette webSafeColours() { return cubeOfColours({6, 6, 6}); }

Palette fixedColours(int count)
{
    if (count < 4) return greyRamp(count);
    return count < 8 ? planeOfColours(2, count < 6 ? 2 : 3) : cubeOfColours(levelsFor(count));
}

Palette greyRamp(int count)
{
    Palette palette;
    for (int i = 0; i < count; ++i) palette.push_back(colourOf(1, 1, 1) * level(i, count));
    return palette;
}

} // namespace velara
