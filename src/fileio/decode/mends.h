// In memory, turns valid files that FreeImage refuses or crashes on into ones that it reads, and files on which it
// loops endlessly into ones that it refuses. Each mend leaves other files unchanged.
#pragma once
#include "fileio/decode/FileBytes.h"

namespace velara::decode {

/// A 52- to 124-byte header becomes the 40-byte one that it begins with; the palette is moved to follow it.
void mendBmp(FileBytes& file);
/// Plain bitmaps, which may have no blanks between the pixels, become raw ones.
void mendPnm(FileBytes& file);
/// Run-length encoded true colour pictures become uncompressed: the reader loses runs that continue into the next row.
/// A window of one column or row, which is refused, becomes one of two; the second holds no pixels of the picture.
void mendPcx(FileBytes& file);
/// Palette pictures become true colour ones: a full palette of 256 is refused.
void mendRas(FileBytes& file);
/// Without a BODY chunk the reader searches for one endlessly, and a chunk of more than two gigabytes makes it go
/// backwards.
void mendIff(FileBytes& file);

} // namespace velara::decode
