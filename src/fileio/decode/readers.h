// The readers of the extension table, each for bytes that are in memory.
#pragma once
#include "fileio/decode/FileBytes.h"
#include "fileio/decode/decode.h"

class QImage;

namespace velara::decode {

/// The rows of a picture, transparent pixels on white.
Decoded onWhite(const QImage& image);

/// fif is FreeImage's format number.
Decoded readByFreeImage(FileBytes& file, int fif);
/// format is the name of Qt's reader; drawn on white. bits of a pixel in the file, 0: they differ.
Decoded readByQt(FileBytes& file, const char* format, int bits = 0);
/// The first picture of a GIF file.
Decoded readGif(FileBytes& file);
/// A bitmap with or without its file header.
Decoded readDib(FileBytes& file);
/// Metafiles at their natural size, 96 dots an inch, drawn on white.
Decoded readWmf(FileBytes& file);
Decoded readEmf(FileBytes& file);

/// What the readers take from the disk, fetched before the cage closes.
Needs loadQtReaders();
Needs loadIconReaders();
Needs prepareWmf();
Needs prepareEmf();

const char* const kCutOff = "it is cut off: its end is missing";
const char* const kTooBig = "it is wider or higher than 32767 pixels, or has more than 268 million pixels";
const char* const kTooMuchMemory = "it needs more memory than reading a picture may take";

} // namespace velara::decode
