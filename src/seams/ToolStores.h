// ToolStores: the pixels that the mouse tools share among all documents, kept by the frame.
#pragma once
#include "pixels/Bits.h"
#include <QString>

namespace velara {

struct ToolStores {
    Bits stamp;        // the chosen stamp; empty: the stamp tools do nothing
    QString stampFile; // its name in the folder of the stamps
    Bits text;         // grey shape of the text to be placed, channel 0, dark is ink; empty: nothing to place
    Bits moved;        // cut out at the press of a content move
    Bits paste;        // what the next paste lays down; pixels with a fourth byte of 255 stay out
    // A paste hangs on the pointer: the mouse places it, whatever tool is chosen.
    bool pastePending = false;
    // The pane that pops up from the strip has an opacity of its own for moved content.
    bool useMovePressure = false;
    int movePressure = 50;
    // The pane of the text tool: an effect by its number, and its amount.
    int effect = 8, effectAmount = 5;
};

} // namespace velara
