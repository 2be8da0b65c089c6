// In memory, turns valid files that FreeImage refuses or crashes on into ones that it reads, and files on which it
// loops endlessly into ones that it refuses. Each mend leaves other files unchanged.
#pragma once
#include "fileio/decode/FileBytes.h"

namespace velara::decode {

/// Metadata segments, whose parser reads beyond them, become segments that are not parsed. A missing end marker, which
/// some cameras omit, is added: without it a picture would count as truncated.
void mendJpeg(FileBytes& file);

} // namespace velara::decode
