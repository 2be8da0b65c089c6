#include "colour/presetColours.h"
#include "colour/hsb.h"
#include <algorithm>

namespace velara {

namespace {

/// The sixteen colours of early displays: eight at full level, the same eight at half, in two rows.
std::vector<Colour> sixteen()
{
    std::vector<Colour> list;
    for (const int level : {128, 255})
        for (int i = 0; i < 8; ++i) list.push_back(colourOf(i & 1 ? level : 0, i & 2 ? level : 0, i & 4 ? level : 0));
    list[7] = colourOf(192, 192, 192);
    list[8] = colourOf(128, 128, 128);
    return list;
}

/// Eight columns: seven hues and grey; six rows from pale to dark.
std::vector<Colour> fortyEight()
{
    struct Row {
        double saturation, brightness;
    };
    constexpr Row kRows[] = {{0.35, 1}, {0.7, 1}, {1, 1}, {1, 0.8}, {1, 0.55}, {1, 0.3}};
    constexpr int kHues[] = {0, 30, 60, 120, 180, 220, 290};
    constexpr int kGreys[] = {255, 208, 160, 112, 56, 0};
    std::vector<Colour> list;
    for (std::size_t row = 0; row < std::size(kRows); ++row) {
        for (const int hue : kHues)
            list.push_back(colourOf(toRgb({double(hue), kRows[row].saturation, kRows[row].brightness})));
        list.push_back(colourOf(kGreys[row], kGreys[row], kGreys[row]));
    }
    return list;
}

constexpr int kShades = 48, kPure = 7; // the place of the full colour in its row

/// From black through the full colour to nearly white; the second and third row are shifted a little towards the two
/// neighbouring hues.
std::vector<Colour> shadesOf(double hue)
{
    constexpr int kRow = kShades / 3, kFull = kPure + 1;
    std::vector<Colour> list;
    for (const double lean : {0.0, -18.0, 18.0})
        for (int i = 1; i <= kRow; ++i) {
            const double share = i <= kFull ? double(i) / kFull : 1 + double(i - kFull) / (kRow - kFull + 1);
            const double h = hue + lean < 0 ? hue + lean + 360 : hue + lean;
            list.push_back(colourOf(toRgb({h, share <= 1 ? 1 : 2 - share, std::min(share, 1.0)})));
        }
    return list;
}

std::vector<Colour> greys()
{
    std::vector<Colour> list;
    for (int i = 0; i < kShades; ++i) {
        const int level = (i * 255 + (kShades - 1) / 2) / (kShades - 1);
        list.push_back(colourOf(level, level, level));
    }
    return list;
}

const PresetSet kSets[] = {
    // clang-format off
    {"16 Colors",      8,  15,    sixteen},
    {"48 Colors",      8,  9,     fortyEight},
    {"Red Pallete",    16, kPure, [] { return shadesOf(0); }},
    {"Green Pallete",  16, kPure, [] { return shadesOf(120); }},
    {"Blue Pallete",   16, kPure, [] { return shadesOf(240); }},
    {"Grey Pallete",   16, 24,    greys},
    {"System Pallete", 6,  0,     [] { return std::vector<Colour>(); }},
    // clang-format on
};
static_assert(std::size(kSets) == kPresetSets);

constexpr Colour kBoxCells16[] = {0x000000, 0x404040, 0x808080, 0xC0C0C0, 0xFFFFFF, 0x0000FF, 0x0080FF, 0x00FFFF,
                                  0x00C000, 0x808000, 0xFFFF00, 0xFF8000, 0xFF0000, 0xC00080, 0xFF80FF, 0x204080};
static_assert(std::size(kBoxCells16) == kBoxCells);

} // namespace

const PresetSet& presetSet(int index) { return kSets[index]; }

Colour boxCellColour(int cell) { return kBoxCells16[cell]; }

} // namespace velara
