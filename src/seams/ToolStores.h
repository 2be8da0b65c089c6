// ToolStores: the pixels that the mouse tools share among all documents, kept by the frame.
#pragma once
#include "pixels/Bits.h"
#include <QString>

namespace velara {

/// Channel 0 of a shape that the stamp and the text tool paint by: 0 is full ink, and from this value on it is paper,
/// where nothing is painted.
constexpr int kMaskPaper = 190;

struct ToolStores {
    Bits stamp;        // the chosen stamp; empty: the stamp tools do nothing
    QString stampFile; // its name in the folder of the stamps
    Bits text;         // grey shape of the text to be placed, in channel 0, dark is ink; empty: nothing to place
    Bits moved;        // the pixels cut out when a content move begins
    Bits paste;        // what the next paste puts down; pixels with a fourth byte of 255 are left out
    // A paste follows the pointer: the mouse places it, whatever tool is chosen.
    bool pastePending = false;
    // The pop-up pane of the strip has an opacity of its own for moved content.
    bool useMovePressure = false;
    int movePressure = 50;
    // The text tool's pane: an effect by its number, and its strength.
    int effect = 8, effectAmount = 5;
};

} // namespace velara
