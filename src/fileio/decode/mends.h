// Valid files that FreeImage refuses or dies of, made into ones that it reads, and those that it reads for ever, made
// into ones that it refuses, in memory. Each mend leaves alone what is not its case.
#pragma once
#include "fileio/decode/FileBytes.h"

namespace velara::decode {

/// A 52- to 124-byte header becomes the 40-byte one that it begins with; the palette moves to follow it.
void mendBmp(FileBytes& file);
/// Metadata segments, whose parser reads beyond them, become segments that nobody parses. The mark of
/// the end, which some cameras forget, is added: without it a picture would pass for cut off.
void mendJpeg(FileBytes& file);
/// Plain bit maps, which may come without blanks between the pixels, become raw ones.
void mendPnm(FileBytes& file);
/// Run-length encoded true colour pictures become flat ones: the reader loses runs that go on into the next row. A
/// window of one column or row, which is refused, becomes one of two; the second holds nothing of the picture.
void mendPcx(FileBytes& file);
/// Palette pictures become true colour ones: a full palette of 256 is refused.
void mendRas(FileBytes& file);
/// Without a body its reader looks for one for ever, and a chunk of more than two gigabytes leads it back.
void mendIff(FileBytes& file);

} // namespace velara::decode
