// The preset colours of the colour box: seven sets under their names.
#pragma once
#include "pixels/Bits.h"
#include <vector>

namespace velara {

struct PresetSet {
    const char* name;
    int columns; // of the grid that shows it
    int shown;   // the colour by which its well is known
    /// Empty: the desktop's own colours.
    std::vector<Colour> (*colours)();
};

constexpr int kPresetSets = 7;
const PresetSet& presetSet(int index);

/// What the sixteen cells of the colour box start with.
constexpr int kBoxCells = 16;
Colour boxCellColour(int cell);

} // namespace velara
