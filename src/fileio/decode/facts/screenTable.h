// A screen's colours, for the editor, which parses no profile itself.
#pragma once
#include "fileio/decode/decode.h"

namespace velara::decode {

/// A picture of what a screen of that profile (ICC) has to get for sRGB colours: a table of kTableSide^3 colours, each
/// of 16 bits. Refused where it isn't a profile of a screen, or changes nothing.
Decoded screenTable(const FileBytes& file);

} // namespace velara::decode
